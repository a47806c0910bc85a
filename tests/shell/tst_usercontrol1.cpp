#include <QAction>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>
#include <QWheelEvent>

#include "services/language.h"
#include "services/settingsstore.h"
#include "services/texts.h"
#include "services/username.h"
#include "services/webdocument.h"
#include "shell/locking.h"
#include "shell/panesplitter.h"
#include "shell/referencetree.h"
#include "shell/referencetreeview.h"
#include "shell/usercontrol1.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/fakepane.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

// A shell on screen with a document of its own: top(1) -> left(2) -> pin(3), top -> lost(4,
// missing).
struct Bench {
    Bench() {
        shell.StatusBar(&status);
        shell.resize(800, 500);
        shell.show();
        pin = library.Make(QStringLiteral("pin.tfmprt"));
        left = library.Make(QStringLiteral("left.tfmasm"), {{pin}});
        lost = library.Path(QStringLiteral("lost.tfmprt"));
        top = library.Make(QStringLiteral("top.tfmasm"), {{left}, {lost}});
    }

    FakePane* Add(PaneId id, const QString& name = QStringLiteral("pane")) {
        auto* pane = new FakePane;
        pane->setObjectName(name);
        shell.AddPane(id, pane);
        return pane;
    }
    template <typename T>
    T* Child(const char* name) {
        T* child = shell.findChild<T*>(QLatin1String(name));
        if (!child)
            qFatal("no %s", name);
        return child;
    }
    ReferenceTreeView* Tree() { return Child<ReferenceTreeView>("tvw"); }
    QComboBox* PathBox() { return Child<QComboBox>("filepathCombo"); }
    void Open() { shell.OpenPath(top); }
    void Click(int node, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        Tree()->expandAll();
        const QRect where = Tree()->visualRect(shell.Tree().Model().IndexOf(node));
        QTest::mouseClick(Tree()->viewport(), button, modifiers, where.center());
    }
    void Type(const QString& path) {
        PathBox()->lineEdit()->setText(path);
        QTest::keyClick(PathBox(), Qt::Key_Return);
    }
    QString Heading() { return Child<QLabel>("LabelInfo")->text(); }
    bool ShowsLabel() { return !Child<QLabel>("Label1")->isHidden(); }

    TestLibrary library;
    TestDialogs dialogs;
    FakeStatusLine status;
    UserControl1 shell;
    QString top, left, pin, lost;
};

void Drop(QWidget* target, QMimeData& data) {
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &enter);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &drop);
    QCoreApplication::processEvents();  // documents are opened behind the drop
}

void DropFiles(QWidget* target, const QStringList& paths) {
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls.append(QUrl::fromLocalFile(path));
    data.setUrls(urls);
    Drop(target, data);
}

}  // namespace

class TestUserControl1 : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void withoutADocumentAPaneComesUpWithItsOldContent();
    void aPaneIsHandedTheDocumentWithItsTitle();
    void theDescriptionIsSetBeforeThePaneIsVisible();
    void everyPaneCommandHasItsHeading_data();
    void everyPaneCommandHasItsHeading();
    void exactlyOnePaneIsVisible();
    void anUnknownCodeShowsTheLabelAndIsKept();
    void showResultDoesNotChangeTheCurrentFunction();
    void theEditorsFollowTheLockButTheReferenceListDoesNot();
    void theSearchPaneGetsTheCurrentDocumentWhateverThePath();
    void renameReplaceAndCopyGetTheChainAndAnEmptyDocumentToo();
    void openingLoadsTheTreeAndShowsThePaneAgain();
    void aMissingFileEmptiesEverythingAndTheStatusLineSaysSo();
    void aPaneThatWorksOnOneDocumentIsLeftWhenAnotherIsOpened_data();
    void aPaneThatWorksOnOneDocumentIsLeftWhenAnotherIsOpened();
    void aPaneCommandWhileRenameShowsStaysInTheChosenPane();
    void enterPressedTwiceListsThePathTwice();
    void aFileOfAnotherTypeIsIgnored();
    void choosingAnEntryOpensItWithoutListingItAgain();
    void browsingOpensAndLists();
    void cancelledBrowsingEndsMarking();
    void droppingSeveralFilesOpensTheFirst_data();
    void droppingSeveralFilesOpensTheFirst();
    void droppingATextFileDoesNothing();
    void theTreeTakesADroppedPathAsTextToo();
    void leftClickShowsTheNodesDocument();
    void rightClickChangesTheDocumentButNotThePane();
    void clickingAMissingDocumentEmptiesThePane();
    void clickingAMissingDocumentInReplaceMakesItCurrent();
    void theKeyboardPicksNodesToo();
    void aNodePickedByKeyTellsItsLock();
    void theSelectionCanNotBeTakenAway();
    void aCircularNodeIsMadeVisible();
    void openingFromAWebFolderIsNotTakenForACommand();
    void theCaptionsAreSetAtTheStart();
    void theMenuRunsItsCommands();
    void aChosenEntryIsTrustedWhateverItsType();
    void theDescriptionFollowsTheStoredOption();
    void panesThatAreWorkedInGetTheFocus();
    void thePathTellsWhetherTheDocumentIsInAWebFolder();
    void browsingLeavesAPaneThatWorksOnOneDocument();
    void filesWinOverTextInADropOnTheTree();
    void theWheelOverThePathBoxOpensNothing();
    void aLateUnlockOfMarkedNodes();
    void withoutASelectionLockingDoesNothing();
    void shiftClickMarksAndAPlainClickClears();
    void aClickReadsTheLockState();
    void theLockStateOfTheSelectedDocument();
    void lockingDisablesTheEditors();
    void unlockingLeavesTheHyperlinksDisabled();
    void lockingWithMarksLocksTheSelectedNodeAndTheMarkedOnes();
    void lockingChildrenLeavesThePanesAlone();
    void theMenuFollowsTheSelectedNode();
    void theMenuOfADrawingHasNoReplace();
    void replaceFromTheMenuTakesTheMissingDocument();
    void renamingTheSelectedRootReloadsUnderTheNewName();
    void renamingAChildReloadsUnderTheOldRoot();
    void withoutASelectionNothingIsReloaded();
    void panesGetTheStatusLineOnlyWhileVisible();
    void thePanesThatMayRunAreReleasedInOrder();
    void theSavedPropertiesComeBack();
    void gettingThePartFileNameWritesItIntoThePathBox();
    void theSplitterKeepsItsMarginAndTurnsBlackWhileDragged();
};

