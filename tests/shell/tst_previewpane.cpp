// The default pane: the grid of pictures, and what comes instead of one.

#include <zlib.h>

#include <QBuffer>
#include <QCheckBox>
#include <QImage>
#include <QPainter>
#include <QTest>
#include <QtEndian>

#include "docmodel/package.h"
#include "services/language.h"
#include "services/scratch.h"
#include "services/texts.h"
#include "shell/picturebox.h"
#include "shell/previewgrid.h"
#include "shell/previewpane.h"
#include "shell/viewer.h"
#include "tests/shell/shellbench.h"
#include "tests/support/fakewebclient.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

QByteArray Picture(const QColor& color, QSize size = {64, 48}) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return bytes;
}

// The pane on screen, in a shell's place.
struct Bench {
    Bench() {
        LoadResources();
        PrepareScratch();
        pane.SetStatusBarControl(&status);
        pane.resize(640, 480);
        pane.show();
    }
    QString Part(const QString& name, const QColor& color = Qt::red) {
        const QString path = library.Make(name);
        library.SetPreview(path, Picture(color));
        return path;
    }
    PictureBox* Box(int i) {
        return pane.findChild<PictureBox*>(QStringLiteral("Image1A_%1").arg(i));
    }
    template <typename T = QWidget>
    T* Child(const char* name) {
        return pane.findChild<T*>(QLatin1String(name));
    }
    int Shown() {
        int count = 0;
        for (int i = 0; i < 25; ++i)
            count += !Box(i)->isHidden();
        return count;
    }
    void CollectPictures() { Child<QCheckBox>("chkUseFullScreen")->click(); }
    QColor ColorOf(int i) { return Box(i)->grab().toImage().pixelColor(Box(i)->rect().center()); }

    TestLibrary library;
    TestDialogs dialogs;
    FakeStatusLine status;
    PreviewPane pane;
};

}  // namespace

class TestPreviewPane : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewPaneShowsOnePictureAndNothingUntilADocumentCame();
    void aPictureIsFittedIntoThePane();
    void withOnePictureTheNextTakesItsPlace();
    void picturesCollectInASquareGrid_data();
    void picturesCollectInASquareGrid();
    void aPictureInTheGridMovesTheFrameAndLoadsNothing();
    void aPictureOfAChangedDocumentIsNotTakenForTheOldOne();
    void theTwentySixthTakesTheLastPlace();
    void turningFullScreenOnEmptiesTheGridUntilTheNextDocument();
    void turningFullScreenOffOnlyMovesTheFrame();
    void theGridSurvivesPaneChangesAndIsEmptiedByOpening();
    void aDocumentWithoutPreviewSaysSoWithoutABox();
    void aBrokenOrVanishedDocumentGetsABox_data();
    void aBrokenOrVanishedDocumentGetsABox();
    void aVanishedDocumentInTheGridGetsTheBox();
    void theGridFollowsTheSizeOfThePane();
    void theStripCanBeHidden();
    void theFrameIsSeen();
    void aPictureIsDrawnInItsProportions();
    void aWebDocumentIsShownFromItsCopyUnderItsAddress();
    void afterFullScreenTheNextDocumentComesFirst();
    void fittingKeepsTheProportions();
    void aPictureOrBoxOfNoHeightChangesNothing();
    void tooSmallACellKeepsItsGap();
};

void TestPreviewPane::aNewPaneShowsOnePictureAndNothingUntilADocumentCame() {
    Bench bench;
    QVERIFY(bench.Child<QCheckBox>("chkUseFullScreen")->isChecked());
    QVERIFY(bench.Child("Image1")->isHidden());
    QVERIFY(bench.Child("Label2")->isHidden());
    QVERIFY(!bench.Child("DescControl1")->isHidden());
    QCOMPARE(bench.Child<QCheckBox>("chkUseFullScreen")->text(), gStrings[348]);
    QCOMPARE(bench.Child<QLabel>("Label2")->text(), gStrings[307]);
    QCOMPARE(bench.Child<QLabel>("labDescription")->text(), gStrings[135] + u' ');
}

