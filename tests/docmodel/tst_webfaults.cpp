// What the web folder client does when a server, or the way to it, does not behave.

#include <QCoreApplication>
#include <QDir>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <cerrno>
#include <utility>

#include "docmodel/fileops.h"
#include "tests/docmodel/storedfile.h"
#include "tests/docmodel/webtools.h"
#include "tests/support/faultserver.h"
#include "tests/support/testenvironment.h"

using docbench::FaultServer;
using docmodel::Always;
using docmodel::AnsweringUser;
using docmodel::EntriesOf;
using docmodel::HeaderOfUpload;
using docmodel::MakeClient;
using docmodel::Read;
using docmodel::StoredFile;
using docmodel::Write;
using Reply = FaultServer::Reply;
using Request = FaultServer::Request;

namespace {

QByteArray Multistatus(const QByteArray& responses) {
    return "<?xml version=\"1.0\"?><D:multistatus xmlns:D=\"DAV:\">" + responses +
           "</D:multistatus>";
}

QByteArray Entry(const QByteArray& href, const QByteArray& type = {}) {
    return "<D:response><D:href>" + href + "</D:href><D:propstat><D:prop><D:resourcetype>" + type +
           "</D:resourcetype></D:prop><D:status>HTTP/1.1 200 OK</D:status></D:propstat>"
           "</D:response>";
}

}  // namespace

class TestWebFaults : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { local_ = std::make_unique<QTemporaryDir>(); }

    void aRefusalIsToldInWords_data();
    void aRefusalIsToldInWords();
    void anEndlessWishForAPasswordEnds();
    void aBodyCutShortIsNoDownload_data();
    void aBodyCutShortIsNoDownload();
    void aBodyWithoutItsLengthIsHeldAgainstTheServers_data();
    void aBodyWithoutItsLengthIsHeldAgainstTheServers();
    void aStalledServerIsGivenUp_data();
    void aStalledServerIsGivenUp();
    void aStalledUploadIsGivenUp();
    void aStalledSecureConnectionIsGivenUp();
    void noServerIsToldInWords();
    void aClientGoesOnAfterAFault();
    void aSilentServerIsWaitedForOnceAnOccasion();
    void withoutPropertiesTheHeadTellsWhetherAFileIsThere_data();
    void withoutPropertiesTheHeadTellsWhetherAFileIsThere();
    void anEndlessErrorPageIsNotReadToItsEnd();
    void aChangedBodyIsNotTakenForTheFile_data();
    void aChangedBodyIsNotTakenForTheFile();
    void aFullDiskEndsTheDownload();
    void aMissingLocalFolderIsTold();
    void aRedirectLoopEnds();
    void aRedirectToAnotherServerIsNotFollowed();
    void aLineBreakInAnAddressIsNoHeader();

    void aLongListingIsComplete();
    void aHostileListingIsRefused_data();
    void aHostileListingIsRefused();
    void entriesThatDontBelongToTheFolderAreDropped();
    void anEndlessListingIsRefused();

private:
    QString Local() const { return local_->filePath(QStringLiteral("copy")); }
    QStringList LocalFiles() const {
        return QDir(local_->path()).entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<QTemporaryDir> local_;
};

void TestWebFaults::aRefusalIsToldInWords_data() {
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("words");
    const std::pair<int, const char*> known[] = {{403, "no permission"},
                                                 {404, "nothing of this name"},
                                                 {409, "Make that folder first"},
                                                 {423, "somebody has locked it"},
                                                 {500, "an error of its own"},
                                                 {503, "busy"},
                                                 {507, "no room left"},
                                                 {599, "\"599 Told so\""},
                                                 {413, "larger than the server takes"}};
    for (const auto& [status, words] : known)
        QTest::newRow(words) << status << QString::fromLatin1(words);
}

