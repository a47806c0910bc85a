// The copy list: which rows it has, and what they show.

#include <QTest>

#include "tests/copy/copyproject.h"
#include "tests/support/failingaccess.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

class TestCopyWalk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aDocumentWithoutReferencesHasNoRows() {
        CopyDesk desk;
        desk.List(desk.library.Make("pin.tfmprt"));
        QCOMPARE(desk.copies.Count(), 0);
        QCOMPARE(desk.walked.rowFolders, QStringList{""});
    }

    void withoutTheReferencesNothingIsListedOrRead() {
        CopyDesk desk;
        const QString pin = desk.library.Make("pin.tfmprt");
        const QString top = desk.library.Make("top.tfmasm", {{pin}});
        int operations = 0;
        const FailingAccess counting([&](const char*, const QString&) { ++operations; });
        desk.List(top, false);
        QCOMPARE(desk.copies.Count(), 0);
        QCOMPARE(operations, 0);
    }

    void theRowsOfADocumentStandTogetherBeforeThoseOfItsChildren() {
        CopyDesk desk;
        TestLibrary& library = desk.library;
        const QString pin = library.Make("pin.tfmprt");
        const QString bolt = library.Make("bolt.tfmprt");
        const QString left = library.Make("left.tfmasm", {{pin}, {bolt}});
        const QString right = library.Make("right.tfmasm", {{pin}});
        desk.List(library.Make("top.tfmasm", {{left}, {right}, {bolt}}));
        QCOMPARE(desk.Sources().join(' '), QString("left.tfmasm right.tfmasm bolt.tfmprt "
                                                   "pin.tfmprt bolt.tfmprt pin.tfmprt"));
    }

    void aPartUsedTwiceHasTwoRowsWithOneTarget() {
        CopyDesk desk;
        const QString pin = desk.library.Make("pin.tfmprt");
        const QString left = desk.library.Make("left.tfmasm", {{pin}});
        const QString right = desk.library.Make("right.tfmasm", {{pin}});
        desk.List(desk.library.Make("top.tfmasm", {{left}, {right}}));
        QCOMPARE(desk.copies.Count(), 4);
        QCOMPARE(ReadCopyRow(desk.copies.At(2)).source, pin);
        QCOMPARE(ReadCopyRow(desk.copies.At(3)).source, pin);
        QCOMPARE(desk.Target(2).tag, desk.Target(3).tag);
    }

    void aRowShowsSourceTargetAndName() {
        CopyDesk desk;
        const QString pin = desk.library.Make("a/b/pin.tfmprt");
        desk.List(desk.library.Make("top.tfmasm", {{pin}}));
        const CellRow& row = desk.copies.At(0);
        QVERIFY(row.ticked);
        QCOMPARE(row.tag, QString("pin.tfmprt"));
        QCOMPARE(row.cells[kCopyTick].text, QString());
        QCOMPARE(row.cells[kCopySource].text, pin);
        QCOMPARE(row.cells[kCopySource].toolTip, pin);
        QCOMPARE(row.cells[kCopyTarget].text, desk.Copy("a/b/x_pin.tfmprt"));
        QCOMPARE(row.cells[kCopyTarget].toolTip, desk.Copy("a/b/x_pin.tfmprt"));
        QCOMPARE(row.cells[kCopyName].text, QString("pin.tfmprt"));
        QCOMPARE(desk.walked.rowFolders, (QStringList{"", "a/b/"}));
    }

    void aReferenceElsewhereGoesDirectlyIntoTheTargetFolder() {
        CopyDesk desk;
        const QString pin = desk.library.Make("store/pin.tfmprt");
        desk.List(desk.library.Make("project/top.tfmasm", {{pin}}));
        QCOMPARE(desk.Target(0).tag, desk.Copy("x_pin.tfmprt"));
    }

    void aFileThatIsNoDocumentKeepsItsExtensionOnce() {
        CopyDesk desk;
        desk.List(desk.library.Make("top.tfmasm", {{desk.library.Path("sheet.drw")}}));
        QCOMPARE(desk.copies.At(0).tag, QString("sheet.drw"));
        QCOMPARE(desk.Target(0).tag, desk.Copy("x_sheet.drw"));
    }

    void aMissingFileIsRedTickedAndCounted() {
        CopyDesk desk;
        const QString pin = desk.library.Make("pin.tfmprt");
        desk.List(desk.library.Make("top.tfmasm", {{desk.library.Path("lost.tfmprt")}, {pin}}));
        QCOMPARE(desk.walked.missing, 1);
        QCOMPARE(desk.copies.At(0).cells[kCopySource].foreColor, kColorRed);
        QVERIFY(desk.copies.At(0).ticked);
        QCOMPARE(desk.copies.At(1).cells[kCopySource].foreColor, kColorNormal);
    }

    void aPartsAssemblyInContextHasNoRow() {
        CopyDesk desk;
        const QString other = desk.library.Make("other.tfmasm");
        const QString base = desk.library.Make("base.tfmprt");
        const QString pin =
            desk.library.Make("pin.tfmprt", {}, {{other, "in context"}, {base, "mirrored"}});
        desk.List(desk.library.Make("top.tfmasm", {{pin}}));
        QCOMPARE(desk.Sources().join(' '), QString("pin.tfmprt base.tfmprt"));
    }

    void anAssemblysExternalPartIsWalked() {
        CopyDesk desk;
        const QString base = desk.library.Make("base.tfmprt");
        const QString pin = desk.library.Make("pin.tfmprt", {}, {{base, "mirrored"}});
        desk.List(desk.library.Make("top.tfmasm", {}, {{pin, "in context"}}));
        QCOMPARE(desk.Sources().join(' '), QString("pin.tfmprt base.tfmprt"));
    }

    void anAssemblysExternalAssemblyHasARowAndIsNotWalked() {
        CopyDesk desk;
        const QString pin = desk.library.Make("pin.tfmprt");
        const QString other = desk.library.Make("other.tfmasm", {{pin}});
        desk.List(desk.library.Make("top.tfmasm", {}, {{other, "in context"}}));
        QCOMPARE(desk.Sources().join(' '), QString("other.tfmasm"));
    }

    void aDocumentThatCanNotBeReadEndsItsWalkSilently() {
        const TestDialogs dialogs;  // none may come
        CopyDesk desk;
        const QString broken = desk.library.MakeBroken("broken.tfmasm");
        const QString pin = desk.library.Make("pin.tfmprt");
        const QString left = desk.library.Make("left.tfmasm", {{pin}});
        desk.List(desk.library.Make("top.tfmasm", {{broken}, {left}}));
        QCOMPARE(desk.Sources().join(' '), QString("broken.tfmasm left.tfmasm pin.tfmprt"));
    }

    void whatWasReadBeforeAnErrorStays() {
        CopyDesk desk;
        const QString pin = desk.library.Make("pin.tfmprt");
        const QString bolt = desk.library.Make("bolt.tfmprt");
        const QString left = desk.library.Make("left.tfmasm", {{pin}});
        const QString top = desk.library.Make("top.tfmasm", {{left}, {bolt}});
        int read = 0;
        const FailingAccess failing([&](const char* operation, const QString& path) {
            if (path == top && QByteArray(operation) == "GetComponent" && ++read == 2)
                throw DocumentError("the second row fails");
        });
        desk.List(top);
        QCOMPARE(desk.Sources().join(' '), QString("left.tfmasm"));  // and no walk into it
    }

    void eachDocumentIsReadOnce() {
        CopyDesk desk;
        constexpr int kGroups = 20;
        const QString pin = desk.library.Make("pin.tfmprt");
        QList<TestLibrary::Component> groups;
        for (int i = 0; i < kGroups; ++i) {
            const QString group =
                desk.library.Make(QString("group%1.tfmasm").arg(i), {{pin}, {pin}});
            groups.append({{group}, {group}});
        }
        const QString top = desk.library.Make("top.tfmasm", groups);
        QHash<QString, int> opened;
        const FailingAccess counting([&](const char* operation, const QString& path) {
            opened[path] += QByteArray(operation) == "Open";
        });
        desk.List(top);
        QCOMPARE(desk.copies.Count(), 2 * kGroups * 3);
        QCOMPARE(opened.size(), kGroups + 2);
        for (auto it = opened.cbegin(); it != opened.cend(); ++it)
            QCOMPARE(it.value(), 1);
    }

    void aCircleOfReferencesEndsWithOneMessage() {
        TestDialogs dialogs;
        CopyDesk desk;
        const QString left = desk.library.Path("left.tfmasm");
        const QString top = desk.library.Make("top.tfmasm", {{left}, {left}});
        desk.library.Make("left.tfmasm", {{top}});
        dialogs.Expect(Format(Text::CircularReference, top), Dialogs::Icon::Stop);
        desk.List(top);
        QVERIFY(dialogs.AllCame());
        QVERIFY(dialogs.LastDetail().contains(left) && dialogs.LastDetail().contains(top));
        QCOMPARE(desk.Sources().join(' '),
                 QString("left.tfmasm left.tfmasm top.tfmasm top.tfmasm"));
    }

    void aDocumentThatHoldsItselfEndsAsWell() {
        TestDialogs dialogs;
        CopyDesk desk;
        const QString top = desk.library.Make("top.tfmasm", {{desk.library.Path("top.tfmasm")}});
        dialogs.Expect(Format(Text::CircularReference, top), Dialogs::Icon::Stop);
        desk.List(top);
        QCOMPARE(desk.copies.Count(), 1);
    }

    void aLongChainIsWalkedToItsEnd() {
        CopyDesk desk;
        constexpr int kDepth = 400;
        for (int i = 0; i < kDepth; ++i)
            desk.library.Make(QString("d%1.tfmasm").arg(i),
                              {{desk.library.Path(QString("d%1.tfmasm").arg(i + 1))}});
        desk.List(desk.library.Path("d0.tfmasm"));
        QCOMPARE(desk.copies.Count(), kDepth);
        QCOMPARE(desk.walked.missing, 1);
    }

    void aListThatIsFullSaysSo() {
        TestDialogs dialogs;
        CopyDesk desk;
        // Ten levels of ten uses each: more rows than any memory holds.
        QString below = desk.library.Make("level0.tfmprt");
        for (int level = 1; level <= 10; ++level)
            below = desk.library.Make(QString("level%1.tfmasm").arg(level),
                                      QList<TestLibrary::Component>(10, {below}));
        constexpr int kMost = 1000;
        dialogs.Expect(QString("The document %1 has more than 1000*").arg(below));
        const CopyWalkResult result = ListReferences(
            {.document = below, .targetFolder = "/x", .affixes = {}, .maximumRows = kMost},
            desk.copies);
        QVERIFY(dialogs.AllCame());
        QCOMPARE(desk.copies.Count(), kMost);
        QCOMPARE(result.rowFolders.size(), kMost + 1);
    }

    void behindAWebFolderExternalReferencesKeepTheirOwnSeparator() {
        CopyDesk desk;
        const QString pin = desk.library.Make("pin.tfmprt");
        const QString top = desk.library.Make("top.tfmasm", {{pin}}, {{pin, "in context"}});
        ListReferences({.document = top, .targetFolder = "http://host/dav", .affixes = {"n_", ""}},
                       desk.copies);
        QCOMPARE(desk.Target(0).tag, QString("http://host/dav/n_pin.tfmprt"));
        QCOMPARE(desk.Target(1).tag, QString("http://host/dav\\n_pin.tfmprt"));
        // They are one place on the server, and one copy.
        desk.target = "http://host/dav/n_top.tfmasm";
        QVERIFY(PlanCopies(desk.Plan())[2].action == CopyAction::SameTarget);
    }

    void aClickOnATitleChangesTheForm() {
        CopyDesk desk;
        const QString pin = desk.library.Make("pin.tfmprt");
        desk.List(desk.library.Make("top.tfmasm", {{pin}}));
        CellList& list = desk.copies;
        QCOMPARE(list.Headers()[kCopySource].text, gStrings[29]);
        ToggleCopyColumn(list, kCopySource);
        QCOMPARE(list.At(0).cells[kCopySource].text, QString("pin.tfmprt"));
        QCOMPARE(list.At(0).cells[kCopySource].tag, pin);
        QCOMPARE(list.Headers()[kCopySource].text, gStrings[27]);
        QCOMPARE(list.Headers()[kCopySource].tag, QString("S"));
        ToggleCopyColumn(list, kCopySource);
        QCOMPARE(list.At(0).cells[kCopySource].text, pin);
        ToggleCopyColumn(list, kCopyTarget);
        QCOMPARE(list.At(0).cells[kCopyTarget].text, QString("x_pin.tfmprt"));
        QCOMPARE(list.Headers()[kCopyTarget].text, gStrings[28]);
    }

    void aClickOnTheLastTitleEmptiesItsColumn() {
        CopyDesk desk;
        const QString pin = desk.library.Make("pin.tfmprt");
        desk.List(desk.library.Make("top.tfmasm", {{pin}}));
        for (const int title : {30, 28, 30}) {
            ToggleCopyColumn(desk.copies, kCopyName);
            QCOMPARE(desk.copies.At(0).cells[kCopyName].text, QString());
            QCOMPARE(desk.copies.Headers()[kCopyName].text, gStrings[size_t(title)]);
        }
        ToggleCopyColumn(desk.copies, kCopyTick);
        QCOMPARE(desk.copies.Headers()[kCopyTick].text, gStrings[5]);
    }

    void theExportTellsTicksPathsAndOutcome() {
        CopyDesk desk;
        QVERIFY(!PackCopyList(desk.copies));
        const QString pin = desk.library.Make("pin.tfmprt");
        const QString bolt = desk.library.Make("bolt.tfmprt");
        desk.List(desk.library.Make("top.tfmasm", {{pin}, {bolt}}));
        desk.Untick(1);
        desk.copies.Change(0, [](CellRow& row) { row.cells[kCopyTarget].foreColor = kColorBlue; });
        desk.copies.Change(1, [](CellRow& row) { row.cells[kCopyTarget].toolTip = gStrings[65]; });
        const TextTable table = *PackCopyList(desk.copies);
        QCOMPARE(table.size(), size_t(4));  // the last one stays empty
        QCOMPARE(table[0],
                 (std::vector<QString>{gStrings[5], gStrings[29], gStrings[30], gStrings[44]}));
        QCOMPARE(table[1], (std::vector<QString>{gStrings[45], pin, desk.Copy("x_pin.tfmprt"),
                                                 gStrings[350]}));
        QCOMPARE(table[2], (std::vector<QString>{gStrings[46], bolt, desk.Copy("x_bolt.tfmprt"),
                                                 gStrings[65]}));
        QCOMPARE(table[3], std::vector<QString>(4));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestCopyWalk)
#include "tst_copywalk.moc"
