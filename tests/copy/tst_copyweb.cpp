// Copies from, to and within a web folder, on a real server.

#include <QTest>

#include "services/scratch.h"
#include "services/webcopies.h"
#include "services/webdocument.h"
#include "tests/copy/copyproject.h"
#include "tests/support/apacheserver.h"
#include "tests/support/fakewebclient.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// top -> left -> pin and top -> right -> pin, in a folder and on the server.
struct WebDesk : CopyDesk {
    WebDesk() {
        PrepareScratch();
        UseWebFolders();
        pin = library.Make("pin.tfmprt");
        left = library.Make("left.tfmasm", {{pin}});
        right = library.Make("right.tfmasm", {{pin}});
        top = library.Make("top.tfmasm", {{left}, {right}});
        for (const QString& path : {pin, left, right, top})
            QFile::copy(path, server.Path(FileNameOf(path)));
    }
    ~WebDesk() { gWebDocument = false; }
    void From(const QString& document, const QString& to) {
        source = document;
        gWebDocument = IsWebPath(document);
        folder = to;
        target = TargetIn(to, CopyName(affixes, FileNameOf(document)));
        walked =
            ListReferences({.document = document, .targetFolder = to, .affixes = affixes}, copies);
    }
    // What a document on the server refers to, as another user finds it.
    QString OnServer(const QString& name) {
        const QString seen = library.Path("seen.tfmasm");
        QFile::remove(seen);
        QFile::copy(server.Path(name), seen);
        const auto file = gSeams.documents->MakeDocumentFile();
        file->Open(seen);
        QStringList paths;
        for (int i = 0; i < file->GetComponentCount(); ++i)
            paths.append(file->GetComponent(i, UrlFolder(server.Url(name))).path);
        return paths.join(' ');
    }
    QString Url(const QString& name = {}) const { return server.Url(name); }

    ApacheServer server;
    AnsweringDialogs dialogs;
    QString pin, left, right, top;
};

}  // namespace

