// The stored preview: written as a bitmap whatever it is stored as, or told that there is none.

#include <QBuffer>
#include <QColor>
#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>

#include "docmodel/picture.h"
#include "tests/docmodel/documenttools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

namespace {

QImage Picture() {
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(QColor(200, 30, 30));
    return picture;
}

QByteArray Encoded(const QImage& picture, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, format))
        qFatal("can't encode %s", format);
    return bytes;
}

// A PNG whose header claims this size.
QByteArray PngThatClaims(quint32 width, quint32 height) {
    QByteArray bytes = Encoded(Picture(), "PNG");
    qToBigEndian(width, bytes.data() + 16);
    qToBigEndian(height, bytes.data() + 20);
    qToBigEndian(Crc(bytes.mid(12, 17)), bytes.data() + 29);
    return bytes;
}

}  // namespace

class TestPreview : public QObject {
    Q_OBJECT

private:
    QTemporaryDir temporary_;
    QString path_ = temporary_.filePath("part.tfmprt");
    QString bitmap_ = temporary_.filePath("preview.bmp");

    int Extract() const { return Access().MakePreviewExtractor()->ExtractPreview(path_, bitmap_); }
    void Store(const QByteArray& picture) const {
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        document.SetPreview(picture);
        document.Save();
    }

private Q_SLOTS:
    void init() {
        QFile::remove(bitmap_);
        DocumentBuilder::New(path_, DocumentBuilder::IfThere::Replace).Save();
    }

    void APictureOfAnyFormatBecomesABitmap_data() {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QByteArray>("part");
        QTest::newRow("PNG") << QByteArray("PNG") << QByteArray("docProps/thumbnail.png");
        QTest::newRow("JPEG") << QByteArray("JPEG") << QByteArray("docProps/thumbnail.jpeg");
        QTest::newRow("BMP") << QByteArray("BMP") << QByteArray("docProps/thumbnail.bmp");
    }
    void APictureOfAnyFormatBecomesABitmap() {
        QFETCH(QByteArray, format);
        QFETCH(QByteArray, part);
        Store(Encoded(Picture(), format.constData()));
        QVERIFY(Package::Open(path_).HasPart(part));
        QCOMPARE(Extract(), 0);
        QVERIFY(FileBytes(bitmap_).startsWith("BM"));
        const QImage read(bitmap_);
        QCOMPARE(read.size(), Picture().size());
        QVERIFY(qAbs(read.pixelColor(20, 15).red() - 200) < 8);
    }

    void AFormerBitmapIsReplaced() {
        WriteBytes(bitmap_, "former");
        Store(Encoded(Picture(), "PNG"));
        QCOMPARE(Extract(), 0);
        QVERIFY(FileBytes(bitmap_).startsWith("BM"));
        QCOMPARE(QDir(temporary_.path()).entryList(QDir::Files),
                 QStringList({"part.tfmprt", "preview.bmp"}));
    }

    void WhatIsTransparentComesWhite() {
        QImage picture(4, 4, QImage::Format_ARGB32);
        picture.fill(Qt::transparent);
        Store(Encoded(picture, "PNG"));
        QCOMPARE(Extract(), 0);
        QCOMPARE(QImage(bitmap_).pixelColor(1, 1), QColor(Qt::white));
    }

    void ANewPreviewTakesTheFormersPlace() {
        Store(Encoded(Picture(), "PNG"));
        QImage other(8, 8, QImage::Format_RGB32);
        other.fill(Qt::blue);
        Store(Encoded(other, "JPEG"));
        QVERIFY(!Package::Open(path_).HasPart("docProps/thumbnail.png"));
        QVERIFY(!PartOf(path_, ContentTypes::kPart).contains("thumbnail.png"));
        QCOMPARE(Extract(), 0);
        QCOMPARE(QImage(bitmap_).size(), QSize(8, 8));
    }

    void ADocumentWithoutPreviewSaysSoAndWritesNothing() {
        WriteBytes(bitmap_, "former");
        QCOMPARE(Extract(), -2);
        QCOMPARE(FileBytes(bitmap_), QByteArray("former"));
    }

    void ADocumentThatCantBeReadFails() {
        WriteBytes(path_, "no package");
        QCOMPARE(Extract(), -1);
        QVERIFY(QFile::remove(path_));
        QCOMPARE(Extract(), -1);
        QVERIFY(!QFile::exists(bitmap_));
    }

    void WhatIsNoPictureFails_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("no picture");
        QTest::newRow("drawing") << QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>");
        QTest::newRow("head alone") << Encoded(Picture(), "PNG").left(30);
        QTest::newRow("cut off") << Encoded(Picture(), "JPEG").left(20);
        QTest::newRow("head of a bitmap") << QByteArray("BM");
        QTest::newRow("bigger than memory") << PngThatClaims(2'000'000'000, 2'000'000'000);
        QTest::newRow("too many pixels") << PngThatClaims(100'000, 1'000);
        QTest::newRow("no pixels") << PngThatClaims(0, 10);
    }
    void WhatIsNoPictureFails() {
        QFETCH(QByteArray, bytes);
        PackageWriter::Create(
            path_, {{"docProps/thumbnail.png", bytes}, {kDocumentPart, Tables("")}}, true);
        WriteBytes(bitmap_, "former");
        QCOMPARE(Extract(), -1);
        QCOMPARE(FileBytes(bitmap_), QByteArray("former"));
    }

    void ABitmapThatCantBeWrittenFails() {
        Store(Encoded(Picture(), "PNG"));
        const auto extractor = Access().MakePreviewExtractor();
        QCOMPARE(extractor->ExtractPreview(path_, temporary_.filePath("none/p.bmp")), -1);
        QCOMPARE(extractor->ExtractPreview(path_, temporary_.path()), -1);
    }

    void APreviewOfAnotherNameIsFoundByItsRelationship() {
        Relationships relationships(nullptr);
        relationships.Set(kThumbnailKind, "media/picture1.png");
        PackageWriter::Create(path_,
                              {{Relationships::kPart, relationships.Bytes()},
                               {"media/picture1.png", Encoded(Picture(), "PNG")}},
                              true);
        QCOMPARE(Extract(), 0);
        QCOMPARE(QImage(bitmap_).size(), Picture().size());
    }

    void OnlyPicturesAreStored() {
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        QVERIFY(ErrorOf([&] { document.SetPreview("text"); }).contains(path_));
    }

    void APictureThatWouldNotBeShownIsNotStored() {
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        const QByteArray picture = Encoded(Picture(), "PNG");
        const auto errorOf = [&](const QByteArray& bytes) {
            return ErrorOf([&] { document.SetPreview(bytes); });
        };
        QVERIFY(errorOf(PngThatClaims(100'000, 1'000)).contains(path_));
        QVERIFY(errorOf(PngThatClaims(2'000'000'000, 2'000'000'000)).contains(path_));
        // What stands behind the picture's end does not matter to who reads it.
        QVERIFY(errorOf(picture + QByteArray(kMaxPreviewBytes - picture.size() + 1, 'x'))
                    .contains(path_));
        document.SetPreview(picture + QByteArray(kMaxPreviewBytes - picture.size(), 'x'));
        document.Save();
        QCOMPARE(Extract(), 0);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestPreview)
#include "tst_preview.moc"
