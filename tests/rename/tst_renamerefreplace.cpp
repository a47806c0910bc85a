// The same pane where it puts another document in the place of one.

#include "tests/rename/renamebench.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

using Bench = RenameBench;

}  // namespace

class TestRenameRefReplace : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theReplacedDocumentItselfMayBeInUse() {
        Bench bench;
        const FileLockHolder holder(bench.pin);
        bench.Load(true);
        QVERIFY(bench.Button("apply")->isEnabled());
    }

    void aHolderNamedLikeTheReplacementStopsApply() {
        Bench bench;
        const QString holder = bench.library.Make("a/better.tfmprt", {}, {{bench.pin, "derived"}});
        const QString better = bench.library.Make("better.tfmprt");
        bench.Load(true);
        bench.Find();
        bench.Type(better);
        bench.dialogs.Expect(Format(Text::HolderIsReplacement, holder, better));
        bench.Apply();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.PathIn(bench.left), bench.pin);
    }

    void aReplacementThatIsNotThereIsRefused() {
        Bench bench;
        bench.Load(true);
        // The walk ends at the replaced document's own name, and does not see that it is missing.
        const QString missing = "/nowhere/pin.tfmprt";
        bench.Type(missing);
        bench.dialogs.Expect(Format(Text::TargetMissing, missing));
        QTest::keyClick(bench.NewName(), Qt::Key_Return);
        QVERIFY(bench.dialogs.AllCame());
    }

    void aDroppedReplacementIsCheckedToo() {
        Bench bench;
        bench.Load(true);
        const QString good = bench.library.Make("lib/bolt.tfmprt");
        DropFiles(bench.NewName(), {good, bench.right});
        QCOMPARE(bench.NewName()->text(), good);
        bench.dialogs.Expect(gStrings[216]);
        DropFiles(bench.NewName(), {bench.right});
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.NewName()->text(), good);
        QVERIFY(!bench.Button("apply")->isEnabled());
    }

    void aReplacedRootUpdatesItsRows() {
        Bench bench;
        const QString bolt = bench.library.Make("lib/bolt.tfmprt");
        bench.dialogs.ExpectOpenFile(bolt);
        bench.pane->SetPartName("pin", bench.pin, bench.pin, true);
        bench.Find();
        bench.Apply();
        QCOMPARE(bench.PathIn(bench.left), bolt);
        QCOMPARE(bench.PathIn(bench.right), bolt);
        QCOMPARE(bench.status.caption, Format(Text::RenameDone, "2", "0"));
    }

    void replacingPointsTheHoldersAtTheOtherDocument() {
        Bench bench;
        const QString bolt = bench.library.Make("lib/bolt.tfmprt");
        bench.Load(true);
        QCOMPARE(bench.NewName()->text(), bench.pin);
        QCOMPARE(bench.Child<QLabel>("Label1")->text(), gStrings[359] + " :");
        QVERIFY(!bench.Button("browse")->isHidden());
        bench.dialogs.ExpectOpenFile(bolt);
        QTest::mouseClick(bench.Button("browse"), Qt::LeftButton);
        QCOMPARE(bench.dialogs.LastTitle(), gStrings[209]);
        QCOMPARE(bench.dialogs.LastFilter(), gStrings[35]);
        QCOMPARE(bench.dialogs.LastStart(), bench.pin);
        QCOMPARE(bench.NewName()->text(), bolt);
        bench.Apply();  // nobody asks for a search
        QVERIFY(QFile::exists(bench.pin));
        QCOMPARE(bench.PathIn(bench.left), bolt);
        QCOMPARE(bench.PathIn(bench.right), bench.pin);
        QCOMPARE(bench.status.caption, Format(Text::RenameDone, "1", "0"));
    }

    void wrongReplacementsAreRefused() {
        Bench bench;
        bench.Load(true);
        const auto enter = [&](const QString& path) {
            bench.Type(path);
            QTest::keyClick(bench.NewName(), Qt::Key_Return);
            QVERIFY(bench.dialogs.AllCame());
            QVERIFY(!bench.Button("apply")->isEnabled());
        };
        const QString missing = bench.library.Path("none.tfmprt");
        bench.dialogs.Expect(Format(Text::DocumentNotReadable, missing));
        bench.dialogs.Expect(Format(Text::TargetCollides, "none"));
        enter(missing);
        bench.dialogs.Expect(gStrings[214]);
        enter(bench.pin);
        bench.dialogs.Expect(gStrings[216]);
        enter(bench.library.Make("box.tfmasm"));
        bench.dialogs.Expect(Format(Text::CircularReference, "left.tfmasm"));
        bench.dialogs.Expect(Format(Text::TargetCollides, "loop"));
        enter(bench.library.Make("loop.tfmprt", {}, {{bench.left, "in context"}}));
    }

    void aReplacementThatUsesTheReplacedDocumentPasses() {
        Bench bench;
        const QString better = bench.library.Make("better.tfmprt", {}, {{bench.pin, "derived"}});
        bench.Load(true);
        bench.Type(better);
        QTest::keyClick(bench.NewName(), Qt::Key_Return);
        QVERIFY(bench.Button("apply")->isEnabled());
    }

    void aReplacementOfMoreThanFiftyDocumentsIsRefused() {
        Bench bench;
        QList<TestLibrary::External> fifty;
        for (int i = 0; i < 50; ++i)
            fifty.append({bench.library.Make(QString("p%1.tfmprt").arg(i)), "derived"});
        const QString large = bench.library.Make("large.tfmprt", {}, fifty);
        bench.Load(true);
        bench.Type(large);
        bench.dialogs.Expect(Format(Text::TargetCollides, "large"));
        QTest::keyClick(bench.NewName(), Qt::Key_Return);
        QVERIFY(bench.dialogs.AllCame());
        fifty.removeLast();
        bench.library.Make("large.tfmprt", {}, fifty);
        QTest::keyClick(bench.NewName(), Qt::Key_Return);
        QVERIFY(bench.Button("apply")->isEnabled());
    }

    void aDrawingIsNotReplaced() {
        Bench bench;
        const QString sheet = bench.library.Make("sheet.tfmdrw", {{bench.top}});
        bench.pane->SetPartName("sheet", sheet, sheet, true);
        QCOMPARE(bench.NewName()->text(), QString());
        QVERIFY(!bench.Button("apply")->isEnabled());
    }

    void aRootIsReplacedThroughTheDialogAtOnce() {
        Bench bench;
        bench.dialogs.ExpectOpenFile(QString());
        bench.pane->SetPartName("top", bench.top, bench.top, true);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.dialogs.LastFilter(), gStrings[36]);
    }

    void resetBringsTheQuestionBackWhenReplacing() {
        Bench bench;
        const QString bolt = bench.library.Make("lib/bolt.tfmprt");
        bench.Load(true);
        bench.Find();
        QTest::mouseClick(bench.Button("reset"), Qt::LeftButton);
        bench.Type(bolt);
        bench.dialogs.Expect(gStrings[360], Dialogs::Icon::Exclamation, Dialogs::Answer::Cancel);
        bench.Apply();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.PathIn(bench.left), bench.pin);
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestRenameRefReplace)
#include "tst_renamerefreplace.moc"
