#include <QTest>

#include "services/language.h"
#include "services/texts.h"
#include "shell/referencetree.h"
#include "shell/treepictures.h"
#include "shell/treewalk.h"
#include "tests/support/countingaccess.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

class TestTreeWalk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        const TestLibrary library;
        const TestDialogs dialogs;
        LoadResources();
    }
    void aRowOfSixInstancesIsOneNodeWithItsCount();
    void aSingleInstanceHasTheLabelWithATrailingBlank();
    void everyRowIsANodeOfItsOwn();
    void picturesFollowTheType();
    void aDerivedLinkIsAChildWithItsKindAndMarksItsHolder();
    void aReferenceToAnAssemblyIsNotShownButMarksItsHolder();
    void anExternalReferenceItselfGetsNoSecondArrow();
    void lockedReferencesAreMarkedWithAStar();
    void aCycleIsRedWithOneBoxForEachOccurrence();
    void aCycleIsFoundWithoutRegardToLetterCase();
    void aMissingDocumentIsRedAndTheRestStands();
    void aMissingRootIsNotFound();
    void aNameWithWildcardsThatMatchesAFileCountsAsPresent();
    void aDocumentThatCannotBeReadTellsOfItAndTheRestStands();
    void aRootThatCannotBeReadIsNotFound();
    void theLockPictureFollowsTheDocumentsRecord();
    void aDocumentWithoutRecordTakesThePictureOfTheNodeBefore();
    void everyDistinctDocumentIsReadOnce();
    void aLongChainOfReferencesIsWalkedToItsEnd();
    void aTreeBeyondAllMeasureEndsWithAMessage();
    void theChainHoldsEveryDocumentAboveEveryOccurrence();
    void withoutASelectedNodeTheChainStaysAsItWas();
};

namespace {

QStringList Labels(const CellNodes& nodes) {
    QStringList labels;
    for (int i = 1; i <= nodes.Count(); ++i)
        labels.append(nodes.At(i).text);
    return labels;
}

int NodeOf(const CellNodes& nodes, const QString& path) {
    for (int i = 1; i <= nodes.Count(); ++i) {
        if (nodes.At(i).tag == path)
            return i;
    }
    return 0;
}

}  // namespace

void TestTreeWalk::aRowOfSixInstancesIsOneNodeWithItsCount() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString screw = library.Make(QStringLiteral("screw.tfmprt"));
    const QString top = library.Make(QStringLiteral("top.tfmasm"), {{screw, 6}});
    ReferenceTree tree;
    QVERIFY(tree.Load(top));
    QCOMPARE(Labels(tree.Nodes()),
             (QStringList{QStringLiteral("top "), QStringLiteral("screw  (6 x)")}));
    QCOMPARE(tree.Nodes().At(2).tag, screw);
    QCOMPARE(tree.Nodes().At(2).parent, 1);
}

void TestTreeWalk::aSingleInstanceHasTheLabelWithATrailingBlank() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    ReferenceTree tree;
    QVERIFY(tree.Load(library.Make(QStringLiteral("top.tfmasm"), {{pin, 1}})));
    QCOMPARE(tree.Nodes().At(2).text, QStringLiteral("pin "));
}

void TestTreeWalk::everyRowIsANodeOfItsOwn() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    const QString left = library.Make(QStringLiteral("left.tfmasm"), {{pin}});
    const QString right = library.Make(QStringLiteral("right.tfmasm"), {{pin}});
    ReferenceTree tree;
    QVERIFY(tree.Load(library.Make(QStringLiteral("top.tfmasm"), {{left}, {right}})));
    QCOMPARE(Labels(tree.Nodes()),
             (QStringList{QStringLiteral("top "), QStringLiteral("left "), QStringLiteral("pin "),
                          QStringLiteral("right "), QStringLiteral("pin ")}));
}

