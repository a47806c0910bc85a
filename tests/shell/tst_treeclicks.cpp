#include <QAction>
#include <QMenu>

#include "services/language.h"
#include "services/texts.h"
#include "shell/locking.h"
#include "tests/shell/shellbench.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

using Bench = ShellBench;

class TestTreeClicks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leftClickShowsTheNodesDocument();
    void rightClickChangesTheDocumentButNotThePane();
    void clickingAMissingDocumentEmptiesThePane();
    void clickingAMissingDocumentInReplaceMakesItCurrent();
    void theKeyboardPicksNodesToo();
    void aNodePickedByKeyTellsItsLock();
    void theSelectionCanNotBeTakenAway();
    void aCircularNodeIsMadeVisible();
    void shiftClickMarksAndAPlainClickClears();
    void aClickReadsTheLockState();
    void theLockStateOfTheSelectedDocument();
    void lockingDisablesTheEditors();
    void unlockingLeavesTheHyperlinksDisabled();
    void lockingWithMarksLocksTheSelectedNodeAndTheMarkedOnes();
    void aLateUnlockOfMarkedNodes();
    void withoutASelectionLockingDoesNothing();
    void lockingChildrenLeavesThePanesAlone();
    void theMenuFollowsTheSelectedNode();
    void theMenuOfADrawingHasNoReplace();
    void replaceFromTheMenuTakesTheMissingDocument();
    void theMenuRunsItsCommands();
    void renamingTheSelectedRootReloadsUnderTheNewName();
    void renamingAChildReloadsUnderTheOldRoot();
    void withoutASelectionNothingIsReloaded();
};

void TestTreeClicks::leftClickShowsTheNodesDocument() {
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

void TestTreeClicks::rightClickChangesTheDocumentButNotThePane() {
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

void TestTreeClicks::clickingAMissingDocumentEmptiesThePane() {
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

void TestTreeClicks::clickingAMissingDocumentInReplaceMakesItCurrent() {
    Bench bench;
    FakePane* rename = bench.Add(PaneId::Rename);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("REPLACE"));
    bench.Click(4);
    QCOMPARE(bench.shell.m_partfilename, bench.lost);
    QCOMPARE(rename->documents.last().path, bench.lost);
    QVERIFY(rename->documents.last().actionReplace);
}

void TestTreeClicks::theKeyboardPicksNodesToo() {
    Bench bench;
    FakePane* references = bench.Add(PaneId::References);
    bench.Open();
    bench.shell.SetCurrentFunction(QStringLiteral("REF"));
    QTest::keyClick(bench.Tree(), Qt::Key_Down);
    QCOMPARE(bench.shell.m_partfilename, bench.left);
    QCOMPARE(references->documents.last().path, bench.left);
}

void TestTreeClicks::aNodePickedByKeyTellsItsLock() {
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

void TestTreeClicks::theSelectionCanNotBeTakenAway() {
    Bench bench;
    bench.Open();
    bench.Click(1, Qt::LeftButton, Qt::ControlModifier);
    QCOMPARE(bench.Tree()->SelectedNode(), 1);
    QTest::keyClick(bench.Tree(), Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(bench.Tree()->SelectedNode(), 1);
}

void TestTreeClicks::aCircularNodeIsMadeVisible() {
    Bench bench;
    const QString a = bench.library.Path(QStringLiteral("a.tfmasm"));
    const QString b = bench.library.Make(QStringLiteral("b.tfmasm"), {{a}});
    bench.library.Make(QStringLiteral("a.tfmasm"), {{b}});
    bench.dialogs.Expect(Format(Text::CircularReference, a), Dialogs::Icon::Stop);
    bench.shell.OpenPath(a);
    QVERIFY(bench.Tree()->isExpanded(bench.shell.Tree().Model().IndexOf(1)));
    QVERIFY(bench.Tree()->isExpanded(bench.shell.Tree().Model().IndexOf(2)));
}

void TestTreeClicks::shiftClickMarksAndAPlainClickClears() {
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

void TestTreeClicks::aClickReadsTheLockState() {
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

void TestTreeClicks::theLockStateOfTheSelectedDocument() {
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

void TestTreeClicks::lockingDisablesTheEditors() {
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

void TestTreeClicks::unlockingLeavesTheHyperlinksDisabled() {
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

void TestTreeClicks::lockingWithMarksLocksTheSelectedNodeAndTheMarkedOnes() {
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

void TestTreeClicks::aLateUnlockOfMarkedNodes() {
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

void TestTreeClicks::withoutASelectionLockingDoesNothing() {
    Bench bench;
    FakePane* editor = bench.Add(PaneId::Configurations);
    for (const char* code : {"LOCK", "UNLOCK", "LOCKCHILDREN", "UNLOCKCHILDREN"})
        bench.shell.SetCurrentFunction(QLatin1String(code));
    QVERIFY(editor->calls.isEmpty());
}

void TestTreeClicks::lockingChildrenLeavesThePanesAlone() {
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

void TestTreeClicks::theMenuFollowsTheSelectedNode() {
    Bench bench;
    bench.Open();
    auto* menu = bench.Child<QMenu>("mnEdit");
    const auto state = [&] {
        QString enabled;
        for (const char* name : {"mnopen", "mnReplace", "mnrename", "mncopy"})
            enabled += menu->findChild<QAction*>(name)->isEnabled() ? u'1' : u'0';
        return enabled;
    };
    bench.Click(3, Qt::RightButton);
    QVERIFY(menu->isVisible());
    QCOMPARE(state(), QStringLiteral("1111"));
    menu->hide();
    bench.Click(4, Qt::RightButton);  // missing: open keeps its state
    QCOMPARE(state(), QStringLiteral("1100"));
    menu->hide();
    bench.Child<QMenu>("mnEdit")->findChild<QAction*>("mnopen")->setEnabled(false);
    bench.Click(4, Qt::RightButton);
    QCOMPARE(state(), QStringLiteral("0100"));
    menu->hide();
}

void TestTreeClicks::theMenuOfADrawingHasNoReplace() {
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

void TestTreeClicks::replaceFromTheMenuTakesTheMissingDocument() {
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

void TestTreeClicks::theMenuRunsItsCommands() {
    Bench bench;
    FakeShellExecute programs;
    FakeOutside outside;
    bench.Open();
    bench.Child<QAction>("mnrename")->trigger();
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("RENAME"));
    bench.Child<QAction>("mncopy")->trigger();
    QCOMPARE(bench.shell.CurrentFunction(), QStringLiteral("COPY"));
    bench.Click(4);
    bench.Child<QMenu>("mnEdit")->findChild<QAction*>("mnopen")->trigger();
    QCOMPARE(outside.asked, QStringList());  // a missing document is not opened
    bench.Click(3);
    bench.Child<QMenu>("mnEdit")->findChild<QAction*>("mnopen")->trigger();
    QCOMPARE(outside.asked, QStringList{QStringLiteral("Tessacad.Application")});
}

void TestTreeClicks::renamingTheSelectedRootReloadsUnderTheNewName() {
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

void TestTreeClicks::renamingAChildReloadsUnderTheOldRoot() {
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

void TestTreeClicks::withoutASelectionNothingIsReloaded() {
    Bench bench;
    FakePane* rename = bench.Add(PaneId::Rename);
    Q_EMIT rename->FileUpdated(bench.top);
    QCOMPARE(bench.shell.Tree().Nodes().Count(), 0);
}

DOCBENCH_TEST_MAIN(QApplication, TestTreeClicks)
#include "tst_treeclicks.moc"
