#include <unistd.h>
#include <zip.h>

#include <QTest>
#include <QtEndian>

#include "tests/docmodel/packagetools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

namespace {

QByteArray ReadByLibzip(const QString& path, const char* name) {
    int error = 0;
    zip_t* archive = zip_open(path.toUtf8().constData(), ZIP_RDONLY | ZIP_CHECKCONS, &error);
    if (!archive)
        return "libzip error " + QByteArray::number(error);
    QByteArray bytes(1 << 20, '\0');
    zip_file_t* part = zip_fopen(archive, name, 0);
    const zip_int64_t got = part ? zip_fread(part, bytes.data(), quint64(bytes.size())) : -1;
    const int closed = part ? zip_fclose(part) : -1;
    zip_discard(archive);
    if (got < 0 || closed != 0)
        return "libzip can't read";
    bytes.truncate(got);
    return bytes;
}

// Prints what Python's zipfile finds: "ok", or the first bad part; and one part.
QByteArray ReadByPython(const QString& path, const QString& name) {
    return RunPython(QStringLiteral("import sys, zipfile\n"
                                    "z = zipfile.ZipFile(sys.argv[1])\n"
                                    "print(z.testzip() or 'ok', len(z.namelist()),"
                                    " z.read(sys.argv[2]).decode())\n"),
                     {path, name});
}

// Adds a part as each of the tools does.
QByteArray AddByPython(const QString& path, const QString& name, const QByteArray& text) {
    return RunPython(QStringLiteral("import sys, zipfile\n"
                                    "with zipfile.ZipFile(sys.argv[1], 'a') as z:\n"
                                    "    z.writestr(sys.argv[2], sys.argv[3])\n"),
                     {path, name, QString::fromUtf8(text)});
}

QByteArray AddByZip(const QString& path, const QString& name, const QByteArray& text) {
    const QString folder = QFileInfo(path).path();
    WriteBytes(folder + u'/' + name, text);
    const QString script = QStringLiteral("cd \"$1\" && zip -q \"$2\" \"$3\" && rm \"$3\"");
    return Run(QStringLiteral("sh"),
               {QStringLiteral("-c"), script, QStringLiteral("sh"), folder, path, name});
}

QByteArray AddByLibzip(const QString& path, const QString& name, const QByteArray& text) {
    int error = 0;
    zip_t* archive = zip_open(path.toUtf8().constData(), 0, &error);
    if (!archive)
        return "libzip error " + QByteArray::number(error);
    zip_source_t* source = zip_source_buffer(archive, text.constData(), quint64(text.size()), 0);
    if (zip_file_add(archive, name.toUtf8().constData(), source, ZIP_FL_OVERWRITE) < 0 ||
        zip_close(archive) != 0) {
        zip_discard(archive);
        return "libzip can't write";
    }
    return QByteArray();
}

using AddPart = QByteArray (*)(const QString&, const QString&, const QByteArray&);

template <typename Number>
void Append(QByteArray& to, Number value) {
    const Number little = qToLittleEndian(value);
    to.append(reinterpret_cast<const char*>(&little), sizeof little);
}

}  // namespace

class TestPackageInterop : public QObject {
    Q_OBJECT

private:
    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("gear.tfmprt"));