void TestTreeWalk::picturesFollowTheType() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    const QString top = library.Make(QStringLiteral("top.tfmasm"),
                                     {{pin}, {library.Path(QStringLiteral("notes.txt"))}});
    ReferenceTree tree;
    QVERIFY(tree.Load(library.Make(QStringLiteral("sheet.tfmdrw"), {{top}})));
    QCOMPARE(tree.Nodes().At(1).image, QStringLiteral("picDrw"));
    QCOMPARE(tree.Nodes().At(2).image, QStringLiteral("picAsm"));
    QCOMPARE(tree.Nodes().At(3).image, QStringLiteral("picPart"));
    QCOMPARE(tree.Nodes().At(4).image, QString());
}

void TestTreeWalk::aDerivedLinkIsAChildWithItsKindAndMarksItsHolder() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString blank = library.Make(QStringLiteral("blank.tfmprt"));
    const QString part =
        library.Make(QStringLiteral("part.tfmprt"), {}, {{blank, QStringLiteral("derived")}});
    ReferenceTree tree;
    QVERIFY(tree.Load(part));
    QCOMPARE(Labels(tree.Nodes()),
             (QStringList{QStringLiteral("part  ->"), QStringLiteral("blank  -> (derived)")}));
}

void TestTreeWalk::aReferenceToAnAssemblyIsNotShownButMarksItsHolder() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString context = library.Make(QStringLiteral("context.tfmasm"));
    const QString part =
        library.Make(QStringLiteral("part.tfmprt"), {}, {{context, QStringLiteral("in-context")}});
    ReferenceTree tree;
    QVERIFY(tree.Load(part));
    QCOMPARE(Labels(tree.Nodes()), QStringList{QStringLiteral("part  ->")});
}

void TestTreeWalk::anExternalReferenceItselfGetsNoSecondArrow() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString origin = library.Make(QStringLiteral("origin.tfmprt"));
    const QString mirrored =
        library.Make(QStringLiteral("mirrored.tfmprt"), {}, {{origin, QStringLiteral("mirrored")}});
    const QString part =
        library.Make(QStringLiteral("part.tfmprt"), {}, {{mirrored, QStringLiteral("derived")}});
    ReferenceTree tree;
    QVERIFY(tree.Load(part));
    QCOMPARE(tree.Nodes().At(2).text, QStringLiteral("mirrored  -> (derived)"));
    QCOMPARE(tree.Nodes().At(3).text, QStringLiteral("origin  -> (mirrored)"));
}

void TestTreeWalk::lockedReferencesAreMarkedWithAStar() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString blank = library.Make(QStringLiteral("blank.tfmprt"));
    const QString part =
        library.Make(QStringLiteral("part.tfmprt"), {}, {{blank, QStringLiteral("derived")}});
    library.LockReferences(part);
    ReferenceTree tree;
    QVERIFY(tree.Load(part));
    QCOMPARE(tree.Nodes().At(1).text, QStringLiteral("part  -> *"));
}

void TestTreeWalk::aCycleIsRedWithOneBoxForEachOccurrence() {
    TestLibrary library;
    TestDialogs dialogs;
    const QString a = library.Path(QStringLiteral("a.tfmasm"));
    const QString b = library.Make(QStringLiteral("b.tfmasm"), {{a}});
    library.Make(QStringLiteral("a.tfmasm"), {{b}, {b}});
    dialogs.Expect(Format(Text::CircularReference, a), Dialogs::Icon::Stop);
    dialogs.Expect(Format(Text::CircularReference, a), Dialogs::Icon::Stop);
    ReferenceTree tree;
    QVERIFY(tree.Load(a));
    QCOMPARE(dialogs.LastTitle(), gAppTitle);
    QCOMPARE(tree.Nodes().Count(), 5);
    for (const int node : {3, 5}) {
        const CellNode& again = tree.Nodes().At(node);
        QCOMPARE(again.text, Format(Text::CircularNode, QStringLiteral("a ")));
        QCOMPARE(again.foreColor, kColorRed);
        QCOMPARE(again.image, kPictureCircular);
        QCOMPARE(again.tag, a);
    }
    QCOMPARE(tree.CircularNodes(), (std::vector<int>{3, 5}));
}