void TestUserControl1::withoutADocumentAPaneComesUpWithItsOldContent() {
    Bench bench;
    FakePane* editor = bench.Add(PaneId::Configurations);
    bench.shell.SetCurrentFunction(QStringLiteral("EDIT"));
    QVERIFY(!editor->isHidden());
    QVERIFY(editor->documents.isEmpty());
}

void TestUserControl1::aPaneIsHandedTheDocumentWithItsTitle() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QCOMPARE(references->documents.size(), 1);
    QCOMPARE(references->documents[0].path, bench.top);
    QCOMPARE(references->documents[0].partName, QStringLiteral("top"));
}

void TestUserControl1::theDescriptionIsSetBeforeThePaneIsVisible() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    FakePane* setup = bench.Add(PaneId::Setup);
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    bench.shell.SetCurrentFunction(QStringLiteral("SETUP"));
    QCOMPARE(references->calls.first(), QStringLiteral("ShowDesc 1 visible 0"));
    QVERIFY(setup->calls.isEmpty());  // it owns that value
}

void TestUserControl1::everyPaneCommandHasItsHeading_data() {
    QTest::addColumn<QString>("code");
    QTest::addColumn<int>("text");
    const std::pair<const char*, int> headings[] = {
        {"PREVIEW", 126}, {"SUMMARY", 127}, {"REF", 128},  {"WHERE", 129},
        {"SEARCH", 130},  {"EDIT", 131},    {"LINK", 132}, {"SETUP", 133},
        {"RENAME", 315},  {"REPLACE", 317}, {"COPY", 316}};
    for (const auto& [code, text] : headings)
        QTest::newRow(code) << QString::fromLatin1(code) << text;
}

void TestUserControl1::everyPaneCommandHasItsHeading() {
    QFETCH(QString, code);
    QFETCH(int, text);
    Bench bench;
    bench.shell.SetCurrentFunction(code);
    QCOMPARE(bench.Heading(), gStrings[text] + u' ');
    QVERIFY(!gStrings[text].isEmpty());
    QCOMPARE(bench.shell.CurrentFunction(), code);
}

void TestUserControl1::exactlyOnePaneIsVisible() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    FakePane* search = bench.Add(PaneId::Search);
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QVERIFY(!references->isHidden() && search->isHidden() && !bench.ShowsLabel());
    bench.shell.SetCurrentFunction(QStringLiteral("SEARCH"));
    QVERIFY(references->isHidden() && !search->isHidden() && !bench.ShowsLabel());
    bench.shell.SetCurrentFunction(QStringLiteral("WHERE"));  // has no pane
    QVERIFY(references->isHidden() && search->isHidden() && bench.ShowsLabel());
}

void TestUserControl1::anUnknownCodeShowsTheLabelAndIsKept() {
    Bench bench;
    bench.Add(PaneId::References);
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    bench.shell.SetCurrentFunction(QStringLiteral("NONSENSE"));
    QVERIFY(bench.ShowsLabel());
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("NONSENSE"));
    bench.Open();
    QVERIFY(bench.ShowsLabel());
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("NONSENSE"));
}

void TestUserControl1::showResultDoesNotChangeTheCurrentFunction() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    bench.shell.SetCurrentFunction(QStringLiteral("SEARCH"));
    bench.shell.showResult(QStringLiteral("REF"), bench.pin, QStringLiteral("pin"));
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("SEARCH"));
    QCOMPARE(references->documents.last().path, bench.pin);
}

