// The search of one folder: which of its documents hold references to a target.
#pragma once

#include <QList>
#include <QStringList>
#include <set>

#include "docmodel/folderlisting.h"
#include "docmodel/referenceindex.h"
#include "services/docaccess.h"

namespace docmodel {

struct FolderFindings {
    QList<docbench::FoundReference> rows;  // by document, component rows before external ones
    QStringList subfolders;
    docbench::SearchCounts counts;
};

// Searches the folder of the query's pattern and adds it to `known`; links to folders in there are
// no subfolders. The index spares time, and changes no answer. Raises DocumentError when the folder
// can't be listed.
FolderFindings SearchFolder(const docbench::ReferenceQuery& query, std::set<FolderIdentity>& known,
                            ReferenceIndex& index);

}  // namespace docmodel