void TestTreeWalk::aCycleIsFoundWithoutRegardToLetterCase() {
    TestLibrary library;
    TestDialogs dialogs;
    const QString upper = library.Path(QStringLiteral("A.tfmasm"));
    const QString b = library.Make(QStringLiteral("b.tfmasm"), {{upper}});
    const QString a = library.Make(QStringLiteral("a.tfmasm"), {{b}});
    dialogs.Expect(Format(Text::CircularReference, upper), Dialogs::Icon::Stop);
    ReferenceTree tree;
    QVERIFY(tree.Load(a));
    QCOMPARE(tree.Nodes().Count(), 3);
}

void TestTreeWalk::aMissingDocumentIsRedAndTheRestStands() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    const QString lost = library.Path(QStringLiteral("lost.tfmprt"));
    ReferenceTree tree;
    QVERIFY(tree.Load(library.Make(QStringLiteral("top.tfmasm"), {{lost}, {pin}})));
    QCOMPARE(tree.Nodes().At(2).foreColor, kColorRed);
    QCOMPARE(tree.Nodes().At(2).image, QStringLiteral("picPart"));
    QCOMPARE(tree.Nodes().At(3).foreColor, kColorNormal);
    QCOMPARE(tree.Nodes().At(1).foreColor, kColorNormal);
    QVERIFY(!tree.HadErrors());
}

void TestTreeWalk::aMissingRootIsNotFound() {
    TestLibrary library;
    const TestDialogs dialogs;
    ReferenceTree tree;
    QVERIFY(!tree.Load(library.Path(QStringLiteral("lost.tfmasm"))));
    QCOMPARE(tree.Nodes().Count(), 0);
}

void TestTreeWalk::aNameWithWildcardsThatMatchesAFileCountsAsPresent() {
    TestLibrary library;
    TestDialogs dialogs;
    library.Make(QStringLiteral("pin7.tfmprt"));
    const QString pattern = library.Path(QStringLiteral("pin?.tfmprt"));
    const QString none = library.Path(QStringLiteral("bolt?.tfmprt"));
    const QString top = library.Make(QStringLiteral("top.tfmasm"), {{pattern}, {none}});
    dialogs.Expect(QStringLiteral("*"));
    ReferenceTree tree;
    QVERIFY(tree.Load(top));
    QCOMPARE(tree.Nodes().At(2).foreColor, kColorNormal);
    QCOMPARE(tree.Nodes().At(3).foreColor, kColorRed);
}

void TestTreeWalk::aDocumentThatCannotBeReadTellsOfItAndTheRestStands() {
    TestLibrary library;
    TestDialogs dialogs;
    const QString broken = library.MakeBroken(QStringLiteral("broken.tfmasm"));
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    const QString top = library.Make(QStringLiteral("top.tfmasm"), {{broken}, {pin}});
    QString description;
    try {
        gSeams.documents->MakeDocumentFile()->Open(broken);
    } catch (const DocumentError& error) {
        description = error.Description();
    }
    QVERIFY(description.contains(broken));
    dialogs.Expect(Format(Text::WalkError, broken, description));
    ReferenceTree tree;
    QVERIFY(tree.Load(top));
    QCOMPARE(tree.Nodes().Count(), 3);
    QCOMPARE(tree.Nodes().At(2).foreColor, kColorNormal);
    QVERIFY(tree.HadErrors());
}

void TestTreeWalk::aRootThatCannotBeReadIsNotFound() {
    TestLibrary library;
    TestDialogs dialogs;
    const QString broken = library.MakeBroken(QStringLiteral("broken.tfmasm"));
    dialogs.Expect(QStringLiteral("*"));
    ReferenceTree tree;
    QVERIFY(!tree.Load(broken));
    QCOMPARE(tree.Nodes().Count(), 0);
}

void TestTreeWalk::theLockPictureFollowsTheDocumentsRecord() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    const QString bolt = library.Make(QStringLiteral("bolt.tfmprt"));
    library.Lock(pin, QStringLiteral("somebody"));
    ReferenceTree tree;
    QVERIFY(tree.Load(library.Make(QStringLiteral("top.tfmasm"), {{pin}, {bolt}})));
    QCOMPARE(tree.Nodes().At(1).image, QStringLiteral("picAsm"));
    QCOMPARE(tree.Nodes().At(2).image, QStringLiteral("picPartLock"));
    QCOMPARE(tree.Nodes().At(3).image, QStringLiteral("picPart"));
}

