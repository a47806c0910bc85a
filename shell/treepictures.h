// Keys of the pictures that stand for documents in trees.
#pragma once

#include <QString>

namespace docbench {

inline const QString kPictureCircular = QStringLiteral("circular");  // the tree's picture 5

// "picPart", "picAsm" or "picDrw" by the type of the document at `path`, with "Lock" behind it for
// a locked one; empty for anything that is no document.
QString DocumentPicture(const QString& path, bool locked);

// Whether a key is the picture of a locked document.
bool IsLockedPicture(const QString& key);

}  // namespace docbench
