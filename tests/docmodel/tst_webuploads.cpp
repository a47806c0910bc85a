// The conditions under which the web folder client uploads, so that nobody's work is overwritten.

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>

#include "services/scratch.h"
#include "services/webcopies.h"
#include "tests/docmodel/storedfile.h"
#include "tests/docmodel/webtools.h"
#include "tests/support/testenvironment.h"

using docbench::FaultServer;
using docmodel::HeaderOfUpload;
using docmodel::MakeClient;
using docmodel::Serving;
using docmodel::StoredFile;
using docmodel::Write;
using Reply = FaultServer::Reply;
using Request = FaultServer::Request;

namespace {

Request LastUpload(const FaultServer& server) {
    Request last;
    for (const Request& request : server.Requests())
        if (request.method == "PUT")
            last = request;
    return last;
}

}  // namespace

class TestWebUploads : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { local_ = std::make_unique<QTemporaryDir>(); }

    void anUploadIsConditionalOnTheTagOfItsDownload();
    void theTagOfAnUploadIsTheConditionOfTheNext();
    void aFirstUploadMustFindNothing();
    void anAllowedUploadHasNoCondition();
    void aWeakTagIsHeldAgainstTheServers_data();
    void aWeakTagIsHeldAgainstTheServers();
    void aTagOfAProxyIsNoCondition();
    void withoutTagAndDateTheContentsDecide();
    void anUploadThatSomebodyReplacedAtOnceIsNotTakenForOurs();
    void aRefusedConditionIsExplained();
    void twoSpellingsOfAnAddressKeepTheirVersionsApart_data();
    void twoSpellingsOfAnAddressKeepTheirVersionsApart();
    void aRenamedCopyKeepsWhatIsKnownOfIt();
    void anAllowanceEndsWithADownload();
    void anAllowanceEndsWithAMove_data();
    void anAllowanceEndsWithAMove();
    void anUploadWhoseAnswerWasLostSucceedsWhenItIsRepeated_data();
    void anUploadWhoseAnswerWasLostSucceedsWhenItIsRepeated();
    void aTagThatIsAskedForAfterAnUploadMayBeSomebodyElses_data();
    void aTagThatIsAskedForAfterAnUploadMayBeSomebodyElses();
    void tagsThatAreMadeOfNamesSurviveARename();

private:
    QString Local() const { return local_->filePath(QStringLiteral("copy")); }

    std::unique_ptr<QTemporaryDir> local_;
};

void TestWebUploads::anUploadIsConditionalOnTheTagOfItsDownload() {
    const StoredFile file{.tag = "\"one\""};
    const FaultServer server(Serving(file));
    const auto client = MakeClient();
    QVERIFY(client->GetFile(server.Url(QStringLiteral("a")), Local()));
    QVERIFY2(client->PutFile(Local(), server.Url(QStringLiteral("a"))),
             qPrintable(client->LastError()));
    QCOMPARE(HeaderOfUpload(server, "if-match"), QByteArray("\"one\""));
    QCOMPARE(HeaderOfUpload(server, "if-none-match"), QByteArray("(none)"));
    QCOMPARE(server.Count("GET"), 1);
}

void TestWebUploads::theTagOfAnUploadIsTheConditionOfTheNext() {
    const FaultServer server([](const Request& request) -> Reply {
        if (request.method == "PROPFIND")
            return {.status = 404};
        return {.status = 201, .headers = {{"ETag", "\"new\""}}};
    });
    const auto client = MakeClient();
    Write(Local(), "ours");
    QVERIFY(client->PutFile(Local(), server.Url(QStringLiteral("a"))));
    QVERIFY(client->PutFile(Local(), server.Url(QStringLiteral("a"))));
    QCOMPARE(LastUpload(server).headers.value("if-match"), QByteArray("\"new\""));
    QCOMPARE(server.Count("PROPFIND"), 1);  // only to get acquainted
}

