// Rewriting a package without the bytes of its former states.
#pragma once

#include <QByteArray>

#include "docmodel/package.h"
#include "docmodel/packagedata.h"

namespace docmodel {

// Copies the live parts of `from` into a sibling file, in which every part is then read back, gives
// it mode, owner and extended attributes of the document, and renames it over `realPath`. The
// caller holds the lock on `from`, whose file stays as it is. Raises DocumentError when that can't
// be done.
//
// Nobody's save is lost over it:
// - a writer who opened the old file waits for our lock on it, then sees that the name leads to
// another
//   file, and opens that one;
// - a writer who opens the new file right after the rename waits for our lock on that, which ends
// after
//   the folder is synced;
// - if the power fails in between, the name leads to either file, and both hold the same state,
// since
//   compaction only ever copies a state that is saved already.
void CompactPackage(const Package::Data& from, const QByteArray& realPath);

// Whether so much of a file of `fileSize` bytes is dead that a save should compact it.
bool IsWorthCompacting(quint64 deadBytes, quint64 fileSize);

}  // namespace docmodel