void TestUserControl1::theEditorsFollowTheLockButTheReferenceListDoesNot() {
    Bench bench;
    FakePane* editor = bench.Add(PaneId::Configurations);
    FakePane* links = bench.Add(PaneId::Hyperlinks);
    FakePane* references = bench.Add(PaneId::References);
    bench.library.Lock(bench.pin, QStringLiteral("somebody"));
    bench.Open();
    bench.Click(3);  // the locked one
    for (const char* code : {"EDIT", "LINK", "REF"})
        bench.shell.SetCurrentFunction(QLatin1String(code));
    QCOMPARE(editor->calls.last(), QStringLiteral("Enable 0"));
    QCOMPARE(links->calls.last(), QStringLiteral("Enable 0"));
    QVERIFY(!references->calls.last().startsWith(QLatin1String("Enable")));
    bench.Click(2);
    bench.shell.SetCurrentFunction(QStringLiteral("EDIT"));
    QCOMPARE(editor->calls.last(), QStringLiteral("Enable 1"));
}

void TestUserControl1::theSearchPaneGetsTheCurrentDocumentWhateverThePath() {
    Bench bench;
    FakePane* search = bench.Add(PaneId::Search);
    bench.Open();
    bench.shell.showResult(QStringLiteral("SEARCH"), bench.pin, QStringLiteral("pin"));
    QCOMPARE(search->documents.last().path, bench.top);
    bench.shell.m_partfilename.clear();
    bench.shell.showResult(QStringLiteral("SEARCH"), QString(), QString());
    QCOMPARE(search->documents.last().path, QString());
}

void TestUserControl1::renameReplaceAndCopyGetTheChainAndAnEmptyDocumentToo() {
    Bench bench;
    FakePane* rename = bench.Add(PaneId::Rename);
    FakePane* copy = bench.Add(PaneId::Copy);
    bench.shell.SetCurrentFunction(QStringLiteral("COPY"));
    QCOMPARE(copy->documents.last().path, QString());
    bench.Open();
    bench.Click(3);
    const QString chain = QStringList{bench.pin, bench.left, bench.top}.join(u';');
    for (const char* code : {"RENAME", "REPLACE", "COPY"})
        bench.shell.SetCurrentFunction(QLatin1String(code));
    QCOMPARE(rename->documents.size(), 2);
    QCOMPARE(rename->documents[0].treeChain, chain);
    QVERIFY(!rename->documents[0].actionReplace);
    QVERIFY(rename->documents[1].actionReplace);
    QCOMPARE(copy->documents.last().treeChain, chain);
    QCOMPARE(copy->documents.last().path, bench.pin);
}

void TestUserControl1::openingLoadsTheTreeAndShowsThePaneAgain() {
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

void TestUserControl1::aMissingFileEmptiesEverythingAndTheStatusLineSaysSo() {
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

void TestUserControl1::aPaneThatWorksOnOneDocumentIsLeftWhenAnotherIsOpened_data() {
    QTest::addColumn<QString>("code");
    for (const char* code : {"RENAME", "REPLACE", "COPY"})
        QTest::newRow(code) << QString::fromLatin1(code);
}

void TestUserControl1::aPaneThatWorksOnOneDocumentIsLeftWhenAnotherIsOpened() {
    QFETCH(QString, code);
    Bench bench;
    bench.Open();
    bench.shell.SetCurrentFunction(code);
    bench.Type(bench.left);
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("PREVIEW"));
    bench.shell.SetCurrentFunction(code);
    DropFiles(&bench.shell, {bench.top});
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("PREVIEW"));
}

void TestUserControl1::aPaneCommandWhileRenameShowsStaysInTheChosenPane() {
    Bench bench;
    bench.Add(PaneId::References);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("RENAME"));
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("REF"));
    bench.Type(bench.left);
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("REF"));
}

void TestUserControl1::enterPressedTwiceListsThePathTwice() {
    Bench bench;
    QSignalSpy opened(&bench.shell, &UserControl1::DocumentOpened);
    bench.Type(bench.top);
    QTest::keyClick(bench.PathBox(), Qt::Key_Enter);
    QCOMPARE(bench.PathBox()->count(), 2);
    QCOMPARE(bench.PathBox()->itemText(0), bench.top);
    QCOMPARE(bench.PathBox()->itemText(1), bench.top);
    QCOMPARE(opened.count(), 2);
}

