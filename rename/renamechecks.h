// Whether a document may have a new name, or be replaced by another one.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace docbench {

class CellList;

// The document that is renamed or replaced, and where it stands.
struct RenameSubject {
    QString fullName;           // its path or address
    QString folder;             // with a separator at its end
    QStringList ancestorChain;  // itself, then the documents above each of its occurrences
    bool replaces = false;
    bool wildcards = true;  // "*" and "?" in a new name stand for others that may be there
};

// A new name without the ending of a document gets that of the old one; an empty name stays empty.
QString WithExtension(const QString& newName, const QString& oldName);

// True if `target` (a whole path or address) will do. Else a box says why. `showStatus` is told
// what is going on.
using ShowStatusLine = std::function<void(const QString&)>;
bool ValidateTarget(const RenameSubject& subject, const QString& target,
                    const ShowStatusLine& showStatus);

// True if the document (a path or address) can be written now. Else a box says why not.
bool MayBeWritten(const QString& document);

// True if every ticked holder may be written and none of them has the file name of `newName` (the
// new file name, or the whole path of a replacement). Else a box tells of the first one that fails;
// it is red and has lost its tick, so that the next try goes on without it. `show` brings a row
// into view.
bool CheckHolders(CellList& list, const RenameSubject& subject, const QString& newName,
                  const std::function<void(int row)>& show);

}  // namespace docbench
