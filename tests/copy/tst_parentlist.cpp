// The documents that use the one that is copied: finding them, and what is to become of each.

#include <QTest>

#include "services/filesystem.h"
#include "tests/copy/copyproject.h"
#include "tests/support/fakefinder.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

void MakeReadOnly(const QString& path) {
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser));
}

// A part, and what uses it.
struct Desk : CopyDesk {
    Desk() {
        pin = library.Make("pin.tfmprt");
        List(pin);
    }
    const CellRow& Parent(int row) const { return parents.At(row); }
    QString Shown(int row, int column) const { return Parent(row).cells[size_t(column)].text; }
    void Find(const UseKinds& kinds = {}, const QString& folders = {}) {
        RowBatch rows = ParentRows(parents);
        SearchParents({.search = {.document = source,
                                  .kinds = kinds,
                                  .status = [this](const QString& text) { status.append(text); },
                                  .yield = [] {},
                                  .cancelled = [] { return false; },
                                  .progress = [](const SearchCounts&) {}},
                       .targetFolder = folder,
                       .affixes = affixes},
                      folders.isEmpty() ? library.Folder() : folders, rows);
        rows.Flush();
    }
    QString pin;
};

}  // namespace

class TestParentList : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anAssemblyIsToBeUpdated() {
        Desk desk;
        const QString holder = desk.library.Make("sub/holder.tfmasm", {{desk.pin}});
        desk.Find();
        QCOMPARE(desk.parents.Count(), 1);
        const CellRow& row = desk.Parent(0);
        QVERIFY(row.ticked);
        QCOMPARE(row.tag, holder);
        QCOMPARE(desk.Shown(0, kParentState), gStrings[19]);
        QCOMPARE(row.cells[kParentState].toolTip, gStrings[77]);
        QCOMPARE(desk.Shown(0, kParentHolder), QString("holder.tfmasm"));
        QCOMPARE(row.cells[kParentHolder].tag, holder);
        QCOMPARE(row.cells[kParentHolder].toolTip, holder);
        QCOMPARE(desk.Shown(0, kParentRelation), gStrings[147]);
        QCOMPARE(desk.Shown(0, kParentTarget), QString());
        QCOMPARE(row.cells[kParentTarget].tag, QString());
        QCOMPARE(desk.Shown(0, kParentTable), QString("0"));
        QCOMPARE(desk.Shown(0, kParentNumber), QString("0"));
    }

    void twoReferencesOfOneParentAreTwoRows() {
        Desk desk;
        const QString bolt = desk.library.Make("bolt.tfmprt");
        desk.library.Make("sub/holder.tfmasm", {{desk.pin}, {bolt}, {desk.pin}},
                          {{desk.pin, "in"}});
        desk.Find();
        QCOMPARE(desk.parents.Count(), 3);
        QCOMPARE(desk.Shown(0, kParentNumber), QString("0"));
        QCOMPARE(desk.Shown(1, kParentNumber), QString("2"));
        QVERIFY(ReadParentRow(desk.Parent(2)).external);
        desk.parents.Clear();
        desk.Find({}, desk.library.Folder() + ';' + desk.library.Path("sub"));
        // What one folder gave is not listed again for the next.
        QCOMPARE(desk.parents.Count(), 3);
    }

    void aDrawingIsToBeCopiedIntoTheTargetFolderItself() {
        Desk desk;
        desk.library.Make("sub/pin.tfmdrw", {{desk.pin}});
        desk.Find();
        const CellRow& row = desk.Parent(0);
        QVERIFY(row.ticked && IsCopied(row));
        QCOMPARE(desk.Shown(0, kParentState), gStrings[5]);
        QCOMPARE(desk.Shown(0, kParentTarget), desk.Copy("x_pin.tfmdrw"));
        QCOMPARE(row.cells[kParentTarget].tag, desk.Copy("x_pin.tfmdrw"));
        QCOMPARE(row.cells[kParentTarget].toolTip, gStrings[32]);
    }

    void aReadOnlyPartIsMarkedAndCanNotBeTicked() {
        TestDialogs dialogs;
        Desk desk;
        const QString holder = desk.library.Make("holder.tfmprt", {}, {{desk.pin, "mirrored"}});
        MakeReadOnly(holder);
        desk.Find();
        QVERIFY(!desk.Parent(0).ticked);
        QCOMPARE(desk.Shown(0, kParentState), QString());
        QCOMPARE(desk.Shown(0, kParentHolder), "holder.tfmprt" + gStrings[78]);
        QCOMPARE(desk.Parent(0).cells[kParentHolder].foreColor, kColorRed);
        dialogs.Expect(gStrings[38]);
        GoToNextState(desk.parents, 0);
        QVERIFY(dialogs.AllCame());
        QVERIFY(!desk.Parent(0).ticked);
        // Both forms of the column keep the mark.
        ToggleParentColumn(desk.parents, kParentHolder);
        QCOMPARE(desk.Shown(0, kParentHolder), holder + gStrings[78]);
        QCOMPARE(desk.parents.Headers()[kParentHolder].text, gStrings[208]);
        AllowWriting(holder);
        GoToNextState(desk.parents, 0);
        QVERIFY(desk.Parent(0).ticked);
        QCOMPARE(desk.Parent(0).cells[kParentHolder].foreColor, kColorNormal);
        QCOMPARE(desk.Shown(0, kParentHolder), holder);
    }

    void aParentThatBecameReadOnlyIsMarkedAtItsTick() {
        TestDialogs dialogs;
        Desk desk;
        const QString holder = desk.library.Make("holder.tfmasm", {{desk.pin}});
        desk.Find();
        MakeReadOnly(holder);
        dialogs.Expect(gStrings[38]);
        GoToNextState(desk.parents, 0);
        QVERIFY(!desk.Parent(0).ticked);
        QCOMPARE(desk.Shown(0, kParentHolder), "holder.tfmasm" + gStrings[78]);
        AllowWriting(holder);
    }

    void aReadOnlyDrawingIsCopiedOrLeftAlone() {
        Desk desk;
        const QString drawing = desk.library.Make("pin.tfmdrw", {{desk.pin}});
        MakeReadOnly(drawing);
        desk.Find();
        QVERIFY(!desk.Parent(0).ticked);
        QCOMPARE(desk.Parent(0).cells[kParentHolder].foreColor, kColorRed);
        QCOMPARE(desk.Shown(0, kParentHolder), "pin.tfmdrw" + gStrings[78]);
        QCOMPARE(desk.Shown(0, kParentTarget), QString());
        GoToNextState(desk.parents, 0);
        QVERIFY(IsCopied(desk.Parent(0)));
        QCOMPARE(desk.Shown(0, kParentTarget), desk.Copy("x_pin.tfmdrw"));
        GoToNextState(desk.parents, 0);
        QVERIFY(!desk.Parent(0).ticked);
        AllowWriting(drawing);
    }

    void aDrawingGoesThroughThreeStatesAndKeepsItsTarget() {
        Desk desk;
        desk.library.Make("pin.tfmdrw", {{desk.pin}});
        desk.Find();
        GoToNextState(desk.parents, 0);
        QCOMPARE(desk.Shown(0, kParentState), gStrings[19]);
        QVERIFY(desk.Parent(0).ticked);
        QCOMPARE(desk.Shown(0, kParentTarget), QString());
        GoToNextState(desk.parents, 0);
        QCOMPARE(desk.Shown(0, kParentState), QString());
        QVERIFY(!desk.Parent(0).ticked);
        GoToNextState(desk.parents, 0);
        QVERIFY(IsCopied(desk.Parent(0)));
        QCOMPARE(desk.Shown(0, kParentTarget), desk.Copy("x_pin.tfmdrw"));
    }

    void anAssemblyIsUpdatedOrLeftAlone() {
        Desk desk;
        desk.library.Make("holder.tfmasm", {{desk.pin}});
        desk.Find();
        GoToNextState(desk.parents, 0);
        QVERIFY(!desk.Parent(0).ticked);
        QCOMPARE(desk.Shown(0, kParentState), QString());
        GoToNextState(desk.parents, 0);
        QVERIFY(desk.Parent(0).ticked);
        QCOMPARE(desk.Shown(0, kParentState), gStrings[19]);
    }

    void theDocumentIsNeverItsOwnParent() {
        CopyDesk desk;
        const QString self = desk.library.Path("SELF.tfmasm");
        desk.library.Make("self.tfmasm", {{desk.library.Path("self.tfmasm")}});
        desk.source = self;  // which only differs in letter case
        desk.folder = "/x";
        desk.FindParents();
        QCOMPARE(desk.parents.Count(), 0);
    }

    void aReferenceElsewhereOfThatNameIsListedToo() {
        Desk desk;
        const QString other = desk.library.Make("other/pin.tfmprt");
        desk.library.Make("holder.tfmasm", {{other}});
        desk.Find();
        QCOMPARE(desk.parents.Count(), 1);
    }

    void theMaskIsThatOfTheWantedKinds() {
        Desk desk;
        FakeFinderAccess finder;
        const FakeFolders& folders = finder.folders;
        desk.Find({.references = false});
        QCOMPARE(folders.queries.size(), 1);
        const ReferenceQuery& query = folders.queries[0];
        QCOMPARE(query.mask, 6);
        QCOMPARE(query.fullPathFlag, 0);
        QCOMPARE(query.pattern, desk.library.Folder() + "/*.*");
        QCOMPARE(query.baseName, QString("pin"));
        QCOMPARE(query.extension, QString("tfmprt"));
        QCOMPARE(query.fullPath, QString());
    }

    void kindsThatAreNotWantedAreDroppedByTheTypesOfTheFiles() {
        Desk desk;
        desk.library.Make("mirror.tfmprt", {{desk.pin}});  // a component, and yet part to part
        desk.Find({.mirrored = false});
        QCOMPARE(desk.parents.Count(), 0);
        desk.Find();
        QCOMPARE(desk.parents.Count(), 1);
        QCOMPARE(desk.Shown(0, kParentRelation), gStrings[149]);
    }

    void aFolderThatIsGoneIsPassedOver() {
        const TestDialogs dialogs;
        Desk desk;
        desk.library.Make("holder.tfmasm", {{desk.pin}});
        desk.Find({}, "/no/such/folder;" + desk.library.Folder());
        QCOMPARE(desk.parents.Count(), 1);
    }

    void aFolderWhoseSearchFailsGivesNoRowsAndTheOthersDo() {
        const TestDialogs dialogs;
        Desk desk;
        FakeFinderAccess finder;
        FakeFolders& folders = finder.folders;
        const QString top = desk.library.Folder();
        folders.subfolders[top] = {top + "/bad", top + "/good"};
        folders.rows[top + "/good"] = {{.referenceIndex = 3,
                                        .reference = desk.pin,
                                        .document = top + "/good/holder.tfmasm",
                                        .stamp = "s"}};
        folders.onSearch = [&](const QString& folder) {
            if (folder.endsWith("/bad"))
                throw DocumentError("can't be searched");
        };
        desk.Find();
        QCOMPARE(desk.parents.Count(), 1);
        QCOMPARE(ReadParentRow(desk.Parent(0)).number, 3);
        QCOMPARE(ReadParentRow(desk.Parent(0)).stamp, QByteArray("s"));
        QCOMPARE(desk.status.size(), 3);
        QCOMPARE(desk.status[1], Format(Text::SearchingHolders, top + "/bad"));
    }

    void theTargetColumnShowsNamesOrPathsOfWhatIsCopied() {
        Desk desk;
        desk.library.Make("a.tfmdrw", {{desk.pin}});
        desk.library.Make("b.tfmdrw", {{desk.pin}});
        desk.Find();
        GoToNextState(desk.parents, 1);
        ToggleParentColumn(desk.parents, kParentTarget);
        QCOMPARE(desk.Shown(0, kParentTarget), QString("x_a.tfmdrw"));
        QCOMPARE(desk.Shown(1, kParentTarget), QString());
        QCOMPARE(desk.parents.Headers()[kParentTarget].text, gStrings[28]);
        ToggleParentColumn(desk.parents, kParentTarget);
        QCOMPARE(desk.Shown(0, kParentTarget), desk.Copy("x_a.tfmdrw"));
        ToggleParentColumn(desk.parents, kParentRelation);  // does nothing
        QCOMPARE(desk.parents.Headers()[kParentRelation].text, gStrings[21]);
    }

    void theExportTellsStatesPathsAndOutcome() {
        Desk desk;
        QVERIFY(!PackParentList(desk.parents));
        desk.library.Make("a.tfmasm", {{desk.pin}});
        desk.library.Make("b.tfmdrw", {{desk.pin}});
        desk.Find();
        RefuseParent(desk.parents, 0);
        const TextTable table = *PackParentList(desk.parents);
        QCOMPARE(table.size(), size_t(4));
        QCOMPARE(table[0].size(), size_t(5));
        QCOMPARE(table[0][0], gStrings[19]);
        QCOMPARE(table[0][4], gStrings[44]);
        QCOMPARE(table[1][0], gStrings[46]);
        QCOMPARE(table[1][1], desk.library.Path("a.tfmasm"));
        QCOMPARE(table[1][4], desk.library.Path("a.tfmasm"));  // red: its tool tip
        QCOMPARE(table[2][0], gStrings[5]);
        QCOMPARE(table[2][2], gStrings[147]);
        QCOMPARE(table[2][3], desk.Copy("x_b.tfmdrw"));
        QCOMPARE(table[2][4], QString());
        QCOMPARE(table[3], std::vector<QString>(5));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestParentList)
#include "tst_parentlist.moc"