void TestUserControl1::aFileOfAnotherTypeIsIgnored() {
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

void TestUserControl1::choosingAnEntryOpensItWithoutListingItAgain() {
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

void TestUserControl1::browsingOpensAndLists() {
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

void TestUserControl1::cancelledBrowsingEndsMarking() {
    Bench bench;
    bench.Open();
    bench.shell.ShiftPressed = true;
    bench.dialogs.ExpectOpenFile(QString());
    bench.shell.SetCurrentFunction(QStringLiteral("OPEN"));
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QVERIFY(!bench.shell.ShiftPressed);
    QCOMPARE(bench.shell.CurrentFunction(), QString());
}

void TestUserControl1::droppingSeveralFilesOpensTheFirst_data() {
    QTest::addColumn<QString>("target");
    for (const char* target : {"", "filepathCombo", "its text", "tvw"})
        QTest::newRow(target) << QString::fromLatin1(target);
}

void TestUserControl1::droppingSeveralFilesOpensTheFirst() {
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

void TestUserControl1::droppingATextFileDoesNothing() {
    Bench bench;
    bench.Open();
    DropFiles(&bench.shell, {bench.library.Path(QStringLiteral("notes.txt")), bench.left});
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    QCOMPARE(bench.PathBox()->count(), 1);
}

void TestUserControl1::theTreeTakesADroppedPathAsTextToo() {
    Bench bench;
    QMimeData data;
    data.setText(bench.left);
    Drop(&bench.shell, data);
    QCOMPARE(bench.shell.m_partfilename, QString());
    Drop(bench.Tree()->viewport(), data);
    QCOMPARE(bench.shell.m_partfilename, bench.left);
}

void TestUserControl1::leftClickShowsTheNodesDocument() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    bench.Click(3);
    QCOMPARE(bench.shell.m_partfilename, bench.pin);
    QCOMPARE(bench.shell.CurrentTitle(), QStringLiteral("pin"));
    QCOMPARE(references->documents.last().path, bench.pin);
    const qsizetype shown = references->documents.size();
    bench.Click(3);  // it is the current one already
    QCOMPARE(references->documents.size(), shown);
}

void TestUserControl1::rightClickChangesTheDocumentButNotThePane() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    bench.Click(3, Qt::RightButton);
    QCOMPARE(bench.shell.partfilename(), bench.pin);
    QCOMPARE(references->documents.last().path, bench.top);
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QCOMPARE(references->documents.last().path, bench.pin);
}

void TestUserControl1::clickingAMissingDocumentEmptiesThePane() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    bench.Click(4);
    QCOMPARE(bench.shell.m_partfilename, QString());
    QCOMPARE(bench.status.caption, Format(Text::NodeMissing, bench.lost));
    QCOMPARE(references->documents.size(), 1);
    QVERIFY(!references->isHidden());
}

void TestUserControl1::clickingAMissingDocumentInReplaceMakesItCurrent() {
    Bench bench;
    FakePane* rename = bench.Add(PaneId::Rename);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("REPLACE"));
    bench.Click(4);
    QCOMPARE(bench.shell.m_partfilename, bench.lost);
    QCOMPARE(rename->documents.last().path, bench.lost);
    QVERIFY(rename->documents.last().actionReplace);
}

void TestUserControl1::theKeyboardPicksNodesToo() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QTest::keyClick(bench.Tree(), Qt::Key_Down);
    QCOMPARE(bench.shell.m_partfilename, bench.left);
    QCOMPARE(references->documents.last().path, bench.left);
}

void TestUserControl1::aNodePickedByKeyTellsItsLock() {
    Bench bench;
    FakePane* editor = bench.Add(PaneId::Configurations);
    bench.library.Lock(bench.left, QStringLiteral("somebody"));
    bench.Open();
    bench.Click(1);
    bench.shell.SetCurrentFunction(QStringLiteral("EDIT"));
    QCOMPARE(editor->calls.last(), QStringLiteral("Enable 1"));
    QTest::keyClick(bench.Tree(), Qt::Key_Down);
    QCOMPARE(editor->calls.last(), QStringLiteral("Enable 0"));
}

