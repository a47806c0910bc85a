// The search of one folder: which of its documents hold references to a target.
#pragma once

#include <QList>
#include <QStringList>

#include "docmodel/folderlisting.h"
#include "docmodel/referenceindex.h"
#include "services/docaccess.h"

namespace docmodel {

struct FolderFindings {
    QList<docbench::FoundReference> rows;  // by document, component rows before external ones
    QStringList subfolders;
    docbench::SearchCounts counts;
};

// Searches the folder of the query's pattern and adds it to `known`. Nothing is found in a link to
// a folder that is known by another name, so that a walk through linked folders ends. The index
// spares time, and changes no answer. Raises DocumentError when the folder can't be listed.
FolderFindings SearchFolder(const docbench::ReferenceQuery& query, KnownFolders& known,
                            ReferenceIndex& index);

}  // namespace docmodel
