// The bounds within which a package is read and written, all in one place.
#pragma once

#include <QtGlobal>

namespace docmodel {

// Parts of one package. The largest real assemblies have some hundred; a directory that names more
// is refused before anything is allocated for it.
inline constexpr quint64 kMaxParts = 10'000;

// Bytes of a central directory: generous for kMaxParts of names, small enough to be read at once.
inline constexpr quint64 kMaxDirectoryBytes = 8 << 20;

// Uncompressed bytes of one part: what its headers can say without ZIP64 fields. Callers give
// tighter limits for parts that they hold in memory.
inline constexpr qint64 kMaxPartBytes = 0xFFFFFFFE;

// Deflate can't do better than 1032 to 1; a part that claims more is lying about its size.
inline constexpr quint64 kMaxDeflateRatio = 1040;

// What is read of the end of a file at Open: the directory and the document part of nearly every
// document, in one call.
inline constexpr qint64 kTailBytes = 8 << 10;

// Read in addition when the directory did not fit, in the hope that the document part lies in it.
inline constexpr quint64 kTailExtraBytes = 16 << 10;

// The step in which the end record is searched for backwards behind a torn tail.
inline constexpr qint64 kSearchChunkBytes = 1 << 20;

// End records whose checksum is computed in such a search, so that a hostile file that is full of
// them can't make opening it slow.
inline constexpr int kMaxChecksumTries = 64;

// New parts up to this many bytes in all are written in one step with the directory and protected
// by the end record's checksum; what is bigger is written and synced before them. A reader thus
// never has to sum up more than this and the directory.
inline constexpr quint64 kMaxCheckedPartBytes = 64 << 10;

// What an end record may claim to be protected by its checksum; records that claim more are not
// ours.
inline constexpr quint64 kMaxCheckedBytes = kMaxDirectoryBytes + 2 * kMaxCheckedPartBytes;

// The document part is stored as it is up to this size, so that reading the tables means no
// inflating.
inline constexpr qint64 kMaxStoredDocumentPart = 16 << 10;

// Other parts are deflated if that saves at least one byte in this many.
inline constexpr qint64 kDeflateMustSaveOneIn = 20;

// A save compacts when the dead bytes are more than this, and more than one in kDeadShare of the
// file.
inline constexpr quint64 kMinDeadBytes = 1 << 20;
inline constexpr quint64 kDeadShare = 4;

// How long a writer waits for a lock that another process holds, and how often it looks.
inline constexpr int kLockWaitMilliseconds = 200;
inline constexpr int kLockPollMilliseconds = 5;

// How often a writer starts again because the file was replaced between opening and locking it.
inline constexpr int kMaxReopens = 16;

// The unit that a disk writes whole or not at all. No end record crosses its border.
inline constexpr quint64 kSectorBytes = 512;

// The buffer with which parts are checked and copied.
inline constexpr qint64 kCopyBytes = 256 << 10;

}  // namespace docmodel
