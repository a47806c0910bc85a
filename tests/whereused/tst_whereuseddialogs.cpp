#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTest>

#include "services/language.h"
#include "services/settingsstore.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"
#include "whereused/filemissingdialog.h"
#include "whereused/searchdialog.h"

using namespace docbench;

namespace {

template <typename T>
T* Child(QWidget& form, const char* name) {
    T* child = form.findChild<T*>(QLatin1String(name));
    if (!child)
        qFatal("no %s", name);
    return child;
}

}  // namespace

class TestWhereUsedDialogs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        const TestLibrary library;
        const TestDialogs dialogs;
        LoadResources();
    }

    void aFreshScopeFormHasAllTicks() {
        const TestLibrary library;
        SearchScope scope;
        SearchDialog form(scope);
        for (const char* name : {"wuSubfloder", "wuFindRef", "wuFindInCtx", "wifindMirrored"})
            QVERIFY(Child<QCheckBox>(form, name)->isChecked());
        QVERIFY(!Child<QPushButton>(form, "OKButton")->isEnabled());
        QCOMPARE(form.windowTitle(), gStrings[80]);
        QCOMPARE(Child<QGroupBox>(form, "Frame1")->title(), gStrings[83]);
        QCOMPARE(Child<QPushButton>(form, "Command2")->text(), gStrings[266]);
    }

    void okTakesOverWhatTheFormSays() {
        const TestLibrary library;
        SearchScope scope;
        SearchDialog form(scope);
        form.init("/w", false, false, true, false);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QVERIFY(Child<QPushButton>(form, "OKButton")->isEnabled());
        Child<QLineEdit>(form, "wuLookin")->setText("/w;/x");
        Child<QCheckBox>(form, "wuSubfloder")->click();
        QTest::mouseClick(Child<QPushButton>(form, "OKButton"), Qt::LeftButton);
        QVERIFY(!form.isVisible());
        QCOMPARE(scope.Lookin, QString("/w;/x"));
        QVERIFY(scope.subfolders && !scope.inContext && scope.references && !scope.mirrored);
    }

    void cancelAndEscapeKeepWhatWasThere() {
        const TestLibrary library;
        SearchScope scope;
        for (const bool escape : {false, true}) {
            SearchDialog form(scope);
            form.init("/w", false, true, true, true);
            form.show();
            QVERIFY(QTest::qWaitForWindowActive(&form));
            if (escape)
                QTest::keyClick(&form, Qt::Key_Escape);
            else
                QTest::mouseClick(Child<QPushButton>(form, "CancelButton"), Qt::LeftButton);
            QVERIFY(!form.isVisible());
            QCOMPARE(scope.Lookin, QString());
            QVERIFY(scope.subfolders);
        }
    }

    void theScopeFormNeedsAPlaceAndAKind() {
        const TestLibrary library;
        SearchScope scope;
        SearchDialog form(scope);
        form.init("/w", true, false, true, false);
        Child<QCheckBox>(form, "wuFindRef")->click();
        QVERIFY(Child<QCheckBox>(form, "wifindMirrored")->isChecked());
        Child<QLineEdit>(form, "wuLookin")->clear();
        QVERIFY(!Child<QPushButton>(form, "OKButton")->isEnabled());
    }

    void theScopeFormsListIsNotRefilled() {
        const TestLibrary library;
        const auto key = SettingsKey::Open(SettingsKey::Hive::CurrentUser, kExtReferencesKey);
        QVERIFY(key->SetText("One TDB-Key", "/1"));
        SearchScope scope;
        SearchDialog form(scope);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QVERIFY(key->SetText("Two TDB-Key", "/2"));
        auto* list = Child<QListView>(form, "List1");
        QTest::mouseClick(Child<QPushButton>(form, "wuDrop1"), Qt::LeftButton);
        QVERIFY(!list->isHidden());
        QCOMPARE(list->model()->rowCount(), 1);
        QTest::mouseClick(&form, Qt::LeftButton, {}, QPoint(5, form.height() - 5));
        QVERIFY(list->isHidden());
        QTest::mouseClick(Child<QPushButton>(form, "wuDrop1"), Qt::LeftButton);
        QTest::keyClick(list, Qt::Key_Space);
        QCOMPARE(Child<QLineEdit>(form, "wuLookin")->text(), QString(" One"));
        QVERIFY(Child<QPushButton>(form, "OKButton")->isEnabled());
        key->Delete("One TDB-Key");
        key->Delete("Two TDB-Key");
    }

    void theScopeFormAcceptsFoldersThatAreNotThere() {
        const TestLibrary library;
        const TestDialogs dialogs;
        SearchScope scope;
        SearchDialog form(scope);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        Child<QLineEdit>(form, "wuLookin")->setFocus();
        Child<QLineEdit>(form, "wuLookin")->setText("/nowhere");
        Child<QCheckBox>(form, "wuSubfloder")->setFocus();
        QCOMPARE(Child<QLineEdit>(form, "wuLookin")->text(), QString("/nowhere"));
    }

    void aButtonOfTheQuestionGivesItsIndex() {
        FileMissingDialog form;
        form.init("Where is it?");
        QCOMPARE(Child<QLabel>(form, "Label1")->text(), QString("Where is it?"));
        QCOMPARE(form.Result, -1);
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QTest::mouseClick(Child<QPushButton>(form, "Command1_2"), Qt::LeftButton);
        QCOMPARE(form.Result, 2);
        QVERIFY(!form.isVisible());
    }

    void escapeLeavesTheResult() {
        FileMissingDialog form;
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QTest::keyClick(&form, Qt::Key_Escape);
        QVERIFY(form.Result != -1);  // without init
        form.init("?");
        form.show();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QTest::keyClick(&form, Qt::Key_Escape);
        QCOMPARE(form.Result, -1);
    }

    void theQuestionsButtonsHaveTheirCaptions() {
        FileMissingDialog form;
        const int captions[] = {125, 124, 123, 89};
        for (int i = 0; i < 4; ++i)
            QCOMPARE(Child<QPushButton>(form, qPrintable(QString("Command1_%1").arg(i)))->text(),
                     gStrings[captions[i]]);
        QCOMPARE(form.windowTitle(), gStrings[122]);
    }

    void fiveButtonsAreTooMany() {
        FileMissingDialog form;
        const auto shown = [&] {
            int count = 0;
            for (int i = 0; i < 4; ++i)
                count += !Child<QPushButton>(form, qPrintable(QString("Command1_%1").arg(i)))
                              ->isHidden();
            return count;
        };
        form.SetNumberOfButton(5);
        QCOMPARE(shown(), 4);
        form.SetNumberOfButton(3);
        QCOMPARE(shown(), 3);
        form.SetButton(3, "out of reach");
        QCOMPARE(Child<QPushButton>(form, "Command1_3")->text(), gStrings[89]);
        form.SetButton(2, "Never");
        QCOMPARE(Child<QPushButton>(form, "Command1_2")->text(), QString("Never"));
        form.SetNumberOfButton(5);
        QCOMPARE(shown(), 3);
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestWhereUsedDialogs)
#include "tst_whereuseddialogs.moc"
