// Holds a document open with a lock on it, as another program does.
#pragma once

#include <QString>

namespace docbench {

class FileLockHolder {
public:
    explicit FileLockHolder(const QString& path);
    ~FileLockHolder();
    FileLockHolder(const FileLockHolder&) = delete;
    FileLockHolder& operator=(const FileLockHolder&) = delete;

private:
    int descriptor_;
};

}  // namespace docbench
