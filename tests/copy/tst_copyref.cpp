// The copy pane, through its widgets.

#include <QMenu>

#include "tests/copy/copybench.h"
#include "tests/copy/copyproject.h"
#include "tests/support/failingaccess.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/fakespreadsheet.h"
#include "tests/support/testenvironment.h"
#include "whereused/filemissingdialog.h"
#include "whereused/searchdialog.h"

using namespace docbench;

namespace {

const char* const kInputs[] = {"apply",  "browse", "Findnow",    "searchrule", "targetPath",
                               "toFile", "prefix", "BrowseFile", "children",   "whereused"};

}  // namespace

class TestCopyRef : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewPaneIsLockedAndCaptioned() {
        CopyBench bench;
        for (const char* name : kInputs)
            QVERIFY2(!bench.IsEnabled(name), name);
        QVERIFY(!bench.IsEnabled("reset"));
        const std::pair<const char*, int> captions[] = {
            {"cmdReplace", 1}, {"BrowseFile", 266}, {"selectall", 4}, {"browse", 10},
            {"apply", 15},     {"reset", 16},       {"Findnow", 270}, {"searchrule", 329}};
        for (const auto& [name, text] : captions)
            QCOMPARE(bench.Button(name)->text(), gStrings[size_t(text)]);
        QCOMPARE(bench.Child<QCheckBox>("children")->text(), gStrings[3]);
        QCOMPARE(bench.Child<QCheckBox>("whereused")->text(), gStrings[9]);
        QCOMPARE(bench.Child<QRadioButton>("OptionPrefix_0")->text(), gStrings[12]);
        QCOMPARE(bench.Child<QRadioButton>("OptionPrefix_1")->text(), gStrings[11]);
        QCOMPARE(bench.Child<QLabel>("LabelFolder")->text(), gStrings[13] + " :");
        QCOMPARE(bench.Child<QLabel>("Re")->text(), gStrings[5] + " :");
        QCOMPARE(bench.Child<QLabel>("Label1")->text(), gStrings[14] + " :");
        QCOMPARE(bench.List(1).Headers()[kParentHolder].text, gStrings[31]);
    }

    void aDocumentFillsTheForm() {
        CopyBench bench;
        bench.pane->SetPartName("top", bench.top, bench.top);
        QCOMPARE(bench.Line("oldname")->text(), bench.top);
        QCOMPARE(bench.Line("targetPath")->text(), bench.library.Folder());
        QCOMPARE(bench.Line("prefix")->text(), gStrings[33]);
        QCOMPARE(bench.Line("toFile")->text(), bench.library.Path(gStrings[33] + "top.tfmasm"));
        for (const char* name : kInputs)
            QVERIFY2(bench.IsEnabled(name), name);
        for (const char* name : {"reset", "cmdReplace", "selectall"})
            QVERIFY2(!bench.IsEnabled(name), name);
        QCOMPARE(bench.status.caption, Format(Text::CopyRows, 0, 0));
        QVERIFY(!bench.IsShown("lv_0") && !bench.IsShown("Frame2") && !bench.IsShown("prefix"));
    }

    void anEmptyPathBlanksThePane() {
        CopyBench bench;
        bench.Load();
        bench.pane->SetPartName("", "", "");
        for (const char* name : kInputs)
            QVERIFY2(!bench.IsEnabled(name), name);
        for (const char* name : {"cmdReplace", "selectall"})
            QVERIFY2(!bench.IsEnabled(name), name);
        QCOMPARE(bench.Line("toFile")->text(), QString());
        QCOMPARE(bench.Line("oldname")->text(), QString());
        QCOMPARE(bench.List(0).Count(), 0);
    }

    void aDocumentThatCanNotBeOpenedIsTold() {
        CopyBench bench;
        const QString broken = bench.library.MakeBroken("broken.tfmasm");
        bench.dialogs.Expect("*");
        bench.pane->SetPartName("broken", broken, broken);
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(!bench.IsEnabled("apply"));
    }

    void theReferencesAreListedOnRequest() {
        CopyBench bench;
        bench.pane->SetPartName("top", bench.top, bench.top);
        bench.Check("children");
        QCOMPARE(bench.List(0).Count(), 4);
        QCOMPARE(bench.status.caption, Format(Text::CopyRows, 4, 0));
        for (const char* name : {"lv_0", "prefix", "targetPath", "browse", "Frame3", "Picture1",
                                 "cmdReplace", "selectall", "LabelFolder"})
            QVERIFY2(bench.IsShown(name), name);
        QVERIFY(bench.IsEnabled("cmdReplace") && bench.IsEnabled("selectall"));
        QCOMPARE(bench.Target(1).tag, bench.library.Path("sub/" + gStrings[33] + "right.tfmasm"));
        bench.Check("children", false);
        QCOMPARE(bench.List(0).Count(), 0);
        QVERIFY(!bench.IsShown("lv_0") && !bench.IsShown("prefix"));
        QVERIFY(!bench.IsEnabled("cmdReplace") && bench.IsEnabled("apply"));
    }

    void theTargetControlsStayWhileParentsAreShown() {
        CopyBench bench;
        bench.Load();
        bench.Check("whereused");
        QVERIFY(bench.IsShown("Frame2"));
        bench.Check("children", false);
        QVERIFY(bench.IsShown("prefix") && !bench.IsEnabled("selectall"));
        bench.Check("whereused", false);
        QVERIFY(!bench.IsShown("prefix") && !bench.IsShown("Frame2"));
    }

    void aDocumentWithoutReferencesCanBeCopiedAlone() {
        CopyBench bench;
        bench.pane->SetPartName("pin", bench.pin, bench.pin);
        bench.Check("children");
        QCOMPARE(bench.List(0).Count(), 0);
        QVERIFY(!bench.IsEnabled("selectall") && !bench.IsEnabled("cmdReplace"));
        bench.Line("targetPath")->setText(bench.folder);
        bench.Click("apply");
        QVERIFY(QFile::exists(bench.folder + '/' + gStrings[33] + "pin.tfmprt"));
        QCOMPARE(bench.status.caption, Format(Text::CopyDone, 0, 0));
    }

    void selectAllClearsAndTicksInTurn() {
        CopyBench bench;
        bench.Load();
        bench.Click("selectall");
        QCOMPARE(bench.Button("selectall")->text(), gStrings[49]);
        for (const CellRow& row : bench.List(0).Rows())
            QVERIFY(!row.ticked);
        bench.Click("selectall");
        QCOMPARE(bench.Button("selectall")->text(), gStrings[4]);
        for (const CellRow& row : bench.List(0).Rows())
            QVERIFY(row.ticked);
    }

    void folderPrefixAndSuffixChangeAllTargets() {
        CopyBench bench;
        bench.Load();
        QCOMPARE(bench.Line("toFile")->text(), bench.folder + "/x_top.tfmasm");
        QCOMPARE(bench.Target(1).tag, bench.folder + "/sub/x_right.tfmasm");
        bench.Child<QRadioButton>("OptionPrefix_1")->click();
        QCOMPARE(bench.Line("toFile")->text(), bench.folder + "/topx_.tfmasm");
        QCOMPARE(bench.Target(1).tag, bench.folder + "/sub/rightx_.tfmasm");
        bench.Line("targetPath")->clear();  // leaves them
        QCOMPARE(bench.Target(1).tag, bench.folder + "/sub/rightx_.tfmasm");
        QVERIFY(bench.Line("toFile")->text().startsWith(bench.folder));
    }

    void withoutAPrefixTheNamesStayAndNothingStopsTheSameFolder() {
        CopyBench bench;
        bench.Load();
        bench.Line("prefix")->clear();
        QCOMPARE(bench.Target(0).tag, bench.folder + "/left.tfmasm");
        bench.Line("targetPath")->setText(bench.library.Folder());
        QCOMPARE(bench.Target(0).tag, bench.left);
        QCOMPARE(bench.Line("toFile")->text(), bench.top);
        QVERIFY(bench.IsEnabled("apply"));
    }

    void inShortFormOnlyAFolderGivesWholePathsBack() {
        CopyBench bench;
        bench.Load();
        Q_EMIT bench.View(0)->HeaderClicked(kCopyTarget);
        bench.Line("prefix")->setText("y_");
        QCOMPARE(bench.Target(0).tag, QString("y_left.tfmasm"));
        bench.Key("targetPath", Qt::Key_Return);
        QCOMPARE(bench.Target(0).tag, bench.folder + "/y_left.tfmasm");
    }

    void enterInTheFolderComputesAndEscapePutsTheFirstOneBack() {
        CopyBench bench;
        bench.Load();
        bench.ClickTick(0, 0);
        bench.ClickTick(0, 0);
        bench.Button("apply")->setEnabled(false);
        bench.Key("targetPath", Qt::Key_Return);
        QVERIFY(bench.IsEnabled("apply"));
        bench.Key("targetPath", Qt::Key_Escape);
        QCOMPARE(bench.Line("targetPath")->text(), bench.library.Folder());
        QVERIFY(!bench.IsEnabled("apply"));
        QCOMPARE(bench.Target(0).tag, bench.library.Path("x_left.tfmasm"));
    }

    void escapeInTheTargetPutsTheTextInFrontWhateverTheOption() {
        CopyBench bench;
        bench.Load();
        bench.Child<QRadioButton>("OptionPrefix_1")->click();
        bench.Line("toFile")->setText("/elsewhere/a.tfmasm");
        bench.Key("toFile", Qt::Key_Escape);
        QCOMPARE(bench.Line("toFile")->text(), bench.folder + "/x_top.tfmasm");
        QVERIFY(!bench.IsEnabled("apply"));
        bench.Key("toFile", Qt::Key_Return);
        QVERIFY(bench.IsEnabled("apply"));
    }

    void anEmptyTargetDisablesApplyUntilTheFieldIsLeft() {
        CopyBench bench;
        bench.Load();
        bench.Line("toFile")->setFocus();
        bench.Line("toFile")->clear();
        QVERIFY(!bench.IsEnabled("apply"));
        bench.Line("prefix")->setFocus();
        QVERIFY(bench.IsEnabled("apply"));
        bench.dialogs.Expect(gStrings[57]);
        bench.Click("apply");
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(bench.Line("toFile")->hasFocus());
    }

    void aTargetOfAnotherTypeIsRefusedAndSelected() {
        CopyBench bench;
        bench.Load();
        bench.Line("toFile")->setText(bench.folder + "/x.tfmprt");
        bench.dialogs.Expect(gStrings[58]);
        bench.Click("apply");
        QCOMPARE(bench.Line("toFile")->selectedText(), bench.folder + "/x.tfmprt");
        QVERIFY(bench.IsEnabled("apply"));
    }

    void browsingGivesTheTargetOfTheDocument() {
        CopyBench bench;
        bench.Load();
        bench.dialogs.ExpectSaveFile(bench.folder + "/other.tfmasm");
        bench.Click("BrowseFile");
        QCOMPARE(bench.dialogs.LastFilter(), gStrings[36]);
        QCOMPARE(bench.dialogs.LastTitle(), gStrings[37]);
        QCOMPARE(bench.dialogs.LastStart(), bench.library.Path("x_top.tfmasm"));
        QCOMPARE(bench.Line("toFile")->text(), bench.folder + "/other.tfmasm");
        QVERIFY(bench.Line("toFile")->hasFocus());
        QCOMPARE(bench.Line("toFile")->cursorPosition(), int(bench.Line("toFile")->text().size()));
        bench.dialogs.ExpectSaveFile({});  // cancelled
        bench.Click("BrowseFile");
        QCOMPARE(bench.Line("toFile")->text(), bench.folder + "/other.tfmasm");
    }

    void browsingGivesTheFolder() {
        CopyBench bench;
        bench.Load();
        bench.dialogs.ExpectBrowseFolder("/elsewhere");
        bench.Click("browse");
        QCOMPARE(bench.dialogs.LastTitle(), Format(Text::ChooseFolder, gStrings[34]));
        QCOMPARE(bench.Target(0).tag, QString("/elsewhere/x_left.tfmasm"));
        bench.dialogs.ExpectBrowseFolder({});
        bench.Click("browse");
        QCOMPARE(bench.Line("targetPath")->text(), QString("/elsewhere"));
    }

    void aDoubleClickGivesOneRowItsTarget() {
        CopyBench bench;
        bench.Load();
        bench.dialogs.ExpectSaveFile("/elsewhere/base.tfmasm");
        Q_EMIT bench.View(0)->Activated(0);
        QCOMPARE(bench.dialogs.LastFilter(), gStrings[36]);
        QCOMPARE(bench.dialogs.LastStart(), bench.folder + "/x_left.tfmasm");
        QCOMPARE(bench.Target(0).tag, QString("/elsewhere/base.tfmasm"));
        QCOMPARE(bench.Target(0).text, QString("/elsewhere/base.tfmasm"));
        QCOMPARE(bench.Target(0).toolTip, QString("/elsewhere/base.tfmasm"));
        // The name is kept by what follows, the folder is not, and the prefix comes in front again.
        bench.Line("prefix")->setText("z_");
        QCOMPARE(bench.Target(0).tag, bench.folder + "/z_base.tfmasm");
        bench.dialogs.ExpectSaveFile({});
        Q_EMIT bench.View(0)->Activated(1);
        QCOMPARE(bench.Target(1).tag, bench.folder + "/sub/z_right.tfmasm");
    }

    void aDoubleClickOnAParentThatIsNotCopiedDoesNothing() {
        CopyBench bench;
        bench.Load();
        bench.Click("Findnow");
        QCOMPARE(bench.List(1).Count(), 2);
        const int drawing = ReadParentRow(bench.List(1).At(0)).parent == bench.drawing ? 0 : 1;
        Q_EMIT bench.View(1)->Activated(1 - drawing);
        bench.dialogs.ExpectSaveFile("/elsewhere/d.tfmdrw");
        Q_EMIT bench.View(1)->Activated(drawing);
        QCOMPARE(bench.dialogs.LastFilter(), gStrings[39]);
        QCOMPARE(ReadParentRow(bench.List(1).At(drawing)).target, QString("/elsewhere/d.tfmdrw"));
        bench.Line("targetPath")->setText(bench.library.Folder());
        QCOMPARE(ReadParentRow(bench.List(1).At(drawing)).target,
                 bench.library.Path("x_top.tfmdrw"));
    }

    void textsAreReplacedInTheTargets() {
        CopyBench bench;
        bench.Load();
        bench.InForm<editDialog>([&](editDialog* form) {
            const auto expectEnabled = [&](bool enabled) {
                for (const char* name : {"findNext", "ReplaceButton", "replaceallButton"})
                    QCOMPARE(form->findChild<QPushButton*>(name)->isEnabled(), enabled);
            };
            expectEnabled(false);
            form->findChild<QLineEdit*>("FindtextBox")->setText("x_");
            expectEnabled(true);
            form->findChild<QLineEdit*>("FindtextBox")->clear();
            expectEnabled(false);
            form->findChild<QLineEdit*>("FindtextBox")->setText("x_");
            form->findChild<QLineEdit*>("replaceTextBox")->setText("4711-");
            form->findChild<QPushButton*>("findNext")->click();
            QCOMPARE(bench.View(0)->SelectedRow(), 0);
            form->findChild<QPushButton*>("ReplaceButton")->click();
            QCOMPARE(bench.View(0)->SelectedRow(), 1);
            form->findChild<QPushButton*>("replaceallButton")->click();
            form->findChild<QLineEdit*>("FindtextBox")->setText("LEFT");
            for (const bool matches : {true, false}) {  // makes no difference
                form->findChild<QCheckBox*>("MatchCase")->setChecked(matches);
                bench.dialogs.Expect(Format(Text::TextNotFound, QString("LEFT")));
                form->findChild<QPushButton*>("findNext")->click();
            }
            QTest::keyClick(form, Qt::Key_Escape);
        });
        bench.Click("cmdReplace");
        QCOMPARE(bench.Target(0).tag, bench.folder + "/4711-left.tfmasm");
        QCOMPARE(bench.Target(3).tag, bench.folder + "/4711-pin.tfmprt");
    }

    void theFormForReplacingGoesAwayWithThePane() {
        CopyBench bench;
        bench.Load();
        bench.InForm<editDialog>([&](editDialog*) { bench.pane->hide(); });
        bench.Click("cmdReplace");  // returns
    }

    void prefixOrSuffixWaitsForTheEndOfASearch() {
        CopyBench bench;
        bench.Load();
        bool isSeen = false;
        QTimer::singleShot(0, bench.pane, [&] {
            isSeen = true;
            QVERIFY(!bench.IsEnabled("OptionPrefix_0") && !bench.IsEnabled("OptionPrefix_1"));
        });
        bench.Click("Findnow");
        QVERIFY(isSeen);
        bench.Child<QRadioButton>("OptionPrefix_1")->click();
        QCOMPARE(bench.Target(0).tag, bench.folder + "/leftx_.tfmasm");
    }

    // Parents.

    void theSearchListsTheUsersAndFreesTheButtons() {
        CopyBench bench;
        bench.Load();
        bench.Check("whereused");
        bench.Click("Findnow");
        QCOMPARE(bench.List(1).Count(), 2);
        QCOMPARE(bench.status.caption, Format(Text::HoldersFound, 2));
        QCOMPARE(bench.Button("Findnow")->text(), gStrings[17]);
        QVERIFY(bench.IsEnabled("apply") && bench.IsEnabled("reset"));
        bench.Click("reset");
        QCOMPARE(bench.List(1).Count(), 0);
        QVERIFY(!bench.IsEnabled("reset"));
    }

    void afterASearchApplyNeedsATargetFolder() {
        CopyBench bench;
        bench.Load();
        bench.Line("targetPath")->clear();
        bench.Click("Findnow");
        QVERIFY(!bench.IsEnabled("apply"));
    }

    void aSecondPressEndsTheSearchAtItsNextFolder() {
        CopyBench bench;
        bench.Load();
        bench.library.Make("sub/user.tfmasm", {{bench.top}});
        int yields = 0;
        QTimer::singleShot(0, bench.pane, [&] {
            ++yields;
            QCOMPARE(bench.Button("Findnow")->text(), gStrings[53]);
            QVERIFY(bench.IsEnabled("Findnow") && !bench.IsEnabled("apply"));
            bench.Click("Findnow");
            QCOMPARE(bench.Button("Findnow")->text(), gStrings[17]);
        });
        bench.Click("Findnow");
        QCOMPARE(yields, 1);
        QCOMPARE(bench.List(1).Count(), 0);
        QCOMPARE(bench.Button("Findnow")->text(), gStrings[17]);
        QVERIFY(bench.IsEnabled("apply"));
    }

    void aSearchThatIsStoppedKeepsItsRows() {
        CopyBench bench;
        bench.Load();
        bench.library.Make("sub/user.tfmasm", {{bench.top}});
        bool isStopped = false;
        QTimer::singleShot(0, bench.pane, [&] {      // before the first folder
            QTimer::singleShot(0, bench.pane, [&] {  // and before the next one
                bench.Click("Findnow");
                isStopped = true;
            });
        });
        bench.Click("Findnow");
        QVERIFY(isStopped);
        QCOMPARE(bench.List(1).Count(), 2);
        for (const CellRow& row : bench.List(1).Rows())
            QVERIFY(ReadParentRow(row).parent == bench.whole ||
                    ReadParentRow(row).parent == bench.drawing);
    }

    void aSearchEndsWithThePaneOrForAnotherDocument() {
        CopyBench bench;
        bench.Load();
        QTimer::singleShot(0, bench.pane,
                           [&] { bench.pane->SetPartName("pin", bench.pin, bench.pin); });
        bench.Click("Findnow");
        QCOMPARE(bench.List(1).Count(), 0);
        QCOMPARE(bench.Line("oldname")->text(), bench.pin);
        QTimer::singleShot(0, bench.pane, [&] { delete bench.pane; });
        bench.Button("Findnow")->click();
        QVERIFY(!bench.pane);
    }

    void theScopeIsTheDocumentsFolderUntilItIsChosen() {
        CopyBench bench;
        bench.Load();
        bench.InForm<SearchDialog>([&](SearchDialog* form) {
            QCOMPARE(form->findChild<QLineEdit*>("wuLookin")->text(), bench.library.Folder());
            form->reject();
        });
        bench.Click("searchrule");
        bench.InForm<SearchDialog>([&](SearchDialog* form) {
            form->findChild<QLineEdit*>("wuLookin")->setText(bench.library.Path("sub"));
            form->findChild<QPushButton*>("OKButton")->click();
        });
        bench.Click("searchrule");
        bench.Click("Findnow");
        QCOMPARE(bench.List(1).Count(), 0);
    }

    void theBoxOfAParentGoesThroughItsStates() {
        CopyBench bench;
        bench.Load();
        bench.Click("Findnow");
        const int drawing = ReadParentRow(bench.List(1).At(0)).parent == bench.drawing ? 0 : 1;
        bench.ClickTick(1, drawing);
        QCOMPARE(bench.List(1).At(drawing).cells[kParentState].text, gStrings[19]);
        QVERIFY(bench.List(1).At(drawing).ticked);
        QCOMPARE(bench.View(1)->SelectedRow(), drawing);
        bench.ClickTick(1, drawing);
        QVERIFY(!bench.List(1).At(drawing).ticked);
        bench.ClickTick(1, drawing);
        QVERIFY(IsCopied(bench.List(1).At(drawing)));
    }

    // Menus.

    void aDocumentIsOpenedUnlessItIsMissing() {
        CopyBench bench;
        FakeOutside outside;
        FakeShellExecute shell;
        const auto opened = [&] { return int(outside.asked.count("Tessacad.Application")); };
        QVERIFY(QFile::remove(bench.pin));
        bench.Load();
        auto* open = bench.Child<QMenu>("mnlistmenu")->findChild<QAction*>("mnopen");
        open->trigger();  // nothing is selected
        bench.View(0)->SelectRow(2);
        bench.dialogs.Expect(gStrings[48]);
        open->trigger();
        QVERIFY(bench.dialogs.AllCame() && opened() == 0);
        bench.View(0)->SelectRow(0);
        open->trigger();
        QCOMPARE(opened(), 1);
        bench.Click("Findnow");
        auto* openParent = bench.Child<QMenu>("mnlistmenu2")->findChild<QAction*>("mn2open");
        bench.View(1)->SelectRow(0);
        openParent->trigger();
        QCOMPARE(opened(), 2);
        RefuseParent(bench.List(1), 0);
        openParent->trigger();
        QCOMPARE(opened(), 2);
    }

    void theListsAreExported() {
        CopyBench bench;
        FakeSpreadsheet spreadsheet;
        auto* copies = bench.Child<QMenu>("mnlistmenu")->findChild<QAction*>("mnexport");
        auto* parents = bench.Child<QMenu>("mnlistmenu2")->findChild<QAction*>("mn2export");
        bench.dialogs.Expect(gStrings[43]);
        copies->trigger();
        QVERIFY(spreadsheet.shown.empty());
        bench.Load();
        copies->trigger();
        QCOMPARE(bench.status.caption, Format(Text::ExportDone, 5));
        TextTable table;
        bench.pane->PackCopyBoxSafeArray(table);
        QCOMPARE(spreadsheet.shown, table);
        bench.Click("Findnow");
        parents->trigger();
        bench.pane->PackWhereUsedSafeArray(table);
        QCOMPARE(spreadsheet.shown, table);
        QCOMPARE(bench.status.caption, Format(Text::ExportDone, 3));
    }

    void thePaneFitsASmallWindow() {
        CopyBench bench;
        bench.Load();
        bench.Check("whereused");
        QVERIFY2(bench.pane->minimumSizeHint().width() <= 680,
                 qPrintable(QString::number(bench.pane->minimumSizeHint().width())));
        QVERIFY2(bench.pane->minimumSizeHint().height() <= 560,
                 qPrintable(QString::number(bench.pane->minimumSizeHint().height())));
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestCopyRef)
#include "tst_copyref.moc"
