#include <QPushButton>
#include <QSignalSpy>
#include <QWheelEvent>

#include "services/language.h"
#include "services/texts.h"
#include "services/webdocument.h"
#include "shell/locking.h"
#include "tests/shell/shellbench.h"
#include "tests/support/fakewebclient.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

using Bench = ShellBench;

class TestWaysIn : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void openingLoadsTheTreeAndShowsThePaneAgain();
    void aMissingFileEmptiesEverythingAndTheStatusLineSaysSo();
    void aPaneThatWorksOnOneDocumentIsLeftWhenAnotherIsOpened_data();
    void aPaneThatWorksOnOneDocumentIsLeftWhenAnotherIsOpened();
    void browsingLeavesAPaneThatWorksOnOneDocument();
    void aPaneCommandWhileRenameShowsStaysInTheChosenPane();
    void enterPressedTwiceListsThePathTwice();
    void aFileOfAnotherTypeIsIgnored();
    void choosingAnEntryOpensItWithoutListingItAgain();
    void aChosenEntryIsTrustedWhateverItsType();
    void browsingOpensAndLists();
    void cancelledBrowsingEndsMarking();
    void droppingSeveralFilesOpensTheFirst_data();
    void droppingSeveralFilesOpensTheFirst();
    void droppingATextFileDoesNothing();
    void theTreeTakesADroppedPathAsTextToo();
    void filesWinOverTextInADropOnTheTree();
    void thePathTellsWhetherTheDocumentIsInAWebFolder();
    void theWheelOverThePathBoxOpensNothing();
    void gettingThePartFileNameWritesItIntoThePathBox();
    void anAddressWithAPasswordIsRefusedAndGoesNowhere_data();
    void anAddressWithAPasswordIsRefusedAndGoesNowhere();
};

void TestWaysIn::openingLoadsTheTreeAndShowsThePaneAgain() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    bench.Open();
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QCOMPARE(bench.shell.CurrentTitle(), QStringLiteral("top"));
    QCOMPARE(bench.PathBox()->currentText(), bench.top);
    QCOMPARE(bench.Tree()->SelectedNode(), 1);
    QVERIFY(bench.Tree()->isExpanded(bench.shell.Tree().Model().IndexOf(1)));
    QCOMPARE(references->documents.last().path, bench.top);
}

void TestWaysIn::aMissingFileEmptiesEverythingAndTheStatusLineSaysSo() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    bench.Open();
    const QString missing = bench.library.Path(QStringLiteral("none.tfmasm"));
    bench.Type(missing);
    QCOMPARE(bench.shell.m_partfilename, QString());
    QCOMPARE(bench.shell.CurrentTitle(), QString());
    QCOMPARE(bench.PathBox()->currentText(), QString());
    QCOMPARE(bench.shell.Tree().Nodes().Count(), 0);
    QCOMPARE(bench.status.caption, Format(Text::DocumentNotFound, missing));
    QCOMPARE(references->documents.size(), 1);
}

void TestWaysIn::aPaneThatWorksOnOneDocumentIsLeftWhenAnotherIsOpened_data() {
    QTest::addColumn<QString>("code");
    for (const char* code : {"RENAME", "REPLACE", "COPY"})
        QTest::newRow(code) << QString::fromLatin1(code);
}

void TestWaysIn::aPaneThatWorksOnOneDocumentIsLeftWhenAnotherIsOpened() {
    QFETCH(QString, code);
    Bench bench;
    bench.Add(PaneId::Rename);
    bench.Open();
    bench.shell.SetCurrentFunction(code);
    bench.Type(bench.left);
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("PREVIEW"));
    bench.shell.SetCurrentFunction(code);
    DropFiles(&bench.shell, {bench.top});
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("PREVIEW"));
}

void TestWaysIn::browsingLeavesAPaneThatWorksOnOneDocument() {
    Bench bench;
    FakePane* preview = bench.Add(PaneId::Preview);
    bench.Add(PaneId::Rename);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("RENAME"));
    bench.dialogs.ExpectOpenFile(bench.left);
    bench.shell.SetCurrentFunction(QStringLiteral("OPEN"));
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("PREVIEW"));
    QVERIFY(!preview->isHidden());
    QCOMPARE(preview->documents.last().path, bench.left);
}

