#include <signal.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QScopeGuard>
#include <QTest>
#include <QThread>
#include <atomic>
#include <cerrno>

#include "docmodel/packagelimits.h"
#include "tests/docmodel/packagetools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

namespace {

const QByteArray kOldState = "<document state=\"old\"/>";
const QByteArray kNewState = "<document state=\"new\"/>";

// The state of a document whose every part is read: "old", "new" (also of its other parts), or what
// is wrong with it.
QByteArray StateOf(const QString& path) {
    try {
        const QMap<QByteArray, QByteArray> parts = AllParts(path);
        const char core = parts.value("docProps/core.xml").front();
        const QByteArray document = parts.value(kDocumentPart);
        if (document == kOldState && core == 'c')
            return "old";
        if (document == kNewState && core == 'd')
            return "new";
        return "a mixture";
    } catch (const DocumentError& error) {
        return error.Description().toUtf8();
    }
}

// A save with a part large enough to be synced before the rest.
void SaveWithLargePart(const QString& path) {
    PackageWriter writer(path);
    writer.Put("docProps/core.xml", QByteArray(300, 'd'));
    writer.Put("docProps/thumbnail.png", Noise(100'000));
    writer.Commit(kNewState);
}

void AppendTo(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::Append) || file.write(bytes) != bytes.size())
        qFatal("can't write %s", qPrintable(path));
}

}  // namespace

class TestPackageSave : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder_;
    QString path_;

    static constexpr int kEnough = 100;  // more calls than any save makes

    void Renew() { PackageWriter::Create(path_, SmallParts(), QFile::exists(path_)); }

