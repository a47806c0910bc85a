// A temporary folder that belongs to one process for as long as it lives.
#pragma once

#include <QString>
#include <optional>

namespace docbench {

// The folders of all of a user's processes stand in one folder of that user, each named after its
// process. Which of them are in use is told by a lock on the folder itself, which ends with the
// process: a process id would be given to another program some day. The lock also keeps the
// system's cleaning of old temporary files away.
class ProcessFolder {
public:
    // Makes the folder below `parent` (an existing folder). Raises DocumentError when it can't.
    explicit ProcessFolder(const QString& parent);
    ~ProcessFolder();  // deletes it with all that it holds
    ProcessFolder(const ProcessFolder&) = delete;
    ProcessFolder& operator=(const ProcessFolder&) = delete;

    const QString& Path() const { return path_; }  // without a separator at its end

    // Deletes the folders beside this one that no living process holds.
    void DeleteAbandoned() const;

private:
    void MakeFolder(const QString& name);

    QString plainUserFolder_;
    QString userFolder_;
    QString path_;
    int lock_ = -1;
};

}  // namespace docbench