void TestWaysIn::aPaneCommandWhileRenameShowsStaysInTheChosenPane() {
    Bench bench;
    bench.Add(PaneId::References);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("RENAME"));
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("REF"));
    bench.Type(bench.left);
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("REF"));
}

void TestWaysIn::enterPressedTwiceListsThePathTwice() {
    Bench bench;
    QSignalSpy opened(&bench.shell, &UserControl1::DocumentOpened);
    bench.Type(bench.top);
    QTest::keyClick(bench.PathBox(), Qt::Key_Enter);
    QCOMPARE(bench.PathBox()->count(), 2);
    QCOMPARE(bench.PathBox()->itemText(0), bench.top);
    QCOMPARE(bench.PathBox()->itemText(1), bench.top);
    QCOMPARE(opened.count(), 2);
}

void TestWaysIn::aFileOfAnotherTypeIsIgnored() {
    Bench bench;
    bench.Open();
    bench.Type(bench.library.Path(QStringLiteral("notes.txt")));
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    bench.Type(QString());
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QCOMPARE(bench.PathBox()->count(), 1);
    bench.dialogs.ExpectOpenFile(bench.library.Path(QStringLiteral("notes.txt")));
    bench.shell.SetCurrentFunction(QStringLiteral("OPEN"));
    QCOMPARE(bench.shell.m_partfilename, bench.top);
}

void TestWaysIn::choosingAnEntryOpensItWithoutListingItAgain() {
    Bench bench;
    bench.Type(bench.top);
    bench.Type(bench.left);
    bench.shell.SetCurrentFunction(QStringLiteral("RENAME"));
    bench.PathBox()->setCurrentIndex(1);
    Q_EMIT bench.PathBox()->textActivated(bench.top);
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QCOMPARE(bench.PathBox()->count(), 2);
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("PREVIEW"));
}

void TestWaysIn::aChosenEntryIsTrustedWhateverItsType() {
    Bench bench;
    bench.Open();
    const QString notes = bench.library.Path(QStringLiteral("notes.txt"));
    bench.PathBox()->insertItem(0, notes);
    bench.PathBox()->setFocus();
    bench.PathBox()->setCurrentIndex(1);
    QTest::keyClick(bench.PathBox(), Qt::Key_Up);
    QCOMPARE(bench.shell.m_partfilename, QString());
    QCOMPARE(bench.status.caption, Format(Text::DocumentNotFound, notes));
}

void TestWaysIn::browsingOpensAndLists() {
    Bench bench;
    bench.shell.ShiftPressed = true;
    bench.dialogs.ExpectOpenFile(bench.top);
    QTest::mouseClick(bench.Child<QPushButton>("Command1"), Qt::LeftButton);
    QCOMPARE(bench.dialogs.LastTitle(), gStrings[309]);
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QCOMPARE(bench.PathBox()->itemText(0), bench.top);
    QVERIFY(!bench.shell.ShiftPressed);
    QVERIFY(!gWebDocument);
}

void TestWaysIn::cancelledBrowsingEndsMarking() {
    Bench bench;
    bench.Open();
    bench.shell.ShiftPressed = true;
    bench.dialogs.ExpectOpenFile(QString());
    bench.shell.SetCurrentFunction(QStringLiteral("OPEN"));
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QVERIFY(!bench.shell.ShiftPressed);
    QCOMPARE(bench.shell.CurrentFunction(), QString());
}

void TestWaysIn::droppingSeveralFilesOpensTheFirst_data() {
    QTest::addColumn<QString>("target");
    for (const char* target : {"", "filepathCombo", "its text", "tvw"})
        QTest::newRow(target) << QString::fromLatin1(target);
}

void TestWaysIn::droppingSeveralFilesOpensTheFirst() {
    QFETCH(QString, target);
    Bench bench;
    QWidget* widget = &bench.shell;
    if (target == QLatin1String("filepathCombo"))
        widget = bench.PathBox();
    if (target == QLatin1String("its text"))
        widget = bench.PathBox()->lineEdit();
    if (target == QLatin1String("tvw"))
        widget = bench.Tree()->viewport();
    DropFiles(widget, {bench.left, bench.top, bench.pin});
    QCOMPARE(bench.shell.m_partfilename, bench.left);
    QCOMPARE(bench.PathBox()->count(), 1);
    QCOMPARE(bench.PathBox()->itemText(0), bench.left);
}

