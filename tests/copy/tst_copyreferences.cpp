// The second half of a copy: the references of the copies and of the parents, and what is asked
// meanwhile.

#include <unistd.h>

#include <QTest>

#include "tests/copy/groupdesk.h"
#include "tests/support/failingaccess.h"
#include "tests/support/filelockholder.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

using Answer = Dialogs::Answer;
using Desk = GroupDesk;

}  // namespace

class TestCopyReferences : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aParentThatIsUpdatedUsesTheCopy() {
        Desk desk;
        const QString bolt = desk.library.Make("bolt.tfmprt");
        const QString whole =
            desk.library.Make("whole.tfmasm", {{desk.top}, {bolt}, {desk.top, 4}});
        desk.FindParents();
        QCOMPARE(desk.parents.Count(), 2);
        QVERIFY(desk.Check() == CheckOutcome::Refused);  // nobody says Yes to the folder "sub"
        const CopyResult result = desk.Run();
        QCOMPARE(desk.Holds(whole), QString("new/x_top.tfmasm bolt.tfmprt new/x_top.tfmasm"));
        QCOMPARE(result.copied, 3);  // the parent is no copy
        for (int row = 0; row < 2; ++row)
            QCOMPARE(desk.parents.At(row).cells[kParentHolder].foreColor, kColorBlue);
        QVERIFY(desk.dialogs.boxes.isEmpty());
    }

    void onlyTheReferenceOfTheRowIsRewritten() {
        Desk desk;
        const QString whole = desk.library.Make("whole.tfmasm", {{desk.top}, {desk.top}});
        desk.FindParents();
        GoToNextState(desk.parents, 0);  // left alone
        desk.Run();
        QCOMPARE(desk.Holds(whole), QString("top.tfmasm new/x_top.tfmasm"));
    }

    void aDrawingIsCopiedAndItsCopyUsesTheCopy() {
        Desk desk;
        const QString drawing = desk.library.Make("top.tfmdrw", {{desk.top}});
        const QByteArray before = BytesOf(drawing);
        SetReadOnly(drawing);
        desk.FindParents();
        GoToNextState(desk.parents, 0);  // read-only: to be copied
        QVERIFY(QDir().mkpath(desk.folder + "/sub"));
        QVERIFY(desk.Check() == CheckOutcome::Ok);
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 4);
        QCOMPARE(BytesOf(drawing), before);
        QCOMPARE(desk.Holds(desk.Copy("x_top.tfmdrw")), QString("new/x_top.tfmasm"));
        QVERIFY(!IsReadOnlyFile(desk.Copy("x_top.tfmdrw")));
        QCOMPARE(desk.parents.At(0).cells[kParentTarget].foreColor, kColorBlue);
        QCOMPARE(desk.parents.At(0).cells[kParentHolder].foreColor, kColorBlue);
        AllowWriting(drawing);
    }

    void aParentWhoseTableChangedSinceTheSearchIsNotWritten() {
        Desk desk;
        const QString bolt = desk.library.Make("bolt.tfmprt");
        const QString whole = desk.library.Make("whole.tfmasm", {{desk.top}});
        desk.FindParents();
        desk.library.Make("whole.tfmasm", {{bolt}, {desk.top}});
        desk.Run();
        QCOMPARE(desk.Holds(whole), QString("bolt.tfmprt top.tfmasm"));
        QCOMPARE(desk.parents.At(0).cells[kParentHolder].foreColor, kColorRed);
        QVERIFY(desk.parents.At(0).cells[kParentHolder].toolTip.startsWith(
            gStrings[353].section("%s", 0, 0)));
        QCOMPARE(desk.dialogs.boxes.size(), 1);
    }

    void aParentsReferenceToAnotherDocumentOfTheNameStays() {
        Desk desk;
        const QString other = desk.library.Make("other/top.tfmasm");
        const QString whole = desk.library.Make("whole.tfmasm", {{other}});
        desk.FindParents();
        QCOMPARE(desk.parents.Count(), 1);
        const QByteArray before = BytesOf(whole);
        desk.Run();
        QCOMPARE(BytesOf(whole), before);
    }

    void noAtAQuestionLeavesTheRestAndTheRunIsDone() {
        Desk desk;
        const QString whole = desk.library.Make("whole.tfmasm", {{desk.top}});
        desk.FindParents();
        desk.dialogs.answer = [](const QString&) { return Answer::No; };
        const FailingAccess failing([&](const char* operation, const QString& path) {
            if (QByteArray(operation) == "Save" && path == desk.Copy("x_left.tfmasm"))
                throw DocumentError("no save");
        });
        const CopyResult result = desk.Run();
        QVERIFY(result.end == CopyResult::End::Done);
        QCOMPARE(result.copied, 3);
        QCOMPARE(desk.dialogs.boxes, QStringList(Format(Text::NotSaved, desk.Copy("x_left.tfmasm"),
                                                        QString("no save"))));
        QCOMPARE(desk.Target(0).foreColor, kColorRed);
        QCOMPARE(desk.Target(0).toolTip, Format(Text::NotUpdatedTip, QString("no save")));
        QCOMPARE(desk.Holds(desk.Copy("sub/x_right.tfmasm")), QString("pin.tfmprt"));
        QCOMPARE(desk.Holds(whole), QString("top.tfmasm"));
    }

    void yesAtAQuestionGoesOnWithTheOthers() {
        Desk desk;
        const QString whole = desk.library.Make("whole.tfmasm", {{desk.top}});
        desk.FindParents();
        const FailingAccess failing([&](const char* operation, const QString& path) {
            if (QByteArray(operation) == "Open" && path == desk.Copy("x_left.tfmasm"))
                throw DocumentError("no open");
        });
        desk.Run();
        QCOMPARE(desk.dialogs.boxes,
                 QStringList(Format(Text::NotOpened, desk.left, QString("no open"))));
        QCOMPARE(desk.Target(0).foreColor, kColorBlue);  // its copy is there
        QCOMPARE(desk.Target(0).toolTip, Format(Text::NotUpdatedTip, QString("no open")));
        QCOMPARE(desk.Holds(desk.Copy("sub/x_right.tfmasm")), QString("new/x_pin.tfmprt"));
        QCOMPARE(desk.Holds(whole), QString("new/x_top.tfmasm"));
    }

    void aCopyOfTheDocumentThatCanNotBeOpenedAsksToo() {
        Desk desk;
        bool armed = false;
        desk.yield = [&] { return armed = true; };
        const FailingAccess failing([&](const char* operation, const QString& path) {
            if (armed && QByteArray(operation) == "Open" && path == desk.target)
                throw DocumentError("no open");
        });
        desk.dialogs.answer = [](const QString&) { return Answer::No; };
        const CopyResult result = desk.Run();
        QCOMPARE(desk.dialogs.boxes, QStringList(Format(Text::CopyNotOpened, desk.target)));
        QCOMPARE(desk.dialogs.details, QStringList("no open"));
        QVERIFY(result.end == CopyResult::End::Done);
        QCOMPARE(BytesOf(desk.Copy("x_left.tfmasm")), BytesOf(desk.left));
    }

    void aSaveOfTheDocumentsCopyThatFailsIsRedAndAsks() {
        Desk desk;
        const FailingAccess failing([&](const char* operation, const QString& path) {
            if (QByteArray(operation) == "Save" && path == desk.target)
                throw DocumentError("no save");
        });
        const CopyResult result = desk.Run();
        QCOMPARE(result.target.foreColor, kColorRed);
        QCOMPARE(result.target.toolTip, Format(Text::NotUpdatedTip, QString("no save")));
        QCOMPARE(desk.dialogs.boxes,
                 QStringList(Format(Text::NotSaved, desk.target, QString("no save"))));
        QCOMPARE(desk.Holds(desk.Copy("x_left.tfmasm")), QString("new/x_pin.tfmprt"));
    }

    void eachCopyIsRewrittenOnceHoweverManyRowsItHas() {
        Desk desk;
        QHash<QString, int> opened;
        const FailingAccess counting([&](const char* operation, const QString& path) {
            opened[path] += QByteArray(operation) == "Open";
        });
        desk.Run();
        QCOMPARE(opened.value(desk.Copy("x_pin.tfmprt")), 1);
        QCOMPARE(opened.value(desk.pin), 1);
        QCOMPARE(opened.value(desk.Copy("x_left.tfmasm")), 1);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestCopyReferences)
#include "tst_copyreferences.moc"
