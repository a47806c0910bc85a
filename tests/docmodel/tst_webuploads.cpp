// The conditions under which the web folder client uploads, so that nobody's work is overwritten.

#include <QCoreApplication>
#include <QTemporaryDir>
#include <QTest>

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
    QCOMPARE(server.Requests().last().headers.value("if-match"), QByteArray("\"new\""));
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
    QTest::addColumn<bool>("isAllowed");
    QTest::newRow("the same") << QByteArray("W/\"one\"") << true;
    QTest::newRow("grown strong") << QByteArray("\"one\"") << true;
    QTest::newRow("another") << QByteArray("W/\"two\"") << false;
}

void TestWebUploads::aWeakTagIsHeldAgainstTheServers() {
    QFETCH(QByteArray, later);
    QFETCH(bool, isAllowed);
    StoredFile file{.tag = "W/\"one\""};
    const FaultServer server(Serving(file));
    const auto client = MakeClient();
    QVERIFY(client->GetFile(server.Url(QStringLiteral("a")), Local()));
    file.tag = later;
    QCOMPARE(client->PutFile(Local(), server.Url(QStringLiteral("a"))), isAllowed);
    QCOMPARE(server.Count("PUT"), isAllowed ? 1 : 0);
    if (isAllowed)
        QCOMPARE(HeaderOfUpload(server, "if-match"), QByteArray("(none)"));
    else
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
    QCOMPARE(HeaderOfUpload(server, "if-match"), QByteArray("(none)"));
    QVERIFY(client->GetFile(server.Url(QStringLiteral("a")), Local()));
    file.modified = "Mon, 02 Jan 2023 03:04:06 GMT";
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

DOCBENCH_TEST_MAIN(QCoreApplication, TestWebUploads)
#include "tst_webuploads.moc"