void TestWebUploads::aFirstUploadMustFindNothing() {
    const StoredFile file{.tag = "\"one\""};
    const FaultServer server(Serving(file));
    const auto client = MakeClient();
    Write(Local(), "ours");
    QVERIFY(client->PutFile(Local(), server.Url(QStringLiteral("a"))));
    QCOMPARE(HeaderOfUpload(server, "if-none-match"), QByteArray("*"));
    QCOMPARE(HeaderOfUpload(server, "if-match"), QByteArray("(none)"));
}

void TestWebUploads::anAllowedUploadHasNoCondition() {
    const StoredFile file{.tag = "\"one\""};
    const FaultServer server(Serving(file));
    const auto client = MakeClient();
    Write(Local(), "ours");
    client->AllowOverwrite(server.Url(QStringLiteral("a")));
    QVERIFY(client->PutFile(Local(), server.Url(QStringLiteral("a"))));
    QCOMPARE(HeaderOfUpload(server, "if-none-match"), QByteArray("(none)"));
    QCOMPARE(HeaderOfUpload(server, "if-match"), QByteArray("(none)"));
}

void TestWebUploads::aWeakTagIsHeldAgainstTheServers_data() {
    QTest::addColumn<QByteArray>("later");
    QTest::addColumn<QByteArray>("condition");
    QTest::newRow("the same") << QByteArray("W/\"one\"") << QByteArray("(none)");
    QTest::newRow("grown strong") << QByteArray("\"one\"") << QByteArray("\"one\"");
    QTest::newRow("another") << QByteArray("W/\"two\"") << QByteArray("(no upload)");
}

void TestWebUploads::aWeakTagIsHeldAgainstTheServers() {
    QFETCH(QByteArray, later);
    QFETCH(QByteArray, condition);
    StoredFile file{.tag = "W/\"one\""};
    const FaultServer server(Serving(file));
    const auto client = MakeClient();
    QVERIFY(client->GetFile(server.Url(QStringLiteral("a")), Local()));
    file.tag = later;
    Write(Local(), "ours");
    const bool isUploaded = client->PutFile(Local(), server.Url(QStringLiteral("a")));
    QCOMPARE(HeaderOfUpload(server, "if-match"), condition);
    QCOMPARE(isUploaded, server.Count("PUT") == 1);
    if (!isUploaded)
        QVERIFY2(client->LastError().contains(
                     QStringLiteral("was changed on the server since it was downloaded")),
                 qPrintable(client->LastError()));
}

void TestWebUploads::aTagOfAProxyIsNoCondition() {
    StoredFile file{.tag = "\"proxy\"",
                    .modified = "Mon, 02 Jan 2023 03:04:05 GMT",
                    .extra = {{"Via", "1.1 cache"}}};
    const FaultServer server(Serving(file));
    const auto client = MakeClient();
    QVERIFY(client->GetFile(server.Url(QStringLiteral("a")), Local()));
    file.tag = "\"servers-own\"";
    QVERIFY2(client->PutFile(Local(), server.Url(QStringLiteral("a"))),
             qPrintable(client->LastError()));
    QCOMPARE(HeaderOfUpload(server, "if-match"), QByteArray("\"servers-own\""));
    QVERIFY(client->GetFile(server.Url(QStringLiteral("a")), Local()));
    file.modified = "Mon, 02 Jan 2023 03:04:06 GMT";
    Write(Local(), "ours");
    QVERIFY(!client->PutFile(Local(), server.Url(QStringLiteral("a"))));
    QCOMPARE(server.Count("PUT"), 1);
}

