// The search for the last end record of a file that belongs to a whole state.
#pragma once

#include <QString>
#include <QtGlobal>
#include <optional>

#include "docmodel/zipformat.h"

namespace docmodel {

// An end record is that of a whole state if its directory ends exactly at it, by offsets from the
// begin of the file, and if the checksum in its comment, when it has one of its own, fits.
class EndSearch {
public:
    EndSearch(int file, quint64 fileSize, const QString& path)
        : file_(file), fileSize_(fileSize), path_(path) {}

    struct State {
        zip::EndRecord end;
        quint64 stateEnd = 0;  // behind the record's comment
    };

    // Looks through the bytes [offset, offset + length) of the file, which the caller has in
    // memory, for records that begin there. Raises DocumentError when too many checksums fail.
    std::optional<State> InWindow(const uchar* bytes, quint64 offset, quint64 length);

    // Looks through the file from `before` backwards, if it begins as a package does. Raises
    // DocumentError when there is no state.
    State Backwards(quint64 before);

private:
    std::optional<State> StateAt(quint64 position);
    bool ReadEnd(quint64 position, zip::EndRecord& end);
    bool ReadEnd64(quint64 position, zip::EndRecord& end);
    bool ChecksumFits(quint64 position, quint64 directoryOffset, const zip::CommitComment& comment);
    quint32 Checksum(quint64 from, quint64 to);
    void CheckBegin();
    // The bytes of [offset, offset + length), from the window or read into scratch_; null on
    // failure.
    const uchar* Fetch(quint64 offset, quint64 length);

    const int file_;
    const quint64 fileSize_;
    const QString& path_;
    const uchar* window_ = nullptr;
    quint64 windowOffset_ = 0;
    quint64 windowLength_ = 0;
    int failedChecksums_ = 0;
    uchar scratch_[128];
};

}  // namespace docmodel
