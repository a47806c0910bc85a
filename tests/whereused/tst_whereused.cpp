// The where-used pane, through its widgets.

#include "tests/support/testenvironment.h"
#include "tests/whereused/whereusedbench.h"

using namespace docbench;

namespace {

using Bench = WhereUsedBench;

}  // namespace

class TestWhereUsed : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { gWebDocument = false; }
    void aNewPaneIsIdle();
    void aDocumentFillsNameAndPlace();
    void aDrawingLeavesTheNameButFillsThePlace();
    void aWebDocumentFillsItsFolder();
    void findNowNeedsNameAndPlace();
    void theTargetIsHandedToTheLibrary();
    void rowsShowDocumentRelationAndReference();
    void equalAnswersAreListedOnce();
    void answersInContextAreListedAgain();
    void unwantedKindsAreDropped();
    void clearingTheLastKindTicksAnother();
    void headersToggleShortAndLongForm();
    void rowsFollowTheFormOfTheirColumn();
    void leavingTheFieldTestsTheFolders();
    void withAWebDocumentTheFieldIsNotTested();
    void droppedFilesAndBrowsedFoldersAreAppended();
    void namedListsDropDown();
    void namedListsAreExpanded();
    void newSearchEmptiesThePane();
    void theMenuOpensByTagAndADoubleClickByText();
    void theListIsExported();
    void aFailedExportIsTold();
    void findNowRunsOnlyWhenEnabled();
};

void TestWhereUsed::aNewPaneIsIdle() {
    Bench bench;
    QVERIFY(!bench.Find()->isEnabled() && !bench.Stop()->isEnabled());
    for (const char* name : {"wuSubfloder", "wuFindRef", "wuFindInCtx", "wifindMirrored"})
        QVERIFY(bench.Box(name)->isChecked());
    const auto& headers = bench.List()->List().Headers();
    QCOMPARE(headers[0].text, gStrings[208]);
    QCOMPARE(headers[0].tag, QString("L"));
    QCOMPARE(headers[1].text, gStrings[21]);
    QCOMPARE(headers[2].text, gStrings[327]);
    QCOMPARE(bench.Child<QLabel>("labDescription")->text(), gStrings[139] + ' ');
}

void TestWhereUsed::aDocumentFillsNameAndPlace() {
    Bench bench;
    bench.status.caption = "old";
    bench.pane->SetPartNameToSearch("/w/my gear.tfmprt  ", "ignored");
    QCOMPARE(bench.Name()->text(), QString("my gear"));
    QCOMPARE(bench.LookIn()->text(), QString("/w/"));
    QCOMPARE(bench.status.caption, QString());
    QVERIFY(bench.access.folders.queries.isEmpty());  // nothing was started
    bench.pane->SetPartNameToSearch("/x/pin.tfmprt", "");
    QCOMPARE(bench.LookIn()->text(), QString("/w/"));
}

void TestWhereUsed::aDrawingLeavesTheNameButFillsThePlace() {
    Bench bench;
    bench.Name()->setText("gear");
    bench.pane->SetPartNameToSearch("/w/sheet.tfmdrw", "sheet");
    QCOMPARE(bench.Name()->text(), QString("gear"));
    QCOMPARE(bench.LookIn()->text(), QString("/w/"));
}

void TestWhereUsed::aWebDocumentFillsItsFolder() {
    Bench bench;
    gWebDocument = true;
    bench.pane->SetPartNameToSearch("http://s/w/pin.tfmprt", "");
    QCOMPARE(bench.LookIn()->text(), QString("http://s/w/"));
}

void TestWhereUsed::findNowNeedsNameAndPlace() {
    Bench bench;
    bench.Name()->setText("gear");
    QVERIFY(!bench.Find()->isEnabled());
    bench.LookIn()->setText("/w");
    QVERIFY(bench.Find()->isEnabled());
    bench.Name()->clear();
    QVERIFY(!bench.Find()->isEnabled());
}

void TestWhereUsed::theTargetIsHandedToTheLibrary() {
    Bench bench;
    bench.Box("wifindMirrored")->click();
    bench.Search("/p/gear.TFMPRT");
    QCOMPARE(bench.access.folders.queries.size(), 1);
    const ReferenceQuery& query = bench.access.folders.queries[0];
    QCOMPARE(query.pattern, bench.root + "/*.*");
    QCOMPARE(query.fullPathFlag, 1);
    QCOMPARE(query.fullPath, QString("/p/gear.TFMPRT"));
    QCOMPARE(query.baseName, QString("gear"));
    QCOMPARE(query.extension, QString("TFMPRT"));
    QCOMPARE(query.mask, 3);
}

