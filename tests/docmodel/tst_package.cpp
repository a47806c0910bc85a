#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QTest>

#include "docmodel/packagelimits.h"
#include "tests/docmodel/packagetools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

class TestPackage : public QObject {
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

    void WhatIsCreatedIsReadBack() {
        const Package package = Package::Open(path_);
        QCOMPARE(package.Path(), path_);
        QList<QByteArray> names;
        for (const auto& [name, bytes] : SmallParts()) {
            names.append(name);
            QCOMPARE(package.ReadPart(name, 1000), bytes);
        }
        QCOMPARE(package.PartNames(), names);
        QCOMPARE(package.DeadBytes(), 0);
        package.CheckParts();
    }

    void PartNamesCompareWithoutRegardToAsciiCase() {
        const Package package = Package::Open(path_);
        QVERIFY(package.HasPart("DOCPROPS/Core.XML"));
        QVERIFY(!package.HasPart("docProps/core.xm"));
        QCOMPARE(package.ReadPart("DOCMODEL/DOCUMENT.XML", 1000), SmallParts().last().second);
    }

    void APartLargerThanTheCallersLimitIsRefused() {
        const Package package = Package::Open(path_);
        QCOMPARE(package.ReadPart("docProps/core.xml", 300).size(), 300);
        const QString error = ErrorOf([&] { package.ReadPart("docProps/core.xml", 299); });
        QVERIFY2(error.contains(path_) && error.contains(u"300") && error.contains(u"299"),
                 qPrintable(error));
    }

    void APartThatIsNotThereIsAnErrorThatNamesIt() {
        const Package package = Package::Open(path_);
        const QString error = ErrorOf([&] { package.ReadPart("nothing.xml", 1000); });
        QCOMPARE(error, QStringLiteral("The document %1 can't be read: it has no part nothing.xml.")
                            .arg(path_));
    }

    void WhatIsNoDocumentIsAnErrorThatNamesTheFileAndTheReason_data() {
        QTest::addColumn<QString>("make");
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing") << QStringLiteral("missing") << QStringLiteral("no such file");
        QTest::newRow("empty") << QStringLiteral("empty") << QStringLiteral("is empty");
        QTest::newRow("folder") << QStringLiteral("folder") << QStringLiteral("is a folder");
        QTest::newRow("fifo") << QStringLiteral("fifo") << QStringLiteral("no regular file");
        QTest::newRow("device") << QStringLiteral("device") << QStringLiteral("no regular file");
        QTest::newRow("text") << QStringLiteral("text") << QStringLiteral("no document");
        QTest::newRow("link circle") << QStringLiteral("circle") << QStringLiteral("in a circle");
    }

