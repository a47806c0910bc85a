// Renaming and replacing documents of a web folder, on a real server.

#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <memory>

#include "panes/celllistview.h"
#include "rename/renamelist.h"
#include "rename/renameref.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/scratch.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"
#include "services/webdocument.h"
#include "tests/shell/shellbench.h"
#include "tests/support/apacheserver.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

// top -> left -> pin and top -> right -> pin, all of them on the server.
struct WebBench {
    WebBench() {
        LoadResources();
        PrepareScratch();
        UseWebFolders();
        gWebDocument = true;
        const QString pin = library.Make("pin.tfmprt");
        const QString left = library.Make("left.tfmasm", {{pin}});
        const QString right = library.Make("right.tfmasm", {{pin}});
        const QString bush = library.Make("bush.tfmprt");
        for (const QString& path :
             {pin, left, right, bush, library.Make("top.tfmasm", {{left}, {right}})})
            QFile::copy(path, server.Path(FileNameOf(path)));
        pane.SetStatusBarControl(&status);
    }
    ~WebBench() { gWebDocument = false; }

    QString Url(const QString& name) const { return server.Url(name); }
    void Load(bool replaces) {
        const QStringList chain = {Url("pin.tfmprt"), Url("left.tfmasm"), Url("top.tfmasm")};
        pane.SetPartName("pin", chain[0], chain.join(';'), replaces);
    }
    template <typename T>
    T* Child(const char* name) {
        return pane.findChild<T*>(QLatin1String(name));
    }
    void Click(const char* name) { Child<QPushButton>(name)->click(); }
    void Type(const QString& name) { Child<QLineEdit>("newname")->setText(name); }
    CellList& Rows() { return Child<CellListView>("lv")->List(); }
    // What a document of the server holds, as another user finds it.
    QString Holds(const QString& name) {
        const QString copy = library.Path("seen-" + name);
        QFile::remove(copy);
        QFile::copy(server.Path(name), copy);
        const auto file = gSeams.documents->MakeDocumentFile();
        file->Open(copy);
        return file->GetComponent(0, server.Url()).path;
    }

    ApacheServer server;
    TestLibrary library;
    TestDialogs dialogs;
    FakeStatusLine status;
    renameRef pane;
};

}  // namespace

class TestRenameWeb : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aRenamingMovesOnTheServerAndUploadsTheHolders() {
        WebBench bench;
        bench.Load(false);
        bench.Click("Findnow");
        QCOMPARE(bench.Rows().Count(), 2);
        QCOMPARE(ReadRow(bench.Rows().At(0)).holder, bench.Url("left.tfmasm"));
        QCOMPARE(bench.Rows().At(0).cells[kRelationColumn].tag, QString("M"));
        bench.Type("bolt");
        bench.Click("apply");
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(QFile::exists(bench.server.Path("bolt.tfmprt")));
        QVERIFY(!QFile::exists(bench.server.Path("pin.tfmprt")));
        QCOMPARE(bench.Holds("left.tfmasm"), bench.Url("bolt.tfmprt"));
        QCOMPARE(bench.Holds("right.tfmasm"), bench.Url("bolt.tfmprt"));
        QCOMPARE(bench.status.caption, Format(Text::RenameDone, "3", "0"));
        QVERIFY(gWebCopies.contains(bench.Url("bolt.tfmprt")));
        QVERIFY(!gWebCopies.contains(bench.Url("pin.tfmprt")));
    }

    void aNameThatIsTakenOnTheServerIsRefused() {
        WebBench bench;
        bench.Load(false);
        bench.Click("Findnow");
        bench.Type("bush.tfmprt");  // nobody has fetched it: only the server knows it
        bench.dialogs.Expect(gStrings[219], Dialogs::Icon::Exclamation);
        bench.Click("apply");
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(QFile::exists(bench.server.Path("pin.tfmprt")));
        QCOMPARE(bench.Holds("left.tfmasm"), bench.Url("pin.tfmprt"));
    }

    void aHolderThatSomebodyElseChangedIsNotOverwritten() {
        WebBench bench;
        bench.Load(false);
        bench.Click("Findnow");
        bench.library.LockReferences(bench.server.Path("right.tfmasm"));  // the colleague's work
        bench.Type("bolt");
        bench.dialogs.Expect("File save to server failed", Dialogs::Icon::None);
        bench.Click("apply");
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(bench.dialogs.LastDetail().contains("right.tfmasm"));
        QVERIFY(bench.Holds("right.tfmasm").endsWith("pin.tfmprt"));
        QCOMPARE(bench.Holds("left.tfmasm"), bench.Url("bolt.tfmprt"));
    }

    void aReplacementMovesNothingOnTheServer() {
        WebBench bench;
        bench.Load(true);
        bench.Click("Findnow");
        bench.Type(bench.Url("bush.tfmprt"));
        bench.Click("apply");
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(QFile::exists(bench.server.Path("pin.tfmprt")));
        QCOMPARE(bench.Holds("left.tfmasm"), bench.Url("bush.tfmprt"));
        QCOMPARE(bench.Holds("right.tfmasm"), bench.Url("bush.tfmprt"));
        QCOMPARE(bench.server.CountRequests("MOVE"), 0);
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestRenameWeb)
#include "tst_renameweb.moc"