void TestWebFaults::aRefusalIsToldInWords() {
    QFETCH(int, status);
    QFETCH(QString, words);
    const FaultServer server([status](const Request& request) -> Reply {
        if (request.method == "PROPFIND" && request.headers.value("depth") == "0")
            return StoredFile().Properties(request.path);
        return {.status = status, .body = "<html>no</html>"};
    });
    Write(Local(), "ours");
    const auto client = MakeClient();
    const QString url = server.Url(QStringLiteral("a b.tfmprt"));
    const auto isToldBy = [&](const char* what) {
        if (client->LastError().startsWith(url) && client->LastError().contains(words))
            return true;
        qWarning("%s: %s", what, qPrintable(client->LastError()));
        return false;
    };
    QVERIFY(!client->GetFile(url, Local()));
    QVERIFY(isToldBy("download"));
    QVERIFY(!client->PutFile(Local(), url));
    QVERIFY(isToldBy("upload"));
    QVERIFY(!client->MakeFolder(url));
    QVERIFY(client->LastError().contains(words));
    QVERIFY(!client->MoveResource(url, server.Url(QStringLiteral("b")), 1));
    QVERIFY(isToldBy("move"));
    QVERIFY(!client->ListFolder(url));
    QVERIFY(isToldBy("listing"));
    QCOMPARE(Read(Local()), QByteArray("ours"));
    QCOMPARE(LocalFiles().size(), 1);
}

void TestWebFaults::anEndlessWishForAPasswordEnds() {
    const FaultServer server(
        Always({.status = 401, .headers = {{"WWW-Authenticate", "Basic realm=\"Never\""}}}));
    const docbench::Credentials anna{QStringLiteral("anna"), QStringLiteral("right")};
    AnsweringUser user(QList<docbench::Credentials>(10, anna));
    const auto client = MakeClient({.credentials = &user});
    QVERIFY(!client->GetFile(server.Url(QStringLiteral("a")), Local()));
    QCOMPARE(user.asked.size(), 3);
    QVERIFY(user.accepted.isEmpty());
    QCOMPARE(server.Count("GET"), 4);
}

void TestWebFaults::aBodyCutShortIsNoDownload_data() {
    QTest::addColumn<bool>("isChunked");
    QTest::newRow("with its length") << false;
    QTest::newRow("in chunks") << true;
}

