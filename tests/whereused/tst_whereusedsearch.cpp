// A search from the where-used pane: its walk, its end, and what may happen meanwhile.

#include "tests/support/testenvironment.h"
#include "tests/whereused/whereusedbench.h"

using namespace docbench;

namespace {

using Bench = WhereUsedBench;

}  // namespace

class TestWhereUsedSearch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { gWebDocument = false; }
    void theWalkGoesDepthFirst();
    void withoutTheTickSubfoldersAreLeftOut();
    void foldersThatAreNotThereAreSkipped();
    void foldersThatDifferInCaseAreBothSearched();
    void anEntryThatNamesAFileEndsTheSearch();
    void aFailureKeepsTheRowsAndTheStatus();
    void stoppingKeepsTheRowsAndCountsThem();
    void inputIsDisabledWhileASearchRuns();
    void aNewDocumentStopsTheSearch();
    void noSecondSearchBeginsDuringTheFirst();
    void withoutANameThereIsNothingToFindAfterASearch();
    void aSearchByKeyTestsItsFoldersFirst();
    void thePaneMayGoAwayDuringASearchByKey();
    void thePaneMayGoAwayBehindADialog_data();
    void thePaneMayGoAwayBehindADialog();
    void aPaneThatEndsTestsNoFolders();
    void theProgressIsShownMeanwhile();
    void thePaneMayGoAwayDuringASearch();
    void aWebFolderIsMirroredAndItsAddressesListed();
    void aWebFolderThatFailsFindsNothing();
    void theProgressCountsWhatCouldNotBeRead();
    void theRealLibraryFindsTheHolders();
};

void TestWhereUsedSearch::theWalkGoesDepthFirst() {
    Bench bench;
    const QString a = bench.root + "/a";
    bench.access.folders.subfolders = {{bench.root, {bench.root + "/b", a}},
                                       {a, {a + "/deep"}},
                                       {bench.root + "/b", {bench.root + "/b/x"}}};
    bench.Search();
    QStringList order;
    for (const ReferenceQuery& query : bench.access.folders.queries)
        order.append(query.pattern.mid(bench.root.size()));
    QCOMPARE(order, QStringList({"/*.*", "/b/*.*", "/b/x/*.*", "/a/*.*", "/a/deep/*.*"}));
}

void TestWhereUsedSearch::withoutTheTickSubfoldersAreLeftOut() {
    Bench bench;
    bench.access.folders.subfolders = {{bench.root, {bench.root + "/b"}}};
    bench.Box("wuSubfloder")->click();
    bench.Search();
    QCOMPARE(bench.access.folders.queries.size(), 1);
}

void TestWhereUsedSearch::foldersThatAreNotThereAreSkipped() {
    Bench bench;
    bench.LookIn()->setText("/nowhere;" + bench.root);
    bench.Search();
    QCOMPARE(bench.access.folders.queries.size(), 1);
    QCOMPARE(bench.access.folders.queries[0].pattern, bench.root + "/*.*");
}

void TestWhereUsedSearch::foldersThatDifferInCaseAreBothSearched() {
    Bench bench;
    bench.LookIn()->setText(bench.Sub("parts") + ';' + bench.Sub("PARTS") + ';' +
                            bench.Sub("parts"));
    bench.Search();
    QCOMPARE(bench.access.folders.queries.size(), 2);
}

void TestWhereUsedSearch::anEntryThatNamesAFileEndsTheSearch() {
    Bench bench;
    const QString file = bench.library.Make("pin.tfmprt");
    bench.Add(bench.root, "/w/top.tfmasm", "/w/gear.tfmprt");
    bench.LookIn()->setText(bench.root + ';' + file);
    bench.dialogs.Expect(Format(Text::SearchError, file) + "*");
    bench.Search();
    QVERIFY(bench.dialogs.AllCame());
    QCOMPARE(bench.dialogs.LastTitle(), gAppTitle);
    QCOMPARE(bench.List()->List().Count(), 1);
    QVERIFY(bench.Find()->isEnabled() && !bench.Stop()->isEnabled());
}

