// Looks for the documents that use the one that is copied.
#pragma once

#include <QString>

#include "copy/copynaming.h"
#include "panes/holdersearch.h"

namespace docbench {

class CellList;

struct ParentSearch {
    // Where and how; `take` and `onFailure` are set here. A folder that can't be searched gives no
    // rows and no message.
    HolderSearch search;
    QString targetFolder;  // of the drawings that are copied along
    Affixes affixes;
};

// Adds a row for each reference, except the document's own and those that are listed already.
void SearchParents(const ParentSearch& parents, const QString& folders, CellList& list);

}  // namespace docbench