class TestCopyWeb : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fromAFolderToTheServer() {
        WebDesk desk;
        desk.From(desk.top, desk.Url("new"));
        QVERIFY(desk.Check() == CheckOutcome::Ok);
        QVERIFY(desk.questions.isEmpty());  // no folder of the server is asked about
        const CopyResult result = desk.Run();
        QVERIFY(result.end == CopyResult::End::Done);
        QCOMPARE(result.copied, 3);
        QCOMPARE(result.target.foreColor, kColorBlue);
        QCOMPARE(desk.OnServer("new/x_top.tfmasm"),
                 desk.Url("new/x_left.tfmasm") + ' ' + desk.Url("new/x_right.tfmasm"));
        // Those of the rows are brought up to date in their local copies alone.
        QCOMPARE(desk.OnServer("new/x_left.tfmasm"), desk.Url("new/pin.tfmprt"));
        QCOMPARE(BytesOf(desk.server.Path("new/x_left.tfmasm")), BytesOf(desk.left));
        QCOMPARE(desk.Holds(gWebCopies.value(desk.Url("new/x_left.tfmasm"))),
                 desk.Url("new/x_pin.tfmprt"));
        QVERIFY(desk.dialogs.boxes.isEmpty());
    }

    void fromTheServerToAFolder() {
        WebDesk desk;
        const QString folder = desk.library.Path("fetched");
        QVERIFY(QDir().mkpath(folder));
        desk.From(desk.Url("top.tfmasm"), folder);
        QCOMPARE(desk.copies.Count(), 4);
        QCOMPARE(ReadCopyRow(desk.copies.At(2)).source, desk.Url("pin.tfmprt"));
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 3);
        QCOMPARE(desk.Holds(folder + "/x_top.tfmasm"),
                 QString("fetched/x_left.tfmasm fetched/x_right.tfmasm"));
        QCOMPARE(desk.Holds(folder + "/x_left.tfmasm"), QString("fetched/x_pin.tfmprt"));
        QCOMPARE(BytesOf(desk.server.Path("top.tfmasm")), BytesOf(desk.top));
        QVERIFY(desk.dialogs.boxes.isEmpty());
    }

    void withinTheServer() {
        WebDesk desk;
        desk.From(desk.Url("top.tfmasm"), desk.Url("a/b"));  // neither folder is there
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 3);
        QCOMPARE(desk.OnServer("a/b/x_top.tfmasm"),
                 desk.Url("a/b/x_left.tfmasm") + ' ' + desk.Url("a/b/x_right.tfmasm"));
        QCOMPARE(BytesOf(desk.server.Path("a/b/x_pin.tfmprt")), BytesOf(desk.pin));
        QCOMPARE(BytesOf(desk.server.Path("top.tfmasm")), BytesOf(desk.top));
        QCOMPARE(desk.server.CountRequests("MKCOL /dav/a/b"), 2);  // once there was no folder "a"
        QVERIFY(desk.dialogs.boxes.isEmpty());
    }

    void withinAFolderWhileTheServerIsNotAsked() {
        WebDesk desk;
        desk.From(desk.top, desk.library.Path("near"));
        desk.answers = {0};
        QVERIFY(desk.Check() == CheckOutcome::Ok);
        QCOMPARE(desk.Run().copied, 3);
        QCOMPARE(desk.server.CountRequests("PUT"), 0);
        QCOMPARE(desk.Holds(desk.library.Path("near/x_top.tfmasm")),
                 QString("near/x_left.tfmasm near/x_right.tfmasm"));
    }

    void aFileOnTheServerIsReplacedOnYesAlone() {
        WebDesk desk;
        QVERIFY(QDir().mkpath(desk.server.Path("new")));
        QVERIFY(QFile::setPermissions(desk.server.Path("new"), QFile::Permissions(0x7777)));
        QVERIFY(QFile::copy(desk.pin, desk.server.Path("new/x_left.tfmasm")));
        desk.From(desk.top, desk.Url("new"));
        desk.dialogs.answer = [](const QString&) { return Dialogs::Answer::No; };
        CopyResult result = desk.Run();
        QCOMPARE(desk.dialogs.boxes,
                 QStringList(Format(Text::OverwriteQuestion, desk.Url("new/x_left.tfmasm"))));
        QCOMPARE(result.copied, 2);
        QCOMPARE(BytesOf(desk.server.Path("new/x_left.tfmasm")), BytesOf(desk.pin));
        desk.dialogs.answer = nullptr;
        result = desk.Run();
        QCOMPARE(result.copied, 3);
        QCOMPARE(BytesOf(desk.server.Path("new/x_left.tfmasm")), BytesOf(desk.left));
        QVERIFY(desk.OnServer("new/x_top.tfmasm").startsWith(desk.Url("new/x_left.tfmasm")));
    }

    void parentsOnTheServerAreUpdatedThere() {
        WebDesk desk;
        QFile::copy(desk.library.Make("whole.tfmasm", {{desk.top}}),
                    desk.server.Path("whole.tfmasm"));
        QFile::copy(desk.library.Make("top.tfmdrw", {{desk.top}}), desk.server.Path("top.tfmdrw"));
        desk.From(desk.Url("top.tfmasm"), desk.Url("new"));
        RowBatch rows = ParentRows(desk.parents);
        SearchParents({.search = {.document = desk.source,
                                  .status = [](const QString&) {},
                                  .yield = [] {},
                                  .cancelled = [] { return false; },
                                  .progress = [](const SearchCounts&) {}},
                       .targetFolder = desk.folder,
                       .affixes = desk.affixes},
                      desk.Url(), rows);
        rows.Flush();
        QCOMPARE(desk.parents.Count(), 2);
        const CopyResult result = desk.Run();
        QCOMPARE(result.copied, 4);
        QCOMPARE(desk.OnServer("whole.tfmasm"), desk.Url("new/x_top.tfmasm"));
        QCOMPARE(desk.OnServer("top.tfmdrw"), desk.Url("top.tfmasm"));
        QCOMPARE(desk.OnServer("new/x_top.tfmdrw"), desk.Url("new/x_top.tfmasm"));
        QVERIFY(desk.dialogs.boxes.isEmpty());
    }

    void aServerThatRefusesMakesTheRowRedAndGivesItsReason() {
        CopyDesk desk;
        const AnsweringDialogs dialogs;
        FakeWeb web;
        const QString pin = desk.library.Make("pin.tfmprt");
        desk.List(desk.library.Make("top.tfmasm", {{pin}}));
        desk.SetTarget(0, "http://host/dav/pin.tfmprt");
        web.server.refusesUploads = true;
        const CopyResult result = desk.Run();
        QCOMPARE(result.failed, 1);
        QCOMPARE(desk.Target(0).foreColor, kColorRed);
        QCOMPARE(desk.Target(0).toolTip, QString());
        QCOMPARE(desk.copies.At(0).cells[kCopyTick].toolTip, web.server.error);
        QCOMPARE(desk.Holds(desk.target), QString("pin.tfmprt"));
    }

    void aServerThatIsGoneCostsTheWebRowsAlone() {
        CopyDesk desk;
        const AnsweringDialogs dialogs;
        gWebFolder.reset();
        const QString pin = desk.library.Make("pin.tfmprt");
        const QString bolt = desk.library.Make("bolt.tfmprt");
        desk.List(desk.library.Make("top.tfmasm", {{pin}, {bolt}}));
        desk.SetTarget(0, "http://127.0.0.1:9/dav/pin.tfmprt");
        const CopyResult result = desk.Run();
        QCOMPARE(result.failed, 1);
        QCOMPARE(result.copied, 1);
        QCOMPARE(desk.Holds(desk.target), QString("pin.tfmprt new/x_bolt.tfmprt"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestCopyWeb)
#include "tst_copyweb.moc"
