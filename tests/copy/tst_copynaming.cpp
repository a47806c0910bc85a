// The names of copies, and the changes of a target folder, prefix and suffix.

#include <QTest>

#include "tests/copy/copyproject.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// top -> pin, sub/bolt, and a drawing of top in the parent list.
struct Desk : CopyDesk {
    Desk() {
        pin = library.Make("pin.tfmprt");
        bolt = library.Make("sub/bolt.tfmprt");
        top = library.Make("top.tfmasm", {{pin}, {bolt}});
        List(top);
        RowBatch rows = ParentRows(parents);
        AddParent(rows, {.found = {},
                         .parent = library.Make("top.tfmdrw", {{top}}),
                         .relation = {},
                         .target = folder + "/x_top.tfmdrw",
                         .local = library.Path("top.tfmdrw")});
        AddParent(rows, {.found = {},
                         .parent = library.Make("whole.tfmasm", {{top}}),
                         .relation = {},
                         .target = {},
                         .local = library.Path("whole.tfmasm")});
        rows.Flush();
    }
    void Recompute(const QString& to, const Affixes& by, bool forceLong) {
        RecomputeTargets({.folder = to, .affixes = by, .forceLong = forceLong}, walked.rowFolders,
                         copies, parents);
    }
    QString pin, bolt, top;
};

}  // namespace

class TestCopyNaming : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aPrefixStandsInFrontAndASuffixBehindTheName() {
        QCOMPARE(TargetIn("/x", CopyName({"new_", ""}, "a.tfmprt")), QString("/x/new_a.tfmprt"));
        QCOMPARE(TargetIn("/x", CopyName({"", "new_"}, "a.tfmprt")), QString("/x/anew_.tfmprt"));
        QCOMPARE(CopyName({"", ""}, "a.b.tfmprt"), QString("a.b.tfmprt"));
        QCOMPARE(CopyName({"p", "s"}, "readme"), QString("preadmes"));
    }

    void aSeparatorIsNeitherDoubledNorDropped() {
        QCOMPARE(TargetIn("/x/", "a.tfmprt"), QString("/x//a.tfmprt"));
        QCOMPARE(TargetIn("http://host/dav", "a.tfmprt"), QString("http://host/dav/a.tfmprt"));
    }

    void relativeFoldersBeginWithTheSourcesWhateverTheCase() {
        QCOMPARE(RelativeFolder("/lib/", "/lib/a/b/x.tfmprt"), QString("a/b/"));
        QCOMPARE(RelativeFolder("/lib/", "/LIB/a/x.tfmprt"), QString("a/"));
        QCOMPARE(RelativeFolder("/lib/", "/lib/x.tfmprt"), QString());
        QCOMPARE(RelativeFolder("/lib/", "/other/a/x.tfmprt"), QString());
        QCOMPARE(RelativeFolder("/lib/", "/library/x.tfmprt"), QString());
    }

    void aNewFolderKeepsTheSubfolderOfARow() {
        Desk desk;
        desk.Recompute("/y", {"new_", ""}, true);
        QCOMPARE(desk.Target(0).tag, QString("/y/new_pin.tfmprt"));
        QCOMPARE(desk.Target(1).tag, QString("/y/sub/new_bolt.tfmprt"));
        QCOMPARE(desk.Target(1).text, desk.Target(1).tag);
        QCOMPARE(desk.Target(1).toolTip, desk.Target(1).tag);
    }

    void aClearRowKeepsItsTargetUntilItIsTickedAgain() {
        Desk desk;
        const QString before = desk.Target(0).tag;
        desk.Untick(0);
        desk.Recompute("/y", desk.affixes, true);
        QCOMPARE(desk.Target(0).tag, before);
        QCOMPARE(desk.Target(1).tag, QString("/y/sub/x_bolt.tfmprt"));  // the counter goes on
        TickAll(desk.copies, true);
        desk.Recompute("/y", desk.affixes, true);
        QCOMPARE(desk.Target(0).tag, QString("/y/x_pin.tfmprt"));
    }

    void inShortFormAPrefixMakesBareNamesUntilTheFolderIsSet() {
        Desk desk;
        ToggleCopyColumn(desk.copies, kCopyTarget);
        QCOMPARE(desk.Target(1).text, QString("x_bolt.tfmprt"));
        QCOMPARE(desk.Target(1).tag, desk.folder + "/sub/x_bolt.tfmprt");
        desk.Recompute(desk.folder, {"y_", ""}, false);
        QCOMPARE(desk.Target(1).tag, QString("y_bolt.tfmprt"));
        desk.Recompute(desk.folder, {"y_", ""}, true);
        QCOMPARE(desk.Target(1).tag, desk.folder + "/sub/y_bolt.tfmprt");
        QCOMPARE(desk.copies.Headers()[kCopyTarget].tag, QString("L"));
        QCOMPARE(desk.copies.Headers()[kCopyTarget].text, gStrings[30]);
    }

    void aHandMadeNameIsTheBaseOfLaterNamesButItsFolderIsNot() {
        Desk desk;
        desk.copies.Change(0, [](CellRow& row) {
            row.tag = "axle.tfmprt";
            row.cells[kCopyTarget].tag = "/elsewhere/axle.tfmprt";
        });
        desk.Recompute("/y", desk.affixes, true);
        QCOMPARE(desk.Target(0).tag, QString("/y/x_axle.tfmprt"));
    }

    void aParentThatIsCopiedFollowsAndAnotherKeepsAnEmptyTarget() {
        Desk desk;
        desk.Recompute("/y", {"", "_b"}, true);
        QCOMPARE(ReadParentRow(desk.parents.At(0)).target, QString("/y/top_b.tfmdrw"));
        QCOMPARE(ReadParentRow(desk.parents.At(1)).target, QString());
        QCOMPARE(desk.parents.At(1).cells[kParentTarget].text, QString());
        GoToNextState(desk.parents, 0);  // to be updated
        desk.Recompute("/z", {"", "_b"}, true);
        QCOMPARE(ReadParentRow(desk.parents.At(0)).target, QString("/y/top_b.tfmdrw"));
    }

    void twoSourcesOfOneNameFromElsewhereHaveOneTarget() {
        CopyDesk desk;
        const QString one = desk.library.Make("one/pin.tfmprt");
        const QString two = desk.library.Make("two/pin.tfmprt");
        desk.List(desk.library.Make("project/top.tfmasm", {{one}, {two}}));
        QCOMPARE(desk.Target(0).tag, desk.Copy("x_pin.tfmprt"));
        QCOMPARE(desk.Target(1).tag, desk.Copy("x_pin.tfmprt"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestCopyNaming)
#include "tst_copynaming.moc"