void TestPreviewPane::aPictureIsFittedIntoThePane() {
    Bench bench;
    const QString pin = bench.Part(QStringLiteral("pin.tfmprt"), Qt::blue);
    bench.pane.ShowPreview(pin);
    QCoreApplication::processEvents();
    QVERIFY(bench.Child("Image1")->isVisible());
    QCOMPARE(bench.Shown(), 1);
    QCOMPARE(bench.Box(0)->toolTip(), pin);
    QCOMPARE(bench.Box(0)->accessibleName(), QStringLiteral("pin.tfmprt"));
    QVERIFY(bench.Box(0)->IsFramed());
    QCOMPARE(bench.ColorOf(0), QColor(Qt::blue));
    QCOMPARE(bench.status.caption, Format(Text::PreviewOf, pin));
    const QSize size = bench.Box(0)->size();
    QVERIFY(qAbs(size.width() * 48 - size.height() * 64) <= 64);
    QVERIFY(size.width() > 400 || size.height() > 300);
}

void TestPreviewPane::withOnePictureTheNextTakesItsPlace() {
    Bench bench;
    bench.pane.ShowPreview(bench.Part(QStringLiteral("a.tfmprt"), Qt::red));
    bench.pane.ShowPreview(bench.Part(QStringLiteral("b.tfmprt"), Qt::green));
    QCOMPARE(bench.Shown(), 1);
    QCOMPARE(bench.ColorOf(0), QColor(Qt::green));
    QCOMPARE(bench.Box(1)->toolTip(), QString());
}

void TestPreviewPane::picturesCollectInASquareGrid_data() {
    QTest::addColumn<int>("pictures");
    QTest::addColumn<int>("side");
    const std::pair<int, int> sides[] = {{1, 1},  {2, 2},  {4, 2},  {5, 3}, {9, 3},
                                         {10, 4}, {16, 4}, {17, 5}, {25, 5}};
    for (const auto& [pictures, side] : sides)
        QTest::addRow("%d", pictures) << pictures << side;
}

void TestPreviewPane::picturesCollectInASquareGrid() {
    QFETCH(int, pictures);
    QFETCH(int, side);
    Bench bench;
    bench.CollectPictures();
    for (int i = 0; i < pictures; ++i)
        bench.pane.ShowPreview(bench.Part(QStringLiteral("p%1.tfmprt").arg(i)));
    QCoreApplication::processEvents();
    QCOMPARE(bench.Shown(), pictures);
    const int width = bench.Child("Image1")->width();
    const int height =
        bench.Child("Image1")->height() - bench.Child("chkUseFullScreen")->sizeHint().height();
    for (int i = 0; i < pictures; ++i) {
        QCOMPARE(bench.Box(i)->x(), i % side * width / side);
        QCOMPARE(bench.Box(i)->y(), i / side * height / side);
        QVERIFY(bench.Box(i)->width() <= width / side);
        QVERIFY(bench.Box(i)->height() <= height / side);
        QCOMPARE(bench.Box(i)->IsFramed(), i == pictures - 1);
    }
}

void TestPreviewPane::aPictureInTheGridMovesTheFrameAndLoadsNothing() {
    Bench bench;
    bench.CollectPictures();
    const QString a = bench.Part(QStringLiteral("a.tfmprt"), Qt::red);
    bench.pane.ShowPreview(a);
    bench.pane.ShowPreview(bench.Part(QStringLiteral("b.tfmprt"), Qt::green));
    QVERIFY(QFile::remove(gTempBitmap));
    bench.pane.ShowPreview(a);
    QVERIFY(!QFile::exists(gTempBitmap));
    QCOMPARE(bench.Shown(), 2);
    QVERIFY(bench.Box(0)->IsFramed() && !bench.Box(1)->IsFramed());
    QCOMPARE(bench.status.caption, Format(Text::PreviewOf, a));
}

