// The dialog that asks for the password of a web server.

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "platform/desktopdialogs.h"
#include "platform/passworddialog.h"
#include "services/language.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

const QString kServer = QStringLiteral("https://s:443");

struct Bench {
    explicit Bench(const QString& realm = QStringLiteral("docs"), bool refused = false)
        : dialog(kServer, realm, refused, nullptr) {
        dialog.show();
    }
    QLineEdit* User() { return dialog.findChild<QLineEdit*>(QStringLiteral("user")); }
    QLineEdit* Password() { return dialog.findChild<QLineEdit*>(QStringLiteral("password")); }
    QCheckBox* Remember() { return dialog.findChild<QCheckBox*>(QStringLiteral("remember")); }
    QLabel* Question() {
        for (auto* label : dialog.findChildren<QLabel*>())
            if (label->text().contains(kServer))
                return label;
        qFatal("no question");
    }

    PasswordDialog dialog;
};

}  // namespace

class TestPasswordDialog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
        LoadResources();
    }

    void thePasswordIsNotShown() {
        Bench bench;
        QCOMPARE(bench.Password()->echoMode(), QLineEdit::Password);
        QCOMPARE(bench.User()->echoMode(), QLineEdit::Normal);
        QCOMPARE(bench.dialog.windowTitle(), gAppTitle);
    }

    void theAnswerIsWhatWasTyped() {
        Bench bench;
        QTest::keyClicks(bench.User(), QStringLiteral("ann"));
        QTest::keyClicks(bench.Password(), QStringLiteral(" se cret "));
        QTest::keyClick(bench.Password(), Qt::Key_Return);
        QCOMPARE(bench.dialog.result(), int(QDialog::Accepted));
        QCOMPARE(bench.dialog.Answer().user, QStringLiteral("ann"));
        QCOMPARE(bench.dialog.Answer().password, QStringLiteral(" se cret "));
        QVERIFY(!bench.dialog.Answer().remember);
    }

    void theServersWordsAreTakenAsTheyAre() {
        const QString realm = QStringLiteral("<img src='http://elsewhere/'><b>docs</b>");
        Bench bench(realm);
        QCOMPARE(bench.Question()->textFormat(), Qt::PlainText);
        QVERIFY(bench.Question()->text().contains(realm));
    }

    void aRefusalIsTold() {
        QVERIFY(!Bench().Question()->text().contains(QStringLiteral("did not accept")));
        Bench bench(QStringLiteral("docs"), true);
        QVERIFY(bench.Question()->text().contains(QStringLiteral("did not accept")));
        QCOMPARE(bench.Password()->text(), QString());
    }

    void withoutAKeyringNothingIsOfferedToBeKept() {
        Bench bench;
        QVERIFY(!bench.Remember()->isEnabled());
        bench.Remember()->setChecked(true);
        QVERIFY(!bench.dialog.Answer().remember);
    }

    void theTabKeyLeadsFromTheUserToThePassword() {
        Bench bench;
        bench.User()->setFocus();
        QTest::keyClick(bench.dialog.focusWidget(), Qt::Key_Tab);
        QCOMPARE(bench.dialog.focusWidget(), bench.Password());
    }

    void cancellingGivesNoAnswer() {
        DesktopDialogs dialogs;
        QTimer::singleShot(
            0, this, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
        QVERIFY(!dialogs.AskPassword(kServer, QStringLiteral("docs"), false));
    }

    void acceptingGivesTheAnswer() {
        DesktopDialogs dialogs;
        QTimer::singleShot(0, this, [] {
            auto* dialog = QApplication::activeModalWidget();
            dialog->findChild<QLineEdit*>(QStringLiteral("user"))->setText(QStringLiteral("ann"));
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        const auto answer = dialogs.AskPassword(kServer, QStringLiteral("docs"), false);
        QVERIFY(answer);
        QCOMPARE(answer->user, QStringLiteral("ann"));
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestPasswordDialog)
#include "tst_passworddialog.moc"
