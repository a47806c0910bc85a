#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <QTest>
#include <cerrno>

#include "docmodel/packagelimits.h"
#include "tests/docmodel/packagetools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

namespace {

const QByteArray kNewState = "<document state=\"new\"/>";

struct stat StatusOf(const QString& path) {
    struct stat status = {};
    if (stat(path.toUtf8().constData(), &status) != 0)
        qFatal("no status of %s", qPrintable(path));
    return status;
}

// Saves until the dead space is just below what makes a save compact, or once beyond it.
void Fill(const QString& path, bool beyond) {
    PackageWriter writer(path);
    const qint64 dead = beyond ? qint64(kMinDeadBytes) + 100 : qint64(kMinDeadBytes) - 100'000;
    writer.Put("old.bin", Noise(dead));
    writer.Commit("<document/>");
    PackageWriter second(path);
    second.Remove("old.bin");
    second.Commit(kNewState);
}

}  // namespace

class TestPackageCompaction : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder_;
    QString path_;

private Q_SLOTS:
    void init() {
        static int count = 0;
        const QString own = folder_.filePath(QString::number(++count));
        QVERIFY(QDir().mkpath(own));
        path_ = own + QStringLiteral("/gear.tfmprt");
        PackageWriter::Create(path_, SmallParts());
    }

    void ASaveCompactsWhenMuchOfTheFileIsDead() {
        Fill(path_, false);
        const ino_t inode = StatusOf(path_).st_ino;
        QVERIFY(Package::Open(path_).DeadBytes() > 900'000);
        Fill(path_, true);
        QVERIFY(StatusOf(path_).st_ino != inode);
        QCOMPARE(Package::Open(path_).DeadBytes(), 0);
        QVERIFY(StatusOf(path_).st_size < 3000);
        QCOMPARE(AllParts(path_).value(kDocumentPart), kNewState);
        QCOMPARE(FolderOfFile(path_), QStringList(QStringLiteral("gear.tfmprt")));
    }

    void ADeadMegabyteOfALargeFileIsLeftAlone() {
        {
            PackageWriter writer(path_);
            writer.Put("model/large.bin", Noise(8 << 20));
            writer.Commit("<document/>");
        }
        const ino_t inode = StatusOf(path_).st_ino;
        Fill(path_, true);
        QCOMPARE(StatusOf(path_).st_ino, inode);
        QVERIFY(Package::Open(path_).DeadBytes() > qint64(kMinDeadBytes));
    }

    void CompactionKeepsEveryPartByteForByteAsItStandsInTheFile() {
        const QByteArray data = Deflated(QByteArray(5000, 'x'));
        WriteBytes(path_, RawPackage({{.name = kDocumentPart, .data = "<old/>"},
                                      {.name = "dead", .data = Noise(1000)},
                                      {.name = "folder/"},
                                      {.name = "best.xml",
                                       .data = data,
                                       .method = 8,
                                       .crc = Crc(QByteArray(5000, 'x')),
                                       .size = 5000,
                                       .extra = QByteArray("\x99\x99\4\0abcd", 8)}}));
        {
            PackageWriter writer(path_);
            writer.Remove("dead");
            writer.Commit(kNewState);
        }
        const QMap<QByteArray, QByteArray> before = AllParts(path_);
        PackageWriter::Compact(path_);
        QCOMPARE(AllParts(path_), before);
        const QByteArray bytes = FileBytes(path_);
        QVERIFY(bytes.contains("best.xml" + data));
        QVERIFY(bytes.contains(QByteArray("best.xml\x99\x99\4\0abcd", 16)));  // in the directory
        QVERIFY(bytes.contains("folder/"));
        QVERIFY(!bytes.contains(Noise(100)));
        QVERIFY(bytes.contains(kNewState + "PK\1\2"));
        QCOMPARE(Package::Open(path_).DeadBytes(), 0);
    }

    void CompactionKeepsModeOwnerAndAttributes() {
        const QByteArray name = path_.toUtf8();
        QCOMPARE(chmod(name.constData(), 0464), 0);
        const bool root = geteuid() == 0;
        if (root)
            QCOMPARE(chown(name.constData(), 1234, 5678), 0);
        const bool attributes =
            setxattr(name.constData(), "user.docbench.test", "value", 5, 0) == 0;
        PackageWriter::Compact(path_);
        const struct stat status = StatusOf(path_);
        QCOMPARE(status.st_mode & 07777, 0464U);
        if (root) {
            QCOMPARE(status.st_uid, 1234U);
            QCOMPARE(status.st_gid, 5678U);
        }
        if (attributes) {
            char value[16] = {};
            QCOMPARE(getxattr(name.constData(), "user.docbench.test", value, sizeof value), 5);
            QCOMPARE(QByteArray(value), QByteArray("value"));
        }
    }

    void CompactionFollowsALink() {
        const QString link = path_ + QStringLiteral(".link");
        QVERIFY(QFile::link(path_, link));
        Fill(link, true);
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(Package::Open(path_).DeadBytes(), 0);
    }

    void AFileOfSeveralNamesIsSavedButNotCompacted() {
        const QString second = path_ + QStringLiteral(".second");
        QCOMPARE(::link(path_.toUtf8().constData(), second.toUtf8().constData()), 0);
        Fill(path_, true);
        QCOMPARE(StatusOf(path_).st_ino, StatusOf(second).st_ino);
        QCOMPARE(AllParts(second).value(kDocumentPart), kNewState);
        QVERIFY(Package::Open(path_).DeadBytes() > qint64(kMinDeadBytes));
        QVERIFY(ErrorOf([&] { PackageWriter::Compact(path_); }).contains(u"several names"));
    }

    void ASaveIsDoneEvenIfItsCompactionFailsAtAnyCall() {
        constexpr int kFirst = 2;  // behind the write and the sync of the save itself
        constexpr int kEnough = 100;
        int failed = kFirst;
        for (; failed < kEnough; ++failed) {
            PackageWriter::Create(path_, SmallParts(), true);
            {
                PackageWriter writer(path_);
                writer.Put("old.bin", Noise(qint64(kMinDeadBytes) + 100));
                writer.Commit("<document/>");
            }
            PackageWriter writer(path_);
            writer.Remove("old.bin");
            {
                const FaultyDisk disk(failed, FaultyDisk::Fault::Fail, EACCES);
                QCOMPARE(ErrorOf([&] { writer.Commit(kNewState); }), QString());
            }
            QCOMPARE(AllParts(path_).value(kDocumentPart), kNewState);
            QCOMPARE(FolderOfFile(path_), QStringList(QStringLiteral("gear.tfmprt")));
            if (Package::Open(path_).DeadBytes() == 0)
                break;
        }
        QVERIFY(failed > kFirst && failed < kEnough);
    }

    void ADamagedPartIsNotCompactedAway() {
        WriteBytes(path_, RawPackage({{.name = "a", .data = "text", .crc = 1},
                                      {.name = kDocumentPart, .data = "<document/>"}}));
        Fill(path_, true);
        QCOMPARE(Package::Open(path_).ReadPart(kDocumentPart, 100), kNewState);
        QVERIFY(Package::Open(path_).DeadBytes() > qint64(kMinDeadBytes));
        QVERIFY(
            ErrorOf([&] { PackageWriter::Compact(path_); }).contains(u"its part a has a wrong"));
        QCOMPARE(FolderOfFile(path_), QStringList(QStringLiteral("gear.tfmprt")));
    }

    void ACompactionThatFailsAtAnyCallLeavesASavedDocument() {
        constexpr int kEnough = 100;
        int failed = 0;
        for (; failed < kEnough; ++failed) {
            SaveAs(path_, QByteArray::number(failed));
            QString error;
            {
                const FaultyDisk disk(failed, FaultyDisk::Fault::ShortWrite, ENOSPC);
                error = ErrorOf([&] { PackageWriter::Compact(path_); });
            }
            QCOMPARE(AllParts(path_).value(kDocumentPart), QByteArray::number(failed));
            QCOMPARE(FolderOfFile(path_), QStringList(QStringLiteral("gear.tfmprt")));
            if (error.isEmpty() && Package::Open(path_).DeadBytes() == 0)
                break;
            QVERIFY2(error.contains(path_) && error.contains(u"disk is full"), qPrintable(error));
        }
        QVERIFY(failed >= 5 && failed < kEnough);
    }

    void AKillInACompactionLeavesASavedDocument() {
        constexpr int kEnough = 100;
        int killed = 0;
        for (; killed < kEnough; ++killed) {
            SaveAs(path_, QByteArray::number(killed));
            const int code = InChild([&] {
                const FaultyDisk disk(killed, FaultyDisk::Fault::Kill);
                PackageWriter::Compact(path_);
            });
            QCOMPARE(AllParts(path_).value(kDocumentPart), QByteArray::number(killed));
            if (code == 0)
                break;
        }
        QVERIFY(killed >= 5 && killed < kEnough);
    }

    void AReaderOfTheFormerFileGoesOnReadingIt() {
        SaveAs(path_, kNewState);
        const Package package = Package::Open(path_);
        PackageWriter::Compact(path_);
        SaveAs(path_, "<later/>");
        QCOMPARE(package.ReadPart(kDocumentPart, 100), kNewState);
        package.CheckParts();
    }

    void SizesBehindTheDataAreToldInFront() {
        const QString script = QStringLiteral(
            "import sys, zipfile\n"
            "class Pipe:\n"
            "    def __init__(self, f): self.f = f\n"
            "    def write(self, b): return self.f.write(b)\n"
            "    def flush(self): self.f.flush()\n"
            "with open(sys.argv[1], 'wb') as f:\n"
            "    with zipfile.ZipFile(Pipe(f), 'w', zipfile.ZIP_DEFLATED) as z:\n"
            "        z.writestr('a.txt', 'text' * 1000)\n"
            "        z.writestr('docmodel/document.xml', '<document/>')\n");
        QCOMPARE(RunPython(script, {path_}), QByteArray());
        const QMap<QByteArray, QByteArray> before = AllParts(path_);
        QCOMPARE(before.value("a.txt"), QByteArray("text").repeated(1000));
        QVERIFY(FileBytes(path_).contains("PK\7\10"));
        PackageWriter::Compact(path_);
        QCOMPARE(AllParts(path_), before);
        QVERIFY(!FileBytes(path_).contains("PK\7\10"));
        QVERIFY(Run(QStringLiteral("unzip"), {QStringLiteral("-t"), path_}).contains("No errors"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestPackageCompaction)
#include "tst_packagecompaction.moc"
