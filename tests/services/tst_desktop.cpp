#include <QAbstractButton>
#include <QDesktopServices>
#include <QDir>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include "platform/desktopdialogs.h"
#include "platform/desktopseams.h"
#include "platform/desktopshellexecute.h"
#include "platform/filefilter.h"
#include "tests/services/argumentscript.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"

using namespace docbench;
using Buttons = Dialogs::Buttons;
using Answer = Dialogs::Answer;

class tst_Desktop : public QObject {
    Q_OBJECT

public Q_SLOTS:
    void NoteUrl(const QUrl& url) { opened_ = url; }

private Q_SLOTS:
    void FiltersAreThoseOfTheToolkit_data() {
        QTest::addColumn<QStringList>("filters");
        QTest::newRow("") << QStringList();
        QTest::newRow("Parts|*.tfmprt;*.prt|All files|*.*")
            << QStringList({"Parts (*.tfmprt *.TFMPRT *.prt *.PRT)", "All files (*)"});
        QTest::newRow("Parts (*.prt)|*.prt") << QStringList({"Parts (*.prt *.PRT)"});
        QTest::newRow("Parts (2004) (*.1, *.2)|*.1") << QStringList({"Parts (2004) (*.1)"});
        QTest::newRow("Parts|*.prt|") << QStringList({"Parts (*.prt *.PRT)"});
        QTest::newRow("Nothing||Parts|*.1") << QStringList({"Parts (*.1)"});
    }

    void FiltersAreThoseOfTheToolkit() {
        QTEST(NameFiltersOf(QString::fromUtf8(QTest::currentDataTag())), "filters");
    }

    void ABoxGivesTheAnswerOfItsButton_data() {
        QTest::addColumn<Buttons>("buttons");
        QTest::addColumn<int>("pressed");  // none: the box is closed by the key for that
        QTest::addColumn<Answer>("answer");
        const int closed = QMessageBox::NoButton;
        QTest::newRow("ok") << Buttons::Ok << int(QMessageBox::Ok) << Answer::Ok;
        QTest::newRow("ok closed") << Buttons::Ok << closed << Answer::Ok;
        QTest::newRow("cancel") << Buttons::OkCancel << int(QMessageBox::Cancel) << Answer::Cancel;
        QTest::newRow("cancel closed") << Buttons::OkCancel << closed << Answer::Cancel;
        QTest::newRow("yes") << Buttons::YesNo << int(QMessageBox::Yes) << Answer::Yes;
        QTest::newRow("no closed") << Buttons::YesNo << closed << Answer::No;
        QTest::newRow("no of three") << Buttons::YesNoCancel << int(QMessageBox::No) << Answer::No;
        QTest::newRow("three closed") << Buttons::YesNoCancel << closed << Answer::Cancel;
    }

    void ABoxGivesTheAnswerOfItsButton() {
        QFETCH(const Buttons, buttons);
        QFETCH(const int, pressed);
        QTimer::singleShot(0, this, [pressed] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box);
            QCOMPARE(box->text(), QString("<b>a</b>"));
            QCOMPARE(box->textFormat(), Qt::PlainText);
            QCOMPARE(box->windowTitle(), QString("Title"));
            if (pressed == QMessageBox::NoButton)
                QTest::keyClick(box, Qt::Key_Escape);
            else
                QTest::mouseClick(box->button(QMessageBox::StandardButton(pressed)),
                                  Qt::LeftButton);
        });
        DesktopDialogs dialogs;
        const Answer answer =
            dialogs.Box("<b>a</b>", Dialogs::Icon::Exclamation, "Title", buttons, {});
        QTEST(answer, "answer");
    }

    void AProgramIsStartedWithItsParametersInItsFolder() {
        const QTemporaryDir folder;
        const QString program = folder.filePath("program");
        WriteArgumentScript(program);
        DesktopShellExecute shell;
        QVERIFY(shell.Execute("Open", program, "one \"two three\"", "/", 1));
        QCOMPARE(ArgumentsOf(program), QStringList({"one", "two three", "/"}));
    }

    void ZeroStandsForNoParametersAndNoFolder() {
        const QTemporaryDir folder;
        const QString program = folder.filePath("program");
        WriteArgumentScript(program);
        DesktopShellExecute shell;
        QVERIFY(shell.Execute("Open", program, "0", "0", 1));
        QCOMPARE(ArgumentsOf(program), QStringList(QDir::currentPath()));
    }

    void AFileIsOpenedByTheDesktop() {
        const QTemporaryDir folder;
        const QString file = folder.filePath("a list #1.xlsx");
        QVERIFY(QFile(file).open(QIODevice::WriteOnly));
        QDesktopServices::setUrlHandler("file", this, "NoteUrl");
        QDesktopServices::setUrlHandler("http", this, "NoteUrl");
        DesktopShellExecute shell;
        QVERIFY(shell.Execute("Open", file, "0", "0", 1));
        QCOMPARE(opened_.toLocalFile(), file);
        QVERIFY(shell.Execute("Open", "http://s/a.html", "0", "0", 1));
        QCOMPARE(opened_, QUrl("http://s/a.html"));
        QDesktopServices::unsetUrlHandler("file");
        QDesktopServices::unsetUrlHandler("http");
    }

    void TheBrowserOfAnotherSystemIsTheDesktopsOwn() {
        QDesktopServices::setUrlHandler("https", this, "NoteUrl");
        DesktopShellExecute shell;
        QVERIFY(shell.Execute("Open", "iexplore.exe", "https://vendor.example/", "0", 1));
        QCOMPARE(opened_, QUrl("https://vendor.example/"));
        QDesktopServices::unsetUrlHandler("https");
    }

    void WhatIsNotThereCantBeOpened() {
        DesktopShellExecute shell;
        QVERIFY(!shell.Execute("Open", "/nowhere/a.xlsx", "0", "0", 1));
        QVERIFY(!shell.StartProgram("/nowhere/program", {"a"}));
    }

    void TheSeamsAreThereForTheLifeOfTheirOwner() {
        const TestDialogs before;
        {
            const DesktopSeams seams;
            QVERIFY(gSeams.dialogs && gSeams.dialogs != &before);
            QVERIFY(gSeams.help && gSeams.outside && gSeams.shell);
        }
        QCOMPARE(gSeams.dialogs, static_cast<const Dialogs*>(&before));
        QVERIFY(!gSeams.help && !gSeams.outside && !gSeams.shell);
    }

private:
    QUrl opened_;
};

DOCBENCH_TEST_MAIN(QApplication, tst_Desktop)

#include "tst_desktop.moc"