private Q_SLOTS:
    void cleanup() { QFile::remove(path_); }

    void OthersReadWhatIsWrittenAfterEachSave() {
        NamedParts parts = SmallParts();
        parts.prepend({"Stücke/Größe.xml", QByteArray(10'000, 'x')});
        PackageWriter::Create(path_, parts);
        for (int save = 0; save < 8; ++save) {
            const QByteArray state = "<document save=\"" + QByteArray::number(save) + "\"/>";
            PackageWriter writer(path_);
            writer.Put("docProps/core.xml", Noise(save * 20'000));
            writer.Put("docProps/thumbnail.png", QByteArray(save * 1000, 'p'));
            writer.Commit(state);
            QCOMPARE(ReadByPython(path_, QString::fromUtf8(kDocumentPart)), "ok 7 " + state);
            QCOMPARE(ReadByLibzip(path_, kDocumentPart), state);
            QCOMPARE(ReadByLibzip(path_, "Stücke/Größe.xml"), QByteArray(10'000, 'x'));
            const QByteArray unzip = Run(QStringLiteral("unzip"), {QStringLiteral("-t"), path_});
            QVERIFY2(unzip.contains("No errors detected"), unzip.constData());
        }
        PackageWriter::Compact(path_);
        QVERIFY(ReadByPython(path_, QString::fromUtf8(kDocumentPart)).startsWith("ok 7 "));
        QVERIFY(ReadByLibzip(path_, kDocumentPart).contains("save=\"7\""));
        QVERIFY(Run(QStringLiteral("unzip"), {QStringLiteral("-t"), path_}).contains("No errors"));
    }

    void APackageOfPythonOpensAndIsSavedInto() {
        const QString script = QStringLiteral(
            "import sys, zipfile\n"
            "with zipfile.ZipFile(sys.argv[1], 'w', zipfile.ZIP_DEFLATED) as z:\n"
            "    z.comment = b'by Python'\n"
            "    z.writestr('[Content_Types].xml', '<Types/>')\n"
            "    z.writestr('docProps/core.xml', '<core/>' * 100)\n"
            "    z.writestr('Größe.bin', bytes(range(256)) * 100)\n"
            "    z.writestr(zipfile.ZipInfo('folder/'), '')\n");
        QCOMPARE(RunPython(script, {path_}), QByteArray());
        const QByteArray before = FileBytes(path_);
        const QMap<QByteArray, QByteArray> parts = AllParts(path_);
        QCOMPARE(parts.keys(),
                 QByteArrayList({"Größe.bin", "[Content_Types].xml", "docProps/core.xml"}));
        QCOMPARE(parts.value("docProps/core.xml"), QByteArray("<core/>").repeated(100));
        PackageWriter(path_).Commit("<document/>");
        QVERIFY(FileBytes(path_).startsWith(before));
        QCOMPARE(ReadByPython(path_, QString::fromUtf8(kDocumentPart)), "ok 5 <document/>");
        QCOMPARE(AllParts(path_).value("Größe.bin"), parts.value("Größe.bin"));
    }

    // They carry the comment of our end record over to their own.
    void WhatOthersAddToASavedDocumentIsTheNewestStateAndIsKept_data() {
        QTest::addColumn<AddPart>("add");
        QTest::newRow("Python") << AddPart(AddByPython);
        QTest::newRow("zip") << AddPart(AddByZip);
        QTest::newRow("libzip") << AddPart(AddByLibzip);
    }

    void WhatOthersAddToASavedDocumentIsTheNewestStateAndIsKept() {
        QFETCH(AddPart, add);
        PackageWriter::Create(path_, SmallParts());
        SaveAs(path_, "<document save=\"0\"/>");
        QMap<QByteArray, QByteArray> expected = AllParts(path_);
        for (int round = 1; round <= 3; ++round) {
            const QByteArray number = QByteArray::number(round);
            const QByteArray theirs = "theirs" + number + ".txt";
            QCOMPARE(add(path_, QString::fromUtf8(theirs), "text " + number), QByteArray());
            QVERIFY(FileBytes(path_).right(53).startsWith("docmodel 1 "));
            expected[theirs] = "text " + number;
            QCOMPARE(AllParts(path_), expected);

            const QByteArray ours = "<document save=\"" + number + "\"/>";
            PackageWriter writer(path_);
            writer.Put("ours" + number + ".bin", Noise(1000 * round));
            writer.Commit(ours);
            expected["ours" + number + ".bin"] = Noise(1000 * round);
            expected[kDocumentPart] = ours;
            QCOMPARE(AllParts(path_), expected);
            QCOMPARE(ReadByPython(path_, QString::fromUtf8(theirs)),
                     "ok " + QByteArray::number(expected.size()) + " text " + number);
        }
    }

    // They take the torn save's record, which is the last one, and go on from there.
    void WhatOthersAddBehindATornSaveIsTheNewestState() {
        PackageWriter::Create(path_, SmallParts());
        SaveAs(path_, "<document save=\"0\"/>");
        const qsizetype before = FileBytes(path_).size();
        SaveAs(path_, "<document save=\"1\"/>");
        QByteArray bytes = FileBytes(path_);
        bytes.replace(before, 4, QByteArray(4, '\0'));  // of the core properties
        WriteBytes(path_, bytes);
        QCOMPARE(AllParts(path_).value(kDocumentPart), QByteArray("<document save=\"0\"/>"));
        QCOMPARE(AddByPython(path_, QStringLiteral("theirs.txt"), "text"), QByteArray());
        {
            const Package package = Package::Open(path_);
            QCOMPARE(package.ReadPart("theirs.txt", 100), QByteArray("text"));
            QCOMPARE(package.ReadPart(kDocumentPart, 100), QByteArray("<document save=\"1\"/>"));
            QVERIFY(ErrorOf([&] { package.ReadPart("docProps/core.xml", 1000); }).contains(path_));
        }
        SaveAs(path_, "<document save=\"2\"/>");  // writes the core properties anew
        QCOMPARE(AllParts(path_).value("theirs.txt"), QByteArray("text"));
        QCOMPARE(AllParts(path_).value(kDocumentPart), QByteArray("<document save=\"2\"/>"));
    }

    void Zip64FieldsOfPythonAreRead() {
        const QString script = QStringLiteral(
            "import sys, zipfile\n"
            "with zipfile.ZipFile(sys.argv[1], 'w', zipfile.ZIP_DEFLATED) as z:\n"
            "    with z.open('a.txt', 'w', force_zip64=True) as f: f.write(b'text' * 1000)\n"
            "    with z.open('docmodel/document.xml', 'w', force_zip64=True) as f:\n"
            "        f.write(b'<document/>')\n");
        QCOMPARE(RunPython(script, {path_}), QByteArray());
        QCOMPARE(AllParts(path_).value("a.txt"), QByteArray("text").repeated(1000));
        PackageWriter(path_).Commit("<new/>");
        PackageWriter::Compact(path_);
        QCOMPARE(AllParts(path_).value("a.txt"), QByteArray("text").repeated(1000));
        QCOMPARE(ReadByPython(path_, QString::fromUtf8(kDocumentPart)), "ok 2 <new/>");
    }

    void SixtyFiveThousandPartsOfPythonAreRefused() {
        const QString script = QStringLiteral(
            "import sys, zipfile\n"
            "with zipfile.ZipFile(sys.argv[1], 'w') as z:\n"
            "    for i in range(65536): z.writestr(str(i), '')\n");
        QCOMPARE(RunPython(script, {path_}), QByteArray());
        const QString error = ErrorOfReading(path_);
        QVERIFY2(error.contains(path_) && error.contains(u"it has 65536 parts"), qPrintable(error));
    }

    void ADocumentBeyondFourGigabytesIsReadSavedAndReadByOthers() {
        // One stored part of zeros, which take no room on the disk.
        constexpr quint64 kSize = 0x1'4000'0000;
        QByteArray head;
        const auto appendFields = [](QByteArray& to, quint32 size) {
            Append(to, quint64(0));  // flags, method, time
            Append(to, quint32(0));  // checksum: nobody reads the part
            Append(to, size);
            Append(to, size);
        };
        Append(head, quint32(0x04034b50));
        Append(head, quint16(45));
        appendFields(head, 0xFFFFFFFF);
        Append(head, quint32(20 << 16 | 9));  // lengths of extra field and name
        head += "model.bin";
        QByteArray extra;
        Append(extra, quint32(16 << 16 | 1));
        Append(extra, kSize);
        Append(extra, kSize);
        head += extra;

        QByteArray directory;
        Append(directory, quint32(0x02014b50));
        Append(directory, quint32(45 << 16 | 45));
        appendFields(directory, 0xFFFFFFFF);
        Append(directory, quint32(20 << 16 | 9));
        directory += QByteArray(14, '\0') + "model.bin" + extra;
        const quint64 offset = quint64(head.size()) + kSize;
        QByteArray end = directory;
        Append(end, quint32(0x06064b50));
        Append(end, quint64(44));
        Append(end, quint32(45 << 16 | 45));
        Append(end, quint64(0));
        Append(end, quint64(1));
        Append(end, quint64(1));
        Append(end, quint64(directory.size()));
        Append(end, offset);
        Append(end, quint32(0x07064b50));
        Append(end, quint32(0));
        Append(end, offset + quint64(directory.size()));
        Append(end, quint32(1));
        end += "PK\5\6" + QByteArray(4, '\0') + QByteArray(12, '\xff') + QByteArray(2, '\0');

        WriteBytes(path_, head);
        if (truncate(path_.toUtf8().constData(), off_t(offset)) != 0)
            QSKIP("this disk has no sparse files of that size");
        QFile file(path_);
        QVERIFY(file.open(QIODevice::Append));
        file.write(end);
        file.close();

        QCOMPARE(Package::Open(path_).PartNames(), QByteArrayList({"model.bin"}));
        QVERIFY(ErrorOf([&] {
                    Package::Open(path_).ReadPart("model.bin", 1000);
                }).contains(u"5368709120 bytes"));
        for (int save = 0; save < 2; ++save) {
            PackageWriter writer(path_);
            writer.Put("docProps/core.xml", "<core/>");
            writer.Commit("<document/>");
        }
        QCOMPARE(Package::Open(path_).ReadPart(kDocumentPart, 100), QByteArray("<document/>"));
        QCOMPARE(Package::Open(path_).ReadPart("docProps/core.xml", 100), QByteArray("<core/>"));
        QVERIFY(Package::Open(path_).DeadBytes() < 1000);
        const QString script = QStringLiteral(
            "import sys, zipfile\n"
            "z = zipfile.ZipFile(sys.argv[1])\n"
            "print(z.getinfo('model.bin').file_size, z.read('docmodel/document.xml').decode())\n");
        QCOMPARE(RunPython(script, {path_}), QByteArray("5368709120 <document/>"));
        QCOMPARE(ReadByLibzip(path_, kDocumentPart), QByteArray("<document/>"));

        // Torn, it still has its former states.
        QVERIFY(QFile::resize(path_, QFileInfo(path_).size() - 1));
        QCOMPARE(Package::Open(path_).ReadPart("docProps/core.xml", 100), QByteArray("<core/>"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestPackageInterop)
#include "tst_packageinterop.moc"