void TestWhereUsed::rowsShowDocumentRelationAndReference() {
    Bench bench;
    bench.Add(bench.root, "/w/top.tfmasm", "/w/gear.tfmprt");
    bench.Add(bench.root, "/w/pin.tfmprt", "/w/top.tfmasm", true);
    bench.Add(bench.root, "/w/sheet.tfmdrw", "/w/gear.tfmprt");
    bench.Add(bench.root, "/w/part.tfmprt", "/w/gear.tfmprt");
    bench.Search();
    QCOMPARE(bench.List()->List().Count(), 4);
    const CellRow& top = bench.Row(0);
    QCOMPARE(top.tag, QString("/w/top.tfmasm"));
    QCOMPARE(top.cells[0].text, QString("/w/top.tfmasm"));
    QCOMPARE(top.cells[0].toolTip, QString("/w/top.tfmasm"));
    QCOMPARE(top.cells[1].text, gRelationDefault);
    QCOMPARE(top.cells[2].text, QString("/w/gear.tfmprt"));
    QCOMPARE(top.cells[2].tag, QString("/w/gear.tfmprt"));
    QCOMPARE(top.cells[2].toolTip, QString("/w/gear.tfmprt"));
    QCOMPARE(top.image, QString("assem"));
    QCOMPARE(bench.Row(1).image, QString("inctx"));
    QCOMPARE(bench.Row(1).cells[1].text, gRelationAssembly);
    QCOMPARE(bench.Row(2).image, QString("draw"));
    QCOMPARE(bench.Row(3).image, QString("part"));
    QCOMPARE(bench.Row(3).cells[1].text, gRelationDefault);  // no external row
    QCOMPARE(bench.status.caption, Format(Text::DocumentsFound, "4"));
}

void TestWhereUsed::equalAnswersAreListedOnce() {
    Bench bench;
    bench.Add(bench.root, "/w/top.tfmasm", "/w/gear.tfmprt");
    bench.Add(bench.root, "/w/top.tfmasm", "/w/gear.tfmprt");
    bench.Search();
    QCOMPARE(bench.List()->List().Count(), 1);
}

// The relation of two parts is not the text that a plain row shows, so the list does not know it.
void TestWhereUsed::answersInContextAreListedAgain() {
    Bench bench;
    bench.Add(bench.root, "/w/part.tfmprt", "/w/gear.tfmprt");
    bench.Add(bench.root, "/w/part.tfmprt", "/w/gear.tfmprt");
    bench.Search();
    QCOMPARE(bench.List()->List().Count(), 2);
}

void TestWhereUsed::unwantedKindsAreDropped() {
    Bench bench;
    bench.Add(bench.root, "/w/part.tfmprt", "/w/gear.tfmprt", true);
    bench.Add(bench.root, "/w/part.tfmprt", "/w/top.tfmasm", true);
    bench.Add(bench.root, "/w/top.tfmasm", "/w/gear.tfmprt");
    bench.Box("wifindMirrored")->click();
    bench.Search();
    QCOMPARE(bench.List()->List().Count(), 2);
    bench.Box("wuFindInCtx")->click();
    bench.Search();
    QCOMPARE(bench.List()->List().Count(), 1);
    bench.Box("wuFindRef")->click();  // ticks the mirrored ones
    bench.Search();
    QCOMPARE(bench.List()->List().Count(), 2);  // plain rows are the mask's affair
}

void TestWhereUsed::clearingTheLastKindTicksAnother() {
    Bench bench;
    const auto ticked = [&] {
        QString boxes;
        for (const char* name : {"wuFindRef", "wuFindInCtx", "wifindMirrored"})
            boxes += bench.Box(name)->isChecked() ? '1' : '0';
        return boxes;
    };
    bench.Box("wuFindInCtx")->click();
    bench.Box("wifindMirrored")->click();
    bench.Box("wuFindRef")->click();
    QCOMPARE(ticked(), QString("001"));
    bench.Box("wifindMirrored")->click();
    QCOMPARE(ticked(), QString("010"));
    bench.Box("wuFindInCtx")->click();
    QCOMPARE(ticked(), QString("100"));
}

void TestWhereUsed::headersToggleShortAndLongForm() {
    Bench bench;
    bench.Add(bench.root, "/w/top.tfmasm", "/w/gear.tfmprt");
    bench.Search();
    auto* header = bench.List()->header();
    Q_EMIT header->sectionClicked(2);
    QCOMPARE(bench.List()->List().Headers()[2].text, gStrings[326]);
    QCOMPARE(bench.List()->List().Headers()[2].tag, QString("S"));
    QCOMPARE(bench.Row(0).cells[2].text, QString("gear.tfmprt"));
    QCOMPARE(bench.Row(0).cells[2].tag, QString("/w/gear.tfmprt"));
    Q_EMIT header->sectionClicked(0);
    QCOMPARE(bench.List()->List().Headers()[0].text, gStrings[31]);
    QCOMPARE(bench.Row(0).cells[0].text, QString("top.tfmasm"));
    Q_EMIT header->sectionClicked(1);
    QCOMPARE(bench.List()->List().Headers()[1].text, gStrings[21]);
    Q_EMIT header->sectionClicked(0);
    QCOMPARE(bench.Row(0).cells[0].text, QString("/w/top.tfmasm"));
}

