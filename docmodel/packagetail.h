// Finds the newest whole state of a package: the last end record that can be trusted.
#pragma once

#include <QString>
#include <QtGlobal>
#include <memory>

#include "docmodel/packagelimits.h"
#include "docmodel/zipformat.h"

namespace docmodel {

// The end of a file in memory, and the state that was found there.
class PackageTail {
public:
    // Reads the end of the file and finds the state. `fileSize` is the file's size; it is corrected
    // if the file has become shorter meanwhile. Raises DocumentError, naming `path`, when there is
    // no state, or its directory is too large.
    void Read(int file, quint64& fileSize, const QString& path);

    const zip::EndRecord& End() const { return end_; }
    quint64 StateEnd() const { return stateEnd_; }  // what lies behind it is a torn save
    const uchar* Directory() const;                 // all of it, in memory

    // The bytes of [offset, offset + length) if they are in memory, else null.
    const uchar* InMemory(quint64 offset, quint64 length) const;

private:
    void Load(int file, quint64 offset, quint64 length, const QString& path);

    // In memory is [offset_, offset_ + length_) of the file: in small_, or in large_ when that was
    // not enough. small_ stays uninitialised, since clearing it would be a tenth of an Open.
    quint64 offset_ = 0;
    quint64 length_ = 0;
    std::unique_ptr<uchar[]> large_;
    zip::EndRecord end_;
    quint64 stateEnd_ = 0;
    uchar small_[kTailBytes];
};

}  // namespace docmodel
