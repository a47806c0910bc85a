#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "frame/olbar.h"
#include "services/language.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

QIcon Square(const QColor& color) {
    QPixmap picture(32, 32);
    picture.fill(color);
    return QIcon(picture);
}

// A bar of `items` items on screen.
struct Bench {
    explicit Bench(int items) {
        bar.resize(104, 800);
        for (int i = 0; i < items; ++i)
            bar.addItem(Square(Qt::red), QStringLiteral("item %1").arg(i));
        bar.Redraw();
        bar.show();
    }
    QLabel* Picture(int i) { return bar.findChild<QLabel*>(QStringLiteral("Image1_%1").arg(i)); }
    QLabel* Caption(int i) { return bar.findChild<QLabel*>(QStringLiteral("Label1_%1").arg(i)); }
    QToolButton* Check() { return bar.findChild<QToolButton*>(QStringLiteral("Check2")); }

    TestLibrary library;
    TestDialogs dialogs;
    olbar bar;
};

}  // namespace

class TestOlbar : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNinthItemChangesNothing();
    void redrawingWithoutItemsHidesAllEight();
    void resetClearsTheItemsButStillCountsThem();
    void itemsStandBelowEachOtherInTheMiddle();
    void theButtonStandsOnTheItemUnderTheMouse();
    void leavingForTheBarHidesTheButton();
    void aClickTellsTheItem();
    void theKeyboardPicksAnItem();
    void theTabKeyShowsWhereTheKeyboardIs();
    void aPickByKeyTellsWhereTheItemStands();
    void aTooShortBarClipsItsItems();
};

void TestOlbar::aNinthItemChangesNothing() {
    Bench bench(8);
    const int height = bench.bar.ContentHeight();
    bench.bar.addItem(Square(Qt::blue), QStringLiteral("ninth"));
    bench.bar.Redraw();
    QCOMPARE(bench.bar.ContentHeight(), height);
    QCOMPARE(bench.Caption(7)->text(), QStringLiteral("item 7"));
    for (const QLabel* label : bench.bar.findChildren<QLabel*>())
        QVERIFY(label->text() != QLatin1String("ninth"));
}

void TestOlbar::redrawingWithoutItemsHidesAllEight() {
    Bench bench(0);
    for (int i = 0; i < 8; ++i)
        QVERIFY(bench.Picture(i)->isHidden() && bench.Caption(i)->isHidden());
}

void TestOlbar::resetClearsTheItemsButStillCountsThem() {
    Bench bench(3);
    const int height = bench.bar.ContentHeight();
    bench.bar.reset();
    QCOMPARE(bench.Caption(0)->text(), QString());
    QVERIFY(bench.Picture(0)->pixmap(Qt::ReturnByValue).isNull());
    QCOMPARE(bench.bar.ContentHeight(), height);
    bench.bar.Redraw();
    QVERIFY(!bench.Picture(2)->isHidden() && bench.Picture(3)->isHidden());
    bench.bar.addItem(Square(Qt::blue), QStringLiteral("fourth"));
    QCOMPARE(bench.Caption(3)->text(), QStringLiteral("fourth"));
}

void TestOlbar::itemsStandBelowEachOtherInTheMiddle() {
    Bench bench(3);
    const int captionHeight = bench.Caption(1)->height();
    const int itemHeight = captionHeight + 32 + 240 / 15;
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(bench.Picture(i)->x(), 104 / 2 - 16);
        QCOMPARE(bench.Picture(i)->y(), i * (itemHeight + 4) + 24);
        QCOMPARE(bench.Caption(i)->y(), bench.Picture(i)->y() + 32 + 8);
        QCOMPARE(bench.Caption(i)->x(), 4);
        QCOMPARE(bench.Caption(i)->width(), 104 - 8);
    }
}

void TestOlbar::theButtonStandsOnTheItemUnderTheMouse() {
    Bench bench(3);
    QVERIFY(bench.Check()->isHidden());
    QTest::mouseMove(bench.Picture(1));
    QVERIFY(!bench.Check()->isHidden());
    QVERIFY(!bench.Check()->isChecked());
    const QRect picture = bench.Picture(1)->geometry();
    QCOMPARE(bench.Check()->x(), picture.x() - 4);
    QCOMPARE(bench.Check()->y(), picture.y() - 3);
    QCOMPARE(bench.Check()->width(), picture.width() + 8);
    QCOMPARE(bench.Check()->height(), picture.height() + 8);
    QVERIFY(!bench.Check()->icon().isNull());
}

void TestOlbar::leavingForTheBarHidesTheButton() {
    Bench bench(3);
    QTest::mouseMove(bench.Picture(1));
    QVERIFY(!bench.Check()->isHidden());
    QTest::mouseMove(&bench.bar, QPoint(2, 790));
    QVERIFY(bench.Check()->isHidden());
}

void TestOlbar::aClickTellsTheItem() {
    Bench bench(3);
    QSignalSpy clicks(&bench.bar, &olbar::olBarClick);
    QTest::mouseMove(bench.Picture(2));
    QTest::mouseClick(bench.Check(), Qt::LeftButton);
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks[0][0].toInt(), 2);
    QVERIFY(!bench.Check()->isChecked());
}

void TestOlbar::theKeyboardPicksAnItem() {
    Bench bench(3);
    QSignalSpy clicks(&bench.bar, &olbar::olBarClick);
    QTest::keyClick(&bench.bar, Qt::Key_Return);  // nothing is picked yet
    QCOMPARE(clicks.count(), 0);
    QTest::keyClick(&bench.bar, Qt::Key_Down);
    QTest::keyClick(&bench.bar, Qt::Key_Down);
    QTest::keyClick(&bench.bar, Qt::Key_Space);
    QCOMPARE(clicks.count(), 1);
    QCOMPARE(clicks[0][0].toInt(), 1);
}

void TestOlbar::theTabKeyShowsWhereTheKeyboardIs() {
    Bench bench(3);
    QFocusEvent tab(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&bench.bar, &tab);
    QVERIFY(!bench.Check()->isHidden());
    QCOMPARE(bench.Check()->accessibleName(), QStringLiteral("item 0"));
    QCOMPARE(bench.Picture(2)->accessibleName(), QStringLiteral("item 2"));
}

void TestOlbar::aPickByKeyTellsWhereTheItemStands() {
    Bench bench(3);
    QSignalSpy picks(&bench.bar, &olbar::ItemPicked);
    QTest::keyClick(&bench.bar, Qt::Key_Down);
    QTest::keyClick(&bench.bar, Qt::Key_Down);
    QCOMPARE(picks.count(), 2);
    QCOMPARE(picks[1][0].toRect(), bench.Picture(1)->geometry() | bench.Caption(1)->geometry());
}

void TestOlbar::aTooShortBarClipsItsItems() {
    Bench bench(8);
    bench.bar.resize(104, 60);
    QVERIFY(bench.Picture(7)->y() > bench.bar.height());
    QVERIFY(!bench.Picture(7)->isHidden());
}

DOCBENCH_TEST_MAIN(QApplication, TestOlbar)
#include "tst_olbar.moc"
