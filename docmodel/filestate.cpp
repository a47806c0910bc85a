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

// Disks of this machine, whose clock is its own. It ticks in milliseconds, but the disk may be
// mounted by a system whose times are whole seconds.
constexpr std::array<quint32, 8> kLocalDisks = {
    EXT4_SUPER_MAGIC, XFS_SUPER_MAGIC,       BTRFS_SUPER_MAGIC,    F2FS_SUPER_MAGIC,
    TMPFS_MAGIC,      OVERLAYFS_SUPER_MAGIC, 0x2FC12FC1 /* ZFS */, 0xCA451A4E /* bcachefs */};
constexpr qint64 kLocalGrain = 2 * kSecond;

// Disks, or programs in their place, that keep no change time: a file that is given its old
// modified time back looks as it did.
constexpr std::array<quint32, 3> kForgetfulDisks = {MSDOS_SUPER_MAGIC, EXFAT_SUPER_MAGIC,
                                                    FUSE_SUPER_MAGIC};

// Servers have clocks of their own, and we may be told of a change late.
constexpr qint64 kServerGrain = 60 * kSecond;

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

std::optional<qint64> ClockGrain(int folder) {
    struct statfs disk;
    if (fstatfs(folder, &disk) != 0)
        return std::nullopt;
    const auto isIn = [&](const auto& kinds) {
        return std::find(kinds.begin(), kinds.end(), quint32(disk.f_type)) != kinds.end();
    };
    if (isIn(kForgetfulDisks))
        return std::nullopt;
    return isIn(kLocalDisks) ? kLocalGrain : kServerGrain;
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
