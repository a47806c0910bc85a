// Copying one file: it is there whole or not at all, and what it would replace is never lost.

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <atomic>
#include <cstdio>
#include <stop_token>
#include <thread>

#include "services/docaccess.h"
#include "services/filesystem.h"
#include "tests/support/smallfiles.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

using IfThere = FileSystem::IfThere;

struct Folder {
    QString Path(const QString& name) const { return folder.filePath(name); }
    QString Write(const QString& name, const QByteArray& bytes) const {
        QFile file(Path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("can't write %s", qPrintable(name));
        return Path(name);
    }
    void WriteOver(const QString& name, const QByteArray& bytes) const {
        QFile file(Path(name));
        if (!file.open(QIODevice::ReadWrite) || file.write(bytes) != bytes.size())
            qFatal("can't write %s", qPrintable(name));
    }
    QByteArray Read(const QString& name) const {
        QFile file(Path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }
    QStringList Names() const {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }
    QTemporaryDir folder;
};

mode_t ModeOf(const QString& path) {
    struct stat status;
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & ACCESSPERMS
                                                                   : 0;
}

// Long enough for another thread to come in between, mostly; else it is tried again.
constexpr int kLong = 16 << 20;
constexpr int kTries = 100;

QByteArray Bytes(int count) {
    QByteArray bytes(count, '\0');
    for (int i = 0; i < count; ++i)
        bytes[i] = char(i * 7 + i / 251);
    return bytes;
}

}  // namespace

class TestFileCopy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aCopyHasTheBytesAndTheTime_data() {
        QTest::addColumn<int>("size");
        for (const int size : {0, 1, 4096, 5'000'001})
            QTest::newRow(qPrintable(QString::number(size))) << size;
    }
    void aCopyHasTheBytesAndTheTime() {
        QFETCH(int, size);
        const Folder folder;
        const QString source = folder.Write("a", Bytes(size));
        const timespec times[] = {{1'000'000'000, 5}, {1'100'000'000, 7}};
        QCOMPARE(utimensat(AT_FDCWD, QFile::encodeName(source).constData(), times, 0), 0);
        QVERIFY(Files().Copy(source, folder.Path("b"), IfThere::Refuse));
        QCOMPARE(folder.Read("b"), Bytes(size));
        struct stat status;
        QCOMPARE(stat(QFile::encodeName(folder.Path("b")).constData(), &status), 0);
        QCOMPARE(status.st_mtim.tv_sec, 1'100'000'000);
        QCOMPARE(folder.Names(), (QStringList{"a", "b"}));
    }

    void aCopyToAnotherDiskIsWhole() {
        const Folder folder;
        const QTemporaryDir other(QStringLiteral("/dev/shm/docbench-XXXXXX"));
        if (!other.isValid())
            QSKIP("there is no other disk here");
        const QString source = folder.Write("a", Bytes(3'000'000));
        QVERIFY(Files().Copy(source, other.filePath("b"), IfThere::Refuse));
        QFile copy(other.filePath("b"));
        QVERIFY(copy.open(QIODevice::ReadOnly));
        QVERIFY(copy.readAll() == Bytes(3'000'000));
    }

    void theCopyOfAReadOnlyFileMayBeWritten() {
        const Folder folder;
        const QString source = folder.Write("a", "x");
        QCOMPARE(chmod(QFile::encodeName(source).constData(), 0440), 0);
        QVERIFY(Files().Copy(source, folder.Path("b"), IfThere::Refuse));
        QCOMPARE(ModeOf(folder.Path("b")), mode_t(0640));
    }

    void aFileThatIsThereIsLeftAloneUnlessItIsToBeReplaced() {
        const Folder folder;
        const QString source = folder.Write("a", "new");
        folder.Write("b", "somebody's work");
        QVERIFY(!Files().Copy(source, folder.Path("b"), IfThere::Refuse));
        QCOMPARE(folder.Read("b"), QByteArray("somebody's work"));
        QVERIFY(Files().Copy(source, folder.Path("b"), IfThere::Replace));
        QCOMPARE(folder.Read("b"), QByteArray("new"));
        QCOMPARE(folder.Names(), (QStringList{"a", "b"}));
    }

    void aFileCanNotBeCopiedOntoItself() {
        const Folder folder;
        const QString source = folder.Write("a", "x");
        QVERIFY_THROWS_EXCEPTION(DocumentError, Files().Copy(source, source, IfThere::Replace));
        QCOMPARE(link(QFile::encodeName(source).constData(),
                      QFile::encodeName(folder.Path("b")).constData()),
                 0);
        QVERIFY_THROWS_EXCEPTION(DocumentError,
                                 Files().Copy(source, folder.Path("b"), IfThere::Replace));
        QCOMPARE(folder.Read("a"), QByteArray("x"));
    }

    void aReadOnlyFileIsNotReplaced() {
        const Folder folder;
        const QString source = folder.Write("a", "new");
        const QString target = folder.Write("b", "old");
        QCOMPARE(chmod(QFile::encodeName(target).constData(), 0444), 0);
        QVERIFY_THROWS_EXCEPTION(DocumentError, Files().Copy(source, target, IfThere::Replace));
        QCOMPARE(folder.Read("b"), QByteArray("old"));
    }

    void aLinkIsFollowed() {
        const Folder folder;
        const QString source = folder.Write("a", "new");
        folder.Write("b", "old");
        QVERIFY(QFile::link(folder.Path("b"), folder.Path("link")));
        QVERIFY(Files().Copy(source, folder.Path("link"), IfThere::Replace));
        QCOMPARE(folder.Read("b"), QByteArray("new"));
        QCOMPARE(QFile::symLinkTarget(folder.Path("link")), folder.Path("b"));
    }

    void whatIsNoFileIsRefused() {
        const Folder folder;
        const QString source = folder.Write("a", "x");
        QVERIFY(QDir().mkpath(folder.Path("sub")));
        QVERIFY_THROWS_EXCEPTION(DocumentError,
                                 Files().Copy(source, folder.Path("sub"), IfThere::Replace));
        QVERIFY_THROWS_EXCEPTION(
            DocumentError, Files().Copy(folder.Path("sub"), folder.Path("b"), IfThere::Refuse));
        QVERIFY_THROWS_EXCEPTION(
            DocumentError, Files().Copy(folder.Path("none"), folder.Path("b"), IfThere::Refuse));
        QVERIFY_THROWS_EXCEPTION(DocumentError,
                                 Files().Copy(source, folder.Path("no folder/b"), IfThere::Refuse));
        QCOMPARE(folder.Names(), QStringList("a"));
    }

    void aCopyThatFailsInTheMiddleLeavesNothingBehind() {
        const Folder folder;
        const QString source = folder.Write("a", Bytes(3'000'000));
        folder.Write("old", "somebody's work");
        {
            const SmallFiles full(1'000'000);
            QVERIFY_THROWS_EXCEPTION(DocumentError,
                                     Files().Copy(source, folder.Path("b"), IfThere::Refuse));
            QVERIFY_THROWS_EXCEPTION(DocumentError,
                                     Files().Copy(source, folder.Path("old"), IfThere::Replace));
        }
        QCOMPARE(folder.Names(), (QStringList{"a", "old"}));
        QCOMPARE(folder.Read("old"), QByteArray("somebody's work"));
    }

    void aSourceThatKeepsChangingIsNotCopied() {
        const Folder folder;
        const QString source = folder.Write("a", Bytes(kLong));
        folder.Write("b", "somebody's work");
        QString said;
        for (int tries = 0; said.isEmpty() && tries < kTries; ++tries) {
            std::atomic<bool> isDone = false;
            const std::jthread other([&] {
                for (long i = 0; !isDone; ++i) {
                    const timespec times[] = {{0, UTIME_OMIT}, {1'000'000'000 + i, 0}};
                    utimensat(AT_FDCWD, QFile::encodeName(source).constData(), times, 0);
                }
            });
            try {
                Files().Copy(source, folder.Path("b"), IfThere::Replace);
                folder.Write("b", "somebody's work");  // the other one got no turn
            } catch (const DocumentError& error) {
                said = error.Description();
            }
            isDone = true;
        }
        QVERIFY2(said.contains(source) && said.contains("keeps changing"), qPrintable(said));
        QCOMPARE(folder.Read("b"), QByteArray("somebody's work"));
        QCOMPARE(folder.Names(), (QStringList{"a", "b"}));
    }

    void aSourceThatIsSavedWhileItIsCopiedIsCopiedAnew_data() {
        QTest::addColumn<bool>("inPlace");
        QTest::newRow("in its place") << true;
        QTest::newRow("by another file") << false;
    }
    void aSourceThatIsSavedWhileItIsCopiedIsCopiedAnew() {
        QFETCH(bool, inPlace);
        const QByteArray before(kLong, 'b');
        const QByteArray after(kLong, 'a');
        bool isSeen = false;
        for (int tries = 0; !isSeen && tries < kTries; ++tries) {
            const Folder folder;
            const QString source = folder.Write("source", before);
            const QString next = folder.Write("next", after);
            {
                const std::jthread other([&](const std::stop_token& stopped) {
                    while (folder.Names().size() < 3 && !stopped.stop_requested()) {
                    }
                    if (inPlace)
                        folder.WriteOver("source", after);
                    else
                        std::rename(QFile::encodeName(next).constData(),
                                    QFile::encodeName(source).constData());
                });
                QVERIFY(Files().Copy(source, folder.Path("copy"), IfThere::Refuse));
            }
            // One or the other, whenever that save came, and the new one if it came in the middle.
            const QByteArray copy = folder.Read("copy");
            QVERIFY(copy == before || copy == after);
            isSeen = copy == after;
        }
        QVERIFY(isSeen);
    }

    void aFullDiskIsNamed() {
        const Folder folder;
        const QString source = folder.Write("a", Bytes(3'000'000));
        const QTemporaryDir disk;
        const QByteArray place = QFile::encodeName(disk.path());
        if (mount("none", place.constData(), "tmpfs", 0, "size=1m") != 0)
            QSKIP("no disk can be mounted here");
        QString said;
        try {
            Files().Copy(source, disk.filePath("b"), IfThere::Refuse);
        } catch (const DocumentError& error) {
            said = error.Description();
        }
        const QStringList left = QDir(disk.path()).entryList(QDir::Files | QDir::Hidden);
        umount2(place.constData(), MNT_DETACH);
        QVERIFY2(said.contains("No space left"), qPrintable(said));
        QVERIFY2(said.contains(source), qPrintable(said));
        QCOMPARE(left, QStringList());
    }

    void syncTakesFoldersOfSeveralDisksAndNamesOneThatIsGone() {
        const Folder folder;
        Files().Sync({folder.folder.path(), "/dev/shm", folder.folder.path()});
        QVERIFY_THROWS_EXCEPTION(DocumentError, Files().Sync({folder.Path("gone")}));
    }

    void readOnlyIsAskedByModeAndTakenAway() {
        const Folder folder;
        const QString path = folder.Write("a", "x");
        QVERIFY(!IsReadOnlyFile(path));
        QCOMPARE(chmod(QFile::encodeName(path).constData(), 0444), 0);
        QVERIFY(IsReadOnlyFile(path));
        AllowWriting(path);
        QCOMPARE(ModeOf(path), mode_t(0644));
        QVERIFY(!IsReadOnlyFile(folder.Path("none")));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestFileCopy)
#include "tst_filecopy.moc"