void TestWhereUsed::rowsFollowTheFormOfTheirColumn() {
    Bench bench;
    Q_EMIT bench.List()->header()->sectionClicked(0);
    Q_EMIT bench.List()->header()->sectionClicked(2);
    bench.Add(bench.root, "/w/top.tfmasm", "/w/gear.tfmprt");
    bench.Add(bench.root, "/x/top.tfmasm", "/w/gear.tfmprt");
    bench.Add(bench.root, "/w/top.tfmasm", "/x/gear.tfmprt");
    bench.Search();
    QCOMPARE(bench.List()->List().Count(), 3);  // compared by their paths
    QCOMPARE(bench.Row(0).cells[0].text, QString("top.tfmasm"));
    QCOMPARE(bench.Row(0).cells[2].text, QString("gear.tfmprt"));
}

void TestWhereUsed::leavingTheFieldTestsTheFolders() {
    Bench bench;
    bench.LookIn()->setFocus();
    bench.LookIn()->setText(" Vendors;/nowhere;" + bench.root + ";;/none");
    bench.dialogs.Expect(Format(Text::FoldersNotFound, "/nowhere;;/none"));
    bench.Name()->setFocus();
    QCoreApplication::processEvents();
    QVERIFY(bench.dialogs.AllCame());
    QCOMPARE(bench.LookIn()->text(), " Vendors;" + bench.root);
    bench.LookIn()->setFocus();
    bench.Name()->setFocus();  // nothing to tell
}

void TestWhereUsed::withAWebDocumentTheFieldIsNotTested() {
    Bench bench;
    gWebDocument = true;
    bench.LookIn()->setFocus();
    bench.LookIn()->setText("/nowhere");
    bench.Name()->setFocus();
    QCOMPARE(bench.LookIn()->text(), QString("/nowhere"));
}

void TestWhereUsed::droppedFilesAndBrowsedFoldersAreAppended() {
    Bench bench;
    DropFiles(bench.LookIn(), {"/a", "/b"});
    QCOMPARE(bench.LookIn()->text(), QString("/a"));
    DropFiles(bench.LookIn(), {"/c"});
    QCOMPARE(bench.LookIn()->text(), QString("/a;/c"));
    bench.dialogs.ExpectBrowseFolder("/d");
    bench.Child<QPushButton>("wuBrowse")->click();
    QCOMPARE(bench.dialogs.LastTitle(), Format(Text::ChooseFolder, gStrings[90]));
    QCOMPARE(bench.LookIn()->text(), QString("/a;/c;/d"));
    bench.dialogs.ExpectBrowseFolder(QString());
    bench.Child<QPushButton>("wuBrowse")->click();
    QCOMPARE(bench.LookIn()->text(), QString("/a;/c;/d"));
}

void TestWhereUsed::namedListsDropDown() {
    Bench bench;
    const auto key = SettingsKey::Open(SettingsKey::Hive::CurrentUser, kExtReferencesKey);
    QVERIFY(key->SetText("Vendors TDB-Key", "/v"));
    auto* button = bench.Child<QPushButton>("wuDrop1");
    QVERIFY(bench.Drop()->isHidden());
    QTest::mousePress(button, Qt::LeftButton);
    QTest::mouseRelease(button, Qt::LeftButton);
    QVERIFY(!bench.Drop()->isHidden());
    QCOMPARE(bench.Drop()->model()->rowCount(), 1);
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(bench.Drop()->isHidden());
    QTest::mouseClick(button, Qt::LeftButton);
    const QRect row = bench.Drop()->visualRect(bench.Drop()->model()->index(0, 0));
    QTest::mouseClick(bench.Drop()->viewport(), Qt::LeftButton, {}, row.center());
    QVERIFY(bench.Drop()->isHidden());
    QCOMPARE(bench.LookIn()->text(), QString(" Vendors"));
    QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(bench.Drop(), Qt::Key_Return);
    QCOMPARE(bench.LookIn()->text(), QString(" Vendors; Vendors"));
    QTest::mouseClick(button, Qt::LeftButton);
    bench.Name()->setFocus();
    QVERIFY(bench.Drop()->isHidden());
    QVERIFY(key->Delete("Vendors TDB-Key"));
}