void TestUserControl1::theSelectionCanNotBeTakenAway() {
    Bench bench;
    bench.Open();
    bench.Click(1, Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(bench.Tree()->SelectedNode(), 1);
    QTest::keyClick(bench.Tree(), Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(bench.Tree()->SelectedNode(), 1);
}

void TestUserControl1::aCircularNodeIsMadeVisible() {
    Bench bench;
    const QString a = bench.library.Path(QStringLiteral("a.tfmasm"));
    const QString b = bench.library.Make(QStringLiteral("b.tfmasm"), {{a}});
    bench.library.Make(QStringLiteral("a.tfmasm"), {{b}});
    bench.dialogs.Expect(Format(Text::CircularReference, a), Dialogs::Icon::Stop);
    bench.shell.OpenPath(a);
    QVERIFY(bench.Tree()->isExpanded(bench.shell.Tree().Model().IndexOf(1)));
    QVERIFY(bench.Tree()->isExpanded(bench.shell.Tree().Model().IndexOf(2)));
}

void TestUserControl1::openingFromAWebFolderIsNotTakenForACommand() {
    Bench bench;
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    bench.shell.SetCurrentFunction(QStringLiteral("OPENURL"));
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("REF"));
}

void TestUserControl1::theCaptionsAreSetAtTheStart() {
    Bench bench;
    QCOMPARE(bench.Child<QPushButton>("Command1")->text(), gStrings[10]);
    QCOMPARE(bench.Child<QLabel>("Label1")->text(), gStrings[308]);
    QCOMPARE(bench.Child<QMenu>("mnEdit")->title(), QStringLiteral("mnEdit"));
    QCOMPARE(bench.Child<QAction>("mnopen")->text(), gStrings[25]);
    QCOMPARE(bench.Child<QAction>("mnReplace")->text(), gStrings[331]);
    QCOMPARE(bench.Child<QAction>("mnrename")->text(), gStrings[207]);
    QCOMPARE(bench.Child<QAction>("mncopy")->text(), gStrings[5]);
}

void TestUserControl1::theMenuRunsItsCommands() {
    Bench bench;
    FakeShellExecute programs;
    FakeOutside outside;
    bench.Open();
    bench.Child<QAction>("mnrename")->trigger();
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("RENAME"));
    bench.Child<QAction>("mncopy")->trigger();
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("COPY"));
    bench.Click(4);
    bench.Child<QAction>("mnopen")->trigger();
    QCOMPARE(outside.asked, QStringList());  // a missing document is not opened
    bench.Click(3);
    bench.Child<QAction>("mnopen")->trigger();
    QCOMPARE(outside.asked, QStringList{QStringLiteral("Tessacad.Application")});
}

void TestUserControl1::aChosenEntryIsTrustedWhateverItsType() {
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

void TestUserControl1::theDescriptionFollowsTheStoredOption() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    const auto key =
        SettingsKey::Open(SettingsKey::Hive::CurrentUser, QLatin1String(kExtReferencesKey));
    const QString option = QStringLiteral("Show Description");
    for (const quint32 value : {0u, 1u, 7u}) {
        QVERIFY(key->SetNumber(option, value));
        bench.shell.SetCurrentFunction(QStringLiteral("REF"));
        QCOMPARE(references->calls.last().section(u' ', 1, 1), QString::number(value != 0));
    }
    QVERIFY(key->Delete(option));
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QCOMPARE(references->calls.last().section(u' ', 1, 1), QStringLiteral("1"));
}

void TestUserControl1::panesThatAreWorkedInGetTheFocus() {
    Bench bench;
    const std::pair<PaneId, const char*> focused[] = {
        {PaneId::Properties, "SUMMARY"},  {PaneId::References, "REF"},
        {PaneId::WhereUsed, "WHERE"},     {PaneId::Search, "SEARCH"},
        {PaneId::Configurations, "EDIT"}, {PaneId::Hyperlinks, "LINK"},
        {PaneId::Setup, "SETUP"}};
    for (const auto& [id, code] : focused) {
        FakePane* pane = bench.Add(id);
        pane->setFocusPolicy(Qt::StrongFocus);
        bench.shell.SetCurrentFunction(QLatin1String(code));
        QCOMPARE(bench.shell.focusWidget(), pane);
    }
    const std::pair<PaneId, const char*> others[] = {
        {PaneId::Preview, "PREVIEW"}, {PaneId::Rename, "RENAME"}, {PaneId::Copy, "COPY"}};
    for (const auto& [id, code] : others) {
        FakePane* pane = bench.Add(id);
        pane->setFocusPolicy(Qt::StrongFocus);
        bench.Tree()->setFocus();
        bench.shell.SetCurrentFunction(QLatin1String(code));
        QCOMPARE(bench.shell.focusWidget(), bench.Tree());
    }
}

