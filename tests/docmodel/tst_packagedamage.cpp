#include <sys/resource.h>
#include <unistd.h>

#include <QTest>
#include <QtEndian>

#include "docmodel/packagelimits.h"
#include "tests/docmodel/packagetools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

namespace {

const QByteArray kOldState = "<document state=\"old\"/>";
const QByteArray kNewState = "<document state=\"new\"/>";

// The document part that a reader sees, or "error".
QByteArray StateOf(const QString& path) {
    try {
        return Package::Open(path).ReadPart(kDocumentPart, 1 << 20);
    } catch (const DocumentError& error) {
        return error.Description().contains(path) ? "error" : "error without the file's name";
    }
}

// A byte of a file, changed while this lives.
class Flipped {
public:
    Flipped(const QString& path, qsizetype at, int bits) : file_(path), at_(at), bits_(bits) {
        if (!file_.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
            qFatal("can't open %s", qPrintable(path));
        Flip();
    }
    ~Flipped() { Flip(); }
    Flipped(const Flipped&) = delete;
    Flipped& operator=(const Flipped&) = delete;

private:
    void Flip() {
        char byte = 0;
        if (!file_.seek(at_) || !file_.getChar(&byte) || !file_.seek(at_) ||
            !file_.putChar(char(byte ^ bits_)))
            qFatal("can't change %s", qPrintable(file_.fileName()));
    }

    QFile file_;
    const qsizetype at_;
    const int bits_;
};

template <typename Number>
void Patch(QByteArray& bytes, qsizetype at, Number value) {
    qToLittleEndian(value, bytes.data() + at);
}

QByteArray Hex(qsizetype number) {
    return QByteArray::number(number, 16).rightJustified(16, '0');
}

}  // namespace

class TestPackageDamage : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("gear.tfmprt"));

    // Both that reading raises, with file and reason, and that nobody writes to it.
    void IsRefused(const QByteArray& bytes, const QString& reason) {
        WriteBytes(path_, bytes);
        const QString error = ErrorOfReading(path_);
        QVERIFY2(error.contains(path_) && error.contains(reason), qPrintable(error));
    }

    void IsRefusedAtOpen(const QByteArray& bytes, const QString& reason) {
        IsRefused(bytes, reason);
        const QString error = ErrorOf([&] { PackageWriter writer(path_); });
        QVERIFY2(error.contains(path_) && error.contains(reason), qPrintable(error));
        QVERIFY(!ErrorOf([&] { PackageWriter::Compact(path_); }).isEmpty());
        QCOMPARE(AccessState(path_), 4);
        QCOMPARE(FileBytes(path_), bytes);
        QCOMPARE(FolderOfFile(path_).size(), 1);
    }

