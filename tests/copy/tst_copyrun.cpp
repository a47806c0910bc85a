// A copy from its checks to its end: files, references, colours, tool tips and counts.

#include <unistd.h>
#include <QTest>

#include "copy/referencemap.h"
#include "services/filesystem.h"
#include "shell/treewalk.h"
#include "tests/copy/groupdesk.h"
#include "tests/support/failingaccess.h"
#include "tests/support/filelockholder.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

using Answer = Dialogs::Answer;
using Desk = GroupDesk;

QStringList TreeOf(const QString& document) {
    bool locked = false;
    TreeWalk walk(locked);
    walk.WalkDocument(document);
    const CellNodes nodes = walk.TakeNodes();
    QStringList lines;
    for (int i = 1; i <= nodes.Count(); ++i)
        lines.append(QString("%1 %2 %3")
                         .arg(nodes.At(i).parent)
                         .arg(nodes.At(i).text)
                         .arg(nodes.At(i).foreColor));
    return lines;
}

}  // namespace

class TestCopyRun : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theCopiesReferToCopiesAlone() {
        Desk desk;
        const auto before = AllBytes(desk.library.Folder());
        desk.answers = {0};  // the folder "sub"
        QVERIFY(desk.Check() == CheckOutcome::Ok);
        const CopyResult result = desk.Run();
        QVERIFY(result.end == CopyResult::End::Done);
        QCOMPARE(desk.Holds(desk.Copy("x_top.tfmasm")),
                 QString("new/x_left.tfmasm new/sub/x_right.tfmasm new/x_pin.tfmprt"));
        QCOMPARE(desk.Holds(desk.Copy("x_left.tfmasm")), QString("new/x_pin.tfmprt"));
        QCOMPARE(desk.Holds(desk.Copy("sub/x_right.tfmasm")), QString("new/x_pin.tfmprt"));
        for (auto file = before.cbegin(); file != before.cend(); ++file)
            QCOMPARE(BytesOf(file.key()), file.value());
        QCOMPARE(result.target.foreColor, kColorBlue);
        QVERIFY(desk.dialogs.boxes.isEmpty());
    }

    void theTreesOfSourceAndCopyDifferInNamesAlone() {
        Desk desk;
        const QStringList before = TreeOf(desk.top);
        desk.Run();
        const QStringList after = TreeOf(desk.Copy("x_top.tfmasm"));
        QCOMPARE(after.size(), before.size());
        for (qsizetype i = 0; i < after.size(); ++i) {
            QString expected = before[i];  // "DEPTH NAME"
            QCOMPARE(after[i], expected.insert(expected.indexOf(' ') + 1, "x_"));
        }
    }

    void aPartUsedTwiceIsCopiedOnceAndCountedOnce() {
        Desk desk;
        int copies = 0;
        FakeFiles files;
        files.before = [&](const QString& from, const QString&) { copies += from == desk.pin; };
        const CopyResult result = desk.Run();
        QCOMPARE(desk.copies.Count(), 5);  // left, right, pin three times
        QCOMPARE(copies, 1);
        QCOMPARE(result.copied, 3);
        QCOMPARE(result.failed, 0);
        for (int row = 0; row < desk.copies.Count(); ++row)
            QCOMPARE(desk.Target(row).foreColor, kColorBlue);
        QVERIFY(desk.dialogs.boxes.isEmpty());  // no question about its own copy
        QCOMPARE(desk.steps, QString("6/6"));
        QCOMPARE(files.synced, QStringList({desk.folder + "/", desk.folder + "/sub/"}));
    }

    void aClearRowStaysAtTheSource() {
        Desk desk;
        for (const int row : {2, 3, 4})
            desk.Untick(row);  // the pin
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 2);
        QVERIFY(!QFile::exists(desk.Copy("x_pin.tfmprt")));
        QCOMPARE(desk.Target(2).toolTip, gStrings[65]);
        QCOMPARE(desk.Target(2).foreColor, kColorNormal);
        QCOMPARE(desk.Holds(desk.Copy("x_left.tfmasm")), QString("pin.tfmprt"));
        QCOMPARE(desk.Holds(desk.Copy("x_top.tfmasm")),
                 QString("new/x_left.tfmasm new/sub/x_right.tfmasm pin.tfmprt"));
    }

    void anEarlierClearRowWithTheTargetTurnsTheTickedOneBlueWithoutACopy() {
        Desk desk;
        desk.Untick(2);
        const CopyResult result = desk.Run();
        QCOMPARE(desk.Target(3).foreColor, kColorBlue);
        QCOMPARE(result.copied, 2);
        QVERIFY(!QFile::exists(desk.Copy("x_pin.tfmprt")));
        // The rewriting finds no such file, and asks; no reference leads to nowhere.
        QCOMPARE(desk.dialogs.boxes.size(), 2);
        QCOMPARE(desk.Holds(desk.Copy("x_left.tfmasm")), QString("pin.tfmprt"));
        QVERIFY(desk.dialogs.boxes[0].startsWith(gStrings[73].section("%s", 0, 0) + desk.pin));
        QVERIFY(desk.Target(3).toolTip.startsWith(gStrings[69].section("%s", 0, 0)));
    }

    void aReadOnlySourceGivesACopyThatMayBeWritten() {
        Desk desk;
        SetReadOnly(desk.left);
        QCOMPARE(desk.Run().copied, 3);
        QVERIFY(!IsReadOnlyFile(desk.Copy("x_left.tfmasm")));
        QCOMPARE(desk.Holds(desk.Copy("x_left.tfmasm")), QString("new/x_pin.tfmprt"));
        QVERIFY(IsReadOnlyFile(desk.left));
        AllowWriting(desk.left);
    }

    void anExistingTargetThatIsKeptIsNotReferredTo() {
        Desk desk;
        const QString kept = desk.Write(desk.Copy("x_left.tfmasm"), "somebody's work");
        SetReadOnly(kept);
        desk.dialogs.answer = [](const QString&) { return Answer::No; };
        const CopyResult result = desk.Run();
        QCOMPARE(desk.dialogs.boxes, QStringList(Format(Text::OverwriteQuestion, kept)));
        QCOMPARE(desk.Target(0).toolTip, gStrings[64]);
        QCOMPARE(desk.Target(0).foreColor, kColorNormal);
        QCOMPARE(BytesOf(kept), QByteArray("somebody's work"));
        QVERIFY(!IsReadOnlyFile(kept));  // its attributes are cleared all the same
        QVERIFY(desk.Holds(desk.Copy("x_top.tfmasm")).startsWith("left.tfmasm new/"));
        QCOMPARE(result.copied, 2);
        QCOMPARE(result.failed, 0);
    }

    void anExistingTargetIsReplacedOnYes() {
        Desk desk;
        desk.Write(desk.Copy("x_left.tfmasm"), "somebody's work");
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 3);
        QCOMPARE(desk.Holds(desk.Copy("x_left.tfmasm")), QString("new/x_pin.tfmprt"));
    }

    void theReferencesOfAKeptTargetOfTheDocumentAreRewritten() {
        Desk desk;
        QVERIFY(QFile::copy(desk.top, desk.target));
        desk.dialogs.answer = [](const QString&) { return Answer::No; };
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 3);
        QCOMPARE(desk.Holds(desk.target),
                 QString("new/x_left.tfmasm new/sub/x_right.tfmasm new/x_pin.tfmprt"));
    }

    void cancelAtTheFirstQuestionChangesNothing() {
        Desk desk;
        desk.Write(desk.target, "somebody's work");
        desk.dialogs.answer = [](const QString&) { return Answer::Cancel; };
        const CopyResult result = desk.Run();
        QVERIFY(result.end == CopyResult::End::CancelledAtOnce);
        QCOMPARE(BytesOf(desk.target), QByteArray("somebody's work"));
        QCOMPARE(QDir(desk.folder).entryList(QDir::Files), QStringList("x_top.tfmasm"));
    }

    void cancelInTheMiddleLeavesTheReferencesAsTheyAre() {
        Desk desk;
        desk.Write(desk.Copy("x_pin.tfmprt"), "somebody's work");
        desk.dialogs.answer = [](const QString&) { return Answer::Cancel; };
        const CopyResult result = desk.Run();
        QVERIFY(result.end == CopyResult::End::Cancelled);
        QCOMPARE(desk.Target(0).foreColor, kColorBlue);
        QCOMPARE(BytesOf(desk.Copy("x_left.tfmasm")), BytesOf(desk.left));
        QCOMPARE(BytesOf(desk.target), BytesOf(desk.top));
    }

    void aSecondTryDoesNotTakeTheFirstOnesColoursForCopies() {
        Desk desk;
        desk.Write(desk.Copy("x_pin.tfmprt"), "somebody's work");
        desk.dialogs.answer = [](const QString&) { return Answer::Cancel; };
        desk.Run();
        desk.Untick(0);
        desk.dialogs.answer = nullptr;
        desk.Run();
        QCOMPARE(desk.Target(0).foreColor, kColorNormal);
        QVERIFY(desk.Holds(desk.target).startsWith("left.tfmasm "));
        TickAll(desk.copies, true);
        desk.Run();
        QCOMPARE(desk.Target(0).toolTip, desk.Target(0).tag);  // no more that it was not copied
    }

    void aTargetThatIsTheSourceIsRefusedByTheDiskAndTheRunGoesOn() {
        Desk desk;
        const QByteArray before = BytesOf(desk.left);
        desk.SetTarget(0, desk.left);
        const CopyResult result = desk.Run();
        QCOMPARE(desk.dialogs.boxes, QStringList(Format(Text::OverwriteQuestion, desk.left)));
        QCOMPARE(result.failed, 1);
        QCOMPARE(result.copied, 2);
        QCOMPARE(desk.Target(0).foreColor, kColorRed);
        QCOMPARE(desk.Target(0).toolTip, QString());
        QVERIFY(desk.copies.At(0).cells[kCopyTick].toolTip.contains("same file"));
        QCOMPARE(BytesOf(desk.left), before);
        QVERIFY(desk.Holds(desk.target).startsWith("left.tfmasm new/"));
    }

    void aDocumentWhoseTargetIsItselfIsRewrittenInItsPlace() {
        Desk desk;
        desk.target = desk.top;
        const CopyResult result = desk.Run();
        QVERIFY(result.end == CopyResult::End::Done);
        QCOMPARE(desk.Holds(desk.top),
                 QString("new/x_left.tfmasm new/sub/x_right.tfmasm new/x_pin.tfmprt"));
    }

    void aDocumentThatIsItsOwnTargetIsAskedAboutAndNotCopied() {
        Desk desk;
        // An empty prefix and the document's own folder.
        desk.target = TargetIn(FolderNoSeparator(desk.top), CopyName({}, FileNameOf(desk.top)));
        QCOMPARE(desk.target, desk.top);
        FakeFiles files;
        bool isTried = false;
        bool isCopied = false;
        files.before = [&](const QString&, const QString& to) { isTried |= to == desk.top; };
        files.after = [&](const QString&, const QString& to) { isCopied |= to == desk.top; };
        const CopyResult result = desk.Run();
        QCOMPARE(desk.dialogs.boxes, QStringList(Format(Text::OverwriteQuestion, desk.top)));
        QVERIFY(isTried && !isCopied);  // the disk refuses
        QVERIFY(result.end == CopyResult::End::Done);
        QCOMPARE(result.copied, 3);
    }

    // What stands at the target then is somebody's, and no user of the document may lead there.
    void aDocumentWhoseCopyFailsOverAnExistingTargetHasNone() {
        Desk desk;
        desk.List(desk.pin);
        const QString user = desk.library.Make("user.tfmasm", {{desk.pin}});
        const QString there = desk.library.Make("new/x_pin.tfmprt");
        const QByteArray before = BytesOf(there);
        desk.FindParents();
        FakeFiles files;
        files.before = [](const QString&, const QString&) { throw DocumentError("no room"); };
        const CopyResult result = desk.Run();
        QVERIFY(result.end == CopyResult::End::Done);
        QCOMPARE(desk.dialogs.boxes.first(), Format(Text::OverwriteQuestion, there));
        QCOMPARE(desk.dialogs.boxes[1], Format(Text::CopyNotOpened, there));
        QCOMPARE(desk.dialogs.details[1], QString("no room"));
        QCOMPARE(BytesOf(there), before);
        QCOMPARE(desk.Holds(user), QString("pin.tfmprt"));
    }

    void aKeptTargetOfADrawingIsLeftAlone() {
        Desk desk;
        desk.library.Make("top.tfmdrw", {{desk.top}});
        const QString kept = desk.library.Make("new/x_top.tfmdrw", {{desk.top}});
        const QByteArray before = BytesOf(kept);
        desk.FindParents();
        desk.dialogs.answer = [](const QString&) { return Answer::No; };
        desk.Run();
        QCOMPARE(desk.dialogs.boxes, QStringList(Format(Text::OverwriteQuestion, kept)));
        QCOMPARE(BytesOf(kept), before);
        QCOMPARE(desk.parents.At(0).cells[kParentTarget].toolTip, gStrings[64]);
        QVERIFY(desk.parents.At(0).cells[kParentHolder].foreColor == kColorNormal);
    }

    void aKeptTargetWhoseTableIsAnotherKeepsItsOtherReferences() {
        Desk desk;
        const QString clamp = desk.library.Make("clamp.tfmprt");
        desk.library.Make("new/x_top.tfmasm", {{clamp}, {desk.left}, {desk.right}});
        desk.dialogs.answer = [](const QString&) { return Answer::No; };
        desk.Run();
        QVERIFY2(desk.Holds(desk.target).startsWith("clamp.tfmprt "),
                 qPrintable(desk.Holds(desk.target)));
    }

    void aKeptTargetOfTwoRowsIsLeftAlone() {
        Desk desk;
        desk.Write(desk.Copy("x_left.tfmasm"), "somebody's work");
        desk.SetTarget(1, desk.Copy("x_left.tfmasm"));
        desk.dialogs.answer = [](const QString&) { return Answer::No; };
        desk.Run();
        QFile kept(desk.Copy("x_left.tfmasm"));
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), QByteArray("somebody's work"));
        QVERIFY(desk.Holds(desk.target).startsWith("left.tfmasm "));
    }

    void aRowOfAnotherTypeIsAccepted() {
        Desk desk;
        desk.SetTarget(0, desk.Copy("left.tfmprt"));
        desk.answers = {0};  // the folder "sub"
        QVERIFY(desk.Check() == CheckOutcome::Ok);
        QCOMPARE(desk.Run().copied, 3);
        QVERIFY(desk.Holds(desk.target).startsWith("new/left.tfmprt "));
    }

    void twoDocumentsOfOneTargetAreToldApart() {
        Desk desk;
        desk.SetTarget(1, desk.Copy("x_left.tfmasm"));
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 2);  // left and pin
        QCOMPARE(desk.Target(1).foreColor, kColorBlue);
        QCOMPARE(desk.dialogs.boxes.size(), 1);  // no question whether to overwrite
        QVERIFY(desk.dialogs.boxes[0].contains("It was not copied"));
        QCOMPARE(desk.Holds(desk.target).section(' ', 0, 1),
                 QString("new/x_left.tfmasm sub/right.tfmasm"));
        QVERIFY(desk.Target(1).toolTip.contains("x_left.tfmasm"));
        QCOMPARE(desk.Holds(desk.Copy("x_left.tfmasm")), QString("new/x_pin.tfmprt"));
    }

    void aRowWithTheDocumentsOwnTargetCountsAsDone() {
        Desk desk;
        desk.SetTarget(0, desk.target);
        desk.dialogs.answer = [](const QString&) { return Answer::Yes; };
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 2);
        QCOMPARE(desk.Target(0).foreColor, kColorBlue);
        QVERIFY(desk.Holds(desk.target).startsWith("left.tfmasm "));  // and not itself
    }

    void namesThatTheDiskTakesForOneAreCopiedOnce() {
        Desk desk;
        desk.SetTarget(1, desk.Copy("X_LEFT.tfmasm"));
        FakeFiles files;
        files.after = [&](const QString&, const QString& to) {
            // As a disk that does not tell the two names apart.
            if (to.endsWith("x_left.tfmasm"))
                QVERIFY(::link(QFile::encodeName(to).constData(),
                               QFile::encodeName(desk.Copy("X_LEFT.tfmasm")).constData()) == 0);
        };
        QCOMPARE(desk.Run().copied, 2);
        QCOMPARE(desk.Target(1).foreColor, kColorBlue);
        QVERIFY(!desk.dialogs.boxes.contains(
            Format(Text::OverwriteQuestion, desk.Copy("X_LEFT.tfmasm"))));
    }

    void namesThatTheDiskTellsApartAreTwoCopies() {
        Desk desk;
        desk.SetTarget(1, desk.Copy("X_LEFT.tfmasm"));
        QCOMPARE(desk.Run().copied, 3);
        QCOMPARE(desk.Holds(desk.target).section(' ', 0, 1),
                 QString("new/x_left.tfmasm new/X_LEFT.tfmasm"));
    }

    void sourcesThatDifferInLetterCaseAloneKeepTheirOwnCopies() {
        CopyDesk desk;
        const AnsweringDialogs dialogs;
        const QString small = desk.library.Make("pin.tfmprt");
        const QString big = desk.library.Make("PIN.tfmprt", {}, {{small, "mirrored"}});
        desk.List(desk.library.Make("top.tfmasm", {{small}, {big}}));
        desk.Run();
        QCOMPARE(desk.Holds(desk.target), QString("new/x_pin.tfmprt new/x_PIN.tfmprt"));
    }

    void aReferenceInOtherLetterCaseLeadsToTheCopyAllTheSame() {
        Desk desk;
        desk.List(desk.library.Make("top.tfmasm", {{desk.library.Make("pin.tfmprt")}}));
        desk.copies.Change(0, [](CellRow& row) { row.cells[kCopyTarget].foreColor = kColorBlue; });
        const CopyPlan plan = desk.Plan();
        desk.Write(desk.Copy("x_pin.tfmprt"), "a copy");
        desk.Write(desk.target, "a copy");
        const QHash<QString, QString> madeFrom = {
            {TargetKey(desk.Copy("x_pin.tfmprt")), desk.library.Path("pin.tfmprt")}};
        const ReferenceMap map(plan, madeFrom, true);
        QCOMPARE(map.MapReferencePath(desk.library.Path("PIN.tfmprt")),
                 std::optional(desk.Copy("x_pin.tfmprt")));
        QCOMPARE(map.MapReferencePath(desk.library.Path("TOP.tfmasm")), std::optional(desk.target));
        QCOMPARE(map.MapReferencePath(desk.library.Path("other.tfmprt")), std::optional<QString>());
    }

    void aCircleIsCopiedAsACircle() {
        AnsweringDialogs dialogs;
        CopyDesk desk;
        const QString left = desk.library.Path("left.tfmasm");
        const QString top = desk.library.Make("top.tfmasm", {{left}});
        desk.library.Make("left.tfmasm", {{top}});
        desk.List(top);
        QCOMPARE(desk.copies.Count(), 2);  // left, and top again
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 1);
        QCOMPARE(desk.Target(1).foreColor, kColorBlue);
        QCOMPARE(desk.Holds(desk.target), QString("new/x_left.tfmasm"));
        QCOMPARE(desk.Holds(desk.Copy("x_left.tfmasm")), QString("new/x_top.tfmasm"));
        QCOMPARE(dialogs.boxes, QStringList(Format(Text::CircularReference, top)));
    }

    void aDocumentWithoutReferencesIsCopiedAlone() {
        Desk desk;
        desk.List(desk.pin);
        const QByteArray before = BytesOf(desk.pin);
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 0);
        QCOMPARE(BytesOf(desk.Copy("x_pin.tfmprt")), before);  // nothing to save
    }

    void anAssemblyCopiedAloneGoesOnUsingTheSources() {
        Desk desk;
        desk.List(desk.top, false);
        desk.Run();
        QCOMPARE(BytesOf(desk.target), BytesOf(desk.top));
    }

    // The checks.

    void aFolderThatCanNotBeMadeMakesItsRowsRed() {
        Desk desk;
        desk.Write(desk.folder + "/sub", "a file in the way");
        const CopyResult result = desk.Run();
        QCOMPARE(result.failed, 1);
        QCOMPARE(result.copied, 2);
        QCOMPARE(desk.Target(1).foreColor, kColorRed);
        QCOMPARE(desk.Target(1).toolTip, Format(Text::FolderNotMade, desk.folder + "/sub"));
        QVERIFY(desk.Holds(desk.target).contains(" sub/right.tfmasm"));
    }

    void aFolderOfTheDocumentThatCanNotBeMadeEndsTheRun() {
        Desk desk;
        desk.Write(desk.library.Path("file"), "in the way");
        desk.target = desk.library.Path("file/x_top.tfmasm");
        const CopyResult result = desk.Run();
        QVERIFY(result.end == CopyResult::End::SourceFailed);
        QCOMPARE(result.message, Format(Text::FolderNotMade, desk.library.Path("file")));
        QVERIFY(!QFile::exists(desk.Copy("x_pin.tfmprt")));
    }

    // Parents.

    // Questions while references are rewritten.

    void aPaneThatIsGoneEndsTheRunAtOnce() {
        Desk desk;
        desk.yield = [] { return false; };
        QVERIFY(desk.Run().end == CopyResult::End::Gone);
        QVERIFY(QFile::exists(desk.target));
        QVERIFY(!QFile::exists(desk.Copy("x_pin.tfmprt")));
    }

    void thePlanTellsBeforehandWhatIsGoingToHappen() {
        Desk desk;
        desk.Untick(1);
        desk.library.Make("top.tfmdrw", {{desk.top}});
        desk.FindParents();
        const std::vector<PlannedCopy> plan = PlanCopies(desk.Plan());
        QCOMPARE(plan.size(), size_t(6));
        const CopyAction actions[] = {CopyAction::Copies,     CopyAction::Copies,
                                      CopyAction::Skips,      CopyAction::Copies,
                                      CopyAction::SameTarget, CopyAction::SameTarget};
        for (size_t i = 0; i < plan.size(); ++i) {
            QVERIFY(plan[i].action == actions[i]);
            QCOMPARE(plan[i].row, int(i) - 1);
        }
        QCOMPARE(plan[0].target, desk.target);
        const std::vector<PlannedCopy> parents = PlanParentCopies(desk.Plan());
        QCOMPARE(parents.size(), size_t(1));
        QCOMPARE(parents[0].target, desk.Copy("x_top.tfmdrw"));
        QVERIFY(!QFile::exists(desk.target));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestCopyRun)
#include "tst_copyrun.moc"