void TestUserControl1::thePathTellsWhetherTheDocumentIsInAWebFolder() {
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

void TestUserControl1::browsingLeavesAPaneThatWorksOnOneDocument() {
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

void TestUserControl1::filesWinOverTextInADropOnTheTree() {
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

void TestUserControl1::theWheelOverThePathBoxOpensNothing() {
    Bench bench;
    bench.Type(bench.top);
    bench.Type(bench.left);
    QSignalSpy opened(&bench.shell, &UserControl1::DocumentOpened);
    QWheelEvent wheel(QPointF(5, 5), bench.PathBox()->mapToGlobal(QPointF(5, 5)), QPoint(),
                      QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(bench.PathBox(), &wheel);
    QCOMPARE(opened.count(), 0);
}

void TestUserControl1::aLateUnlockOfMarkedNodes() {
    Bench bench;
    bench.Open();
    bench.Click(3, Qt::LeftButton, Qt::ShiftModifier);
    bench.Tree()->SelectNode(1);
    bench.shell.SetCurrentFunction(QStringLiteral("LOCK"));
    QVERIFY(bench.library.IsLocked(bench.top) && bench.library.IsLocked(bench.pin));
    bench.shell.SetCurrentFunction(QStringLiteral("UNLOCK"));
    QVERIFY(!bench.library.IsLocked(bench.top) && !bench.library.IsLocked(bench.pin));
    bench.dialogs.ExpectOpenFile(QString());
    bench.shell.SetCurrentFunction(QStringLiteral("OPEN"));  // ends marking, but not the marks
    QVERIFY(!bench.shell.ShiftPressed);
    QVERIFY(IsMarked(bench.shell.Tree(), 3));
}

void TestUserControl1::withoutASelectionLockingDoesNothing() {
    Bench bench;
    FakePane* editor = bench.Add(PaneId::Configurations);
    for (const char* code : {"LOCK", "UNLOCK", "LOCKCHILDREN", "UNLOCKCHILDREN"})
        bench.shell.SetCurrentFunction(QLatin1String(code));
    QVERIFY(editor->calls.isEmpty());
}

void TestUserControl1::shiftClickMarksAndAPlainClickClears() {
    Bench bench;
    bench.Open();
    bench.Click(2, Qt::LeftButton, Qt::ShiftModifier);
    bench.Click(3, Qt::LeftButton, Qt::ShiftModifier);
    QVERIFY(bench.shell.ShiftPressed);
    QVERIFY(IsMarked(bench.shell.Tree(), 2));
    QVERIFY(IsMarked(bench.shell.Tree(), 3));
    bench.Click(3, Qt::RightButton);
    QVERIFY(IsMarked(bench.shell.Tree(), 2));
    bench.Click(1);
    QVERIFY(!bench.shell.ShiftPressed);
    QVERIFY(!IsMarked(bench.shell.Tree(), 2));
    QVERIFY(!IsMarked(bench.shell.Tree(), 3));
}

void TestUserControl1::aClickReadsTheLockState() {
    Bench bench;
    FakePane* editor = bench.Add(PaneId::Configurations);
    FakePane* links = bench.Add(PaneId::Hyperlinks);
    bench.Open();
    bench.library.Lock(bench.pin, QStringLiteral("somebody"));
    bench.Click(3);
    QCOMPARE(editor->calls.last(), QStringLiteral("Enable 0"));
    QCOMPARE(links->calls.last(), QStringLiteral("Enable 0"));
    bench.Click(2);
    QCOMPARE(editor->calls.last(), QStringLiteral("Enable 1"));
    bench.Click(4);  // has no record: the state stays
    QCOMPARE(editor->calls.last(), QStringLiteral("Enable 1"));
    QVERIFY(!bench.shell.Tree().currentLocked);
}

void TestUserControl1::theLockStateOfTheSelectedDocument() {
    Bench bench;
    QVERIFY(!bench.shell.GetLockState().isValid());
    bench.Open();
    QCOMPARE(bench.shell.GetLockState(), QVariant(false));
    bench.library.Lock(bench.top, QStringLiteral("somebody"));
    QCOMPARE(bench.shell.GetLockState(), QVariant(true));
    QVERIFY(bench.shell.Tree().currentLocked);
    bench.Click(4);
    QVERIFY(!bench.shell.GetLockState().isValid());
    QVERIFY(bench.shell.Tree().currentLocked);
}

void TestUserControl1::lockingDisablesTheEditors() {
    Bench bench;
    FakePane* editor = bench.Add(PaneId::Configurations);
    FakePane* links = bench.Add(PaneId::Hyperlinks);
    FakePane* properties = bench.Add(PaneId::Properties);
    bench.Open();
    bench.Click(3);
    bench.shell.SetCurrentFunction(QStringLiteral("LOCK"));
    QVERIFY(bench.library.IsLocked(bench.pin));
    QCOMPARE(editor->calls.last(), QStringLiteral("Enable 0"));
    QCOMPARE(links->calls.last(), QStringLiteral("Enable 0"));
    QCOMPARE(properties->calls.last(), QStringLiteral("ReloadProperties ") + bench.pin);
    QCOMPARE(bench.shell.CurrentFunction(), QString());
}

void TestUserControl1::unlockingLeavesTheHyperlinksDisabled() {
    Bench bench;
    FakePane* editor = bench.Add(PaneId::Configurations);
    FakePane* links = bench.Add(PaneId::Hyperlinks);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("LOCK"));
    bench.shell.SetCurrentFunction(QStringLiteral("UNLOCK"));
    QVERIFY(!bench.library.IsLocked(bench.top));
    QCOMPARE(editor->calls.last(), QStringLiteral("Enable 1"));
    QCOMPARE(links->calls.last(), QStringLiteral("Enable 0"));
    bench.Click(1);
    QCOMPARE(links->calls.last(), QStringLiteral("Enable 1"));
}

void TestUserControl1::lockingWithMarksLocksTheSelectedNodeAndTheMarkedOnes() {
    Bench bench;
    const QString bolt = bench.library.Make(QStringLiteral("bolt.tfmprt"));
    const QString nut = bench.library.Make(QStringLiteral("nut.tfmprt"));
    const QString free = bench.library.Make(QStringLiteral("free.tfmprt"));
    const QString all =
        bench.library.Make(QStringLiteral("all.tfmasm"), {{bolt}, {nut}, {bench.pin}, {free}});
    bench.shell.OpenPath(all);
    for (const int node : {2, 3, 4})
        bench.Click(node, Qt::LeftButton, Qt::ShiftModifier);
    bench.Tree()->SelectNode(1);
    bench.shell.SetCurrentFunction(QStringLiteral("LOCK"));
    for (const QString& locked : {all, bolt, nut, bench.pin})
        QVERIFY(bench.library.IsLocked(locked));
    QVERIFY(!bench.library.IsLocked(free));
    for (const int node : {2, 3, 4})
        QVERIFY(IsMarked(bench.shell.Tree(), node));
}

void TestUserControl1::lockingChildrenLeavesThePanesAlone() {
    Bench bench;
    FakePane* editor = bench.Add(PaneId::Configurations);
    const QString all = bench.library.Make(QStringLiteral("all.tfmasm"), {{bench.left}});
    bench.shell.OpenPath(all);
    const qsizetype calls = editor->calls.size();
    bench.shell.SetCurrentFunction(QStringLiteral("LOCKCHILDREN"));
    QVERIFY(!bench.library.IsLocked(all));
    QVERIFY(bench.library.IsLocked(bench.left) && bench.library.IsLocked(bench.pin));
    bench.shell.SetCurrentFunction(QStringLiteral("UNLOCKCHILDREN"));
    QVERIFY(!bench.library.IsLocked(bench.left) && !bench.library.IsLocked(bench.pin));
    QCOMPARE(editor->calls.size(), calls);
}

void TestUserControl1::theMenuFollowsTheSelectedNode() {
    Bench bench;
    bench.Open();
    auto* menu = bench.Child<QMenu>("mnEdit");
    const auto state = [&] {
        QString enabled;
        for (const char* name : {"mnopen", "mnReplace", "mnrename", "mncopy"})
            enabled += bench.Child<QAction>(name)->isEnabled() ? u'1' : u'0';
        return enabled;
    };
    bench.Click(3, Qt::RightButton);
    QVERIFY(menu->isVisible());
    QCOMPARE(state(), QStringLiteral("1111"));
    menu->hide();
    bench.Click(4, Qt::RightButton);  // missing: open keeps its state
    QCOMPARE(state(), QStringLiteral("1100"));
    menu->hide();
    bench.Child<QAction>("mnopen")->setEnabled(false);
    bench.Click(4, Qt::RightButton);
    QCOMPARE(state(), QStringLiteral("0100"));
    menu->hide();
}

void TestUserControl1::theMenuOfADrawingHasNoReplace() {
    Bench bench;
    const QString lostSheet = bench.library.Path(QStringLiteral("lost.tfmdrw"));
    const QString sheet =
        bench.library.Make(QStringLiteral("sheet.tfmdrw"), {{bench.pin}, {lostSheet}});
    bench.shell.OpenPath(sheet);
    auto* menu = bench.Child<QMenu>("mnEdit");
    bench.Click(1, Qt::RightButton);
    QVERIFY(!bench.Child<QAction>("mnReplace")->isEnabled());
    QVERIFY(bench.Child<QAction>("mnrename")->isEnabled());
    menu->hide();
    bench.Click(3, Qt::RightButton);  // even a missing one
    QVERIFY(!bench.Child<QAction>("mnReplace")->isEnabled());
    menu->hide();
}

void TestUserControl1::replaceFromTheMenuTakesTheMissingDocument() {
    Bench bench;
    FakePane* rename = bench.Add(PaneId::Rename);
    bench.Open();
    bench.Click(4);
    bench.Child<QAction>("mnReplace")->trigger();
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("REPLACE"));
    QCOMPARE(rename->documents.last().path, bench.lost);
    QCOMPARE(rename->documents.last().treeChain, bench.lost + u';' + bench.top);
    QCOMPARE(bench.shell.m_partfilename, QString());
}

void TestUserControl1::renamingTheSelectedRootReloadsUnderTheNewName() {
    Bench bench;
    FakePane* rename = bench.Add(PaneId::Rename);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("RENAME"));
    const QString renamed = bench.library.Path(QStringLiteral("new.tfmasm"));
    QVERIFY(QFile::rename(bench.top, renamed));
    const qsizetype shown = rename->documents.size();
    Q_EMIT rename->FileUpdated(renamed);
    QCOMPARE(bench.shell.Tree().Nodes().At(1).tag, renamed);
    QCOMPARE(bench.shell.m_partfilename, renamed);
    QCOMPARE(rename->documents.size(), shown);  // the pane on screen stays as it is
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("RENAME"));
}

