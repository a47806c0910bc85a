// Copies one document after the other, between folders and web folders.
#pragma once

#include <QSet>
#include <QString>
#include <functional>

namespace docbench {

enum class CopyStatus {
    Cancelled = 0,  // by the user, at the question whether to overwrite
    Copied = 1,
    Kept = 2,     // the user keeps the file that is there
    NotMade = 3,  // nothing gives this one
    Failed = 4,
};

struct CopyOutcome {
    CopyStatus status = CopyStatus::Copied;
    QString message = {};  // for the user; of a failure to make the folder alone
    QString reason = {};   // of any failure, as a sentence
};

class FileCopier {
public:
    explicit FileCopier(std::function<void(const QString&)> status) : status_(std::move(status)) {}

    // Makes the target's folder where it is missing, asks before it overwrites, and leaves no part
    // of a file behind. The copy may be written, even if the source may not.
    CopyOutcome CopyOneFile(const QString& source, const QString& target);

private:
    CopyOutcome CopyAs(const QString& source, const QString& target);
    void MakeWebFolder(const QString& url);

    std::function<void(const QString&)> status_;
    QSet<QString> webFolders_;  // that are there
};

}  // namespace docbench