private Q_SLOTS:
    void init() {
        static int count = 0;
        const QString own = folder_.filePath(QString::number(++count));
        QVERIFY(QDir().mkpath(own));
        path_ = own + QStringLiteral("/gear.tfmprt");
        Renew();
    }

    void ASaveReplacesAddsRemovesAndKeepsParts() {
        PackageWriter writer(path_);
        QCOMPARE(writer.Current().ReadPart(kDocumentPart, 100), kOldState);
        writer.Put("DOCPROPS/core.xml", "first");
        writer.Put("docProps/Core.xml", "second");
        writer.Put("new/part.bin", "new");
        writer.Remove("_rels/.rels");
        writer.Remove("not/there");
        writer.Commit(kNewState);
        const QMap<QByteArray, QByteArray> expected = {{"[Content_Types].xml", "<Types/>"},
                                                       {"DOCPROPS/core.xml", "second"},
                                                       {"model/part.bin", Noise(400)},
                                                       {"new/part.bin", "new"},
                                                       {kDocumentPart, kNewState}};
        QCOMPARE(AllParts(path_), expected);
    }

    void WhatIsRemovedAndPutAgainIsThere() {
        PackageWriter writer(path_);
        writer.Remove("docProps/core.xml");
        writer.Put("docProps/core.xml", "again");
        writer.Put("x", "x");
        writer.Remove("x");
        writer.Commit(kNewState);
        QCOMPARE(AllParts(path_).value("docProps/core.xml"), QByteArray("again"));
        QVERIFY(!AllParts(path_).contains("x"));
    }

    void NoByteOfTheOldDocumentIsOverwritten() {
        for (int i = 0; i < 20; ++i) {
            const QByteArray before = FileBytes(path_);
            SaveAs(path_, QByteArray::number(i));
            QVERIFY(FileBytes(path_).startsWith(before));
        }
    }

    void ASaveWritesItsRecordEvenIfNothingChanged() {
        const QByteArray before = FileBytes(path_);
        PackageWriter(path_).Commit(kOldState);
        QVERIFY(FileBytes(path_).size() > before.size());
        QCOMPARE(StateOf(path_), QByteArray("old"));
    }

    void AWriterThatDoesNotCommitWritesNothing() {
        AppendTo(path_, "a torn tail");
        const QByteArray before = FileBytes(path_);
        {
            PackageWriter writer(path_);
            writer.Put("a", "b");
        }
        QCOMPARE(FileBytes(path_), before);
    }

    void ABadNameIsRefusedAtOnce() {
        PackageWriter writer(path_);
        QVERIFY(ErrorOf([&] { writer.Put("../a", "b"); }).contains(path_));
    }

    void ASmallSaveSyncsOnceAndOneWithALargePartTwice() {
        FaultyDisk disk;
        SaveAs(path_, kNewState);
        QCOMPARE(disk.Syncs(), 1);
        QCOMPARE(disk.Calls(), 2);  // and writes once
        SaveWithLargePart(path_);
        QCOMPARE(disk.Syncs(), 3);
    }

    void ASaveThroughALinkKeepsTheLink() {
        const QString link = path_ + QStringLiteral(".link");
        QVERIFY(QFile::link(path_, link));
        SaveAs(link, kNewState);
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(StateOf(path_), QByteArray("new"));
    }

    void AReadOnlyDocumentIsRefused() {
        QCOMPARE(chmod(path_.toUtf8().constData(), 0444), 0);
        const QByteArray before = FileBytes(path_);
        const QString error = ErrorOf([&] { SaveAs(path_, kNewState); });
        QVERIFY2(error.contains(path_) && error.contains(u"read-only"), qPrintable(error));
        QVERIFY(ErrorOf([&] { PackageWriter::Compact(path_); }).contains(u"read-only"));
        QVERIFY(ErrorOf([&] {
                    PackageWriter::Create(path_, SmallParts(), true);
                }).contains(u"read-only"));
        QCOMPARE(FileBytes(path_), before);
    }

    void ATornTailIsCutBeforeTheNextSave_data() {
        QTest::addColumn<QByteArray>("tail");
        QTest::newRow("one byte") << QByteArray("P");
        QTest::newRow("zeros") << QByteArray(100'000, '\0');
        QTest::newRow("a part") << "PK\3\4" + Noise(50'000);
        QTest::newRow("ends") << QByteArray("PK\5\6").repeated(1000);
    }

    void ATornTailIsCutBeforeTheNextSave() {
        QFETCH(QByteArray, tail);
        const QByteArray before = FileBytes(path_);
        AppendTo(path_, tail);
        QCOMPARE(StateOf(path_), QByteArray("old"));
        QCOMPARE(Package::Open(path_).DeadBytes(), tail.size());
        SaveAs(path_, kNewState);
        QCOMPARE(StateOf(path_), QByteArray("new"));
        const QByteArray after = FileBytes(path_);
        QVERIFY(after.startsWith(before + "PK\3\4"));
        Renew();
        SaveAs(path_, kNewState);
        QCOMPARE(FileBytes(path_).size(), after.size());
    }

    // A kill leaves the appended bytes up to any length.
    void AFileCutAtAnyLengthOfTheAppendedBytesOpensInTheOldState() {
        const qsizetype before = FileBytes(path_).size();
        SaveWithLargePart(path_);
        QCOMPARE(StateOf(path_), QByteArray("new"));
        const qsizetype size = FileBytes(path_).size();
        for (qsizetype length = size - 1; length >= before; --length) {
            QVERIFY(QFile::resize(path_, length));
            if (length > size - 2000 || length < before + 200 || length % 997 == 0)
                QCOMPARE(StateOf(path_), QByteArray("old"));
        }
        SaveAs(path_, kNewState);
        QCOMPARE(StateOf(path_), QByteArray("new"));
    }

    // A power failure may lose any sectors of a write, and keep others.
    void AnyLostSectorsOfTheAppendedBytesGiveTheOldState() {
        for (int shift = 0; shift < int(kSectorBytes); shift += 7) {
            Renew();
            PackageWriter(path_).Commit(kOldState + QByteArray(shift, ' '));
            PackageWriter before(path_);
            before.Put("docProps/core.xml", QByteArray(300, 'c'));
            before.Commit(kOldState);
            const qsizetype start = FileBytes(path_).size();
            SaveAs(path_, kNewState);
            const QByteArray whole = FileBytes(path_);
            const qsizetype sector = qsizetype(kSectorBytes);
            const qsizetype first = start / sector;
            const qsizetype sectors = (whole.size() - 1) / sector - first + 1;
            QVERIFY(sectors < 8);
            for (int lost = 1; lost < 1 << sectors; ++lost) {
                QByteArray bytes = whole;
                for (qsizetype i = 0; i < sectors; ++i) {
                    const qsizetype from = std::max(start, (first + i) * sector);
                    const qsizetype to = std::min(bytes.size(), (first + i + 1) * sector);
                    if (lost & 1 << i)
                        std::fill(bytes.begin() + from, bytes.begin() + to, '\0');
                }
                QFile file(path_);
                QVERIFY(file.open(QIODevice::ReadWrite));
                QCOMPARE(file.write(bytes), bytes.size());
                file.close();
                QCOMPARE(StateOf(path_), QByteArray("old"));
            }
        }
    }

    void TheCallThatFailsLeavesTheOldState_data() {
        QTest::addColumn<int>("error");
        QTest::addColumn<QString>("reason");
        QTest::newRow("full") << ENOSPC << QStringLiteral("disk is full");
        QTest::newRow("broken") << EIO << QStringLiteral("disk reports an error");
    }

    void TheCallThatFailsLeavesTheOldState() {
        QFETCH(int, error);
        QFETCH(QString, reason);
        for (const FaultyDisk::Fault fault :
             {FaultyDisk::Fault::Fail, FaultyDisk::Fault::ShortWrite}) {
            int failed = 0;
            for (; failed < kEnough; ++failed) {
                Renew();
                AppendTo(path_, "PK\3\4 a torn save");
                QString description;
                {
                    const FaultyDisk disk(failed, fault, error);
                    description = ErrorOf([&] { SaveWithLargePart(path_); });
                }
                if (description.isEmpty())
                    break;
                QVERIFY2(description.contains(path_) && description.contains(reason),
                         qPrintable(description));
                QCOMPARE(StateOf(path_), QByteArray("old"));
                QCOMPARE(FolderOfFile(path_), QStringList(QStringLiteral("gear.tfmprt")));
                SaveAs(path_, kNewState);
                QCOMPARE(StateOf(path_), QByteArray("new"));
            }
            QVERIFY(failed >= 7 && failed < kEnough);
            QCOMPARE(StateOf(path_), QByteArray("new"));
        }
    }

    void AKillAtAnyCallLeavesTheOldOrTheNewState() {
        int killed = 0;
        for (; killed < kEnough; ++killed) {
            Renew();
            AppendTo(path_, "PK\3\4 a torn save");
            const int code = InChild([&] {
                const FaultyDisk disk(killed, FaultyDisk::Fault::Kill);
                SaveWithLargePart(path_);
            });
            const QByteArray state = StateOf(path_);
            if (code == 0)
                break;
            QCOMPARE(code, kKilled);
            QVERIFY2(state == "old" || state == "new", state.constData());
            SaveAs(path_, kNewState);
            QCOMPARE(StateOf(path_), QByteArray("new"));
        }
        QVERIFY(killed >= 7 && killed < kEnough);
    }

    void ACreationThatFailsAtAnyCallLeavesNothing() {
        const QString other = path_ + QStringLiteral(".new");
        int failed = 0;
        for (; failed < kEnough; ++failed) {
            QString description;
            {
                const FaultyDisk disk(failed, FaultyDisk::Fault::ShortWrite, ENOSPC);
                description = ErrorOf([&] { PackageWriter::Create(other, SmallParts()); });
            }
            if (description.isEmpty())
                break;
            QVERIFY(description.contains(other) && description.contains(u"disk is full"));
            QCOMPARE(FolderOfFile(path_), QStringList(QStringLiteral("gear.tfmprt")));
        }
        QVERIFY(failed >= 5 && failed < kEnough);
        QVERIFY(ErrorOfReading(other).isEmpty());
    }

    void AReplacementThatIsKilledAtAnyCallLeavesOneOfTheTwo() {
        NamedParts parts = SmallParts();
        parts[2].second = QByteArray(300, 'd');
        parts.last().second = kNewState;
        int killed = 0;
        for (; killed < kEnough; ++killed) {
            Renew();
            const int code = InChild([&] {
                const FaultyDisk disk(killed, FaultyDisk::Fault::Kill);
                PackageWriter::Create(path_, parts, true);
            });
            const QByteArray state = StateOf(path_);
            QVERIFY2(state == "old" || state == "new", state.constData());
            if (code == 0)
                break;
        }
        QVERIFY(killed >= 5 && killed < kEnough);
        QCOMPARE(StateOf(path_), QByteArray("new"));
    }

    void AFullDiskLeavesTheOldState() {
        const QByteArray mountPoint = folder_.path().toUtf8() + "/small";
        QVERIFY(QDir().mkdir(QString::fromUtf8(mountPoint)));
        if (mount("docbench", mountPoint.constData(), "tmpfs", 0, "size=256k") != 0)
            QSKIP("a small disk can't be mounted here, so a full one can't be tested");
        const auto unmount = qScopeGuard([&] { umount2(mountPoint.constData(), MNT_DETACH); });
        const QString path = QString::fromUtf8(mountPoint) + QStringLiteral("/gear.tfmprt");
        PackageWriter::Create(path, SmallParts());
        const QByteArray before = FileBytes(path);
        const QString error = ErrorOf([&] {
            PackageWriter writer(path);
            writer.Put("docProps/thumbnail.png", Noise(400'000));
            writer.Commit(kNewState);
        });
        QVERIFY2(error.contains(path) && error.contains(u"disk is full"), qPrintable(error));
        QCOMPARE(FileBytes(path), before);
        const QString other = path + QStringLiteral(".new");
        QVERIFY(ErrorOf([&] {
                    PackageWriter::Create(other, {{"a", Noise(400'000)}});
                }).contains(u"disk is full"));
        QCOMPARE(FolderOfFile(path), QStringList(QStringLiteral("gear.tfmprt")));
        SaveAs(path, kNewState);
        QCOMPARE(StateOf(path), QByteArray("new"));
    }

    void AFileSizeLimitLeavesTheOldState() {
        const QByteArray before = FileBytes(path_);
        const int code = InChild([&] {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit limit = {rlim_t(before.size() + 100), rlim_t(before.size() + 100)};
            if (setrlimit(RLIMIT_FSIZE, &limit) != 0)
                _exit(2);
            if (!ErrorOf([&] { SaveAs(path_, kNewState); }).contains(u"larger than"))
                _exit(3);
        });
        QCOMPARE(code, 0);
        QCOMPARE(FileBytes(path_), before);
    }

    void AFileThatGrewUnderTheWriterIsRefused() {
        PackageWriter writer(path_);
        AppendTo(path_, "written without a lock");
        const QString error = ErrorOf([&] { writer.Commit(kNewState); });
        QVERIFY2(error.contains(u"another program has changed it"), qPrintable(error));
        QCOMPARE(StateOf(path_), QByteArray("old"));
    }

    void AFileThatWasWrittenOverUnderTheWriterIsRefused() {
        PackageWriter writer(path_);
        QByteArray theirs = FileBytes(path_);
        theirs.replace("\"old\"", "\"its\"");  // as long as ours
        {
            QFile file(path_);
            QVERIFY(file.open(QIODevice::ReadWrite));
            QCOMPARE(file.write(theirs), qint64(theirs.size()));
            // Whatever the grain of the disk's clock is.
            QVERIFY(file.flush());
            const QDateTime later = file.fileTime(QFile::FileModificationTime).addSecs(1);
            QVERIFY(file.setFileTime(later, QFile::FileModificationTime));
        }
        const QString error = ErrorOf([&] { writer.Commit(kNewState); });
        QVERIFY2(error.contains(u"another program has changed it"), qPrintable(error));
        QCOMPARE(FileBytes(path_), theirs);
    }

    void AFileThatWasReplacedUnderTheWriterIsRefused() {
        const QByteArray bytes = FileBytes(path_);
        PackageWriter writer(path_);
        WriteBytes(path_ + ".new", bytes);
        QVERIFY(QFile::remove(path_));
        QVERIFY(QFile::rename(path_ + ".new", path_));
        const QString error = ErrorOf([&] { writer.Commit(kNewState); });
        QVERIFY2(error.contains(u"another program has changed it"), qPrintable(error));
        QCOMPARE(FileBytes(path_), bytes);
        PackageWriter removed(path_);
        QVERIFY(QFile::remove(path_));
        QVERIFY(!ErrorOf([&] { removed.Commit(kNewState); }).isEmpty());
        QVERIFY(!QFile::exists(path_));
    }

    void AReaderBesideAWriterSeesWholeStatesInTheirOrder() {
        std::atomic<bool> done = false;
        QString fault;
        int read = 0;
        std::unique_ptr<QThread> reader(QThread::create([&] {
            int last = -1;
            while (!done || read == 0) {
                try {
                    const QMap<QByteArray, QByteArray> parts = AllParts(path_);
                    const int core = parts.value("docProps/core.xml").trimmed().toInt();
                    const int document = parts.value(kDocumentPart).trimmed().toInt();
                    if (core != document || document < last)
                        fault = QStringLiteral("%1, %2 after %3").arg(core).arg(document).arg(last);
                    last = document;
                    ++read;
                } catch (const DocumentError& error) {
                    fault = error.Description();
                }
            }
        }));
        const auto save = [&](int number) {
            PackageWriter writer(path_);
            // Of all lengths, so that saves begin and end anywhere in their pages.
            const QByteArray text =
                QByteArray::number(number) + QByteArray(number * 37 % 9000, ' ');
            writer.Put("docProps/core.xml", text);
            if (number % 50 == 0)
                writer.Put("docProps/thumbnail.png", Noise(200'000));
            writer.Commit(text);
        };
        save(0);
        reader->start();
        for (int i = 1; i <= 300; ++i)
            save(i);
        done = true;
        QVERIFY(reader->wait());
        QVERIFY2(fault.isEmpty(), qPrintable(fault));
        QCOMPARE(AllParts(path_).value(kDocumentPart).trimmed(), QByteArray("300"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestPackageSave)
#include "tst_packagesave.moc"
