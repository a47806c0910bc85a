// The shell on documents of a real server.

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QTest>

#include "services/webcopies.h"
#include "services/webdocument.h"
#include "shell/picturebox.h"
#include "tests/shell/shellbench.h"
#include "tests/support/apacheserver.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// A shell on an assembly of the server, with a preview.
struct ServerBench : ShellBench {
    ServerBench() {
        QImage picture(40, 30, QImage::Format_RGB32);
        picture.fill(Qt::green);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        picture.save(&buffer, "PNG");
        library.SetPreview(top, bytes);
        for (const QString& path : {top, left, pin})
            QFile::copy(path, server.Path(QFileInfo(path).fileName()));
        url = server.Url("top.tfmasm");
    }
    ApacheServer server;
    QString url;
};

}  // namespace

class TestWebServer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { gWebDocument = false; }

    void treeAndPreviewComeFromTheServer() {
        ServerBench bench;
        bench.shell.SetCurrentFunction("PREVIEW");
        bench.shell.OpenPath(bench.url);
        const CellNodes& nodes = bench.shell.Tree().Nodes();
        QCOMPARE(nodes.Count(), 4);
        QCOMPARE(nodes.At(2).tag, bench.server.Url("left.tfmasm"));
        QCOMPARE(nodes.At(3).tag, bench.server.Url("pin.tfmprt"));
        QCOMPARE(nodes.At(4).foreColor, kColorRed);
        auto* box = bench.Child<PictureBox>("Image1A_0");
        QCOMPARE(box->toolTip(), bench.url);
        QCOMPARE(box->grab().toImage().pixelColor(box->rect().center()), QColor(Qt::green));
        QCOMPARE(bench.server.CountRequests("GET /dav/top.tfmasm"), 1);
    }

    void aLockIsUploaded() {
        ServerBench bench;
        bench.shell.OpenPath(bench.url);
        bench.shell.SetCurrentFunction("LOCK");
        QVERIFY(bench.library.IsLocked(bench.server.Path("top.tfmasm")));
        QVERIFY(!bench.library.IsLocked(bench.top));
        bench.shell.SetCurrentFunction("UNLOCK");  // against what the upload left there
        QVERIFY(!bench.library.IsLocked(bench.server.Path("top.tfmasm")));
    }

    void aDocumentThatSomebodyElseChangedIsNotOverwritten() {
        ServerBench bench;
        bench.shell.OpenPath(bench.url);
        bench.library.LockReferences(bench.server.Path("top.tfmasm"));  // the colleague's work
        QFile server(bench.server.Path("top.tfmasm"));
        QVERIFY(server.open(QIODevice::ReadOnly));
        const QByteArray theirs = server.readAll();
        bench.dialogs.Expect("File save to server failed", Dialogs::Icon::None);
        bench.shell.SetCurrentFunction("LOCK");
        QVERIFY(bench.dialogs.AllCame());
        QVERIFY(bench.dialogs.LastDetail().contains("top.tfmasm"));
        QVERIFY(bench.library.IsLocked(gWebCopies.value(bench.url)));  // the copy is kept
        server.seek(0);
        QCOMPARE(server.readAll(), theirs);
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestWebServer)
#include "tst_webserver.moc"