void TestPreviewPane::aPictureOfAChangedDocumentIsNotTakenForTheOldOne() {
    Bench bench;
    bench.CollectPictures();
    const QString a = bench.Part(QStringLiteral("a.tfmprt"));
    bench.pane.ShowPreview(a);
    bench.library.Make(QStringLiteral("a.tfmprt"));  // without a preview now
    bench.pane.ShowPreview(a);
    QVERIFY(!bench.Child("Label2")->isHidden());
}

void TestPreviewPane::theTwentySixthTakesTheLastPlace() {
    Bench bench;
    bench.CollectPictures();
    for (int i = 0; i < 26; ++i)
        bench.pane.ShowPreview(
            bench.Part(QStringLiteral("p%1.tfmprt").arg(i), i == 25 ? Qt::blue : Qt::red));
    QCOMPARE(bench.Shown(), 25);
    QCOMPARE(bench.Box(24)->toolTip(), bench.library.Path(QStringLiteral("p25.tfmprt")));
    QCOMPARE(bench.Box(23)->toolTip(), bench.library.Path(QStringLiteral("p23.tfmprt")));
    QCOMPARE(bench.ColorOf(24), QColor(Qt::blue));
    QVERIFY(bench.Box(24)->IsFramed());
    bench.pane.ShowPreview(bench.Part(QStringLiteral("p26.tfmprt"), Qt::green));
    QCOMPARE(bench.ColorOf(24), QColor(Qt::green));
    QCOMPARE(bench.ColorOf(23), QColor(Qt::red));
}

void TestPreviewPane::turningFullScreenOnEmptiesTheGridUntilTheNextDocument() {
    Bench bench;
    bench.CollectPictures();
    const QString a = bench.Part(QStringLiteral("a.tfmprt"));
    bench.pane.ShowPreview(a);
    bench.pane.ShowPreview(bench.Part(QStringLiteral("b.tfmprt")));
    bench.CollectPictures();  // back to one picture
    QVERIFY(bench.Child<QCheckBox>("chkUseFullScreen")->isChecked());
    QCOMPARE(bench.Shown(), 0);
    bench.pane.ShowPreview(a);
    QCOMPARE(bench.Shown(), 1);
}

void TestPreviewPane::turningFullScreenOffOnlyMovesTheFrame() {
    Bench bench;
    bench.pane.ShowPreview(bench.Part(QStringLiteral("a.tfmprt")));
    bench.CollectPictures();
    QCOMPARE(bench.Shown(), 1);
    QVERIFY(!bench.Box(0)->IsFramed());
}

void TestPreviewPane::theGridSurvivesPaneChangesAndIsEmptiedByOpening() {
    ShellBench bench;
    bench.library.SetPreview(bench.top, Picture(Qt::red));
    bench.library.SetPreview(bench.left, Picture(Qt::red));
    bench.Add(PaneId::References);
    bench.shell.SetCurrentFunction(QStringLiteral("PREVIEW"));
    bench.Child<QCheckBox>("chkUseFullScreen")->click();
    bench.Open();
    bench.Click(2);
    const auto shown = [&](int i) {
        return !bench.Child<QWidget>(qPrintable(QStringLiteral("Image1A_%1").arg(i)))->isHidden();
    };
    QVERIFY(shown(0) && shown(1) && !shown(2));
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QVERIFY(bench.Child<QWidget>("Image1")->isHidden());
    bench.shell.SetCurrentFunction(QStringLiteral("PREVIEW"));
    QVERIFY(shown(0) && shown(1) && !bench.Child<QWidget>("Image1")->isHidden());
    bench.Open();
    QVERIFY(shown(0) && !shown(1));
}

void TestPreviewPane::aDocumentWithoutPreviewSaysSoWithoutABox() {
    Bench bench;
    const QString plain = bench.library.Make(QStringLiteral("plain.tfmprt"));
    bench.pane.ShowPreview(plain);
    QVERIFY(bench.Child("Label2")->isVisible());
    QVERIFY(bench.Child("Image1")->isHidden());
    QCOMPARE(bench.status.caption, Format(Text::PreviewOf, plain));
    bench.pane.ShowPreview(bench.Part(QStringLiteral("a.tfmprt")));
    QVERIFY(bench.Child("Label2")->isHidden());
}