void TestWebUploads::withoutTagAndDateTheContentsDecide() {
    StoredFile file;
    const FaultServer server(Serving(file));
    const auto client = MakeClient();
    const QString url = server.Url(QStringLiteral("a"));
    QVERIFY(client->GetFile(url, Local()));
    QVERIFY2(client->PutFile(Local(), url), qPrintable(client->LastError()));
    QVERIFY2(client->PutFile(Local(), url), qPrintable(client->LastError()));
    file.body = "FIRST";  // as long as before
    QVERIFY(!client->PutFile(Local(), url));
    QCOMPARE(server.Count("PUT"), 2);
    QVERIFY2(client->LastError().contains(QStringLiteral("was changed on the server")),
             qPrintable(client->LastError()));
}

void TestWebUploads::anUploadThatSomebodyReplacedAtOnceIsNotTakenForOurs() {
    // The answer to the upload has no tag, and the next question finds another's longer file.
    const StoredFile file{.body = "somebody's longer work", .tag = "\"theirs\""};
    const FaultServer server(Serving(file));
    const auto client = MakeClient();
    Write(Local(), "ours");
    QVERIFY(client->PutFile(Local(), server.Url(QStringLiteral("a"))));
    QVERIFY(!client->PutFile(Local(), server.Url(QStringLiteral("a"))));
    QCOMPARE(server.Count("PUT"), 1);
}

void TestWebUploads::aRefusedConditionIsExplained() {
    StoredFile file{.tag = "\"one\""};
    const FaultServer server([&file](const Request& request) -> Reply {
        return request.method == "PUT" ? Reply{.status = 412} : Serving(file)(request);
    });
    const auto client = MakeClient();
    const QString url = server.Url(QStringLiteral("a"));
    QVERIFY(client->GetFile(url, Local()));
    Write(Local(), "ours");
    QVERIFY(!client->PutFile(Local(), url));
    QVERIFY2(client->LastError().contains(QStringLiteral("does not agree")),
             qPrintable(client->LastError()));
    file.tag = "\"two\"";
    QVERIFY(!client->PutFile(Local(), url));
    QVERIFY2(client->LastError().contains(
                 QStringLiteral("was changed on the server since it was downloaded")),
             qPrintable(client->LastError()));
    QVERIFY(!client->PutFile(Local(), server.Url(QStringLiteral("unknown"))));
    QVERIFY2(client->LastError().contains(QStringLiteral("there is such a file")),
             qPrintable(client->LastError()));
}

void TestWebUploads::twoSpellingsOfAnAddressKeepTheirVersionsApart_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("scheme");
    QTest::newRow("escaped") << QStringLiteral("a%20b") << QStringLiteral("http");
    QTest::newRow("backslash") << QStringLiteral("\\a b") << QStringLiteral("http");
    QTest::newRow("case of the scheme") << QStringLiteral("a b") << QStringLiteral("HTTP");
}

void TestWebUploads::twoSpellingsOfAnAddressKeepTheirVersionsApart() {
    QFETCH(QString, name);
    QFETCH(QString, scheme);
    StoredFile file{.tag = "\"one\""};
    const FaultServer server(Serving(file));
    const auto client = MakeClient();
    const QString url = server.Url(QStringLiteral("a b"));
    QString other = server.Url(name).replace(QStringLiteral("http"), scheme);
    other.replace(QStringLiteral("/\\"), QStringLiteral("\\"));
    const QString otherLocal = local_->filePath(QStringLiteral("other"));
    QVERIFY(client->GetFile(url, Local()));
    file.tag = "\"two\"";  // a colleague's save
    QVERIFY2(client->GetFile(other, otherLocal), qPrintable(client->LastError()));
    QCOMPARE(server.Requests().first().path, server.Requests().last().path);
    QVERIFY(client->PutFile(Local(), url));
    QCOMPARE(HeaderOfUpload(server, "if-match"), QByteArray("\"one\""));
    QVERIFY(client->PutFile(otherLocal, other));
    QCOMPARE(LastUpload(server).headers.value("if-match"), QByteArray("\"two\""));
}

