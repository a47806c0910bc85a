// What tells whether a file is still the one that was read: a cache's reason to believe its
// entries.
#pragma once

#include <QtGlobal>
#include <optional>

struct stat;

namespace docmodel {

// Any change of a file changes one of these: the change time can't be set back as the modified time
// can. Times are nanoseconds since 1970.
struct FileState {
    qint64 size = 0;
    qint64 modified = 0;
    qint64 changed = 0;
    quint64 inode = 0;
    bool operator==(const FileState& other) const = default;
};

FileState StateOf(const struct stat& status);

// How long after a file's times it may be changed again without getting later ones, in nanoseconds,
// on the disk of an open folder. None where a change may never show.
std::optional<qint64> ClockGrain(int folder);
std::optional<qint64> GrainOf(quint32 diskKind);  // as fstatfs tells the kind

// Whether a file that was in this state at `readAt` will be in another one after any later change.
bool IsSettled(const FileState& state, qint64 readAt, qint64 grain);

qint64 SystemClockNow();  // nanoseconds since 1970

}  // namespace docmodel
