// The editors in the program's window: how they are reached, and what the lock does to them.

#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "docmodel/builder.h"
#include "editors/edittree.h"
#include "frame/maincontrol.h"
#include "panes/celllistview.h"
#include "services/language.h"
#include "shell/usercontrol1.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

struct Bench {
    Bench() {
        pin = library.Make("pin.tfmprt");
        docmodel::DocumentBuilder document = docmodel::DocumentBuilder::Edit(pin);
        document.SetTitle("Pin");
        document.AddConfiguration("A");
        document.AddHyperlink("http://server/");
        document.Save();
        frame.resize(1024, 700);
        frame.show();
        if (!QTest::qWaitForWindowActive(&frame))
            qFatal("no active window");
        frame.Shell().OpenPath(pin);
    }
    template <typename T>
    T* Child(const char* name) {
        T* child = frame.findChild<T*>(QLatin1String(name));
        if (!child)
            qFatal("no %s", name);
        return child;
    }
    void Show(const char* function) { frame.SetCurrentFunction(QLatin1String(function)); }

    TestLibrary library;
    TestDialogs dialogs;
    QString pin;
    Maincontrol frame;
};

}  // namespace

class TestEditorsInFrame : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyEditorShowsTheOpenDocument() {
        Bench bench;
        bench.Show("SUMMARY");
        QVERIFY(bench.Child<QLineEdit>("Summary(0)")->isVisible());
        QCOMPARE(bench.Child<QLineEdit>("Summary(0)")->text(), QString("Pin"));
        bench.Show("REF");
        QCOMPARE(
            bench.Child<QWidget>("editReference")->findChild<CellListView*>("lv")->List().Count(),
            1);
        bench.Show("EDIT");
        QVERIFY(bench.Child<EditTree>("tvwconfig")->isVisible());
        QCOMPARE(bench.Child<EditTree>("tvwconfig")->Tree().Count(), 2);
        bench.Show("LINK");
        QCOMPARE(bench.Child<EditTree>("tvwhlink")->Tree().Count(), 2);
    }

    void f2EditsTheRowBeforeItRenamesTheDocument() {
        Bench bench;
        bench.Show("EDIT");
        auto* tree = bench.Child<EditTree>("tvwconfig");
        tree->setFocus();
        tree->setCurrentIndex(tree->Tree().IndexOf(2));
        QTest::keyClick(tree, Qt::Key_F2);
        QVERIFY(tree->findChild<QLineEdit*>("labelEdit"));
        QCOMPARE(bench.frame.Shell().CurrentFunction(), QString("EDIT"));
        QTest::keyClick(tree->findChild<QLineEdit*>("labelEdit"), Qt::Key_Escape);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QTest::keyClick(tree, Qt::Key_Delete);
        QTest::keyClick(tree, Qt::Key_F2);  // a deleted one is not edited, and its mark stays
        QVERIFY(!tree->findChild<QLineEdit*>("labelEdit"));
        QCOMPARE(bench.frame.Shell().CurrentFunction(), QString("EDIT"));
        QCOMPARE(tree->Tree().Nodes().At(2).image, QString("picConfigDel"));
        tree->setCurrentIndex(tree->Tree().IndexOf(1));  // the document
        QTest::keyClick(tree, Qt::Key_F2);
        QCOMPARE(bench.frame.Shell().CurrentFunction(), QString("RENAME"));
    }

    void aLockDisablesTheTreesAndShowsItsUser() {
        Bench bench;
        bench.Show("SUMMARY");
        auto* lockedBy = bench.Child<QLabel>("labLockedBy");
        QCOMPARE(lockedBy->text(), gStrings[341]);
        bench.Show("LOCK");
        QCOMPARE(lockedBy->text(), bench.library.LockedBy(bench.pin));
        QVERIFY(!lockedBy->text().isEmpty());
        bench.Show("EDIT");
        QVERIFY(!bench.Child<EditTree>("tvwconfig")->isEnabled());
        bench.Show("LINK");
        QVERIFY(!bench.Child<EditTree>("tvwhlink")->isEnabled());
        bench.Show("UNLOCK");
        QVERIFY(bench.Child<EditTree>("tvwconfig")->isEnabled());
        QCOMPARE(lockedBy->text(), gStrings[341]);
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestEditorsInFrame)
#include "tst_editorsinframe.moc"