void TestWebUploads::aRenamedCopyKeepsWhatIsKnownOfIt() {
    const StoredFile file{.tag = "\"one\""};
    const FaultServer server(Serving(file));
    docbench::PrepareScratch();
    docbench::gWebFolder = MakeClient();
    docbench::gWebCopies.clear();
    const QString pin = server.Url(QStringLiteral("pin.tfmprt"));
    const QString bolt = server.Url(QStringLiteral("bolt.tfmprt"));
    QVERIFY(!docbench::LocalCopyOf(pin).isEmpty());
    QVERIFY(docbench::gWebFolder->MoveResource(pin, bolt, 1));
    QVERIFY(docbench::RenameWebCopy(pin, bolt));
    QVERIFY(docbench::UploadIfWeb(bolt));
    QCOMPARE(HeaderOfUpload(server, "if-match"), QByteArray("\"one\""));
    docbench::gWebCopies.clear();
    docbench::gWebFolder.reset();
    docbench::DeleteScratch();
}

void TestWebUploads::anAllowanceEndsWithADownload() {
    StoredFile file{.tag = "\"one\""};
    bool isFull = true;
    const FaultServer server([&](const Request& request) -> Reply {
        return request.method == "PUT" && isFull ? Reply{.status = 507} : Serving(file)(request);
    });
    const auto client = MakeClient();
    const QString url = server.Url(QStringLiteral("a"));
    Write(Local(), "ours");
    client->AllowOverwrite(url);
    QVERIFY(!client->PutFile(Local(), url));
    isFull = false;
    QVERIFY(client->GetFile(url, Local()));
    QVERIFY(client->PutFile(Local(), url));
    QCOMPARE(LastUpload(server).headers.value("if-match"), QByteArray("\"one\""));
}

