// What the file system tells of one file, as lists show it.
#pragma once

#include <QDateTime>
#include <QString>
#include <QtGlobal>

namespace docbench {

struct FileFacts {
    QString type;  // in words, in the desktop's language
    qint64 size = 0;
    QDateTime created;      // when the disk does not keep that: when the file last changed
    quint8 attributes = 0;  // sum of FileAttribute
};

// A file that is not there has no facts but its type.
FileFacts FactsOf(const QString& path);

}  // namespace docbench
