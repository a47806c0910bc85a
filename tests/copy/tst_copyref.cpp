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

void Choose(FileMissingDialog* form, int button) {
    form->findChild<QPushButton*>(QString("Command1_%1").arg(button))->click();
}

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

    void theCopyRunsAndLocksThePane() {
        CopyBench bench;
        bench.Load();
        bench.Click("Findnow");
        const QSignalSpy updated(bench.pane, &Pane::FileUpdated);
        bench.Click("apply");
        QCOMPARE(updated.count(), 1);
        QCOMPARE(updated[0][0].toString(), QString());
        QCOMPARE(bench.status.caption, Format(Text::CopyDone, 4, 0));
        QCOMPARE(bench.FirstPathIn(bench.folder + "/x_top.tfmasm"),
                 bench.folder + "/x_left.tfmasm");
        QCOMPARE(bench.FirstPathIn(bench.folder + "/x_top.tfmdrw"), bench.folder + "/x_top.tfmasm");
        QCOMPARE(bench.FirstPathIn(bench.drawing), bench.top);
        QCOMPARE(bench.FirstPathIn(bench.whole), bench.folder + "/x_top.tfmasm");
        for (const char* name : kInputs)
            QVERIFY2(!bench.IsEnabled(name), name);
        for (const char* name : {"reset", "cmdReplace", "selectall"})
            QVERIFY2(!bench.IsEnabled(name), name);
        QCOMPARE(bench.Target(0).foreColor, kColorBlue);
        bench.Child<QRadioButton>("OptionPrefix_1")->click();
        Q_EMIT bench.View(0)->Activated(0);  // no dialog comes
        QCOMPARE(bench.Target(0).tag, bench.folder + "/x_left.tfmasm");
        bench.pane->SetPartName("top", bench.top, bench.top);
        QVERIFY(bench.IsEnabled("apply"));
        QCOMPARE(bench.List(0).Count(), 0);
    }

    void cancelAtTheFirstQuestionFreesThePane() {
        CopyBench bench;
        bench.Load();
        QVERIFY(QFile::copy(bench.top, bench.folder + "/x_top.tfmasm"));
        const QSignalSpy updated(bench.pane, &Pane::FileUpdated);
        bench.dialogs.Expect(Format(Text::OverwriteQuestion, bench.folder + "/x_top.tfmasm"),
                             Dialogs::Icon::Question, Dialogs::Answer::Cancel);
        bench.Click("apply");
        QCOMPARE(bench.dialogs.LastTitle(), gStrings[370]);
        QVERIFY(bench.dialogs.LastButtons() == Dialogs::Buttons::YesNoCancel);
        QCOMPARE(bench.status.caption, gStrings[62]);
        QVERIFY(bench.IsEnabled("apply") && bench.IsEnabled("cmdReplace"));
        QCOMPARE(updated.count(), 0);
    }

    void noWhileReferencesAreWrittenStillEndsTheRun() {
        CopyBench bench;
        bench.Load();
        AnsweringDialogs dialogs;
        dialogs.answer = [](const QString&) { return Dialogs::Answer::No; };
        const FailingAccess failing([](const char* operation, const QString&) {
            if (operation == QLatin1String("Save"))
                throw DocumentError("no room");
        });
        bench.Click("apply");
        QCOMPARE(dialogs.boxes.size(), 1);
        QCOMPARE(bench.status.caption, Format(Text::CopyDone, 3, 0));
    }

    void theProgressNamesTheDocumentAndCounts() {
        CopyBench bench;
        bench.Load();
        QString progress;
        AnsweringDialogs dialogs;
        bench.library.Make("new/x_top.tfmasm");
        dialogs.answer = [&](const QString&) {
            progress = bench.Child<QLabel>("lblProgress")->text();
            return Dialogs::Answer::No;
        };
        bench.Click("apply");
        QVERIFY2(progress.contains("x_top.tfmasm"), qPrintable(progress));
        QVERIFY2(progress.startsWith("1 / "), qPrintable(progress));
        QCOMPARE(bench.Child<QLabel>("lblProgress")->text(), QString());
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

    void thePaneMayGoAwayBehindEachOfItsBoxes_data() {
        QTest::addColumn<QString>("which");
        for (const char* which : {"missing source", "target that is there", "reference not written",
                                  "row's target", "folder", "scope", "export", "find and replace"})
            QTest::newRow(which) << which;
    }
    void thePaneMayGoAwayBehindEachOfItsBoxes() {
        QFETCH(QString, which);
        QWidget host;  // which gives up the pane, and stays itself
        CopyBench bench;
        bench.pane->setParent(&host);
        host.show();
        bench.pane->show();
        bench.Load();
        AnsweringDialogs dialogs;
        dialogs.answer = [&](const QString&) {
            delete bench.pane;
            return Dialogs::Answer::Yes;
        };
        dialogs.onFile = [&] { delete bench.pane; };
        const auto click = [&](const char* name) {
            QMetaObject::invokeMethod(bench.Button(name), "click");
        };
        if (which == "missing source") {
            QFile::remove(bench.pin);
            bench.pane->SetPartName("top", bench.top, bench.top);
            bench.Check("children", false);
            bench.Check("children");
            QTimer::singleShot(0, qApp, [&] {
                auto* form = qobject_cast<FileMissingDialog*>(QApplication::activeModalWidget());
                delete bench.pane;
                Choose(form, 0);
            });
            click("apply");
        } else if (which == "target that is there") {
            bench.library.Make("new/x_left.tfmasm");
            click("apply");
        } else if (which == "reference not written") {
            const FailingAccess failing([](const char* operation, const QString&) {
                if (operation == QLatin1String("Save"))
                    throw DocumentError("no room");
            });
            click("apply");
        } else if (which == "row's target") {
            Q_EMIT bench.View(0)->Activated(0);
        } else if (which == "folder") {
            click("browse");
        } else if (which == "scope" || which == "find and replace") {
            QTimer::singleShot(0, qApp, [&] {
                QPointer<QWidget> form = QApplication::activeModalWidget();
                delete bench.pane;
                if (form)
                    qobject_cast<QDialog*>(form)->accept();
            });
            click(which == "scope" ? "searchrule" : "cmdReplace");
        } else {
            FakeSpreadsheet spreadsheet;
            spreadsheet.fails = true;
            spreadsheet.meanwhile = [&] { delete bench.pane; };
            QMetaObject::invokeMethod(bench.pane->findChild<QAction*>("mnexport"), "trigger");
        }
        QVERIFY(!bench.pane);
    }

    void cancelInTheMiddleFreesThePaneButForTheListsButtons() {
        CopyBench bench;
        bench.Load();
        QVERIFY(QFile::copy(bench.pin, bench.folder + "/x_pin.tfmprt"));
        const QSignalSpy updated(bench.pane, &Pane::FileUpdated);
        bench.dialogs.Expect(Format(Text::OverwriteQuestion, bench.folder + "/x_pin.tfmprt"),
                             Dialogs::Icon::Question, Dialogs::Answer::Cancel);
        bench.Click("apply");
        QCOMPARE(bench.status.caption, gStrings[62]);
        QVERIFY(bench.IsEnabled("apply"));
        QVERIFY(!bench.IsEnabled("cmdReplace") && !bench.IsEnabled("selectall"));
        QCOMPARE(bench.Target(0).foreColor, kColorBlue);
        QCOMPARE(updated.count(), 0);
    }

    void theRowThatIsAskedAboutIsInView_data() {
        QTest::addColumn<bool>("isCopied");
        QTest::newRow("the copy ends with it") << false;
        QTest::newRow("its references can't be written") << true;
    }
    void theRowThatIsAskedAboutIsInView() {
        QFETCH(bool, isCopied);
        CopyBench bench;
        QList<TestLibrary::Component> groups;
        constexpr int kRows = 60;
        for (int i = 0; i < kRows; ++i)
            groups.append({bench.library.Make(QString("group%1.tfmasm").arg(i), {{bench.pin}})});
        bench.top = bench.library.Make("top.tfmasm", groups);
        bench.Load();
        int row = bench.List(0).Count() - 1;
        while (ReadCopyRow(bench.List(0).At(row)).source != bench.library.Path("group59.tfmasm"))
            --row;
        const QString target = bench.Target(row).tag;
        const auto isInView = [&] {
            const QRect rect = bench.View(0)->visualRect(bench.List(0).index(row, 0));
            return bench.View(0)->viewport()->rect().contains(rect.center());
        };
        QVERIFY(!isInView());
        if (isCopied) {
            const FailingAccess failing([&](const char* operation, const QString& path) {
                if (operation == QLatin1String("Save") && path == target)
                    throw DocumentError("no room");
            });
            AnsweringDialogs dialogs;
            bool wasInView = false;
            dialogs.answer = [&](const QString&) {
                wasInView = isInView();
                return Dialogs::Answer::No;
            };
            bench.Click("apply");
            QCOMPARE(dialogs.boxes.size(), 1);
            QVERIFY(wasInView);
        } else {
            bench.library.Make("new/x_group59.tfmasm");
            bench.dialogs.Expect(Format(Text::OverwriteQuestion, target), Dialogs::Icon::Question,
                                 Dialogs::Answer::Cancel);
            bench.Click("apply");
            QVERIFY(isInView());
        }
    }

    void aFolderThatCanNotBeMadeIsToldAndFreesThePane() {
        CopyBench bench;
        bench.Load();
        QFile file(bench.library.Path("file"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        bench.Line("toFile")->setText(bench.library.Path("file/x_top.tfmasm"));
        const QString message = Format(Text::FolderNotMade, bench.library.Path("file"));
        bench.dialogs.Expect(message);
        bench.Click("apply");
        QCOMPARE(bench.status.caption, message);
        QVERIFY(bench.IsEnabled("apply") && bench.IsEnabled("selectall"));
    }

    void theQuestionsWithSeveralButtonsAreAnsweredInTheirForm() {
        CopyBench bench;
        QVERIFY(QFile::remove(bench.pin));
        bench.Load();
        QCOMPARE(bench.status.caption, Format(Text::CopyRows, 4, 2));
        QDir(bench.folder).removeRecursively();
        bench.InForm<FileMissingDialog>([&](FileMissingDialog* form) {
            QCOMPARE(form->findChild<QLabel*>("Label1")->text(),
                     Format(Text::SourceMissing, bench.pin));
            bench.InForm<FileMissingDialog>([&](FileMissingDialog* folders) {
                QCOMPARE(folders->findChild<QLabel*>("Label1")->text(),
                         Format(Text::CreateFolderQuestion, bench.folder));
                Choose(folders, 1);  // all
            });
            Choose(form, 2);  // none of the missing ones
        });
        bench.Click("apply");
        QCOMPARE(bench.status.caption, Format(Text::CopyDone, 2, 0));
        QCOMPARE(bench.Target(2).toolTip, gStrings[65]);
    }

    void escapeAtAQuestionRefusesTheCopy() {
        CopyBench bench;
        QVERIFY(QFile::remove(bench.pin));
        bench.Load();
        bench.InForm<FileMissingDialog>(
            [&](FileMissingDialog* form) { QTest::keyClick(form, Qt::Key_Escape); });
        bench.Click("apply");
        QVERIFY(!QFile::exists(bench.folder + "/x_top.tfmasm"));
        QVERIFY(bench.IsEnabled("apply"));
    }

    void theTargetOfTheDocumentTellsHowItWent() {
        CopyBench bench;
        bench.Load();
        bench.Click("apply");
        const QPalette palette = bench.Line("toFile")->palette();
        QVERIFY(palette.color(QPalette::Text).blue() > palette.color(QPalette::Text).red());
        bench.pane->SetPartName("top", bench.top, bench.top);
        QCOMPARE(bench.Line("toFile")->palette().color(QPalette::Active, QPalette::Text),
                 bench.Line("prefix")->palette().color(QPalette::Active, QPalette::Text));
    }

    void aDocumentThatComesDuringTheRunWaitsForItsEnd() {
        CopyBench bench;
        bench.Load();
        QTimer::singleShot(0, bench.pane, [&] {
            bench.pane->SetPartName("pin", bench.pin, bench.pin);
            QCOMPARE(bench.Line("oldname")->text(), bench.top);
        });
        bench.Click("apply");
        QVERIFY(QFile::exists(bench.folder + "/x_pin.tfmprt"));  // it went to its end
        QCOMPARE(bench.Line("oldname")->text(), bench.pin);
        QVERIFY(bench.IsEnabled("apply"));
    }

    void aPaneThatGoesAwayDuringTheRunEndsIt() {
        CopyBench bench;
        bench.Load();
        QTimer::singleShot(0, bench.pane, [&] { delete bench.pane; });
        bench.Button("apply")->click();
        QVERIFY(!bench.pane);
        QVERIFY(!QFile::exists(bench.folder + "/x_pin.tfmprt"));
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