void TestWhereUsedSearch::aFailureKeepsTheRowsAndTheStatus() {
    Bench bench;
    const QString sub = bench.root + "/sub";
    bench.Add(bench.root, "/w/top.tfmasm", "/w/gear.tfmprt");
    bench.access.folders.subfolders = {{bench.root, {sub}}};
    bench.access.folders.onSearch = [&](const QString& folder) {
        if (folder == sub)
            throw DocumentError("gone");
    };
    bench.dialogs.Expect(Format(Text::SearchError, "gone"));
    bench.Search();
    QVERIFY(bench.dialogs.AllCame());
    QCOMPARE(bench.List()->List().Count(), 1);
    QCOMPARE(bench.status.caption, sub);
    QVERIFY(bench.Name()->isEnabled());
}

void TestWhereUsedSearch::stoppingKeepsTheRowsAndCountsThem() {
    Bench bench;
    bench.Add(bench.root, "/w/top.tfmasm", "/w/gear.tfmprt");
    bench.access.folders.subfolders = {{bench.root, {bench.root + "/a", bench.root + "/b"}}};
    bench.access.folders.onSearch = [&](const QString&) {
        QTest::mouseClick(bench.Stop(), Qt::LeftButton);
        QVERIFY(!bench.Stop()->isEnabled());
    };
    bench.LookIn()->setText(bench.root + ';' + bench.Sub("other"));
    bench.Search();
    QCOMPARE(bench.access.folders.queries.size(), 1);
    QCOMPARE(bench.List()->List().Count(), 1);
    QCOMPARE(bench.status.caption, Format(Text::DocumentsFound, "1"));
    QVERIFY(bench.Find()->isEnabled());
    bench.access.folders.onSearch = nullptr;
    bench.Search();  // the stop does not outlive the search
    QVERIFY(bench.access.folders.queries.size() > 3);
}

void TestWhereUsedSearch::inputIsDisabledWhileASearchRuns() {
    Bench bench;
    bench.access.folders.onSearch = [&](const QString&) {
        for (const char* name :
             {"wuLookin", "wuName", "wuFindNow", "wuBrowse", "wuDrop1", "wuLBlookin", "wuLBName",
              "wuSubfloder", "wuFindRef", "wuFindInCtx", "wuNewsearch", "wifindMirrored"})
            QVERIFY2(!bench.Child(name)->isEnabled(), name);
        QVERIFY(bench.Stop()->isEnabled());
        QVERIFY(!bench.Child("Animation1")->isHidden());
        QCOMPARE(bench.status.caption, bench.root);
    };
    bench.Search();
    QCOMPARE(bench.access.folders.queries.size(), 1);
    QVERIFY(bench.Child("Animation1")->isHidden());
}

void TestWhereUsedSearch::aNewDocumentStopsTheSearch() {
    Bench bench;
    bench.access.folders.subfolders = {{bench.root, {bench.root + "/a"}}};
    bench.access.folders.onSearch = [&](const QString&) {
        bench.pane->SetPartNameToSearch("/x/pin.tfmprt", "pin");
    };
    bench.Search();
    QCOMPARE(bench.access.folders.queries.size(), 1);
}

void TestWhereUsedSearch::noSecondSearchBeginsDuringTheFirst() {
    Bench bench;
    bench.access.folders.subfolders = {{bench.root, {bench.root + "/a"}}};
    bench.access.folders.onSearch = [&](const QString&) {
        bench.pane->SetPartNameToSearch("/x/pin.tfmprt", "pin");
        QVERIFY(!bench.Find()->isEnabled());
        bench.pane->Findnow();
    };
    bench.Search();
    QCOMPARE(bench.access.folders.queries.size(), 1);
    QVERIFY(bench.Find()->isEnabled());
}

void TestWhereUsedSearch::withoutANameThereIsNothingToFindAfterASearch() {
    Bench bench;
    bench.access.folders.onSearch = [&](const QString&) {
        bench.pane->SetPartNameToSearch("", "");
    };
    bench.Search();
    QVERIFY(bench.Name()->text().isEmpty());
    QVERIFY(!bench.Find()->isEnabled());
}