void TestWhereUsed::namedListsAreExpanded() {
    Bench bench;
    const auto key = SettingsKey::Open(SettingsKey::Hive::CurrentUser, kExtReferencesKey);
    QVERIFY(key->SetText("Vendors TDB-Key", bench.Sub("one") + ';' + bench.Sub("two")));
    bench.LookIn()->setText(" Vendors; Unknown");
    bench.Search();
    QCOMPARE(bench.access.folders.queries.size(), 2);
    QVERIFY(key->Delete("Vendors TDB-Key"));
}

void TestWhereUsed::newSearchEmptiesThePane() {
    Bench bench;
    bench.Add(bench.root, "/w/top.tfmasm", "/w/gear.tfmprt");
    for (const char* name : {"wuSubfloder", "wuFindInCtx", "wifindMirrored"})
        bench.Box(name)->click();
    bench.Search();
    QTest::mouseClick(bench.Child<QPushButton>("wuNewsearch"), Qt::LeftButton);
    QCOMPARE(bench.Name()->text() + bench.LookIn()->text(), QString());
    QCOMPARE(bench.List()->List().Count(), 0);
    QCOMPARE(bench.status.caption, QString());
    QVERIFY(bench.Box("wuSubfloder")->isChecked() && bench.Box("wuFindInCtx")->isChecked());
    QVERIFY(!bench.Box("wifindMirrored")->isChecked());
}

void TestWhereUsed::theMenuOpensByTagAndADoubleClickByText() {
    Bench bench;
    FakeOutside outside;
    FakeShellExecute files;
    bench.Add(bench.root, "/w/top.tfmasm", "/w/gear.tfmprt");
    bench.Add(bench.root, "/w/note.txt", "/w/gear.tfmprt");
    bench.Search();
    auto* menu = bench.Child<QMenu>("mnlist");
    auto* open = bench.Child<QAction>("mnopen");
    Q_EMIT bench.List()->MenuRequested(QPoint());
    QVERIFY(menu->isVisible() && open->isEnabled());
    menu->hide();
    open->trigger();  // no row is selected
    QCOMPARE(outside.asked.count("Tessacad.Application"), 0);
    bench.List()->SelectRow(0);
    open->trigger();
    QCOMPARE(outside.asked.count("Tessacad.Application"), 1);
    bench.List()->SelectRow(1);  // what no CAD program opens shows which text was handed on
    Q_EMIT bench.List()->header()->sectionClicked(0);
    open->trigger();
    Q_EMIT bench.List()->Activated(1);
    QCOMPARE(files.started, QStringList({"/w/note.txt", "note.txt"}));
    bench.List()->List().Clear();
    Q_EMIT bench.List()->MenuRequested(QPoint());
    QVERIFY(!open->isEnabled());
    QVERIFY(!bench.Child<QAction>("mnexport")->isEnabled());
    menu->hide();
}

void TestWhereUsed::theListIsExported() {
    Bench bench;
    FakeSpreadsheet sheet;
    for (const char* name : {"/w/a.tfmasm", "/w/b.tfmasm", "/w/c.tfmasm"})
        bench.Add(bench.root, name, "/w/gear.tfmprt");
    bench.Search();
    bench.Child<QAction>("mnexport")->trigger();
    QCOMPARE(sheet.shown.size(), size_t(5));
    QCOMPARE(sheet.shown[0].size(), size_t(4));
    QCOMPARE(sheet.shown[0][0], gStrings[208]);
    QCOMPARE(sheet.shown[3][0], QString("/w/c.tfmasm"));
    QCOMPARE(sheet.shown[3][3], QString());
    QCOMPARE(bench.status.caption, Format(Text::ExportDone, "4"));
    QCOMPARE(bench.Child<QLabel>("wuProgress")->text(), QString("/docs/list.xlsx"));
}

void TestWhereUsed::aFailedExportIsTold() {
    Bench bench;
    FakeSpreadsheet sheet;
    sheet.fails = true;
    bench.Add(bench.root, "/w/a.tfmasm", "/w/gear.tfmprt");
    bench.Search();
    bench.dialogs.Expect(Format(Text::ExportError, "no room"), Dialogs::Icon::None);
    bench.Child<QAction>("mnexport")->trigger();
    QVERIFY(bench.dialogs.AllCame());
    QCOMPARE(bench.status.caption, gStrings[42]);
    bench.List()->List().Clear();
    bench.Child<QAction>("mnexport")->trigger();  // no table, no box
    QCOMPARE(bench.status.caption, gStrings[42]);
}

void TestWhereUsed::findNowRunsOnlyWhenEnabled() {
    Bench bench;
    bench.pane->Findnow();
    QVERIFY(bench.access.folders.queries.isEmpty());
    QVERIFY(bench.Name()->isEnabled());
}

DOCBENCH_TEST_MAIN(QApplication, TestWhereUsed)
#include "tst_whereused.moc"
