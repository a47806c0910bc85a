// A copy from its checks to its end: files, references, colours, tool tips and counts.

#include <unistd.h>
#include <QTest>

#include "copy/referencemap.h"
#include "services/filesystem.h"
#include "shell/treewalk.h"
#include "tests/copy/copyproject.h"
#include "tests/support/failingaccess.h"
#include "tests/support/filelockholder.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

using Answer = Dialogs::Answer;

void SetReadOnly(const QString& path) {
    QVERIFY(QFile::setPermissions(
        path, QFile::ReadOwner | QFile::ReadUser | QFile::ExeOwner | QFile::ExeUser));
}

// top -> left -> pin, top -> right -> pin, with a drawing and a whole that use top.
struct Desk : CopyDesk {
    Desk() {
        pin = library.Make("pin.tfmprt");
        left = library.Make("left.tfmasm", {{pin}});
        right = library.Make("sub/right.tfmasm", {{pin}});
        top = library.Make("top.tfmasm", {{left}, {right}}, {{pin, "in context"}});
        List(top);
    }
    QString Write(const QString& path, const QByteArray& bytes) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) < 0)
            qFatal("can't write");
        return path;
    }
    AnsweringDialogs dialogs;
    QString pin, left, right, top;
};

// Puts itself between the program and the disk.
class FakeFiles : public FileSystem {
public:
    FakeFiles() { gSeams.files = this; }
    ~FakeFiles() override { gSeams.files = nullptr; }
    bool Copy(const QString& from, const QString& to, IfThere ifThere) override {
        if (before)
            before(from, to);
        const bool copied = FileSystem::Copy(from, to, ifThere);
        if (after)
            after(from, to);
        return copied;
    }
    void Sync(const QStringList& folders) override {
        synced.append(folders);
        if (sync)
            sync();
    }
    std::function<void(const QString&, const QString&)> before, after;
    std::function<void()> sync;
    QStringList synced;
};

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
        desk.target = desk.top;
        QString reason;
        desk.Run();
        QCOMPARE(desk.dialogs.boxes, QStringList(Format(Text::OverwriteQuestion, desk.top)));
        QCOMPARE(desk.status.filter(Format(Text::CopyingTo, desk.top)).size(), 1);
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

    // Questions while references are rewritten.

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
