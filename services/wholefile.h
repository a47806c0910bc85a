// The end of a save into a QSaveFile that tells of every failure.
#pragma once

#include <QSaveFile>

namespace docbench {

// True when the file has all that was written. The commit alone does not tell when the last piece,
// which still waits in the buffer, finds no room: it would put a cut file in the old one's place.
inline bool CommitWhole(QSaveFile& file) {
    return file.error() == QFileDevice::NoError && file.flush() && file.commit();
}

}  // namespace docbench
