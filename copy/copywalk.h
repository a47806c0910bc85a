// Builds the copy list: walks what a document refers to, down to any depth.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "copy/copynaming.h"

namespace docbench {

class CellList;

// A document that many others use has a row for each use, which a handful of hostile documents can
// drive beyond any memory. Real assemblies stay far below this.
inline constexpr int kMaximumCopyRows = 500'000;

struct CopyWalk {
    QString document;      // path or address
    QString targetFolder;  // the same of where the copies go
    Affixes affixes = {};
    bool references = true;  // false: none are listed, the document alone is copied
    int maximumRows = kMaximumCopyRows;
    // Is told each document before it is read, and how many were read before; may be empty.
    std::function<void(int read, const QString& path)> progress = {};
};

struct CopyWalkResult {
    QStringList rowFolders;  // relative folders: of the document, then of each row
    int missing = 0;         // rows whose file is not there
};

// Fills `list`, which is emptied first. Each document is read once, however often it is used; one
// that can't be read ends the walk below it silently. A box tells of references that lead back to a
// document above them, which have a row and are not followed, and of a list that is full.
CopyWalkResult ListReferences(const CopyWalk& walk, CellList& list);

}  // namespace docbench
