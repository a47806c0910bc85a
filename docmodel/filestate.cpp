#include "docmodel/filestate.h"

#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <time.h>

#include <algorithm>
#include <array>
#include <limits>

namespace docmodel {

namespace {

constexpr qint64 kSecond = 1'000'000'000;

// Disks of this machine, whose clock is its own, and that keep a change time. It ticks in
// milliseconds, but the disk may be mounted by a system whose times are whole seconds.
// All others are not trusted: a server's changes are told late, and from its clock; and where no
// change time is kept, a file that is given its old modified time back looks as it did.
constexpr std::array<quint32, 8> kLocalDisks = {
    EXT4_SUPER_MAGIC, XFS_SUPER_MAGIC,       BTRFS_SUPER_MAGIC,    F2FS_SUPER_MAGIC,
    TMPFS_MAGIC,      OVERLAYFS_SUPER_MAGIC, 0x2FC12FC1 /* ZFS */, 0xCA451A4E /* bcachefs */};
constexpr qint64 kLocalGrain = 2 * kSecond;

// Times so far off that they don't fit are the farthest that do.
qint64 Nanoseconds(const timespec& time) {
    constexpr qint64 kFarthest = std::numeric_limits<qint64>::max() / kSecond - 1;
    return std::clamp<qint64>(time.tv_sec, -kFarthest, kFarthest) * kSecond + time.tv_nsec;
}

}  // namespace

FileState StateOf(const struct stat& status) {
    return {status.st_size, Nanoseconds(status.st_mtim), Nanoseconds(status.st_ctim),
            status.st_ino};
}

std::optional<qint64> GrainOf(quint32 diskKind) {
    if (std::find(kLocalDisks.begin(), kLocalDisks.end(), diskKind) == kLocalDisks.end())
        return std::nullopt;
    return kLocalGrain;
}

std::optional<qint64> ClockGrain(int folder) {
    struct statfs disk;
    if (fstatfs(folder, &disk) != 0)
        return std::nullopt;
    return GrainOf(quint32(disk.f_type));
}

bool IsSettled(const FileState& state, qint64 readAt, qint64 grain) {
    return std::max(state.modified, state.changed) < readAt - grain;
}

qint64 SystemClockNow() {
    timespec now;
    clock_gettime(CLOCK_REALTIME, &now);
    return Nanoseconds(now);
}

}  // namespace docmodel
