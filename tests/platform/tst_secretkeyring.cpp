// The desktop's keyring, on a session bus of the test's own.

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QTest>
#include <cstdio>
#include <cstdlib>

#include "platform/secretkeyring.h"
#include "tests/services/privatebus.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// A keyring that takes every call and answers none, as one does that waits for its owner.
class SilentKeyRing : public QDBusVirtualObject {
public:
    explicit SilentKeyRing(const QString& address)
        : bus_(QDBusConnection::connectToBus(address, QStringLiteral("silent"))) {
        isThere = bus_.registerVirtualObject(QStringLiteral("/"), this, QDBusConnection::SubPath);
        for (const char* name : {"org.freedesktop.secrets", "org.kde.kwalletd5"})
            isThere = isThere && bus_.registerService(QLatin1String(name));
    }
    ~SilentKeyRing() override { QDBusConnection::disconnectFromBus(QStringLiteral("silent")); }
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage&, const QDBusConnection&) override { return true; }

    bool isThere = false;

private:
    QDBusConnection bus_;
};

const QString kEntry = QStringLiteral("https://s:443 docs");

}  // namespace

class TestSecretKeyRing : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("XDG_CURRENT_DESKTOP",
                "KDE");  // so that the service below is the one that is asked
        qputenv("KDE_SESSION_VERSION", "5");
        bus_ = std::make_unique<PrivateBus>();
        QVERIFY(!bus_->Address().isEmpty());
        QVERIFY(QDBusConnection::sessionBus().isConnected());
    }
    void cleanupTestCase() {
        QDBusConnection::disconnectFromBus(QStringLiteral("qt_default_session_bus"));
        bus_.reset();
    }

    void aDesktopWithoutAKeyringIsNormal() {
        SecretKeyRing keyring;
        QVERIFY(!SecretKeyRing::IsAvailable());
        QVERIFY(!keyring.Read(kEntry));
        QVERIFY(!keyring.Write(kEntry, QStringLiteral("ann\nsecret")));
        keyring.Delete(kEntry);
    }

    // Last: a keyring that was silent is none for the process.
    void aKeyringThatNeverAnswersIsNone() {
        SilentKeyRing silent(bus_->Address());
        QVERIFY(silent.isThere);
        QVERIFY(SecretKeyRing::IsAvailable());
        SecretKeyRing patient(std::chrono::hours(1));
        SecretKeyRing keyring(std::chrono::milliseconds(50));
        QVERIFY(!keyring.Read(kEntry));
        QVERIFY(!SecretKeyRing::IsAvailable());
        QVERIFY(!patient.Read(kEntry));  // not waited for again
        QVERIFY(!patient.Write(kEntry, QStringLiteral("ann\nsecret")));
        patient.Delete(kEntry);
    }

private:
    std::unique_ptr<PrivateBus> bus_;
};

// The keyrings' library runs a thread that the end of the process would pull the ground from under.
int main(int argc, char* argv[]) {
    int result = 0;
    {
        const TestEnvironment environment;
        QCoreApplication application(argc, argv);
        TestSecretKeyRing test;
        result = QTest::qExec(&test, argc, argv);
    }
    std::fflush(nullptr);
    std::_Exit(result);
}
#include "tst_secretkeyring.moc"
