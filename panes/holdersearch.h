// The search for the references to a document that renaming and copying share: by its name, folder
// by folder.
#pragma once

#include <QString>
#include <functional>

#include "panes/usekinds.h"
#include "services/docaccess.h"

namespace docbench {

struct HolderSearch {
    // What a folder's search that fails does to the whole.
    enum class OnFailure { Raises, GoesOn };

    // What of the text is taken for the web folder that is mirrored, once for each entry.
    enum class Mirrors { EachEntry, WholeText };

    QString document;  // path or address
    UseKinds kinds = {};
    bool subfolders = true;
    OnFailure onFailure = OnFailure::Raises;
    std::function<void(const QString& text)> status;
    std::function<void()> yield;      // once for each folder
    std::function<bool()> cancelled;  // asked after each yield
    std::function<void(const SearchCounts& counts)> progress;
    Mirrors mirrors = Mirrors::EachEntry;
    // Is given each reference of a wanted kind; `holder` is where its document really is,
    // `relation` what the reference is by the types of the two.
    std::function<void(const FoundReference& found, const QString& holder, const QString& relation)>
        take = {};
    // Is told of a folder that can't be searched at all. Without it that is passed over.
    std::function<void(const QString& folder, const QString& reason)> unsearched = {};

    // Looks in the folders (";" between them, named lists expanded). False when there are none.
    bool Run(const QString& folders) const;
};

}  // namespace docbench
