#include <sys/stat.h>

#include <QBuffer>
#include <QImage>
#include <QUrl>

#include "tests/support/installation.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

QByteArray Png(int width, int height) {
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(Qt::darkCyan);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "png");
    return bytes;
}

// A picture whose head claims a size that it does not have.
QByteArray ClaimingPng(quint32 width, quint32 height) {
    QByteArray bytes = Png(8, 8);
    for (int i = 0; i < 4; ++i) {
        bytes[16 + i] = char(width >> (24 - 8 * i));
        bytes[20 + i] = char(height >> (24 - 8 * i));
    }
    return bytes;
}

}  // namespace

class TestThumbnailer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void thePreviewIsMadeToFit_data() {
        QTest::addColumn<QSize>("preview");
        QTest::addColumn<int>("size");
        QTest::addColumn<QSize>("thumbnail");
        QTest::newRow("wide") << QSize(400, 200) << 128 << QSize(128, 64);
        QTest::newRow("high") << QSize(200, 400) << 128 << QSize(64, 128);
        QTest::newRow("small keeps its size") << QSize(60, 40) << 128 << QSize(60, 40);
        QTest::newRow("a line stays one") << QSize(2000, 1) << 128 << QSize(128, 1);
    }

    void thePreviewIsMadeToFit() {
        QFETCH(QSize, preview);
        QFETCH(int, size);
        QFETCH(QSize, thumbnail);
        const QString file = Document(Png(preview.width(), preview.height()));
        const Outcome run = Make({QStringLiteral("-s"), QString::number(size), file, Output()});
        QVERIFY2(run.code == 0, qPrintable(run.err));
        const QImage picture(Output(), "png");
        QCOMPARE(picture.size(), thumbnail);
        QCOMPARE(picture.pixelColor(0, 0), QColor(Qt::darkCyan));
    }

    void aFileAddressNamesTheDocumentToo() {
        const QString file = Document(Png(10, 10), QStringLiteral("hex screw #6 100%.tfmprt"));
        const Outcome run =
            Make({QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded), Output()});
        QVERIFY2(run.code == 0, qPrintable(run.err));
        QVERIFY(QFile::exists(Output()));
    }

    void itNeedsNoDisplay() {
        const Outcome run = Make({Document(Png(10, 10)), Output()},
                                 {{QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("nothing")}});
        QCOMPARE(run.code, 0);
    }

    void whatHasNoPictureFailsAndLeavesNoFile_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("no preview") << library_.Make(QStringLiteral("plain.tfmprt"));
        QTest::newRow("no document") << library_.MakeBroken(QStringLiteral("broken.tfmprt"));
        QTest::newRow("not there") << library_.Path(QStringLiteral("lost.tfmprt"));
        QTest::newRow("a folder") << library_.Folder();
        QTest::newRow("a device without an end") << QStringLiteral("/dev/zero");
        const QString pipe = library_.Path(QStringLiteral("pipe.tfmprt"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QTest::newRow("a pipe that nobody writes to") << pipe;
        QTest::newRow("cut off") << CutOff();
        QTest::newRow("damaged picture") << Document(Png(300, 300).left(200), "cut.tfmprt");
    }

    void whatHasNoPictureFailsAndLeavesNoFile() {
        QFETCH(QString, file);
        const Outcome run = Make({file, Output()});
        QCOMPARE(run.code, 1);
        QVERIFY(run.err.contains(file));
        QVERIFY(FolderIsEmpty());
    }

    void aPictureThatClaimsTooMuchIsNotRead() {
        // The document library refuses to store one; other programs do not.
        const QString file = Document(Png(8, 8), QStringLiteral("claims.tfmprt"));
        ReplacePicture(file, QStringLiteral("bytes.fromhex('%1')")
                                 .arg(QString::fromLatin1(ClaimingPng(200000, 200000).toHex())));
        const Outcome run = Make({file, Output()});
        QCOMPARE(run.code, 1);
        QVERIFY(run.err.contains(QLatin1String("too large")));
        QVERIFY(FolderIsEmpty());
    }

    // Texts of a few kilobytes that unpack to gigabytes, beside a picture of eight pixels.
    void whatIsNoPictureInItIsNotUnpacked() {
        const QString file = Document(Png(8, 8), QStringLiteral("texts.tfmprt"));
        ReplacePicture(file, QStringLiteral("data[:33] + b''.join(chunk(b'zTXt', b'k%d\\0\\0' % i "
                                            "+ zlib.compress(bytes(7_900_000)))"
                                            " for i in range(200)) + data[33:]"));
        const Outcome run = Make({file, Output()});
        QVERIFY2(run.code == 0, qPrintable(run.err));
        QCOMPARE(QImage(Output(), "png").size(), QSize(8, 8));
    }

    void aFailureLeavesTheFormerPicture() {
        QVERIFY(QImage(3, 3, QImage::Format_RGB32).save(Output(), "png"));
        QCOMPARE(Make({library_.MakeBroken(QStringLiteral("b.tfmprt")), Output()}).code, 1);
        QCOMPARE(QImage(Output()).size(), QSize(3, 3));
    }

    void aPictureThatCannotBeWrittenFails() {
        const QString file = Document(Png(10, 10));
        const Outcome run = Make({file, folder_->filePath(QStringLiteral("no/out.png"))});
        QCOMPARE(run.code, 1);
        QVERIFY(run.err.contains(QLatin1String("out.png")));
    }

    void wrongUsageEndsWithTwo_data() {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("nothing") << QStringList();
        QTest::newRow("no output") << QStringList{"a.tfmprt"};
        QTest::newRow("size of nothing") << QStringList{"-s", "0", "a.tfmprt", "b.png"};
        QTest::newRow("size out of bounds") << QStringList{"-s", "99999", "a.tfmprt", "b.png"};
        QTest::newRow("another computer") << QStringList{"http://host/a.tfmprt", "b.png"};
        QTest::newRow("no such option") << QStringList{"--wide", "a.tfmprt", "b.png"};
    }

    void wrongUsageEndsWithTwo() {
        QFETCH(QStringList, arguments);
        const Outcome run = Make(arguments);
        QCOMPARE(run.code, 2);
        QVERIFY(!run.err.isEmpty());
    }

    void init() { folder_ = std::make_unique<QTemporaryDir>(); }

private:
    // `picture` is a Python expression for the new bytes; `data` are the old ones.
    static void ReplacePicture(const QString& file, const QString& picture) {
        const QString script = QStringLiteral(
            "import struct, sys, zipfile, zlib\n"
            "def chunk(kind, data):\n"
            "    return (struct.pack('>I', len(data)) + kind + data +\n"
            "            struct.pack('>I', zlib.crc32(kind + data)))\n"
            "old = zipfile.ZipFile(sys.argv[1])\n"
            "parts = {name: old.read(name) for name in old.namelist()}\n"
            "with zipfile.ZipFile(sys.argv[1], 'w', zipfile.ZIP_DEFLATED) as new:\n"
            "    for name, data in parts.items():\n"
            "        if name.endswith('.png'):\n"
            "            data = eval(sys.argv[2])\n"
            "        new.writestr(name, data)\n");
        const Outcome zip =
            RunProgram(QStringLiteral("python3"), {QStringLiteral("-c"), script, file, picture});
        QVERIFY2(zip.code == 0, qPrintable(zip.err));
    }
    QString Output() const { return folder_->filePath(QStringLiteral("out.png")); }
    bool FolderIsEmpty() const {
        return QDir(folder_->path())
            .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QString Document(const QByteArray& preview,
                     const QString& name = QStringLiteral("bolt.tfmprt")) {
        const QString path = library_.Make(name);
        library_.SetPreview(path, preview);
        return path;
    }

    QString CutOff() {
        const QString path = Document(Png(300, 300), QStringLiteral("cutoff.tfmprt"));
        QFile file(path);
        file.resize(file.size() / 2);
        return path;
    }

    static Outcome Make(const QStringList& arguments,
                        const QMap<QString, QString>& variables = {}) {
        return RunProgram(
            QCoreApplication::applicationDirPath() + QStringLiteral("/docbench-thumbnailer"),
            arguments, variables);
    }

    TestLibrary library_;
    std::unique_ptr<QTemporaryDir> folder_;
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestThumbnailer)

#include "tst_thumbnailer.moc"