void TestTreeWalk::aDocumentWithoutRecordTakesThePictureOfTheNodeBefore() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    library.Lock(pin, QStringLiteral("somebody"));
    const QString lost = library.Path(QStringLiteral("lost.tfmprt"));
    const QString bolt = library.Make(QStringLiteral("bolt.tfmprt"));
    ReferenceTree tree;
    QVERIFY(tree.Load(
        library.Make(QStringLiteral("top.tfmasm"), {{lost}, {pin}, {lost}, {bolt}, {lost}})));
    const auto image = [&](int node) { return tree.Nodes().At(node).image; };
    QCOMPARE(image(2), QStringLiteral("picPart"));
    QCOMPARE(image(4), QStringLiteral("picPartLock"));
    QCOMPARE(image(6), QStringLiteral("picPart"));
}

void TestTreeWalk::everyDistinctDocumentIsReadOnce() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    const QString left = library.Make(QStringLiteral("left.tfmasm"), {{pin}, {pin}});
    const QString right = library.Make(QStringLiteral("right.tfmasm"), {{pin}, {left}});
    const QString top = library.Make(QStringLiteral("top.tfmasm"), {{left}, {right}, {left}});
    CountingAccess counting;
    ReferenceTree tree;
    QVERIFY(tree.Load(top));
    QCOMPARE(tree.Nodes().Count(), 12);
    QCOMPARE(counting.filesMade, 4);
    QCOMPARE(counting.infosMade, 4);
    QVERIFY(tree.Load(top));  // a new load reads everything again
    QCOMPARE(counting.filesMade, 8);
}

void TestTreeWalk::aLongChainOfReferencesIsWalkedToItsEnd() {
    constexpr int kLength = 300;
    TestLibrary library;
    const TestDialogs dialogs;
    QString below = library.Make(QStringLiteral("end.tfmprt"));
    for (int i = 0; i < kLength; ++i)
        below = library.Make(QStringLiteral("link%1.tfmasm").arg(i), {{below}});
    ReferenceTree tree;
    QVERIFY(tree.Load(below));
    QCOMPARE(tree.Nodes().Count(), kLength + 1);
}

void TestTreeWalk::aTreeBeyondAllMeasureEndsWithAMessage() {
    TestLibrary library;
    TestDialogs dialogs;
    QString below = library.Make(QStringLiteral("end.tfmprt"));
    for (int i = 0; i < 40; ++i)  // 2 to the power of 40 ways down
        below = library.Make(QStringLiteral("fork%1.tfmasm").arg(i), {{below}, {below}});
    dialogs.Expect(QStringLiteral("*"));
    bool locked = false;
    TreeWalk walk(locked, 1000);
    QVERIFY(walk.WalkDocument(below));
    QVERIFY(walk.HadErrors());
    QVERIFY(walk.TakeNodes().Count() <= 1000);
}

void TestTreeWalk::theChainHoldsEveryDocumentAboveEveryOccurrence() {
    TestLibrary library;
    const TestDialogs dialogs;
    const QString pin = library.Make(QStringLiteral("pin.tfmprt"));
    const QString left = library.Make(QStringLiteral("left.tfmasm"), {{pin}});
    const QString right = library.Make(QStringLiteral("right.tfmasm"), {{pin}});
    const QString top = library.Make(QStringLiteral("top.tfmasm"), {{left}, {right}});
    ReferenceTree tree;
    QVERIFY(tree.Load(top));
    QString chain;
    tree.BuildReferencingChain(NodeOf(tree.Nodes(), pin), chain);
    QCOMPARE(chain, (QStringList{pin, left, top, right, top}.join(u';')));
    tree.BuildReferencingChain(1, chain);
    QCOMPARE(chain, top);
}

void TestTreeWalk::withoutASelectedNodeTheChainStaysAsItWas() {
    ReferenceTree tree;
    QString chain = QStringLiteral("as it was");
    tree.BuildReferencingChain(0, chain);
    QCOMPARE(chain, QStringLiteral("as it was"));
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestTreeWalk)
#include "tst_treewalk.moc"