private Q_SLOTS:
    void init() { PackageWriter::Create(path_, SmallParts(), QFile::exists(path_)); }

    void ACreatedDocumentCutAtAnyLengthIsAnError() {
        for (qsizetype length = FileBytes(path_).size() - 1; length >= 0; --length) {
            QVERIFY(QFile::resize(path_, length));
            QCOMPARE(StateOf(path_), QByteArray("error"));
        }
    }

    void ASavedDocumentCutAtAnyLengthOpensInTheStateBefore() {
        const qsizetype before = FileBytes(path_).size();
        SaveAs(path_, kNewState);
        for (qsizetype length = FileBytes(path_).size() - 1; length >= 0; --length) {
            QVERIFY(QFile::resize(path_, length));
            QCOMPARE(StateOf(path_), length < before ? QByteArray("error") : kOldState);
        }
    }

    void AnyFlippedBitGivesAnErrorOrAWholeState() {
        SaveAs(path_, kNewState);
        const QMap<QByteArray, QByteArray> newParts = AllParts(path_);
        const qsizetype size = FileBytes(path_).size();
        for (qsizetype bit = 0; bit < size * 8; ++bit) {
            const Flipped flipped(path_, bit / 8, 1 << (bit % 8));
            const QByteArray state = StateOf(path_);
            QVERIFY(state == kOldState || state == kNewState || state == "error");
            ErrorOfReading(path_);
        }
    }

    void AnyFlippedBitOfWhatASaveAppendedIsNoticed() {
        const qsizetype before = FileBytes(path_).size();
        SaveAs(path_, kNewState);
        // A comment whose own text is damaged may be anybody's, so it protects nothing any more.
        const qsizetype comment = FileBytes(path_).size() - 53;
        for (qsizetype at = before; at < comment; ++at) {
            const Flipped flipped(path_, at, 0x11);
            QCOMPARE(StateOf(path_), kOldState);
        }
    }

    void AWrongChecksumOfAPartIsAnError() {
        IsRefused(RawPackage({{.name = "a", .data = "text", .crc = 1}}),
                  QStringLiteral("its part a has a wrong checksum"));
        const QByteArray data = Deflated("text");
        IsRefused(RawPackage({{.name = "a", .data = data, .method = 8, .crc = 1, .size = 4}}),
                  QStringLiteral("wrong checksum"));
    }

    void TwoPartsOfOneNameAreAnError() {
        IsRefusedAtOpen(RawPackage({{.name = "docProps/core.xml"}, {.name = "docProps/core.xml"}}),
                        QStringLiteral("its directory names the part docProps/core.xml twice"));
        IsRefusedAtOpen(
            RawPackage(
                {{.name = "docProps/core.xml"}, {.name = "x"}, {.name = "DOCPROPS/Core.xml"}}),
            QStringLiteral("twice"));
    }

    void ImpossibleNamesAreAnError_data() {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("up") << QByteArray("../a");
        QTest::newRow("up inside") << QByteArray("a/../b");
        QTest::newRow("up at the end") << QByteArray("a/..");
        QTest::newRow("up as a folder") << QByteArray("a/../");
        QTest::newRow("here") << QByteArray("./a");
        QTest::newRow("absolute") << QByteArray("/a");
        QTest::newRow("empty level") << QByteArray("a//b");
        QTest::newRow("only a slash") << QByteArray("/");
        QTest::newRow("backslash") << QByteArray("a\\b");
        QTest::newRow("nul") << QByteArray("a\0b", 3);
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("not UTF-8") << QByteArray("a\x80");
        QTest::newRow("overlong UTF-8") << QByteArray("a\xC0\xAF");
        QTest::newRow("surrogate") << QByteArray("a\xED\xA0\x80");
        QTest::newRow("cut UTF-8") << QByteArray("a\xE2\x82");
        QTest::newRow("endless") << QByteArray(5000, 'n');
    }

    void ImpossibleNamesAreAnError() {
        QFETCH(QByteArray, name);
        IsRefusedAtOpen(RawPackage({{.name = name}}), QStringLiteral("is damaged"));
    }

    void PossibleNamesAreRead() {
        const QByteArray name = "Stücke/Größe 1 ....xml";
        WriteBytes(path_, RawPackage({{.name = name, .data = "x"}, {.name = "folder/"}}));
        QCOMPARE(Package::Open(path_).PartNames(), QList<QByteArray>{name});
        QCOMPARE(AllParts(path_).value(name), QByteArray("x"));
    }

    void PartsOutsideTheFileOrOverEachOtherAreAnError() {
        const QString reason = QStringLiteral("outside the file or overlaps");
        IsRefusedAtOpen(RawPackage({{.name = "a", .data = "text", .localOffset = 100'000}}),
                        reason);
        IsRefusedAtOpen(RawPackage({{.name = "a", .data = "text", .localOffset = 0xFFFFFFFF}}),
                        reason);
        IsRefusedAtOpen(
            RawPackage({{.name = "a", .data = "text", .size = 5000, .compressedSize = 5000}}),
            reason);
        IsRefusedAtOpen(
            RawPackage(
                {{.name = "a", .data = "text", .size = 0xFFFFFFFF, .compressedSize = 0xFFFFFFFF}}),
            reason);
        // Many names for one bomb.
        IsRefusedAtOpen(RawPackage({{.name = "a", .data = "text"},
                                    {.name = "b", .data = "text", .localOffset = 0}}),
                        reason);
    }

    void ALocalHeaderOfAnotherPartIsAnError() {
        IsRefused(RawPackage({{.name = "a", .data = "text", .localName = "b"}}),
                  QStringLiteral("its part a disagrees with its directory"));
        IsRefused(RawPackage({{.name = "a", .data = "text", .localMethod = 8}}),
                  QStringLiteral("disagrees"));
        IsRefused(
            RawPackage(
                {{.name = "a", .data = "text", .size = 3, .compressedSize = 3, .localOffset = 1}}),
            QStringLiteral("is not where its directory says"));
    }

    void AnUnknownMethodAndEncryptionAreErrorsOfThatPartAlone() {
        const QByteArray bytes = RawPackage({{.name = "a", .data = "text", .method = 12},
                                             {.name = "b", .data = "text", .flags = 1},
                                             {.name = "c", .data = "text"}});
        WriteBytes(path_, bytes);
        const Package package = Package::Open(path_);
        const auto read = [&](const char* name) {
            return ErrorOf([&] { package.ReadPart(name, 100); });
        };
        QVERIFY(read("a").contains(u"method that is not known here (12)"));
        QVERIFY(read("b").contains(u"is encrypted"));
        QVERIFY(read("c").isEmpty());
        SaveAs(path_, kNewState);
        QCOMPARE(StateOf(path_), kNewState);
        QVERIFY(FileBytes(path_).startsWith(bytes));
    }

    void ABombIsRefusedBeforeItGoesOff() {
        const QByteArray bomb = Deflated(QByteArray(50'000'000, '\0'));
        const RawEntry honest = {.name = "a", .data = bomb, .method = 8, .size = 50'000'000};
        WriteBytes(path_, RawPackage({honest}));
        QVERIFY(ErrorOf([&] {
                    Package::Open(path_).ReadPart("a", 1'000'000);
                }).contains(u"no more than 1000000 are allowed"));
        // It says that it is small.
        IsRefused(RawPackage({{.name = "a", .data = bomb, .method = 8, .crc = 0, .size = 1000}}),
                  QStringLiteral("longer than its directory says"));
        // It says that it is larger than it can be.
        IsRefused(RawPackage({{.name = "a", .data = "xx", .method = 8, .size = 900'000'000}}),
                  QStringLiteral("claims a size that can't be true"));
    }

    void SizesThatDoNotFitTheDataAreAnError() {
        const QByteArray data = Deflated("four");
        IsRefused(RawPackage({{.name = "a", .data = data, .method = 8, .size = 5}}),
                  QStringLiteral("shorter"));
        IsRefused(RawPackage({{.name = "a", .data = data, .method = 8, .size = 3}}),
                  QStringLiteral("longer"));
        IsRefused(RawPackage({{.name = "a", .data = data.chopped(2), .method = 8, .size = 4}}),
                  QStringLiteral("can't be uncompressed"));
        IsRefused(RawPackage({{.name = "a", .data = Noise(100), .method = 8, .size = 100}}),
                  QStringLiteral("is damaged"));
        IsRefused(RawPackage({{.name = "a", .data = "text", .size = 3}}),
                  QStringLiteral("claims a size"));
        IsRefused(RawPackage({{.name = "a", .data = "", .method = 8, .size = 0}}),
                  QStringLiteral("can't be uncompressed"));
    }

    void TooManyPartsAreAnError_data() {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("reason");
        QTest::newRow("10001") << 10'001 << QStringLiteral("it has 10001 parts");
        QTest::newRow("65535") << 65'535 << QStringLiteral("it has 65535 parts");
        // Its count is 0 in the record's 16 bits.
        QTest::newRow("65536") << 65'536 << QStringLiteral("longer than the parts that it counts");
    }

    void TooManyPartsAreAnError() {
        QFETCH(int, count);
        QFETCH(QString, reason);
        QList<RawEntry> entries;
        for (int i = 0; i < count; ++i)
            entries.append({.name = QByteArray::number(i)});
        IsRefusedAtOpen(RawPackage(entries), reason);
    }

    void TenThousandPartsAreRead() {
        QList<RawEntry> entries;
        for (int i = 0; i < int(kMaxParts); ++i)
            entries.append({.name = QByteArray::number(i)});
        WriteBytes(path_, RawPackage(entries));
        QCOMPARE(Package::Open(path_).PartNames().size(), qsizetype(kMaxParts));
        // The document part would be one too many.
        const QString error = ErrorOf([&] { SaveAs(path_, kNewState); });
        QVERIFY2(error.contains(u"10002 parts"), qPrintable(error));
        QCOMPARE(FileBytes(path_), RawPackage(entries));
    }

    void ADirectoryThatIsNoneIsAnError() {
        const QByteArray good = RawPackage({{.name = "a", .data = "text"}, {.name = "b"}});
        const qsizetype directory = good.indexOf("PK\1\2");
        const qsizetype end = good.indexOf("PK\5\6");
        QByteArray bytes = good;
        bytes[directory] = 'X';
        IsRefusedAtOpen(bytes, QStringLiteral("entry 1 of its directory is no valid record"));
        bytes = good;
        Patch(bytes, directory + 28, quint16(60'000));  // the length of the name
        IsRefusedAtOpen(bytes, QStringLiteral("no valid record"));
        bytes = good;
        Patch(bytes, end + 8, quint16(3));
        Patch(bytes, end + 10, quint16(3));
        IsRefusedAtOpen(bytes, QStringLiteral("entry 3"));
        bytes = good;
        Patch(bytes, end + 8, quint16(1));
        Patch(bytes, end + 10, quint16(1));
        IsRefusedAtOpen(bytes, QStringLiteral("longer than the parts that it counts"));
        bytes = good;
        Patch(bytes, end + 4, quint16(1));  // the disk
        IsRefusedAtOpen(bytes, QStringLiteral("missing or incomplete"));
        bytes = good;
        Patch(bytes, end + 16, quint32(directory + 1));  // ends not at the end record
        IsRefusedAtOpen(bytes, QStringLiteral("missing or incomplete"));
    }

    void BytesBeforeThePackageAreAnError() {
        IsRefusedAtOpen("junk" + RawPackage({{.name = "a"}}), QStringLiteral("no document"));
        IsRefusedAtOpen("PK\3\4" + RawPackage({{.name = "a"}}),
                        QStringLiteral("missing or incomplete"));
    }

    void AnEmptyPackageIsAPackage() {
        WriteBytes(path_, RawPackage({}));
        QVERIFY(Package::Open(path_).PartNames().isEmpty());
        SaveAs(path_, kNewState);
        QCOMPARE(StateOf(path_), kNewState);
    }

    void ACommentOfOthersIsPassedOver() {
        for (const QByteArray& comment :
             {QByteArray("made by hand"), QByteArray(53, 'c'), QByteArray(65'535, 'P')}) {
            WriteBytes(path_, RawPackage({{.name = kDocumentPart, .data = kOldState}}, comment));
            QCOMPARE(StateOf(path_), kOldState);
            SaveAs(path_, kNewState);
            QCOMPARE(StateOf(path_), kNewState);
        }
    }

    void AZip64RecordThatLiesIsAnError() {
        // A ZIP64 end before a plain one that leaves everything to it.
        const auto make = [](quint64 count, quint64 size, quint64 offset) {
            QByteArray bytes = RawPackage({{.name = "a", .data = "text"}});
            const qsizetype end = bytes.indexOf("PK\5\6");
            QByteArray records(76, '\0');
            Patch(records, 0, quint32(0x06064b50));
            Patch(records, 4, quint64(44));
            Patch(records, 24, count);
            Patch(records, 32, count);
            Patch(records, 40, size);
            Patch(records, 48, offset);
            Patch(records, 56, quint32(0x07064b50));
            Patch(records, 64, quint64(end));
            Patch(records, 72, quint32(1));
            Patch(bytes, end + 8, quint32(0xFFFFFFFF));
            Patch(bytes, end + 12, quint32(0xFFFFFFFF));
            Patch(bytes, end + 16, quint32(0xFFFFFFFF));
            return bytes.insert(end, records);
        };
        const QByteArray good = RawPackage({{.name = "a", .data = "text"}});
        const auto offset = quint64(good.indexOf("PK\1\2"));
        const auto size = quint64(good.indexOf("PK\5\6")) - offset;
        WriteBytes(path_, make(1, size, offset));
        QCOMPARE(AllParts(path_).value("a"), QByteArray("text"));

        IsRefusedAtOpen(make(2, size, offset), QStringLiteral("entry 2"));
        IsRefusedAtOpen(make(~0ULL, size, offset), QStringLiteral("18446744073709551615 parts"));
        IsRefusedAtOpen(make(1, size, offset + 1), QStringLiteral("missing or incomplete"));
        IsRefusedAtOpen(make(1, size + 1, offset - 1), QStringLiteral("no valid record"));
        IsRefusedAtOpen(make(1, size + offset + 1, ~0ULL), QStringLiteral("missing or incomplete"));
    }

    void AFileFullOfFalseEndsIsRefusedSoon() {
        // Each claims a megabyte that has to be summed up.
        QByteArray bytes(2 << 20, '\0');
        bytes.replace(0, 4, "PK\3\4");
        for (int i = 0; i < 10'000; ++i) {
            QByteArray end("PK\5\6" + QByteArray(18, '\0'));
            Patch(end, 16, quint32(bytes.size()));
            Patch(end, 20, quint16(53));
            bytes += end + "docmodel 1 0000000000100000 " + Hex(bytes.size()) + " 00000000";
        }
        IsRefusedAtOpen(bytes, QStringLiteral("too many incomplete saves"));
    }

    void ACommentThatClaimsMoreThanASaveWritesIsNotSummedUp() {
        QByteArray bytes("PK\3\4");
        QByteArray end("PK\5\6" + QByteArray(18, '\0'));
        bytes.resize(40 << 20);
        Patch(end, 16, quint32(bytes.size()));
        Patch(end, 20, quint16(53));
        end += "docmodel 1 0000000000000000 " + Hex(bytes.size()) + ' ';
        const QByteArray summed = bytes + end;
        IsRefusedAtOpen(summed + QByteArray::number(Crc(summed), 16).rightJustified(8, '0'),
                        QStringLiteral("missing or incomplete"));
    }

    void ASparseFileOfTerabytesIsRefusedAtOnce() {
        WriteBytes(path_, "PK\3\4");
        if (truncate(path_.toUtf8().constData(), off_t(4) << 40) != 0)
            QSKIP("this disk has no sparse files of that size");
        const QString error = ErrorOfReading(path_);
        QVERIFY2(error.contains(u"missing or incomplete"), qPrintable(error));
        QVERIFY(QFile::remove(path_));
    }

    void AStateBehindALongTornTailIsFound() {
        const QByteArray tail = Noise(3 << 20);
        QFile file(path_);
        QVERIFY(file.open(QIODevice::Append));
        file.write("PK\3\4" + tail);
        file.close();
        QCOMPARE(StateOf(path_), kOldState);
    }

    void ADirectoryLargerThanAnyDocumentNeedsIsRefused() {
        QList<RawEntry> entries;
        for (int i = 0; i < 200; ++i)
            entries.append({.name = QByteArray::number(i), .extra = QByteArray(60'000, '\0')});
        IsRefusedAtOpen(RawPackage(entries), QStringLiteral("its directory is larger"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestPackageDamage)
#include "tst_packagedamage.moc"
