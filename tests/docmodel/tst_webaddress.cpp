// Addresses of web folders: what is sent for what was written, and back.

#include <QTest>

#include "docmodel/webaddress.h"
#include "tests/support/testenvironment.h"

using docmodel::WebAddress;

class TestWebAddress : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsSentEscaped_data();
    void whatIsWrittenIsSentEscaped();
    void whatIsNoAddressIsNone_data();
    void whatIsNoAddressIsNone();
    void userAndPasswordAreTakenOut();
    void aShownAddressLeadsToTheSamePath_data();
    void aShownAddressLeadsToTheSamePath();
    void anAnswersWayUpIsSeen();
};

void TestWebAddress::whatIsWrittenIsSentEscaped_data() {
    QTest::addColumn<QString>("written");
    QTest::addColumn<QByteArray>("sent");
    const auto row = [](const char* written, const char* sent) {
        QTest::newRow(QByteArray(written).simplified().constData())
            << QString::fromUtf8(written) << QByteArray(sent);
    };
    row("http://h", "http://h/");
    row("HTTP://Host.Example:80/A", "http://host.example/A");
    row("https://h:443/a", "https://h/a");
    row("https://h:80/a", "https://h:80/a");
    row("http://h:/a", "http://h/a");
    row("http:\\\\h\\a\\b", "http://h/a/b");
    row("http://h//a//b", "http://h//a//b");
    row("http://h/a b", "http://h/a%20b");
    row("http://h/a%20b", "http://h/a%20b");
    row("http://h/a%2fb", "http://h/a%2Fb");
    row("http://h/%41%7e", "http://h/A~");
    row("http://h/50%", "http://h/50%25");
    row("http://h/50%x", "http://h/50%25x");
    row("http://h/a#b?c+d", "http://h/a%23b%3Fc%2Bd");
    row("http://h/\xC3\xA4", "http://h/%C3%A4");
    row("http://h/a/./b/../c", "http://h/a/c");
    row("http://h/a/%2e%2e/c/", "http://h/c/");
    row("http://h/../../a/..", "http://h/");
    row("http://h/...", "http://h/...");
    row("http://my_server/a", "http://my_server/a");
    row("http://m\xC3\xBCller.example/a", "http://xn--mller-kva.example/a");
    row("http://[::1]:8080/a", "http://[::1]:8080/a");
    row("http://h/a\r\nb", "http://h/a%0D%0Ab");
}

void TestWebAddress::whatIsWrittenIsSentEscaped() {
    QFETCH(QString, written);
    QFETCH(QByteArray, sent);
    const auto address = WebAddress::FromUser(written);
    QVERIFY(address);
    QCOMPARE(address->Sent(), sent);
}

void TestWebAddress::whatIsNoAddressIsNone_data() {
    QTest::addColumn<QString>("written");
    for (const char* written : {"",
                                "http",
                                "http:",
                                "http:/h/a",
                                "http://",
                                "http:///a",
                                "ftp://h/a",
                                " http://h/a",
                                "http://h:0/a",
                                "http://h:65536/a",
                                "http://h:-1/a",
                                "http://h:a/a",
                                "http://a b/",
                                "http://a\rb/",
                                "http://[::1/a",
                                "http://[x]/a",
                                "http://[]/a",
                                "http://h%41/a",
                                "/home/http/a",
                                "C:\\http\\a"})
        QTest::newRow(QByteArray(written).simplified().constData()) << QString::fromUtf8(written);
}

void TestWebAddress::whatIsNoAddressIsNone() {
    QFETCH(QString, written);
    QVERIFY(!WebAddress::FromUser(written));
}

void TestWebAddress::userAndPasswordAreTakenOut() {
    const QString written = QStringLiteral("http://anna:a%40b:%C3%BC@h:81/a@b");
    const auto address = WebAddress::FromUser(written);
    QVERIFY(address);
    QCOMPARE(address->user, QStringLiteral("anna"));
    QCOMPARE(address->password, QString::fromUtf8("a@b:\xC3\xBC"));
    QCOMPARE(address->Sent(), QByteArray("http://h:81/a%40b"));
    QCOMPARE(address->Shown(), QStringLiteral("http://h:81/a@b"));
    QCOMPARE(address->Server(), QStringLiteral("http://h:81"));
    QCOMPARE(docmodel::WithoutUser(written), QStringLiteral("http://h:81/a@b"));
    QCOMPARE(docmodel::WithoutUser(QStringLiteral("http:\\\\anna:x@h\\a")),
             QStringLiteral("http:\\\\h\\a"));
    QCOMPARE(docmodel::WithoutUser(QStringLiteral("http://h/a@b")), QStringLiteral("http://h/a@b"));
    QCOMPARE(docmodel::WithoutUser(QStringLiteral("anna:x@h")), QStringLiteral("h"));
}

void TestWebAddress::aShownAddressLeadsToTheSamePath_data() {
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char* path, const char* shown) {
        QTest::newRow(path) << QByteArray(path) << QString::fromUtf8(shown);
    };
    row("/a%20b", "/a b");
    row("/50%25", "/50%");
    row("/50%25%20x", "/50% x");
    row("/a%2520b", "/a%2520b");
    row("/a%252520b", "/a%252520b");
    row("/%25%32%35", "/%2525");
    row("/a%23b%3Fc%2Bd", "/a#b?c+d");
    row("/a%2Fb", "/a%2Fb");
    row("/a%5Cb", "/a%5Cb");
    row("/a%0Ab%00", "/a%0Ab%00");
    row("/%C3%A4/x", "/\xC3\xA4/x");
    row("/%E4/x", "/%E4/x");
}

void TestWebAddress::aShownAddressLeadsToTheSamePath() {
    QFETCH(QByteArray, path);
    QFETCH(QString, shown);
    const WebAddress base = *WebAddress::FromUser(QStringLiteral("http://h/"));
    const auto address = WebAddress::FromServer(path, base);
    QVERIFY(address);
    QCOMPARE(address->Shown(), QStringLiteral("http://h") + shown);
    QCOMPARE(WebAddress::FromUser(address->Shown())->path, address->path);
}

void TestWebAddress::anAnswersWayUpIsSeen() {
    const WebAddress base = *WebAddress::FromUser(QStringLiteral("http://h/a/"));
    for (const char* path : {"/a/..", "/a/../b", "/a/%2e%2E/b", "/a/./b", "/.", "/.."})
        QVERIFY2(WebAddress::FromServer(path, base)->HasDotSegments(), path);
    for (const char* path : {"/a/b", "/a/.b", "/a/..b", "/a/b..", "/", "//a"})
        if (const auto address = WebAddress::FromServer(path, base))
            QVERIFY2(!address->HasDotSegments(), path);
    QVERIFY(!WebAddress::FromServer("b", base));
    QVERIFY(!WebAddress::FromServer("../b", base));
    QVERIFY(!WebAddress::FromServer("", base));
}

DOCBENCH_TEST_MAIN(QCoreApplication, TestWebAddress)
#include "tst_webaddress.moc"