void TestWhereUsedSearch::aSearchByKeyTestsItsFoldersFirst() {
    Bench bench;
    bench.Name()->setText("gear");
    bench.LookIn()->setFocus();
    bench.LookIn()->setText("/nowhere");
    bench.dialogs.Expect(Format(Text::FoldersNotFound, "/nowhere"));
    QTest::keyClick(bench.LookIn(), Qt::Key_Return);
    QCoreApplication::processEvents();
    QVERIFY(bench.dialogs.AllCame());
    QVERIFY(bench.access.folders.queries.isEmpty());
    QVERIFY(bench.Name()->isEnabled() && bench.LookIn()->isEnabled());
    QVERIFY(!bench.Stop()->isEnabled());
    bench.LookIn()->setFocus();
    bench.LookIn()->setText(bench.root);
    QTest::keyClick(bench.LookIn(), Qt::Key_Return);
    QTRY_COMPARE(bench.access.folders.queries.size(), 1);
}

void TestWhereUsedSearch::thePaneMayGoAwayDuringASearchByKey() {
    Bench bench;
    bench.access.folders.subfolders = {{bench.root, {bench.root + "/a"}}};
    bench.access.folders.onSearch = [&](const QString&) {
        bench.pane->ReleaseAll();
        QMetaObject::invokeMethod(
            qApp, [&] { bench.pane.reset(); }, Qt::QueuedConnection);
    };
    bench.LookIn()->setText(bench.root);
    bench.Name()->setText("gear");
    QTest::keyClick(bench.Name(), Qt::Key_Return);
    QTRY_VERIFY(!bench.pane);
    QCOMPARE(bench.access.folders.queries.size(), 1);
}

void TestWhereUsedSearch::thePaneMayGoAwayBehindADialog_data() {
    QTest::addColumn<QString>("which");
    for (const char* which : {"leaving the field", "return in the field", "browsing",
                              "a search that fails", "an export that fails"})
        QTest::newRow(which) << which;
}