void TestWebUploads::anAllowanceEndsWithAMove_data() {
    QTest::addColumn<QString>("allowed");
    for (const char* name : {"from", "to", "from/below", "to/below"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestWebUploads::anAllowanceEndsWithAMove() {
    QFETCH(QString, allowed);
    const StoredFile file;
    const FaultServer server(Serving(file));
    const auto client = MakeClient();
    Write(Local(), "ours");
    client->AllowOverwrite(server.Url(allowed));
    client->AllowOverwrite(server.Url(QStringLiteral("fromelse")));
    QVERIFY(client->MoveResource(server.Url(QStringLiteral("from")),
                                 server.Url(QStringLiteral("to")), 1));
    QVERIFY(client->PutFile(Local(), server.Url(allowed)));
    QCOMPARE(HeaderOfUpload(server, "if-none-match"), QByteArray("*"));
    QVERIFY(client->PutFile(Local(), server.Url(QStringLiteral("fromelse"))));
    QVERIFY(!LastUpload(server).headers.contains("if-none-match"));
}

void TestWebUploads::anUploadWhoseAnswerWasLostSucceedsWhenItIsRepeated_data() {
    QTest::addColumn<QByteArray>("tag");
    QTest::addColumn<bool>("isFirst");
    QTest::addColumn<QByteArray>("arrived");
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("strong tag") << QByteArray("\"two\"") << false << QByteArray("ours") << false;
    QTest::newRow("weak tag") << QByteArray("W/\"two\"") << false << QByteArray("ours") << false;
    QTest::newRow("first upload") << QByteArray("\"two\"") << true << QByteArray("ours") << false;
    QTest::newRow("another's") << QByteArray("\"two\"") << false << QByteArray("them") << true;
    QTest::newRow("another's, weak")
        << QByteArray("W/\"two\"") << false << QByteArray("them") << true;
    QTest::newRow("another's first") << QByteArray("\"two\"") << true << QByteArray("them") << true;
}

void TestWebUploads::anUploadWhoseAnswerWasLostSucceedsWhenItIsRepeated() {
    QFETCH(QByteArray, tag);
    QFETCH(bool, isFirst);
    QFETCH(QByteArray, arrived);
    QFETCH(bool, isRefused);
    StoredFile file{.tag = "\"one\""};
    file.tag = tag.startsWith('W') ? "W/\"one\"" : "\"one\"";
    int uploads = 0;
    const FaultServer server([&](const Request& request) -> Reply {
        if (request.method != "PUT")
            return Serving(file)(request);
        if (++uploads > 1)
            return {.status = request.headers.value("if-match") == file.tag ? 204 : 412};
        file.body = arrived;
        file.tag = tag;
        return {.body = "lost", .claimedLength = 100, .hangsUp = true};
    });
    const auto client = MakeClient();
    const QString url = server.Url(QStringLiteral("a"));
    if (!isFirst)
        QVERIFY(client->GetFile(url, Local()));
    Write(Local(), "ours");
    QVERIFY(!client->PutFile(Local(), url));
    QCOMPARE(!client->PutFile(Local(), url), isRefused);
    if (isRefused)
        return;
    QVERIFY2(client->PutFile(Local(), url), qPrintable(client->LastError()));  // and goes on
}

void TestWebUploads::aTagThatIsAskedForAfterAnUploadMayBeSomebodyElses_data() {
    QTest::addColumn<QByteArray>("found");
    QTest::addColumn<bool>("isOurs");
    QTest::newRow("ours") << QByteArray(100'000, 'o') << true;
    QTest::newRow("somebody else's, as long") << QByteArray(100'000, 't') << false;
}

void TestWebUploads::aTagThatIsAskedForAfterAnUploadMayBeSomebodyElses() {
    QFETCH(QByteArray, found);
    QFETCH(bool, isOurs);
    const StoredFile file{.body = found, .tag = "\"asked\""};
    const FaultServer server(Serving(file));  // tells no tag with an upload
    const auto client = MakeClient();
    const QString url = server.Url(QStringLiteral("a"));
    Write(Local(), QByteArray(100'000, 'o'));
    QVERIFY(client->PutFile(Local(), url));
    Write(Local(), "ours, later");
    QCOMPARE(client->PutFile(Local(), url), isOurs);
    QCOMPARE(server.Count("PUT"), isOurs ? 2 : 1);
    if (!isOurs) {
        QVERIFY2(client->LastError().contains(QStringLiteral("was changed on the server")),
                 qPrintable(client->LastError()));
        return;
    }
    for (const Request& request : server.Requests()) {  // only the ending is looked at
        if (request.method == "GET")
            QCOMPARE(request.headers.value("range"), QByteArray("bytes=-65536"));
        if (request.method == "PUT" && request.headers.contains("if-match"))
            QCOMPARE(request.headers.value("if-match"), QByteArray("\"asked\""));
    }
    QCOMPARE(server.Count("GET"), 1);
}

void TestWebUploads::tagsThatAreMadeOfNamesSurviveARename() {
    const auto tagOf = [](const QByteArray& path) { return "\"" + path + " 2\""; };
    const FaultServer server([&](const Request& request) -> Reply {
        const StoredFile file{.body = "ours",
                              .tag = tagOf(request.path),
                              .modified = "Mon, 02 Jan 2023 03:04:05 GMT"};
        if (request.method != "PUT")
            return Serving(file)(request);
        const QByteArray wanted = request.headers.value("if-match", file.tag);
        if (wanted != file.tag)
            return {.status = 412};
        return {.status = 201, .headers = {{"ETag", file.tag}}};
    });
    const auto client = MakeClient();
    const QString from = server.Url(QStringLiteral("from"));
    const QString to = server.Url(QStringLiteral("to"));
    Write(Local(), "ours");
    QVERIFY(client->PutFile(Local(), from));
    QVERIFY(client->MoveResource(from, to, 1));
    Write(Local(), "ours, later");
    QVERIFY2(client->PutFile(Local(), to), qPrintable(client->LastError()));
    QCOMPARE(LastUpload(server).headers.value("if-match"), tagOf("/dav/to"));
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestWebUploads)
#include "tst_webuploads.moc"