void TestWaysIn::droppingATextFileDoesNothing() {
    Bench bench;
    bench.Open();
    DropFiles(&bench.shell, {bench.library.Path(QStringLiteral("notes.txt")), bench.left});
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QCOMPARE(bench.PathBox()->count(), 1);
}

void TestWaysIn::theTreeTakesADroppedPathAsTextToo() {
    Bench bench;
    QMimeData data;
    data.setText(bench.left);
    Drop(&bench.shell, data);
    QCOMPARE(bench.shell.m_partfilename, QString());
    Drop(bench.Tree()->viewport(), data);
    QCOMPARE(bench.shell.m_partfilename, bench.left);
}

void TestWaysIn::filesWinOverTextInADropOnTheTree() {
    Bench bench;
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(bench.left)});
    data.setText(bench.top);
    Drop(bench.Tree()->viewport(), data);
    QCOMPARE(bench.shell.m_partfilename, bench.left);
    QMimeData prose;
    prose.setText(QStringLiteral("no path"));
    Drop(bench.Tree()->viewport(), prose);
    QCOMPARE(bench.shell.m_partfilename, bench.left);
}

void TestWaysIn::thePathTellsWhetherTheDocumentIsInAWebFolder() {
    Bench bench;
    const QString address = QStringLiteral("http://server/a.tfmprt");
    bench.Type(address);
    QVERIFY(gWebDocument);
    bench.Type(bench.top);
    QVERIFY(!gWebDocument);
    bench.PathBox()->setEditText(address);
    Q_EMIT bench.PathBox()->textActivated(address);
    QVERIFY(gWebDocument);
    DropFiles(&bench.shell, {bench.top});
    QVERIFY(!gWebDocument);
    gWebDocument = true;
    bench.dialogs.ExpectOpenFile(bench.top);
    bench.shell.SetCurrentFunction(QStringLiteral("OPEN"));
    QVERIFY(!gWebDocument);
}

void TestWaysIn::theWheelOverThePathBoxOpensNothing() {
    Bench bench;
    bench.Type(bench.top);
    bench.Type(bench.left);
    QSignalSpy opened(&bench.shell, &UserControl1::DocumentOpened);
    QWheelEvent wheel(QPointF(5, 5), bench.PathBox()->mapToGlobal(QPointF(5, 5)), QPoint(),
                      QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(bench.PathBox(), &wheel);
    QCOMPARE(opened.count(), 0);
}

void TestWaysIn::gettingThePartFileNameWritesItIntoThePathBox() {
    Bench bench;
    bench.shell.Putpartfilename(QStringLiteral("/a.tfmprt"));
    QCOMPARE(bench.PathBox()->currentText(), QString());
    QCOMPARE(bench.shell.partfilename(), QStringLiteral("/a.tfmprt"));
    QCOMPARE(bench.PathBox()->currentText(), QStringLiteral("/a.tfmprt"));
}

void TestWaysIn::anAddressWithAPasswordIsRefusedAndGoesNowhere_data() {
    QTest::addColumn<QString>("way");
    for (const char* way : {"typed", "picked from the list", "handed in by the host"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void TestWaysIn::anAddressWithAPasswordIsRefusedAndGoesNowhere() {
    QFETCH(QString, way);
    Bench bench;
    const FakeWeb web;
    bench.Open();
    const QString address = QStringLiteral("http://ann:secret@s/w/top.tfmasm");
    bench.dialogs.Expect(QStringLiteral("Type the address without the password*"));
    if (way == QLatin1String("typed")) {
        bench.Type(address);
    } else if (way == QLatin1String("handed in by the host")) {
        bench.shell.OpenPath(address);
    } else {
        bench.PathBox()->addItem(address);
        bench.PathBox()->showPopup();
        QTest::keyClick(bench.PathBox()->view(), Qt::Key_End);
        QTest::keyClick(bench.PathBox()->view(), Qt::Key_Return);
    }
    QVERIFY(bench.dialogs.AllCame());
    QVERIFY(web.server.calls.isEmpty());
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QCOMPARE(bench.shell.Tree().Nodes().At(1).tag, bench.top);
    QVERIFY(!gWebDocument);
    QCOMPARE(bench.PathBox()->currentText(), QStringLiteral("http://s/w/top.tfmasm"));
    QCOMPARE(bench.PathBox()->count(), way == QLatin1String("picked from the list") ? 2 : 1);
}

DOCBENCH_TEST_MAIN(QApplication, TestWaysIn)
#include "tst_waysin.moc"