void TestPreviewPane::aBrokenOrVanishedDocumentGetsABox_data() {
    QTest::addColumn<QByteArray>("thumbnail");
    QByteArray huge = Picture(Qt::red);
    huge.replace(16, 8, QByteArray::fromHex("0000753000007530"));  // 30,000 by 30,000
    const quint32 checksum =
        quint32(crc32(0, reinterpret_cast<const Bytef*>(huge.constData()) + 12, 17));
    qToBigEndian(checksum, huge.data() + 29);
    QTest::newRow("vanished") << QByteArray();
    QTest::newRow("no picture") << QByteArray("no picture");
    QTest::newRow("too large") << huge;
    QTest::newRow("cut off") << Picture(Qt::red).left(60);
}

void TestPreviewPane::aBrokenOrVanishedDocumentGetsABox() {
    QFETCH(QByteArray, thumbnail);
    Bench bench;
    const QString path = bench.library.Path(QStringLiteral("odd.tfmprt"));
    if (!thumbnail.isEmpty())
        docmodel::PackageWriter::Create(path, {{"docProps/thumbnail.png", thumbnail}}, true);
    bench.dialogs.Expect(Format(Text::PreviewError, path));
    bench.pane.ShowPreview(path);
    QVERIFY(bench.dialogs.AllCame());
    QCOMPARE(bench.dialogs.LastTitle(), gAppTitle);
    QVERIFY(bench.Child("Image1")->isHidden());
    QCOMPARE(bench.status.caption, Format(Text::PreviewOf, path));
}

void TestPreviewPane::aVanishedDocumentInTheGridGetsTheBox() {
    Bench bench;
    bench.CollectPictures();
    const QString a = bench.Part(QStringLiteral("a.tfmprt"));
    bench.pane.ShowPreview(a);
    QVERIFY(QFile::remove(a));
    bench.dialogs.Expect(Format(Text::PreviewError, a));
    bench.pane.ShowPreview(a);
    QVERIFY(bench.dialogs.AllCame());
}

void TestPreviewPane::theGridFollowsTheSizeOfThePane() {
    Bench bench;
    bench.pane.ShowPreview(bench.Part(QStringLiteral("a.tfmprt")));
    QCoreApplication::processEvents();
    const int before = bench.Box(0)->width();
    bench.pane.resize(320, 300);
    QCoreApplication::processEvents();
    QVERIFY(bench.Box(0)->width() < before);
}

void TestPreviewPane::theStripCanBeHidden() {
    Bench bench;
    bench.pane.SetShowDesc(false);
    QVERIFY(bench.Child("DescControl1")->isHidden());
    bench.pane.SetShowDesc(true);
    QVERIFY(!bench.Child("DescControl1")->isHidden());
}

void TestPreviewPane::theFrameIsSeen() {
    Bench bench;
    bench.CollectPictures();
    bench.pane.ShowPreview(bench.Part(QStringLiteral("a.tfmprt")));
    bench.pane.ShowPreview(bench.Part(QStringLiteral("b.tfmprt")));
    const QColor highlight = bench.pane.palette().color(QPalette::Highlight);
    QVERIFY(bench.Box(0)->grab().toImage().pixelColor(0, 0) != highlight);
    QCOMPARE(bench.Box(1)->grab().toImage().pixelColor(0, 0), highlight);
}