void TestWebFaults::aBodyCutShortIsNoDownload() {
    QFETCH(bool, isChunked);
    const FaultServer server([isChunked](const Request& request) -> Reply {
        if (request.method != "GET")
            return {.status = request.method == "PUT" ? 412 : 404};
        return {.headers = {{"ETag", "\"1\""}},
                .body = QByteArray(100'000, 'x'),
                .claimedLength = 200'000,
                .isChunked = isChunked,
                .hangsUp = true};
    });
    Write(Local(), "old");
    const auto client = MakeClient();
    QVERIFY(!client->GetFile(server.Url(QStringLiteral("a")), Local()));
    QCOMPARE(Read(Local()), QByteArray("old"));
    QCOMPARE(LocalFiles().size(), 1);
    QVERIFY2(client->LastError().contains(QStringLiteral("broke off")),
             qPrintable(client->LastError()));
    // Nothing is known of a file that never came: an upload must find nothing there.
    QVERIFY(!client->PutFile(Local(), server.Url(QStringLiteral("a"))));
    QCOMPARE(HeaderOfUpload(server, "if-none-match"), QByteArray("*"));
}

void TestWebFaults::aBodyWithoutItsLengthIsHeldAgainstTheServers_data() {
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("whole") << QByteArray("first");
    QTest::newRow("cut short") << QByteArray("fir");
}

void TestWebFaults::aBodyWithoutItsLengthIsHeldAgainstTheServers() {
    QFETCH(QByteArray, sent);
    const StoredFile file;
    const FaultServer server([&](const Request& request) -> Reply {
        if (request.method == "PROPFIND")
            return file.Properties(request.path);
        return {.body = sent, .hasLength = false, .hangsUp = true};
    });
    const auto client = MakeClient();
    const bool isWhole = sent == file.body;
    QCOMPARE(client->GetFile(server.Url(QStringLiteral("a")), Local()), isWhole);
    QCOMPARE(LocalFiles().size(), isWhole ? 1 : 0);
}

void TestWebFaults::aStalledServerIsGivenUp_data() {
    QTest::addColumn<int>("claimed");
    QTest::newRow("in the body") << 1'000'000;
    QTest::newRow("before the answer") << -1;
}

void TestWebFaults::aStalledServerIsGivenUp() {
    QFETCH(int, claimed);
    const FaultServer server(Always({.body = QByteArray(100'000, 'x'),
                                     .claimedLength = claimed,
                                     .stalls = true,
                                     .takesBody = claimed >= 0}));
    const auto client = MakeClient({.timeoutSeconds = 1});
    QVERIFY(!client->GetFile(server.Url(QStringLiteral("a")), Local()));
    QVERIFY2(client->LastError().contains(QStringLiteral("silent for 1 second")),
             qPrintable(client->LastError()));
    QVERIFY(LocalFiles().isEmpty());
}

void TestWebFaults::aStalledUploadIsGivenUp() {
    const FaultServer server([](const Request& request) -> Reply {
        if (request.method == "PROPFIND")
            return {.status = 404};
        return {.takesBody = false};
    });
    QFile file(Local());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(100 << 20));
    const auto client = MakeClient({.timeoutSeconds = 1});
    QVERIFY(!client->PutFile(Local(), server.Url(QStringLiteral("a"))));
    QVERIFY2(client->LastError().contains(QStringLiteral("silent for 1 second")),
             qPrintable(client->LastError()));
}

void TestWebFaults::aStalledSecureConnectionIsGivenUp() {
    const FaultServer server(Always({}));  // speaks no TLS, and waits for a request's end
    const auto client = MakeClient({.timeoutSeconds = 1});
    const QString url =
        server.Url(QStringLiteral("a")).replace(QStringLiteral("http"), QStringLiteral("https"));
    QVERIFY(!client->GetFile(url, Local()));
    QVERIFY2(client->LastError().contains(QStringLiteral("silent for 1 second")),
             qPrintable(client->LastError()));
}

void TestWebFaults::noServerIsToldInWords() {
    quint16 port = 0;
    {
        QTcpServer probe;
        QVERIFY(probe.listen(QHostAddress::LocalHost));
        port = probe.serverPort();
    }
    const auto client = MakeClient();
    QVERIFY(!client->GetFile(QStringLiteral("http://127.0.0.1:%1/a").arg(port), Local()));
    QVERIFY2(client->LastError().contains(QStringLiteral("no server answers")),
             qPrintable(client->LastError()));
}

void TestWebFaults::aClientGoesOnAfterAFault() {
    int turn = 0;
    const FaultServer server([&turn](const Request&) -> Reply {
        const bool isFirst = ++turn == 1;
        return {.body = "text", .claimedLength = isFirst ? 10 : -1, .stalls = isFirst};
    });
    const auto client = MakeClient({.timeoutSeconds = 1});
    QVERIFY(!client->GetFile(server.Url(QStringLiteral("a")), Local()));
    QCoreApplication::processEvents();  // something else is done
    QVERIFY2(client->GetFile(server.Url(QStringLiteral("a")), Local()),
             qPrintable(client->LastError()));
    QCOMPARE(Read(Local()), QByteArray("text"));
}

void TestWebFaults::aSilentServerIsWaitedForOnceAnOccasion() {
    // Each connection is one request that is not answered.
    int requests = 0;
    const FaultServer server([&requests](const Request&) -> Reply {
        ++requests;
        return {.takesBody = false};
    });
    const FaultServer other(Always({.body = "text"}));
    const auto client = MakeClient({.timeoutSeconds = 1});
    for (const char* name : {"a", "b", "c"}) {
        const QString url = server.Url(QString::fromLatin1(name));
        QVERIFY(!client->GetFile(url, Local()));
        QVERIFY2(client->LastError().startsWith(url), qPrintable(client->LastError()));
        QVERIFY2(client->LastError().contains(QStringLiteral("silent for 1 second")),
                 qPrintable(client->LastError()));
    }
    QCOMPARE(requests, 1);
    QVERIFY(client->GetFile(other.Url(QStringLiteral("a")), Local()));  // no fault of others
    QCoreApplication::processEvents();  // the user does something else
    QVERIFY(!client->GetFile(server.Url(QStringLiteral("a")), Local()));
    QCOMPARE(requests, 2);
}

void TestWebFaults::withoutPropertiesTheHeadTellsWhetherAFileIsThere_data() {
    QTest::addColumn<int>("properties");
    QTest::addColumn<int>("head");
    QTest::addColumn<int>("presence");
    using Presence = docbench::WebFolderClient::Presence;
    for (const int properties : {400, 405, 501}) {
        for (const auto& [head, presence] :
             {std::pair{200, Presence::Present}, std::pair{404, Presence::Absent},
              std::pair{410, Presence::Absent}, std::pair{403, Presence::Unknown},
              std::pair{500, Presence::Unknown}})
            QTest::addRow("%d, then %d", properties, head) << properties << head << int(presence);
    }
}

void TestWebFaults::withoutPropertiesTheHeadTellsWhetherAFileIsThere() {
    QFETCH(int, properties);
    QFETCH(int, head);
    QFETCH(int, presence);
    const FaultServer server([&](const Request& request) -> Reply {
        return {.status = request.method == "HEAD" ? head : properties};
    });
    const auto client = MakeClient();
    QCOMPARE(int(client->Exists(server.Url(QStringLiteral("a")))), presence);
    QCOMPARE(server.Count("PROPFIND"), 1);
    QCOMPARE(server.Count("HEAD"), 1);
}

void TestWebFaults::anEndlessErrorPageIsNotReadToItsEnd() {
    const FaultServer server(Always({.status = 500,
                                     .body = QByteArray(4 << 20, 'x'),
                                     .claimedLength = qint64(1) << 40,
                                     .stalls = true}));
    const auto client = MakeClient();  // whose patience is longer than the test's
    QVERIFY(!client->GetFile(server.Url(QStringLiteral("a")), Local()));
    QVERIFY2(client->LastError().contains(QStringLiteral("an error of its own")),
             qPrintable(client->LastError()));
}

void TestWebFaults::aChangedBodyIsNotTakenForTheFile_data() {
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("packing");
    QTest::newRow("packed") << 200 << QByteArray("gzip");
    QTest::newRow("by a server on the way") << 203 << QByteArray("identity");
}

void TestWebFaults::aChangedBodyIsNotTakenForTheFile() {
    QFETCH(int, status);
    QFETCH(QByteArray, packing);
    const FaultServer server(Always({.status = status,
                                     .headers = {{"ETag", "\"1\""}, {"Content-Encoding", packing}},
                                     .body = "changed"}));
    const auto client = MakeClient();
    QVERIFY(!client->GetFile(server.Url(QStringLiteral("a")), Local()));
    QVERIFY(LocalFiles().isEmpty());
    QCOMPARE(server.Requests().first().headers.value("accept-encoding"), QByteArray("identity"));
}

void TestWebFaults::aFullDiskEndsTheDownload() {
    class FullDisk : public docmodel::FileOps {
    public:
        ssize_t Write(int, const void*, size_t, off_t) override {
            errno = ENOSPC;
            return -1;
        }
    };
    const FaultServer server(Always({.body = QByteArray(1 << 20, 'x')}));
    const auto client = MakeClient();
    Write(Local(), "old");
    FullDisk full;
    docmodel::FileOps* const real = std::exchange(docmodel::gFileOps, &full);
    const bool isDone = client->GetFile(server.Url(QStringLiteral("a")), Local());
    docmodel::gFileOps = real;
    QVERIFY(!isDone);
    QVERIFY2(client->LastError().contains(QStringLiteral("the disk is full")),
             qPrintable(client->LastError()));
    QCOMPARE(Read(Local()), QByteArray("old"));
    QCOMPARE(LocalFiles().size(), 1);
    QVERIFY(client->GetFile(server.Url(QStringLiteral("a")), Local()));
}

void TestWebFaults::aMissingLocalFolderIsTold() {
    const FaultServer server(Always({.body = "text"}));
    const auto client = MakeClient();
    const QString local = local_->filePath(QStringLiteral("none/copy"));
    QVERIFY(!client->GetFile(server.Url(QStringLiteral("a")), local));
    QVERIFY2(client->LastError().contains(local), qPrintable(client->LastError()));
}

void TestWebFaults::aRedirectLoopEnds() {
    const FaultServer server([](const Request& request) -> Reply {
        return {.status = 302, .headers = {{"Location", request.path + "x"}}};
    });
    const auto client = MakeClient();
    QVERIFY(!client->GetFile(server.Url(QStringLiteral("a")), Local()));
    QVERIFY2(client->LastError().contains(QStringLiteral("without end")),
             qPrintable(client->LastError()));
    QVERIFY(server.Requests().size() < 10);
    QVERIFY(LocalFiles().isEmpty());
}

void TestWebFaults::aRedirectToAnotherServerIsNotFollowed() {
    const FaultServer other(Always({.body = "foreign"}));
    const QByteArray target = other.Url(QStringLiteral("a")).toUtf8();
    const FaultServer server(Always({.status = 301, .headers = {{"Location", target}}}));
    const auto client = MakeClient();
    Write(Local(), "ours");
    const QString url = server.Url(QStringLiteral("a"));
    QVERIFY(!client->GetFile(url, Local()));
    QVERIFY2(client->LastError().contains(other.Url(QStringLiteral("a"))),
             qPrintable(client->LastError()));
    QVERIFY(!client->PutFile(Local(), url));
    QVERIFY(!client->ListFolder(url));
    QVERIFY(other.Requests().isEmpty());
}

void TestWebFaults::aLineBreakInAnAddressIsNoHeader() {
    const FaultServer server(Always({.body = "text"}));
    const auto client = MakeClient();
    QVERIFY(client->GetFile(server.Url(QStringLiteral("a HTTP/1.1\r\nX-Own: 1\r\n")), Local()));
    const Request request = server.Requests().first();
    QVERIFY(!request.headers.contains("x-own"));
    QCOMPARE(request.path, QByteArray("/dav/a%20HTTP/1.1%0D%0AX-Own%3A%201%0D%0A"));
    QVERIFY(!client->MoveResource(server.Url(QStringLiteral("a")),
                                  QStringLiteral("http://127.0.0.1\r\nX: 1/a"), 1));
    QCOMPARE(server.Count("MOVE"), 0);
}

void TestWebFaults::aLongListingIsComplete() {
    QByteArray responses = Entry("/dav/", "<D:collection/>");
    for (int i = 0; i < 10'000; ++i)
        responses += Entry("/dav/part%20" + QByteArray::number(i) + ".tfmprt");
    const FaultServer server(Always({.status = 207, .body = Multistatus(responses)}));
    const auto client = MakeClient();
    const auto listing = client->ListFolder(server.Url());
    QVERIFY2(listing, qPrintable(client->LastError()));
    const QStringList urls = EntriesOf(*listing);
    QCOMPARE(urls.size(), 10'000);
    for (const QString& url : urls) {
        QString type;
        QVERIFY(listing->GetProperty(url, QStringLiteral("DAV:"), QStringLiteral("resourcetype"),
                                     type));
        QCOMPARE(type, QStringLiteral("File"));
    }
    QCOMPARE(server.Requests().first().headers.value("depth"), QByteArray("1"));
}

void TestWebFaults::aHostileListingIsRefused_data() {
    QTest::addColumn<QByteArray>("xml");
    QByteArray bomb = "<?xml version=\"1.0\"?><!DOCTYPE D:multistatus [<!ENTITY a \"lol\">";
    for (char c = 'b'; c < 'n'; ++c) {
        const QByteArray former = QByteArray("&") + char(c - 1) + ';';
        bomb += QByteArray("<!ENTITY ") + c + " \"" + former.repeated(10) + "\">";
    }
    bomb += "]><D:multistatus xmlns:D=\"DAV:\">" + Entry("/dav/&m;") + "</D:multistatus>";
    QTest::newRow("entity bomb") << bomb;
    QTest::newRow("outside entity")
        << QByteArray(
               "<!DOCTYPE x [<!ENTITY f SYSTEM \"file:///etc/passwd\">]>"
               "<D:multistatus xmlns:D=\"DAV:\">") +
               Entry("/dav/&f;") + "</D:multistatus>";
    QTest::newRow("deeply nested")
        << Multistatus(QByteArray("<a>").repeated(100'000) + QByteArray("</a>").repeated(100'000));
    QTest::newRow("millions of elements") << Multistatus(QByteArray("<a/>").repeated(4'000'000));
    QTest::newRow("cut short") << Multistatus(Entry("/dav/a")).chopped(20);
    QTest::newRow("a page") << QByteArray("<html><body>Welcome</body></html>");
    QTest::newRow("of another namespace")
        << QByteArray("<multistatus xmlns=\"urn:other\"></multistatus>");
    QTest::newRow("no XML") << QByteArray("\x01\x02\xFF");
    QTest::newRow("nothing") << QByteArray();
}

void TestWebFaults::aHostileListingIsRefused() {
    QFETCH(QByteArray, xml);
    const FaultServer server(Always({.status = 207, .body = xml}));
    const auto client = MakeClient();
    QVERIFY(!client->ListFolder(server.Url()));
    QVERIFY2(client->LastError().startsWith(server.Url()), qPrintable(client->LastError()));
    QCOMPARE(client->Exists(server.Url()), docbench::WebFolderClient::Presence::Unknown);
}

void TestWebFaults::entriesThatDontBelongToTheFolderAreDropped() {
    QByteArray responses = Entry("/dav/", "<D:collection/>");
    for (const char* href : {"http://elsewhere.example/dav/a",
                             "https://127.0.0.1/dav/a",
                             "//elsewhere.example/dav/a",
                             "/dav/..",
                             "/dav/../a",
                             "/dav/%2e%2e",
                             "/dav/%2E%2e/",
                             "/dav/.",
                             "/dav/sub/../a",
                             "/dav/..\\a",
                             "/dav/a%2Fb",
                             "/dav/..%2Fb",
                             "/dav/a%00b",
                             "/dav/sub/a",
                             "/other/a",
                             "/",
                             "/davs",
                             "",
                             "a",
                             "../a",
                             "file:///dav/a",
                             "/dav//",
                             "/dav//a"})
        responses += Entry(href);
    responses +=
        Entry("/dav/kept", {}) + Entry("/dav/kept/") + Entry("/dav/sub/", "<D:collection/>");
    responses +=
        "<D:response><D:href>/dav/gone</D:href><D:status>HTTP/1.1 404 Not Found"
        "</D:status></D:response>";
    const FaultServer server(Always({.status = 207, .body = Multistatus(responses)}));
    const QByteArray own = server.Url(QStringLiteral("own")).toUtf8();
    const FaultServer withOwn(Always({.status = 207, .body = Multistatus(Entry(own))}));
    const auto client = MakeClient();
    const auto listing = client->ListFolder(server.Url());
    QVERIFY2(listing, qPrintable(client->LastError()));
    QCOMPARE(EntriesOf(*listing),
             (QStringList{server.Url(QStringLiteral("kept")), server.Url(QStringLiteral("sub"))}));
    // The same machine by another port is another server.
    const auto foreign = client->ListFolder(withOwn.Url());
    QVERIFY(foreign);
    QVERIFY(EntriesOf(*foreign).isEmpty());
}

void TestWebFaults::anEndlessListingIsRefused() {
    const FaultServer server(Always({.status = 207,
                                     .body = QByteArray(40 << 20, ' '),
                                     .claimedLength = qint64(1) << 40,
                                     .stalls = true}));
    const auto client = MakeClient();
    QVERIFY(!client->ListFolder(server.Url()));
    QVERIFY2(client->LastError().contains(QStringLiteral("too long")),
             qPrintable(client->LastError()));
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestWebFaults)
#include "tst_webfaults.moc"