    void WhatIsNoDocumentIsAnErrorThatNamesTheFileAndTheReason() {
        QFETCH(QString, make);
        QFETCH(QString, reason);
        QString other = path_ + QStringLiteral(".other");
        const QByteArray name = other.toUtf8();
        if (make == QStringLiteral("empty"))
            WriteBytes(other, "");
        else if (make == QStringLiteral("folder"))
            QVERIFY(QDir().mkdir(other));
        else if (make == QStringLiteral("fifo"))
            QCOMPARE(mkfifo(name.constData(), 0600), 0);
        else if (make == QStringLiteral("device"))
            other = QStringLiteral("/dev/zero");
        else if (make == QStringLiteral("text"))
            WriteBytes(other, QByteArray(100'000, 'x'));
        else if (make == QStringLiteral("circle"))
            QCOMPARE(symlink(name.constData(), name.constData()), 0);

        const QString reading = ErrorOf([&] { Package::Open(other); });
        QVERIFY2(reading.contains(other) && reading.contains(reason), qPrintable(reading));
        const QString writing = ErrorOf([&] { PackageWriter writer(other); });
        QVERIFY2(writing.contains(other) && writing.contains(reason), qPrintable(writing));
        QCOMPARE(AccessState(other), 4);
    }

    void AnEmptyPathAndOneWithANulAreErrors() {
        QVERIFY(!ErrorOf([] { Package::Open(QString()); }).isEmpty());
        const QString withNul = path_ + QChar(0) + QStringLiteral("x");
        QVERIFY(!ErrorOf([&] { Package::Open(withNul); }).isEmpty());
        QCOMPARE(AccessState(QString()), 4);
    }

    void NoPermissionIsAnError() {
        QCOMPARE(chmod(path_.toUtf8().constData(), 0), 0);
        if (geteuid() != 0) {
            QVERIFY(ErrorOf([&] { Package::Open(path_); }).contains(u"permission"));
            return;
        }
        // For root the system makes no difference, so another user looks.
        const int code = InChild([&] {
            if (setgid(65534) != 0 || setuid(65534) != 0)
                _exit(2);
            if (!ErrorOf([&] { Package::Open(path_); }).contains(u"permission"))
                _exit(3);
        });
        QCOMPARE(code, 0);
    }

    void AnOpenPackageStaysInItsStateWhenTheFileIsReplaced() {
        const Package package = Package::Open(path_);
        NamedParts others = SmallParts();
        others[3].second = "other";
        PackageWriter::Create(path_, others, true);
        QCOMPARE(package.ReadPart("model/part.bin", 1000), SmallParts()[3].second);
        QVERIFY(QFile::remove(path_));
        QCOMPARE(package.ReadPart("model/part.bin", 1000), SmallParts()[3].second);
        QVERIFY(!ErrorOfReading(path_).isEmpty());
    }

    void AFileThatIsCutOffBetweenTwoCallsIsAnError() {
        NamedParts parts = SmallParts();
        parts[3].second = Noise(100'000);
        PackageWriter::Create(path_, parts, true);
        const Package package = Package::Open(path_);
        QCOMPARE(truncate(path_.toUtf8().constData(), 50'000), 0);
        const QString error = ErrorOf([&] { package.ReadPart("model/part.bin", 1 << 20); });
        QVERIFY2(error.contains(path_), qPrintable(error));
    }

    void OneReadGivesDirectoryAndDocumentPartOfAUsualDocument() {
        NamedParts parts = SmallParts();
        parts[3].second = Noise(200'000);
        parts.last().second = Noise(3000);
        PackageWriter::Create(path_, parts, true);
        const Package package = Package::Open(path_);
        // Nothing of the file is left to be read, so the bytes must have been there before.
        QCOMPARE(truncate(path_.toUtf8().constData(), 0), 0);
        QCOMPARE(package.ReadPart(kDocumentPart, 4000), parts.last().second);
    }

    void ALargeDirectoryAndALargeDocumentPartAreRead() {
        NamedParts parts;
        for (int i = 0; i < 3000; ++i)
            parts.append({"parts/number" + QByteArray::number(i), QByteArray::number(i)});
        parts.append({kDocumentPart, Noise(300'000)});
        PackageWriter::Create(path_, parts, true);
        const Package package = Package::Open(path_);
        QCOMPARE(package.PartNames().size(), 3001);
        QCOMPARE(package.ReadPart("parts/number2999", 10), QByteArray("2999"));
        QCOMPARE(package.ReadPart(kDocumentPart, 1 << 20), parts.last().second);
    }

    void TheDocumentPartIsAlwaysRightBeforeTheDirectory() {
        NamedParts parts = SmallParts();
        parts.move(4, 1);
        PackageWriter::Create(path_, parts, true);
        QCOMPARE(Package::Open(path_).PartNames().last(), QByteArray(kDocumentPart));
        PackageWriter writer(path_);
        writer.Put("z/last.bin", Noise(100));
        writer.Commit("<document/>");
        QCOMPARE(Package::Open(path_).PartNames().last(), QByteArray(kDocumentPart));
        QVERIFY(FileBytes(path_).contains("<document/>PK\1\2"));
    }

    void PartsAreStoredOrDeflatedAsPays() {
        NamedParts parts = {{"text.xml", QByteArray(100'000, 't')},
                            {"noise.bin", Noise(100'000)},
                            {"picture.png", "\x89PNG\r\n\x1a\n" + QByteArray(100'000, 'p')},
                            {kDocumentPart, QByteArray(int(kMaxStoredDocumentPart), 'd')}};
        PackageWriter::Create(path_, parts, true);
        const QByteArray bytes = FileBytes(path_);
        QVERIFY(!bytes.contains(parts[0].second));
        for (int i = 1; i < 4; ++i)
            QVERIFY(bytes.contains(parts[i].second));
        parts[3].second += 'd';
        PackageWriter::Create(path_, parts, true);
        QVERIFY(!FileBytes(path_).contains(QByteArray(1000, 'd')));
        QCOMPARE(AllParts(path_).value(kDocumentPart), parts[3].second);
    }

    void ReplacingFailsOnlyIfTheFormerDocumentStays() {
        const QByteArray before = FileBytes(path_);
        int calls = 0;
        {
            const FaultyDisk disk;
            PackageWriter::Create(path_, {{"a", "b"}}, true);
            calls = disk.Calls();
        }
        for (int failed = 0; failed < calls; ++failed) {
            WriteBytes(path_, before);
            QString error;
            {
                const FaultyDisk disk(failed, FaultyDisk::Fault::Fail);
                error = ErrorOf([&] { PackageWriter::Create(path_, {{"a", "b"}}, true); });
            }
            // The last call syncs the folder, when the new document has its name already.
            QCOMPARE(error.isEmpty(), failed == calls - 1);
            if (error.isEmpty())
                QCOMPARE(AllParts(path_).value("a"), QByteArray("b"));
            else
                QCOMPARE(FileBytes(path_), before);
            QCOMPARE(FolderOfFile(path_), QStringList(QStringLiteral("gear.tfmprt")));
        }
    }

    void CreatingOverAnExistingFileNeedsReplace() {
        const QByteArray before = FileBytes(path_);
        const QString error = ErrorOf([&] { PackageWriter::Create(path_, {{"a", "b"}}); });
        QVERIFY2(error.contains(path_) && error.contains(u"already"), qPrintable(error));
        QCOMPARE(FileBytes(path_), before);
        QCOMPARE(FolderOfFile(path_), QStringList(QStringLiteral("gear.tfmprt")));
        PackageWriter::Create(path_, {{"a", "b"}}, true);
        QCOMPARE(AllParts(path_).value("a"), QByteArray("b"));
    }

    void ReplacingFollowsALinkAndKeepsTheMode() {
        const QString link = path_ + QStringLiteral(".link");
        QCOMPARE(symlink("gear.tfmprt", link.toUtf8().constData()), 0);
        QCOMPARE(chmod(path_.toUtf8().constData(), 0640), 0);
        PackageWriter::Create(link, {{"a", "b"}}, true);
        QVERIFY(QFileInfo(link).isSymLink());
        QVERIFY(AllParts(path_).contains("a"));
        struct stat status;
        QCOMPARE(stat(path_.toUtf8().constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, 0640U);
    }

    void AnImpossibleSetOfPartsIsNotCreated_data() {
        QTest::addColumn<QByteArray>("first");
        QTest::addColumn<QByteArray>("second");
        QTest::newRow("none") << QByteArray() << QByteArray();
        QTest::newRow("same name") << QByteArray("a/b") << QByteArray("A/B");
        QTest::newRow("up") << QByteArray("a") << QByteArray("../b");
        QTest::newRow("absolute") << QByteArray("a") << QByteArray("/b");
        QTest::newRow("folder") << QByteArray("a") << QByteArray("b/");
        QTest::newRow("backslash") << QByteArray("a") << QByteArray("b\\c");
        QTest::newRow("not UTF-8") << QByteArray("a") << QByteArray("b\xff");
        QTest::newRow("nul") << QByteArray("a") << QByteArray("b\0c", 3);
    }

    void AnImpossibleSetOfPartsIsNotCreated() {
        QFETCH(QByteArray, first);
        QFETCH(QByteArray, second);
        NamedParts parts;
        if (!first.isEmpty())
            parts = {{first, "1"}, {second, "2"}};
        const QString other = path_ + QStringLiteral(".new");
        QVERIFY(ErrorOf([&] { PackageWriter::Create(other, parts); }).contains(other));
        QCOMPARE(FolderOfFile(path_), QStringList(QStringLiteral("gear.tfmprt")));
    }

    void CreatingInAMissingFolderIsAnError() {
        const QString other = path_ + QStringLiteral(".d/x.tfmprt");
        QVERIFY(ErrorOf([&] { PackageWriter::Create(other, SmallParts()); }).contains(other));
    }

    void ANameAsLongAsTheDiskAllowsIsCreatedAndCompacted() {
        const QString longName = QFileInfo(path_).path() + u'/' + QString(255, u'n');
        PackageWriter::Create(longName, SmallParts());
        PackageWriter::Compact(longName);
        QCOMPARE(AllParts(longName).size(), 5);
    }

    void AccessStatesAreTold() {
        QCOMPARE(AccessState(path_), 0);
        QCOMPARE(chmod(path_.toUtf8().constData(), 0444), 0);
        QCOMPARE(AccessState(path_), 2);
        QCOMPARE(chmod(path_.toUtf8().constData(), 0644), 0);
        WriteBytes(path_, "PK\3\4 and nothing else");
        QCOMPARE(AccessState(path_), 4);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestPackage)
#include "tst_package.moc"