void TestPreviewPane::aPictureIsDrawnInItsProportions() {
    Bench bench;
    // A black square in the middle of a picture four times as wide as high.
    QImage wide(400, 100, QImage::Format_RGB32);
    wide.fill(Qt::white);
    QPainter(&wide).fillRect(175, 25, 50, 50, Qt::black);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    wide.save(&buffer, "PNG");
    const QString path = bench.library.Make(QStringLiteral("wide.tfmprt"));
    bench.library.SetPreview(path, bytes);
    bench.pane.resize(260, 300);
    bench.pane.ShowPreview(path);
    QCoreApplication::processEvents();
    const QImage shown = bench.Box(0)->grab().toImage();
    int across = 0;
    int down = 0;
    for (int x = 0; x < shown.width(); ++x)
        across += shown.pixelColor(x, shown.height() / 2).lightness() < 60;
    for (int y = 0; y < shown.height(); ++y)
        down += shown.pixelColor(shown.width() / 2, y).lightness() < 60;
    QVERIFY(across > 10);
    QVERIFY2(qAbs(across - down) <= 1, qPrintable(QStringLiteral("%1 %2").arg(across).arg(down)));
}

void TestPreviewPane::aWebDocumentIsShownFromItsCopyUnderItsAddress() {
    Bench bench;
    FakeWeb web;
    const QString url = QStringLiteral("http://s/w/pin.tfmprt");
    QFile file(bench.Part(QStringLiteral("pin.tfmprt"), Qt::green));
    QVERIFY(file.open(QIODevice::ReadOnly));
    web.server.files[url] = file.readAll();
    bench.pane.ShowPreview(url);
    QCOMPARE(bench.Box(0)->toolTip(), url);
    QCOMPARE(bench.ColorOf(0), QColor(Qt::green));
    QCOMPARE(bench.status.caption, Format(Text::PreviewOf, url));
    const QString missing = QStringLiteral("http://s/w/none.tfmprt");
    bench.dialogs.Expect(Format(Text::PreviewError, missing));
    bench.pane.ShowPreview(missing);
    QVERIFY(bench.dialogs.AllCame());
}

void TestPreviewPane::afterFullScreenTheNextDocumentComesFirst() {
    Bench bench;
    bench.CollectPictures();
    bench.pane.ShowPreview(bench.Part(QStringLiteral("a.tfmprt")));
    bench.pane.ShowPreview(bench.Part(QStringLiteral("b.tfmprt")));
    bench.CollectPictures();
    bench.pane.ShowPreview(bench.Part(QStringLiteral("c.tfmprt"), Qt::blue));
    QCOMPARE(bench.Box(0)->toolTip(), bench.library.Path(QStringLiteral("c.tfmprt")));
    QVERIFY(bench.Box(0)->IsFramed());
    QCOMPARE(bench.ColorOf(0), QColor(Qt::blue));
}

void TestPreviewPane::fittingKeepsTheProportions() {
    qint16 width = 0;
    qint16 height = 0;
    FitPicture(200, 100, 100, 100, width, height);
    QCOMPARE(width, qint16(100));
    QCOMPARE(height, qint16(50));
    FitPicture(100, 200, 100, 100, width, height);
    QCOMPARE(width, qint16(50));
    QCOMPARE(height, qint16(100));
    FitPicture(10, 10, 100, 100, width, height);  // also enlarges
    QCOMPARE(width, qint16(100));
    FitPicture(3, 2, 100, 100, width, height);
    QCOMPARE(height, qint16(67));  // rounded
    FitPicture(1, 1, 100000, 100000, width, height);
    QCOMPARE(width, qint16(32767));
}

void TestPreviewPane::aPictureOrBoxOfNoHeightChangesNothing() {
    qint16 width = 7;
    qint16 height = 8;
    FitPicture(100, 0, 50, 50, width, height);
    FitPicture(100, 100, 50, 0, width, height);
    QCOMPARE(width, qint16(7));
    QCOMPARE(height, qint16(8));
}

void TestPreviewPane::tooSmallACellKeepsItsGap() {
    QCOMPARE(PreviewCell(0, 25, QSize(5, 2)).size(), QSize(2, 1));
    QCOMPARE(PreviewCell(0, 1, QSize(100, 100)).size(), QSize(98, 99));
}

DOCBENCH_TEST_MAIN(QApplication, TestPreviewPane)
#include "tst_previewpane.moc"
