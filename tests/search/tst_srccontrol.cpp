// The document search pane: the search, its result list, and what the shell asks of it.

#include <QAction>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include "docmodel/builder.h"
#include "panes/listmenu.h"
#include "services/scratch.h"
#include "services/settingsstore.h"
#include "tests/search/searchbench.h"
#include "tests/shell/shellbench.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/fakespreadsheet.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

bool ShowsWaitPointer() {
    return QGuiApplication::overrideCursor() != nullptr;
}

}  // namespace

class TestSrcControl : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() {
        while (ShowsWaitPointer())
            QGuiApplication::restoreOverrideCursor();
    }

    void ANewPaneIsIdle() {
        SearchBench bench;
        QCOMPARE(bench.Start()->text(), gStrings[270]);
        QVERIFY(!bench.Child<QCheckBox>("srcRecursive")->isChecked());
        QCOMPARE(bench.Child<QLabel>("labDescription")->text(), gStrings[140] + ' ');
        QCOMPARE(bench.pane->HelpTopic(), QString("search"));
    }

    void ADocumentFillsThePlace() {
        SearchBench bench;
        QSignalSpy changed(bench.pane.get(), &srcControl::partfilenameChanged);
        bench.pane->setProperty("partfilename", "/w/my gear.tfmprt");
        QCOMPARE(bench.pane->partfilename(), QString("/w/my gear.tfmprt"));
        QCOMPARE(bench.LookIn()->text(), QString("/w/"));
        bench.pane->SetDocument({.path = "/x/pin.tfmprt"});
        QCOMPARE(bench.LookIn()->text(), QString("/w/"));
        QCOMPARE(changed.count(), 2);
        bench.LookIn()->clear();
        bench.pane->Putpartfilename("");
        QCOMPARE(bench.LookIn()->text(), QString());
    }

    void TheDescriptionIsShownAndHidden() {
        SearchBench bench;
        bench.pane->SetShowDesc(false);
        QVERIFY(bench.Child<QWidget>("DescControl1")->isHidden());
        bench.pane->SetShowDesc(true);
        QVERIFY(!bench.Child<QWidget>("DescControl1")->isHidden());
    }

    void RulesAndWordsReachTheQuery() {
        SearchBench bench;
        bench.Add("Title", kContains, "gear");
        bench.Child<QRadioButton>("srcOR")->click();
        bench.Add("Weight", kLess, "5");
        bench.Search();
        QCOMPARE(bench.access.answers.words.fileName, gStrings[347]);
        QCOMPARE(bench.access.answers.words.yes, gStrings[339]);
        QCOMPARE(bench.access.answers.words.no, gStrings[340]);
        QCOMPARE(bench.access.answers.conditions.size(), size_t(2));
        QCOMPARE(bench.access.answers.conditions[1].connective, QString("OR"));
        QCOMPARE(bench.access.answers.conditions[1].value, QVariant(5.0));
    }

    void HitsAreListedAndCounted() {
        SearchBench bench;
        for (const char* name : {"a.prt", "b.tfmasm", "c.txt", "sub/d.prt"})
            bench.File(name);
        bench.access.answers.matches = [](const QString& path) { return path.endsWith("prt"); };
        bench.Search();
        QCOMPARE(bench.Found(), QStringList("a.prt"));
        QCOMPARE(bench.status.caption, sprintf(gStrings[293], {"1"}));
        QCOMPARE(bench.Start()->text(), gStrings[17]);
        QVERIFY(!ShowsWaitPointer());
        bench.Child<QCheckBox>("srcRecursive")->click();
        bench.Search();
        QCOMPARE(bench.Found(), QStringList({"a.prt", "sub/d.prt"}));
        QCOMPARE(bench.status.caption, sprintf(gStrings[293], {"2"}));
    }

    void TheProgressCountsWhatCouldNotBeRead() {
        SearchBench bench;
        bench.access.answers.unread = {bench.File("a.prt")};
        bench.File("b.prt");
        bench.Search();
        const QString progress = bench.Child<QLabel>("srcProgress")->text();
        QVERIFY(progress.contains(sprintf(gStrings[378], {"2"})));
        QVERIFY(progress.contains(sprintf(gStrings[293], {"1"})));
        QVERIFY(progress.contains(sprintf(gStrings[379], {"1"})));
    }

    void WhileASearchRunsTheInputIsDisabledAndStartStops() {
        SearchBench bench;
        for (const char* name : {"a.prt", "b.prt", "c.prt"})
            bench.File(name);
        bool isSeen = false;
        bench.access.answers.matches = [&](const QString& path) {
            if (path.endsWith("b.prt")) {
                isSeen = true;
                for (const char* name :
                     {"srcLoad", "srcSave", "srcNewSearch", "srcAddToList", "srcLookin",
                      "searchlist", "Frame2", "srcName", "srcOP", "srcValue", "srcAND", "srcOR",
                      "wuDrop1", "srcBrowser", "srcRecursive", "Label1", "srcLabName",
                      "srcLBcondition", "srcLBValue"})
                    QTest::qVerify(!bench.Child(name)->isEnabled(), name, "", __FILE__, __LINE__);
                QTest::qVerify(bench.Start()->isEnabled() && bench.Start()->text() == gStrings[53],
                               "srcStart", "", __FILE__, __LINE__);
                QTest::qVerify(ShowsWaitPointer(), "pointer", "", __FILE__, __LINE__);
                QTest::qVerify(!bench.Child<QLabel>("srcProgress")->text().isEmpty(), "progress",
                               "", __FILE__, __LINE__);
                QTest::qVerify(bench.Found() == QStringList("a.prt"), "rows so far", "", __FILE__,
                               __LINE__);
                QTest::qVerify(bench.status.caption == sprintf(gStrings[295], {bench.root}),
                               "status", "", __FILE__, __LINE__);
                bench.Click("srcStart");
            }
            return true;
        };
        bench.Search();
        QVERIFY(isSeen);
        QCOMPARE(bench.Found(), QStringList({"a.prt", "b.prt"}));
        QCOMPARE(bench.status.caption, sprintf(gStrings[293], {"2"}));
        QCOMPARE(bench.Start()->text(), gStrings[17]);
        for (const char* name : {"srcLoad", "srcSave", "srcAddToList", "searchlist", "srcValue"})
            QVERIFY2(bench.Child(name)->isEnabled(), name);
        bench.access.answers.matches = [](const QString&) { return true; };
        bench.Search();  // the stop is over
        QCOMPARE(bench.Found().size(), 3);
    }

    void TheShellAndAnotherDocumentStopTheSearch() {
        SearchBench bench;
        for (const char* name : {"a.prt", "b.prt"})
            bench.File(name);
        bench.access.answers.matches = [&](const QString&) {
            bench.pane->ReleaseAll();
            return true;
        };
        bench.Search();
        QCOMPARE(bench.Found(), QStringList("a.prt"));
        bench.access.answers.matches = [&](const QString&) {
            bench.pane->SetDocument({.path = "/x/pin.tfmprt"});
            return true;
        };
        bench.Search();
        QCOMPARE(bench.Found(), QStringList("a.prt"));
    }

    // As the tree hands it over again with every click on its row.
    void TheSameDocumentAgainStopsNothing() {
        SearchBench bench;
        for (const char* name : {"a.prt", "b.prt"})
            bench.File(name);
        bench.pane->SetDocument({.path = "/x/pin.tfmprt"});
        bench.LookIn()->setText(bench.root);
        bench.access.answers.matches = [&](const QString&) {
            bench.pane->SetDocument({.path = "/x/pin.tfmprt"});
            return true;
        };
        bench.Search();
        QCOMPARE(bench.Found(), QStringList({"a.prt", "b.prt"}));
    }

    void AnEvaluationThatRaisesIsNoMatch() {
        SearchBench bench;
        for (const char* name : {"a.prt", "b.prt", "c.prt"})
            bench.File(name);
        bench.access.answers.matches = [&](const QString& path) {
            if (path.endsWith("b.prt"))
                throw DocumentError("broken");
            return true;
        };
        bench.Search();
        QCOMPARE(bench.Found(), QStringList({"a.prt", "c.prt"}));
        QCOMPARE(bench.status.caption, sprintf(gStrings[293], {"2"}));
    }

    void ThePaneMayGoAwayDuringASearch() {
        SearchBench bench;
        for (const char* name : {"a.prt", "b.prt"})
            bench.File(name);
        bench.access.answers.matches = [&](const QString&) {
            QTimer::singleShot(0, bench.pane.get(), [&] { bench.pane.reset(); });
            return true;
        };
        bench.Add("Title", kContains, "x");
        bench.LookIn()->setText(bench.root);
        QMetaObject::invokeMethod(bench.Start(), "click");
        QVERIFY(!bench.pane);
        QVERIFY(!ShowsWaitPointer());
    }

    void AnUnknownListLeavesThePointerAndTheButton() {
        SearchBench bench;
        bench.Add("Title", kContains, "x");
        bench.LookIn()->setText(" no such list");
        bench.Click("srcStart");
        QVERIFY(ShowsWaitPointer());
        QCOMPARE(bench.Start()->text(), gStrings[270]);
        QVERIFY(bench.LookIn()->isEnabled());
    }

    void NamedListsAreExpanded() {
        SearchBench bench;
        bench.File("one/a.prt");
        bench.File("two/b.prt");
        const auto key = SettingsKey::Open(SettingsKey::Hive::CurrentUser, kExtReferencesKey);
        key->SetText("Mine TDB-Key", bench.root + "/one;" + bench.root + "/two");
        QTest::mousePress(bench.Button("wuDrop1"), Qt::LeftButton);
        auto* drop = bench.Child<QListView>("List1");
        QVERIFY(drop->isVisible());
        bench.Add("Title", kContains, "x");
        QVERIFY(!bench.Start()->isEnabled());
        Q_EMIT drop->clicked(drop->model()->index(0, 0));
        QCOMPARE(bench.LookIn()->text(), QString(" Mine"));
        QVERIFY(bench.Start()->isEnabled());
        bench.Search();
        QCOMPARE(bench.Found(), QStringList({"one/a.prt", "two/b.prt"}));
        key->Delete("Mine TDB-Key");
    }

    void FoldersAreBrowsedForButNeverTestedOrDropped() {
        SearchBench bench;
        bench.LookIn()->setText("/no/such/folder");
        bench.LookIn()->setFocus();
        bench.Value()->setFocus();
        QCOMPARE(bench.LookIn()->text(), QString("/no/such/folder"));
        bench.dialogs.ExpectBrowseFolder("/w");
        bench.Click("srcBrowser");
        QCOMPARE(bench.LookIn()->text(), QString("/no/such/folder;/w"));
        QCOMPARE(bench.dialogs.LastTitle(), sprintf(gStrings[262], {gStrings[90]}));
        QVERIFY(!bench.LookIn()->acceptDrops());
    }

    void InShortFormAFolderNamedTwiceIsListedTwice() {
        SearchBench bench;
        bench.File("a.prt");
        bench.LookIn()->setText(bench.root + ';' + bench.root + '/');
        bench.Search();
        QCOMPARE(bench.Results()->List().Count(), 1);
        Q_EMIT bench.Results()->HeaderClicked(0);
        bench.Search();
        QCOMPARE(bench.Results()->List().Count(), 2);
        QCOMPARE(bench.status.caption, sprintf(gStrings[293], {"2"}));
    }

    void TheHeaderTogglesTheFormOfThePaths() {
        SearchBench bench;
        const QString path = bench.File("a.prt");
        bench.Search();
        const CellList& list = bench.Results()->List();
        QCOMPARE(list.Headers()[0].text, gStrings[28]);
        Q_EMIT bench.Results()->HeaderClicked(1);
        QCOMPARE(list.At(0).cells[0].text, path);
        Q_EMIT bench.Results()->HeaderClicked(0);
        QCOMPARE(list.At(0).cells[0].text, QString("a.prt"));
        QCOMPARE(list.Headers()[0].text, gStrings[27]);
        QCOMPARE(list.Headers()[0].tag, QString("S"));
        Q_EMIT bench.Results()->HeaderClicked(0);
        QCOMPARE(list.At(0).cells[0].text, path);
    }

    void TheMenuOpensTheSelectedDocument() {
        SearchBench bench;
        FakeOutside outside;
        bench.File("a.prt");
        auto* open = bench.Child<QAction>("mnopen");
        Q_EMIT bench.Results()->MenuRequested(QPoint());
        QVERIFY(!open->isEnabled() && !bench.Child<QAction>("mnexport")->isEnabled());
        bench.Search();
        Q_EMIT bench.Results()->MenuRequested(QPoint());
        QVERIFY(open->isEnabled() && bench.Child<QAction>("mnexport")->isEnabled());
        bench.Child<QMenu>("mnlist")->hide();
        open->trigger();  // no row is selected
        QCOMPARE(outside.asked.count("Tessacad.Application"), 0);
        bench.Results()->SelectRow(0);
        open->trigger();
        QCOMPARE(outside.asked.count("Tessacad.Application"), 1);
        Q_EMIT bench.Results()->Activated(0);  // a double click does nothing
        QCOMPARE(outside.asked.count("Tessacad.Application"), 1);
    }

    void TheListIsExported() {
        SearchBench bench;
        FakeSpreadsheet sheet;
        bench.File("a.prt");
        bench.File("b.prt");
        bench.Search();
        bench.Child<QAction>("mnexport")->trigger();
        QCOMPARE(sheet.shown[1][0], bench.root + "/a.prt");
        QCOMPARE(bench.status.caption,
                 sprintf(gStrings[41], {QString::number(sheet.shown.size() - 1)}));
        QCOMPARE(bench.Child<QLabel>("srcProgress")->text(), QString("/docs/list.xlsx"));
        sheet.fails = true;
        bench.dialogs.Expect("*", Dialogs::Icon::None);
        bench.Child<QAction>("mnexport")->trigger();
        QCOMPARE(bench.status.caption, gStrings[42]);
    }

    void ThePaneMayGoAwayBehindTheBoxOfAFailedExport() {
        SearchBench bench;
        bench.File("a.prt");
        bench.Search();
        FakeSpreadsheet spreadsheet;
        spreadsheet.meanwhile = [&] { bench.pane.reset(); };
        QAction* mnexport = bench.pane->findChild<QAction*>("mnexport");
        QVERIFY(mnexport);
        QMetaObject::invokeMethod(mnexport, "trigger");
        QVERIFY(!bench.pane);
    }

    void WithoutALibraryASearchEndsEmpty() {
        SearchBench bench;
        bench.File("a.prt");
        DocumentAccess* former = std::exchange(gSeams.documents, nullptr);
        bench.Search();
        gSeams.documents = former;
        QCOMPARE(bench.status.caption, sprintf(gStrings[293], {"0"}));
        QVERIFY(!ShowsWaitPointer());
    }

    void TheShellHandsThePaneItsDocument() {
        ShellBench bench;
        bench.Open();
        bench.shell.SetCurrentFunction("SEARCH");
        auto* pane = bench.Child<srcControl>("srcControl");
        QVERIFY(pane->isVisible());
        QCOMPARE(pane->partfilename(), bench.top);
        QCOMPARE(bench.Child<QLineEdit>("srcLookin")->text(), bench.library.Folder() + '/');
    }

    void TheRealLibraryFindsDocumentsByTheirProperties() {
        LoadResources();
        TestLibrary library;
        TestDialogs dialogs;
        const auto make = [&](const QString& name, const QString& title, double weight) {
            auto document = docmodel::DocumentBuilder::New(library.Path(name));
            document.SetTitle(title);
            document.SetCustomProperty("Weight", weight);
            document.Save();
        };
        make("a.tfmprt", "Gear wheel", 2.5);
        make("b.tfmprt", "Gear shaft", 7);
        make("c.tfmasm", "Housing", 1);
        library.MakeBroken("broken.tfmprt");
        srcControl pane;
        FakeStatusLine status;
        pane.SetStatusBarControl(&status);
        CellList& rules = pane.findChild<CellListView*>("searchlist")->List();
        rules.Append(MakeRule("", gStrings[161], gStrings[298], "GEAR", kContains));
        rules.Append(MakeRule("", "weight", "<", "5", kLess));
        pane.Putpartfilename(library.Path("a.tfmprt"));
        pane.findChild<QPushButton*>("srcStart")->click();
        const CellList& found = pane.findChild<CellListView*>("srcResultlist")->List();
        QCOMPARE(found.Count(), 1);
        QCOMPARE(found.At(0).tag, library.Path("a.tfmprt"));
        rules.Append(MakeRule(gStrings[279], gStrings[347], gStrings[296], "C", kIsExactly));
        pane.findChild<QPushButton*>("srcStart")->click();
        QCOMPARE(found.Count(), 2);
        QCOMPARE(found.At(1).tag, library.Path("c.tfmasm"));
        QVERIFY(
            pane.findChild<QLabel*>("srcProgress")->text().contains(sprintf(gStrings[378], {"4"})));
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestSrcControl)
#include "tst_srccontrol.moc"
