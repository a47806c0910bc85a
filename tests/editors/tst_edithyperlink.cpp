// The hyperlink editor, through its widgets.

#include <QFile>

#include "editors/edithyperlink.h"
#include "services/documentlibrary.h"
#include "tests/editors/editorbench.h"
#include "tests/support/failingaccess.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/filelockholder.h"
#include "tests/support/testenvironment.h"

using namespace docbench;
using docmodel::DocumentBuilder;

namespace {

struct Bench : EditorBench<EditHyperLink> {
    Bench() : EditorBench("tvwhlink") { pin = library.Make("pin.tfmprt"); }
    void Load(const QStringList& links) {
        DocumentBuilder document = DocumentBuilder::Edit(pin);
        for (const QString& link : links)
            document.AddHyperlink(link);
        document.Save();
        pane->SetPartName("pin", pin);
    }
    QStringList Stored() {
        const auto file = Documents().MakeDocumentFile();
        file->OpenHyperlinks(pin);
        QStringList texts;
        for (int index = 0; index < file->GetHyperlinkCount(); ++index)
            texts.append(file->GetHyperlink(index));
        return texts;
    }
    void DoubleClick(int node) {
        // The first press comes from an earlier click: a view tells of a double click on a row that
        // was pressed.
        QTest::mouseClick(View()->viewport(), Qt::LeftButton, {}, CentreOf(node));
        QTest::mouseDClick(View()->viewport(), Qt::LeftButton, {}, CentreOf(node));
    }
    QString pin;
};

QString Pending(const QString& from, const QString& to) {
    return from + gStrings[92] + to;
}

QString SaveErrorBeginning() {
    return gStrings[368].section("%s", 0, 0) + '*';
}

QByteArray BytesOf(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class TestEditHyperLink : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hyperlinksAreListedInTheirOrder() {
        Bench bench;
        bench.Load({"http://server/b_1_x", "C:\\notes.txt", "a"});
        QCOMPARE(bench.Node(1).text, QString("pin"));
        QCOMPARE(bench.Node(1).tag, QString("ignore"));
        QCOMPARE(bench.Node(1).image, QString("picPart"));
        QCOMPARE(bench.Texts(), QStringList({"http://server/b_1_x", "C:\\notes.txt", "a"}));
        QCOMPARE(bench.Node(2).tag, QString("http://server/b_1_x_0"));
        QCOMPARE(bench.Node(2).image, QString("picHyperlink"));
        QCOMPARE(bench.status.caption, Format(Text::HyperlinkCount, "3"));
        QVERIFY(!bench.CanSave() && !bench.ResetButton()->isEnabled());
    }

    void everyTypeHasItsPicture() {
        Bench bench;
        bench.pin = bench.library.Make("sheet.tfmdrw");
        bench.Load({"a"});
        QCOMPARE(bench.Node(1).image, QString("picDrw"));
        bench.pin = bench.library.Make("top.tfmasm");
        bench.Load({"a"});
        QCOMPARE(bench.Node(1).image, QString("picAsm"));
    }

    void noHyperlinksGiveAnEmptyTree() {
        Bench bench;
        bench.Load({});
        QCOMPARE(bench.Tree().Count(), 0);
        QCOMPARE(bench.status.caption, Format(Text::HyperlinkCount, "0"));
        bench.pane->SetPartName("", "");
        QCOMPARE(bench.Tree().Count(), 0);
    }

    void anOldFormatIsToldInsteadOfTheTree() {
        Bench bench;
        bench.pane->SetPartName("old", MakeOldDocument(bench.library, "old.tfmprt"));
        QVERIFY(bench.ShowsOldFormat());
        QCOMPARE(bench.status.caption, gStrings[146]);
        bench.Load({"a"});
        QVERIFY(!bench.ShowsOldFormat() && bench.View()->isVisible());
        QCOMPARE(bench.Texts(), QStringList("a"));
    }

    void aDocumentThatCantBeReadIsTold() {
        Bench bench;
        const QString lost = bench.library.Path("lost.tfmprt");
        bench.dialogs.Expect(gStrings[115].section("%s", 0, 0) + '*');
        bench.pane->SetPartName("lost", lost);
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.status.caption, Format(Text::HyperlinksNotLoaded, lost));
    }

    void editingShowsBothTexts() {
        Bench bench;
        bench.Load({"http://a/x_y", "b"});
        QVERIFY(!bench.BeginEdit(1));
        bench.Type(2, "http://c/");
        QCOMPARE(bench.Node(2).text, Pending("http://a/x_y", "http://c/"));
        QVERIFY(bench.CanSave() && bench.ResetButton()->isEnabled());
        QCOMPARE(bench.BeginEdit(2)->text(), QString("http://a/x_y"));
        QTest::keyClick(bench.EditBox(), Qt::Key_Escape);
        bench.Settle();
        bench.Type(3, "http://c/");  // neither the same as another nor empty is refused
        bench.Type(3, "");
        QCOMPARE(bench.Node(3).text, Pending("b", ""));
        bench.Type(2, "HTTP://A/x_y");
        QCOMPARE(bench.Node(2).text, QString("http://a/x_y"));
        QVERIFY(bench.CanSave());
        bench.Type(3, "B");
        QVERIFY(!bench.CanSave());
    }

