// What is asked and refused before a copy begins.

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

class TestCopyChecks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aCopyNeedsATarget() {
        Desk desk;
        desk.target.clear();
        QVERIFY(desk.Check() == CheckOutcome::RefusedTarget);
        QCOMPARE(desk.dialogs.boxes, QStringList(gStrings[57]));
    }

    void aTargetOfAnotherTypeIsRefused() {
        Desk desk;
        desk.target = desk.Copy("x.tfmprt");
        QVERIFY(desk.Check() == CheckOutcome::RefusedTargetType);
        QCOMPARE(desk.dialogs.boxes, QStringList(gStrings[58]));
    }

    void aMissingDocumentMayBeReplaced() {
        Desk desk;
        const QString lost = desk.library.Path("lost.tfmprt");
        desk.List(desk.library.Make("top.tfmasm", {{lost}, {desk.pin}}));
        const QString other = desk.library.Make("other.tfmprt");
        desk.answers = {0};
        desk.dialogs.file = other;
        QVERIFY(desk.Check() == CheckOutcome::Ok);
        QCOMPARE(desk.questions, QStringList(Format(Text::SourceMissing, lost)));
        QCOMPARE(desk.lastButtons,
                 (QStringList{gStrings[125], gStrings[124], gStrings[123], gStrings[89]}));
        QCOMPARE(ReadCopyRow(desk.copies.At(0)).source, other);
        QVERIFY(!ReadCopyRow(desk.copies.At(0)).missing);
        QCOMPARE(desk.Run().copied, 2);
        QCOMPARE(desk.Holds(desk.target), QString("new/x_lost.tfmprt new/x_pin.tfmprt"));
        QCOMPARE(BytesOf(desk.Copy("x_lost.tfmprt")), BytesOf(other));
    }

    void aMissingDocumentMayBeReplacedInShortFormToo() {
        Desk desk;
        const QString lost = desk.library.Path("lost.tfmprt");
        desk.List(desk.library.Make("top.tfmasm", {{lost}}));
        ToggleCopyColumn(desk.copies, kCopySource);
        desk.answers = {0};
        desk.dialogs.file = desk.pin;
        QVERIFY(desk.Check() == CheckOutcome::Ok);
        QCOMPARE(desk.replaced.value(lost), desk.pin);
        desk.Run();
        QCOMPARE(desk.Holds(desk.target), QString("new/x_lost.tfmprt"));
    }

    void aCancelledChoiceRefusesTheCopyWithoutAMessage() {
        Desk desk;
        desk.List(desk.library.Make("top.tfmasm", {{desk.library.Path("lost.tfmprt")}}));
        desk.answers = {0};
        QVERIFY(desk.Check() == CheckOutcome::Refused);
        QVERIFY(desk.dialogs.boxes.isEmpty());
        QVERIFY(ReadCopyRow(desk.copies.At(0)).missing);
    }

    void aMissingDocumentMayBeSkipped() {
        Desk desk;
        const QString lost = desk.library.Path("lost.tfmprt");
        desk.List(desk.library.Make("top.tfmasm", {{lost}, {lost}, {desk.pin}}));
        desk.answers = {1, 1};
        QVERIFY(desk.Check() == CheckOutcome::Ok);
        QCOMPARE(desk.questions.size(), 2);
        QCOMPARE(desk.Run().copied, 1);
        QCOMPARE(desk.Target(0).toolTip, gStrings[65]);
        QCOMPARE(desk.Holds(desk.target), QString("lost.tfmprt lost.tfmprt new/x_pin.tfmprt"));
        desk.questions.clear();
        desk.answers = {2};
        QVERIFY(desk.Check() == CheckOutcome::Ok);
        QCOMPARE(desk.questions.size(), 1);  // none of the others is asked about
    }

    void anyOtherAnswerRefusesTheCopy_data() {
        QTest::addColumn<int>("answer");
        QTest::newRow("cancel") << 3;
        QTest::newRow("abandoned") << -1;
    }

    void anyOtherAnswerRefusesTheCopy() {
        QFETCH(int, answer);
        Desk desk;
        desk.List(desk.library.Make("top.tfmasm", {{desk.library.Path("lost.tfmprt")}}));
        desk.Untick(0);  // asked about all the same
        desk.answers = {answer};
        QVERIFY(desk.Check() == CheckOutcome::Refused);
    }

    void aReadOnlyTargetFolderIsRefused() {
        Desk desk;
        SetReadOnly(desk.folder);
        QVERIFY(desk.Check() == CheckOutcome::RefusedTarget);
        QCOMPARE(desk.dialogs.boxes, QStringList(Format(Text::TargetFolderReadOnly, desk.folder)));
        AllowWriting(desk.folder);
    }

    void aReadOnlyFolderOfARowIsRefusedTickedOrNot() {
        Desk desk;
        QVERIFY(QDir().mkpath(desk.folder + "/sub"));
        SetReadOnly(desk.folder + "/sub");
        desk.Untick(1);
        QVERIFY(desk.Check() == CheckOutcome::Refused);
        QCOMPARE(desk.dialogs.boxes,
                 QStringList(Format(Text::TargetFolderReadOnly, desk.folder + "/sub")));
        AllowWriting(desk.folder + "/sub");
    }

    void aMissingFolderIsMadeOnYes() {
        Desk desk;
        desk.answers = {0};
        QVERIFY(desk.Check() == CheckOutcome::Ok);
        QCOMPARE(desk.questions,
                 QStringList(Format(Text::CreateFolderQuestion, desk.folder + "/sub")));
        QCOMPARE(desk.lastButtons, (QStringList{gStrings[125], gStrings[351], gStrings[124]}));
        QVERIFY(QFileInfo(desk.folder + "/sub").isDir());
    }

    void yesToAllAsksNoMore() {
        Desk desk;
        desk.SetTarget(0, desk.folder + "/a/left.tfmasm");
        desk.SetTarget(2, desk.folder + "/b/c/pin.tfmprt");
        desk.answers = {1};
        QVERIFY(desk.Check() == CheckOutcome::Ok);
        QCOMPARE(desk.questions.size(), 1);
        desk.Run();
        QVERIFY(QFile::exists(desk.folder + "/b/c/pin.tfmprt"));  // made when it is copied
    }

    void noRefusesTheCopy() {
        Desk desk;
        desk.answers = {2};
        QVERIFY(desk.Check() == CheckOutcome::Refused);
        QVERIFY(!QFileInfo::exists(desk.folder + "/sub"));
    }

    void aParentInUseIsRefusedAndUnticked() {
        Desk desk;
        const QString whole = desk.library.Make("whole.tfmasm", {{desk.top}});
        desk.FindParents();
        const FileLockHolder holder(whole);
        QVERIFY(desk.Check() == CheckOutcome::Refused);
        QCOMPARE(desk.dialogs.boxes, QStringList(Format(Text::AccessInUse, whole)));
        QVERIFY(!desk.parents.At(0).ticked);
        QCOMPARE(desk.parents.At(0).cells[kParentState].text, QString());
        QCOMPARE(desk.parents.At(0).cells[kParentHolder].foreColor, kColorRed);
    }

    void aParentThatBecameReadOnlyOrIsGoneIsRefused() {
        Desk desk;
        const QString whole = desk.library.Make("whole.tfmasm", {{desk.top}});
        desk.FindParents();
        SetReadOnly(whole);
        QVERIFY(desk.Check() == CheckOutcome::Refused);
        QCOMPARE(desk.dialogs.boxes, QStringList(Format(Text::AccessReadOnly, whole)));
        AllowWriting(whole);
        GoToNextState(desk.parents, 0);
        QVERIFY(desk.parents.At(0).ticked);
        QVERIFY(QFile::remove(whole));
        QVERIFY(desk.Check() == CheckOutcome::Refused);
        QCOMPARE(desk.dialogs.boxes.last(), Format(Text::AccessRefused, whole));
    }

    void theFolderOfACopiedParentIsLookedAtAndNotItsTargets() {
        Desk desk;
        const QString drawing = desk.library.Make("drawings/top.tfmdrw", {{desk.top}});
        desk.FindParents();
        QVERIFY(QDir().mkpath(desk.folder + "/sub"));
        SetReadOnly(desk.library.Path("drawings"));
        QVERIFY(desk.Check() == CheckOutcome::Refused);
        QCOMPARE(desk.dialogs.boxes,
                 QStringList(Format(Text::TargetFolderReadOnly, desk.library.Path("drawings"))));
        AllowWriting(desk.library.Path("drawings"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestCopyChecks)
#include "tst_copychecks.moc"
