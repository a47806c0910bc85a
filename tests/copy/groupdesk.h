// A small group of documents to be copied, for the tests of the run.
#pragma once

#include <QTest>

#include "services/filesystem.h"
#include "tests/copy/copyproject.h"

namespace docbench {

inline void SetReadOnly(const QString& path) {
    QVERIFY(QFile::setPermissions(
        path, QFile::ReadOwner | QFile::ReadUser | QFile::ExeOwner | QFile::ExeUser));
}

// top -> left -> pin, top -> right -> pin, with a drawing and a whole that use top.
struct GroupDesk : CopyDesk {
    GroupDesk() {
        pin = library.Make("pin.tfmprt");
        left = library.Make("left.tfmasm", {{pin}});
        right = library.Make("sub/right.tfmasm", {{pin}});
        top = library.Make("top.tfmasm", {{left}, {right}}, {{pin, "in context"}});
        List(top);
    }
    QString Write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) < 0)
            qFatal("can't write");
        return path;
    }
    AnsweringDialogs dialogs;
    QString pin, left, right, top;
};

// Puts itself between the program and the disk.
class FakeFiles : public FileSystem {
public:
    FakeFiles() { gSeams.files = this; }
    ~FakeFiles() override { gSeams.files = nullptr; }
    bool Copy(const QString& from, const QString& to, IfThere ifThere) override {
        if (before)
            before(from, to);
        const bool copied = FileSystem::Copy(from, to, ifThere);
        if (after)
            after(from, to);
        return copied;
    }
    void Sync(const QStringList& folders) override {
        synced.append(folders);
        if (sync)
            sync();
    }
    std::function<void(const QString&, const QString&)> before, after;
    std::function<void()> sync;
    QStringList synced;
};

}  // namespace docbench
