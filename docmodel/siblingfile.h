// A new file beside the one whose place it is to take.
#pragma once

#include <QByteArray>

#include "docmodel/fileops.h"

namespace docmodel {

// Named ".NAME.RANDOM.tmp" in the folder of its target. Unless it is placed, it is gone with this
// object.
class SiblingFile {
public:
    // Creates it with `mode`, of which the user's mask takes away, and locks it as a writer does.
    // The lock is what makes placing it safe: whoever opens the document by its name after that,
    // but before the folder is synced, waits. Otherwise his save would be synced in a file that has
    // no lasting name yet. On failure IsOpen is false, and errno tells why.
    SiblingFile(const QByteArray& target, unsigned mode);
    ~SiblingFile();
    SiblingFile(const SiblingFile&) = delete;
    SiblingFile& operator=(const SiblingFile&) = delete;

    bool IsOpen() const { return file_.IsOpen(); }
    int Get() const { return file_.Get(); }
    const QByteArray& Path() const { return path_; }

    // Renames it to its target's name and syncs the folder. False with errno set; `placed` tells
    // whether the target has its name all the same.
    bool PlaceOver(bool& placed);         // replaces what is there
    bool PlaceUnlessThere(bool& placed);  // fails with EEXIST
    // Renames without syncing, for a copy that a power failure may take. False with errno set.
    bool PlaceUnsynced();

private:
    bool FinishPlacing(int renamed, bool& placed);

    const QByteArray target_;
    QByteArray path_;  // empty when there is nothing to remove
    FileDescriptor file_;
};

// The folder that a path lies in.
QByteArray FolderOf(const QByteArray& path);

}  // namespace docmodel
