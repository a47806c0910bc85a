// A copy from the pane: its run, its boxes, and what may happen behind them.

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

class TestCopyRefRun : public QObject {
    Q_OBJECT

private Q_SLOTS:
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
};

DOCBENCH_TEST_MAIN(QApplication, TestCopyRefRun)
#include "tst_copyrefrun.moc"
