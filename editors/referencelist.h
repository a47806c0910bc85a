// The list of a document and the documents that it directly refers to, with what the disk tells of
// each.
#pragma once

#include <QString>

#include "cells/celllist.h"
#include "panes/pathcolumn.h"

namespace docbench {

// Columns from 0. The row's tag is the whole path; a red row is missing.
enum ReferenceColumn {
    kReferencePath = 0,
    kReferenceSize = 1,
    kReferenceRelation = 2,
    kReferenceChanged = 3,
    kReferenceAttributes = 4,
};

void PrepareReferenceList(CellList& list);  // its headers, with whole paths
PathColumn ReferencePathColumn();

// Replaces the rows by those of a document: itself, in bold, then what it refers to, one level deep
// and each once. `local` is its local copy. A box tells that it can't be read; the rows until then
// stay, and nothing follows the box, behind which the list may go away.
void ListReferences(CellList& list, const QString& document, const QString& local);

}  // namespace docbench
