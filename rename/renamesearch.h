// Looks for the references to a document that a renaming or replacement has to rewrite.
#pragma once

#include <QString>
#include <functional>

#include "panes/holdersearch.h"
#include "panes/usekinds.h"
#include "services/docaccess.h"

namespace docbench {

class RowBatch;

struct RenameSearch {
    QString document;  // path or address
    QString parent;    // whose row must stay ticked; may be empty
    UseKinds kinds;
    bool subfolders = true;
    std::function<void(const QString& text)> status;
    std::function<void()> yield;      // once for each folder
    std::function<bool()> cancelled;  // asked after each yield
    std::function<void(const SearchCounts& counts, int rows)> progress;
    HolderSearch::Mirrors mirrors = HolderSearch::Mirrors::WholeText;
    // Is told of each further reference of a holder, which gets no row.
    std::function<void(const QString& holder)> repeated = {};
    // Is told of a folder that can't be searched at all. Without it that is passed over.
    std::function<void(const QString& folder, const QString& reason)> unsearched = {};
};

// Adds a row to `rows` for each reference found in the folders (";" between them, named lists
// expanded). False when there is nothing to look in. Raises what a folder's search raises.
bool SearchHolders(const RenameSearch& search, const QString& folders, RowBatch& rows);

}  // namespace docbench
