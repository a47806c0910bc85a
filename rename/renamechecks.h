// Whether a document may have a new name, or be replaced by another one.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace docbench {

// The document that is renamed or replaced, and where it stands.
struct RenameSubject {
    QString fullName;           // its path or address
    QString folder;             // with a separator at its end
    QStringList ancestorChain;  // itself, then the documents above each of its occurrences
    bool replaces = false;
};

// True if `target` (a whole path or address) will do. Else a box says why. `showStatus` is told
// what is going on.
using ShowStatusLine = std::function<void(const QString&)>;
bool ValidateTarget(const RenameSubject& subject, const QString& target,
                    const ShowStatusLine& showStatus);

}  // namespace docbench