void TestWhereUsedSearch::thePaneMayGoAwayBehindADialog() {
    QFETCH(QString, which);
    Bench bench;
    bench.dialogs.Meanwhile([&] { bench.pane.reset(); });
    bench.Name()->setText("gear");
    if (which == "browsing") {
        bench.dialogs.ExpectBrowseFolder(bench.root);
        QMetaObject::invokeMethod(bench.Child<QPushButton>("wuBrowse"), "click");
    } else if (which == "an export that fails") {
        FakeSpreadsheet spreadsheet;
        spreadsheet.fails = true;
        bench.Add(bench.root, bench.root + "/a.tfmasm", bench.root + "/gear.tfmprt");
        bench.LookIn()->setText(bench.root);
        bench.pane->Findnow();
        bench.dialogs.Expect("*", Dialogs::Icon::None);
        QMetaObject::invokeMethod(bench.pane->findChild<QAction*>("mnexport"), "trigger");
    } else if (which == "a search that fails") {
        bench.LookIn()->setText(bench.library.Make("pin.tfmprt"));
        bench.dialogs.Expect("*");
        bench.pane->Findnow();
    } else {
        bench.LookIn()->setFocus();
        bench.LookIn()->setText("/nowhere");
        bench.dialogs.Expect(Format(Text::FoldersNotFound, "/nowhere"));
        QLineEdit* field = bench.LookIn();
        if (which == "leaving the field")
            bench.Name()->setFocus();
        else
            QTest::keyClick(field, Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    QVERIFY(!bench.pane);
    QVERIFY(bench.dialogs.AllCame());
}

// Its end is no leaving of the field: nobody is asked anything.
void TestWhereUsedSearch::aPaneThatEndsTestsNoFolders() {
    Bench bench;
    bench.LookIn()->setFocus();
    bench.LookIn()->setText("/nowhere");
    bench.pane.reset();
}

void TestWhereUsedSearch::theProgressIsShownMeanwhile() {
    Bench bench;
    bench.access.folders.subfolders = {{bench.root, {bench.root + "/a"}}};
    bench.Add(bench.root, bench.root + "/a.tfmasm", bench.root + "/gear.tfmprt");
    QString progress;
    bench.access.folders.onSearch = [&](const QString& folder) {
        if (folder.endsWith("/a"))
            progress = bench.Child<QLabel>("wuProgress")->text();
    };
    bench.Name()->setText("gear");
    bench.LookIn()->setText(bench.root);
    bench.pane->Findnow();
    QVERIFY2(progress.contains(Format(Text::DocumentsLookedAt, 1)), qPrintable(progress));
    QVERIFY2(progress.contains(Format(Text::HoldersFound, 1)), qPrintable(progress));
}

void TestWhereUsedSearch::thePaneMayGoAwayDuringASearch() {
    Bench bench;
    bench.access.folders.subfolders = {{bench.root, {bench.root + "/a"}}};
    bench.access.folders.onSearch = [&](const QString&) {
        bench.pane->ReleaseAll();
        QMetaObject::invokeMethod(
            qApp, [&] { bench.pane.reset(); }, Qt::QueuedConnection);
    };
    bench.Name()->setText("gear");
    bench.LookIn()->setText(bench.root);
    bench.pane->Findnow();
    QVERIFY(!bench.pane);
    QCOMPARE(bench.access.folders.queries.size(), 1);
}

void TestWhereUsedSearch::aWebFolderIsMirroredAndItsAddressesListed() {
    Bench bench;
    FakeWeb web;
    web.server.folders = {"http://s/w/"};
    web.server.files = {{"http://s/w/top.tfmasm", "x"}};
    const QString mirror = QDir::cleanPath(gTempFolder + "tessaformadocbench");
    bench.Add(mirror, mirror + "/top.tfmasm", mirror + "/gear.tfmprt");
    bench.Add(mirror, mirror + "/top.tfmasm", mirror + "/gear.tfmprt");
    bench.Add(mirror, mirror + "/derived.tfmprt", mirror + "/gear.tfmprt", true);
    bench.LookIn()->setText("http://s/w/");
    bench.Box("wifindMirrored")
        ->click();  // a prefixed relation is of no kind that could be left out
    bench.Search();
    QVERIFY(gWebDocument);
    QCOMPARE(bench.List()->List().Count(), 3);  // a prefixed relation equals none that is listed
    QCOMPARE(bench.Row(2).cells[1].text, gRelationPart);
    QCOMPARE(bench.Row(0).tag, QString("http://s/w/top.tfmasm"));
    QCOMPARE(bench.Row(0).cells[1].text, gRelationDefault);
    QCOMPARE(bench.Row(0).cells[2].tag, QString("http://s/w/gear.tfmprt"));
}

void TestWhereUsedSearch::aWebFolderThatFailsFindsNothing() {
    Bench bench;
    const FakeWeb web;
    bench.LookIn()->setText("http://s/w/");
    bench.Search();
    QVERIFY(!gWebDocument);
    QVERIFY(bench.access.folders.queries.isEmpty());
    QCOMPARE(bench.status.caption, Format(Text::DocumentsFound, "0"));
}

void TestWhereUsedSearch::theProgressCountsWhatCouldNotBeRead() {
    Bench bench;
    bench.access.folders.unread = 3;
    bench.Search();
    const QString shown = bench.Child<QLabel>("wuProgress")->text();
    QVERIFY(shown.contains(Format(Text::DocumentsLookedAt, "1")));
    QVERIFY(shown.contains(Format(Text::FilesNotRead, "3")));
}

void TestWhereUsedSearch::theRealLibraryFindsTheHolders() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString gear = library.Make("parts/gear.tfmprt");
    const QString top = library.Make("top.tfmasm", {{gear, 2}});
    library.Make("sub/other.tfmasm", {{library.Path("parts/pin.tfmprt")}});
    library.Make("sub/derived.tfmprt", {}, {{gear, "mirrored"}});
    LoadResources();
    whereUsed pane;
    pane.SetPartNameToSearch(gear, "gear");
    pane.findChild<QLineEdit*>("wuLookin")->setText(library.Folder());
    pane.Findnow();
    const CellList& list = pane.findChild<CellListView*>("whereList")->List();
    QCOMPARE(list.Count(), 2);
    QCOMPARE(list.At(0).tag, top);
    QCOMPARE(list.At(1).tag, library.Path("sub/derived.tfmprt"));
    QCOMPARE(list.At(1).cells[1].text, gRelationPart);
    QCOMPARE(list.At(1).cells[2].tag, gear);
}

DOCBENCH_TEST_MAIN(QApplication, TestWhereUsedSearch)
#include "tst_whereusedsearch.moc"