void TestUserControl1::renamingAChildReloadsUnderTheOldRoot() {
    Bench bench;
    FakePane* rename = bench.Add(PaneId::Rename);
    bench.Open();
    bench.Click(3);
    Q_EMIT rename->FileUpdated(bench.library.Path(QStringLiteral("new.tfmprt")));
    QCOMPARE(bench.shell.Tree().Nodes().At(1).tag, bench.top);
    QCOMPARE(bench.shell.m_partfilename, bench.top);
    Q_EMIT rename->FileUpdated(QString());
    QCOMPARE(bench.shell.Tree().Nodes().At(1).tag, bench.top);
}

void TestUserControl1::withoutASelectionNothingIsReloaded() {
    Bench bench;
    FakePane* rename = bench.Add(PaneId::Rename);
    Q_EMIT rename->FileUpdated(bench.top);
    QCOMPARE(bench.shell.Tree().Nodes().Count(), 0);
}

void TestUserControl1::panesGetTheStatusLineOnlyWhileVisible() {
    Bench bench;
    FakePane* search = bench.Add(PaneId::Search);
    FakePane* properties = bench.Add(PaneId::Properties);
    QCOMPARE(search->StatusBarControl(), &bench.status);
    QVERIFY(!properties->StatusBarControl());  // has no status of its own
    bench.shell.hide();
    QVERIFY(!search->StatusBarControl());
    search->SetStatusText(QStringLiteral("dropped"));
    bench.shell.show();
    QCOMPARE(search->StatusBarControl(), &bench.status);
    search->SetStatusText(QStringLiteral("shown"));
    QCOMPARE(bench.status.caption, QStringLiteral("shown"));
}