    void aSaveWritesTheChangedOnes() {
        Bench bench;
        bench.Load({"a_1", "b", "c"});
        bench.Type(2, "x -> y");
        bench.Type(4, "");
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList({"x -> y", "b", ""}));
        QCOMPARE(bench.Texts(), QStringList({"x -> y", "b", ""}));
        QCOMPARE(bench.status.caption, gStrings[110]);
        QVERIFY(!bench.CanSave() && !bench.ResetButton()->isEnabled());
        bench.Type(4, "d");
        QCOMPARE(bench.Node(4).text, Pending("", "d"));
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList({"x -> y", "b", "d"}));
    }

    void ofTwoAlikeTheEditedOneIsWritten() {
        Bench bench;
        bench.Load({"a", "a", "a"});
        bench.Type(3, "b");
        QCOMPARE(bench.Texts(), QStringList({"a", Pending("a", "b"), "a"}));
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList({"a", "b", "a"}));
    }

    void longTextsAreKeptWhole() {
        Bench bench;
        const QString text = QString::fromUtf8("http://server/\u00fc_").repeated(6000);
        bench.Load({"a"});
        bench.Type(2, text);
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList(text));
    }

    void aDoubleClickOpensWhatTheNodeLeadsTo() {
        Bench bench;
        FakeShellExecute shell;
        bench.Load({"http://a/", "http://b/"});
        bench.DoubleClick(2);
        QVERIFY(!bench.EditBox());
        bench.Type(3, "http://unsaved/");
        bench.DoubleClick(3);
        QVERIFY(!bench.EditBox());
        bench.DoubleClick(1);
        QCOMPARE(shell.calls, QStringList({"Open|http://a/|0|0|1", "Open|http://unsaved/|0|0|1"}));
        QTest::keyClick(bench.View(), Qt::Key_Return);  // on the root
        bench.View()->setCurrentIndex(bench.Tree().IndexOf(2));
        QTest::keyClick(bench.View(), Qt::Key_Return);
        QCOMPARE(shell.calls.size(), 3);
    }

    void aDroppedFileOpensTheEditBoxWithItsPath() {
        Bench bench;
        bench.Load({"a", "b"});
        bench.Drop(3, {"/docs/sheet.pdf"});
        QCOMPARE(bench.View()->SelectedNode(), 3);
        QCOMPARE(bench.EditBox()->text(), QString("/docs/sheet.pdf"));
        QTest::keyClick(bench.EditBox(), Qt::Key_Return);
        bench.Settle();
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList({"a", "/docs/sheet.pdf"}));
    }

    void resetDropsEverything() {
        Bench bench;
        bench.Load({"a"});
        bench.Type(2, "b");
        bench.Reset();
        QCOMPARE(bench.Texts(), QStringList("a"));
        QVERIFY(!bench.CanSave());
    }

    void aLockedDocumentsTreeIsDisabled() {
        Bench bench;
        bench.pane->Enable(false);
        QVERIFY(!bench.View()->isEnabled());
        bench.pane->GridEdit("x");
    }

    void aSaveThatFailsLeavesFileAndMarks() {
        int all = 0;  // operations of a save; counted by the first one, which goes well
        for (int failing = 0; failing <= all; ++failing) {
            Bench bench;
            bench.Load({"a", "b", "c"});
            bench.Type(2, "x");
            bench.Type(4, "z");
            const QStringList marks = bench.Texts();
            const QByteArray before = BytesOf(bench.pin);
            int operations = 0;
            bool saved = false;
            {
                FailingAccess access([&](const char* operation, const QString&) {
                    if (!saved && ++operations == failing)
                        throw DocumentError("Not now.");
                    saved = saved || operation == QLatin1String("SaveHyperlinks");
                });
                if (failing > 0)
                    bench.dialogs.Expect(Format(Text::HyperlinkSaveError, "Not now."));
                bench.Save();
            }
            QVERIFY(bench.dialogs.AllCame());
            if (failing > 0) {
                QCOMPARE(BytesOf(bench.pin), before);
                QCOMPARE(bench.Texts(), marks);
                QCOMPARE(bench.status.caption, gStrings[111]);
                QVERIFY(bench.CanSave());
                bench.Save();
            }
            QCOMPARE(bench.Stored(), QStringList({"x", "b", "z"}));
            QVERIFY(!bench.CanSave());
            all = std::max(all, operations);
        }
        QVERIFY(all >= 5);  // opening, the stamp, two texts, the save
    }

    void changesOfOthersAreNotOverwritten() {
        Bench bench;
        bench.Load({"a"});
        bench.Type(2, "mine");
        DocumentBuilder document = DocumentBuilder::Edit(bench.pin);
        document.AddConfiguration("not in the way");
        document.Save();
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList("mine"));
        bench.Type(2, "mine again");
        DocumentBuilder other = DocumentBuilder::Edit(bench.pin);
        other.AddHyperlink("theirs");
        other.Save();
        bench.dialogs.Expect(SaveErrorBeginning());
        bench.Save();
        QVERIFY(bench.dialogs.AllCame());
        QCOMPARE(bench.Stored(), QStringList({"mine", "theirs"}));
        QVERIFY(bench.CanSave());
    }

    void aDocumentInUseIsTold() {
        Bench bench;
        bench.Load({"a"});
        bench.Type(2, "b");
        {
            const FileLockHolder other(bench.pin);
            bench.dialogs.Expect(SaveErrorBeginning());
            bench.Save();
        }
        QVERIFY(bench.dialogs.AllCame());
        bench.Save();
        QCOMPARE(bench.Stored(), QStringList("b"));
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestEditHyperLink)
#include "tst_edithyperlink.moc"
