// Looks for the documents that use the one that is copied.
#pragma once

#include <QString>

#include "copy/copynaming.h"
#include "panes/holdersearch.h"

namespace docbench {

class RowBatch;

struct ParentSearch {
    // Where and how; `take` and `onFailure` are set here. A folder that can't be searched gives no
    // rows and no message.
    HolderSearch search;
    QString targetFolder;  // of the drawings that are copied along
    Affixes affixes;
};

// Adds a row for each reference, once, except the document's own. `rows` (ParentRows) is handed on
// by the caller: by `progress`, and at the end.
void SearchParents(const ParentSearch& parents, const QString& folders, RowBatch& rows);

}  // namespace docbench
