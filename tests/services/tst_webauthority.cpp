#include <QTest>

#include "services/webauthority.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

class TestWebAuthority : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aServerIsSchemeHostAndPort_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<QString>("server");
        const auto row = [](const char* address, const char* server) {
            QTest::newRow(address) << QString::fromUtf8(address) << QString::fromUtf8(server);
        };
        row("http://h/a.tfmprt", "http://h:80");
        row("HTTPS://Host.Example/a", "https://host.example:443");
        row("https://h:443", "https://h:443");
        row("http://h:81", "http://h:81");
        row("http:\\\\h\\w\\a.tfmprt", "http://h:80");
        row("http://ann:pw@h/a", "http://h:80");
        row("http://good/@evil/a", "http://good:80");
        row("http://good\\@evil/a", "http://good:80");
        row("http://good?@evil/a", "http://evil:80");
        row("http://good:80@evil/a", "http://evil:80");
        row("http://[::1]:81/a", "http://[::1]:81");
        row("http://a_b/c", "http://a_b:80");
        row("http://h:none/a", "");
        row("http:///a", "");
        row("http://", "");
        row("ftp://h/a", "");
        row("/w/http/a.tfmprt", "");
        row("", "");
    }
    void aServerIsSchemeHostAndPort() {
        QFETCH(QString, address);
        QFETCH(QString, server);
        QCOMPARE(ServerOf(address), server);
    }

    void aPasswordIsSeenInAnAddressAlone_data() {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("has");
        QTest::newRow("password") << "http://ann:pw@h/a.tfmprt" << true;
        QTest::newRow("backslashes") << "HTTPS:\\\\ann:pw@h\\a" << true;
        QTest::newRow("empty password") << "http://ann:@h/a" << true;
        QTest::newRow("user alone") << "http://ann@h/a" << false;
        QTest::newRow("port alone") << "http://h:81/a" << false;
        QTest::newRow("in the path") << "http://h/x:y@z" << false;
        QTest::newRow("local") << "/w/ann:pw@h.tfmprt" << false;
        QTest::newRow("relative") << "ann:pw@h.tfmprt" << false;
    }
    void aPasswordIsSeenInAnAddressAlone() {
        QFETCH(QString, address);
        QFETCH(bool, has);
        QCOMPARE(HasPassword(address), has);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestWebAuthority)
#include "tst_webauthority.moc"