void TestUserControl1::thePanesThatMayRunAreReleasedInOrder() {
    TestLibrary library;
    QStringList released;
    {
        UserControl1 shell;
        const std::pair<PaneId, const char*> panes[] = {{PaneId::Search, "search"},
                                                        {PaneId::Rename, "rename"},
                                                        {PaneId::References, "references"},
                                                        {PaneId::Copy, "copy"},
                                                        {PaneId::WhereUsed, "whereused"}};
        for (const auto& [id, name] : panes) {
            auto* pane = new FakePane;
            pane->setObjectName(QLatin1String(name));
            pane->released = &released;
            shell.AddPane(id, pane);
        }
    }
    QCOMPARE(released, (QStringList{QStringLiteral("whereused"), QStringLiteral("copy"),
                                    QStringLiteral("rename"), QStringLiteral("search")}));
}

void TestUserControl1::theSavedPropertiesComeBack() {
    TestLibrary library;
    UserControl1 fresh;
    for (const char* key : {"Caption", "partfilename", "Function", "statusText"})
        QCOMPARE(fresh.WriteProperties().value(QLatin1String(key)), QVariant(QString()));
    const QVariantMap saved{{QStringLiteral("Caption"), QStringLiteral("tab")},
                            {QStringLiteral("partfilename"), QStringLiteral("/a.tfmprt")},
                            {QStringLiteral("Function"), QStringLiteral("REF")},
                            {QStringLiteral("statusText"), QStringLiteral("ready")}};
    fresh.ReadProperties(saved);
    QCOMPARE(fresh.WriteProperties(), saved);
    QCOMPARE(fresh.property("Function"), QVariant(QStringLiteral("REF")));
    QCOMPARE(fresh.property("statusText"), QVariant(QStringLiteral("ready")));
    QVERIFY(!fresh.setProperty("statusText", QStringLiteral("changed")));
    fresh.ReadProperties({});
    QCOMPARE(fresh.Caption(), QString());
}

void TestUserControl1::gettingThePartFileNameWritesItIntoThePathBox() {
    Bench bench;
    bench.shell.Putpartfilename(QStringLiteral("/a.tfmprt"));
    QCOMPARE(bench.PathBox()->currentText(), QString());
    QCOMPARE(bench.shell.partfilename(), QStringLiteral("/a.tfmprt"));
    QCOMPARE(bench.PathBox()->currentText(), QStringLiteral("/a.tfmprt"));
}

void TestUserControl1::theSplitterKeepsItsMarginAndTurnsBlackWhileDragged() {
    Bench bench;
    auto* splitter = bench.Child<PaneSplitter>("splitter");
    auto* handle = qobject_cast<PaneSplitterHandle*>(splitter->handle(1));
    QVERIFY(handle);
    QCOMPARE(handle->GrabX(), kNoSplitterDrag);
    const QPoint middle = handle->rect().center();
    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, middle);
    QCOMPARE(handle->GrabX(), middle.x());
    QCOMPARE(handle->grab().toImage().pixelColor(middle), QColor(Qt::black));
    QTest::mouseMove(handle, QPoint(-2000, middle.y()));
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, middle);
    QCOMPARE(handle->GrabX(), kNoSplitterDrag);
    QVERIFY(handle->grab().toImage().pixelColor(middle) != QColor(Qt::black));
    splitter->setSizes({0, 10000});
    QCOMPARE(splitter->sizes()[0], 4);
    splitter->setSizes({10000, 0});
    QCOMPARE(splitter->sizes()[1], 4);
}

DOCBENCH_TEST_MAIN(QApplication, TestUserControl1)
#include "tst_usercontrol1.moc"
