// The performance log: with a server on a bus of its own, with one that fails, and without any.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QMutex>
#include <QTest>
#include <QThread>
#include <memory>

#include "platform/desktopoutsideobjects.h"
#include "services/docaccess.h"
#include "services/loggingmanager.h"
#include "services/seams.h"
#include "tests/services/privatebus.h"
#include "tests/support/fakeoutside.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

const QString kProgramId = QStringLiteral("TFDEventLog.LoggingManager");
const QString kStartedId = QStringLiteral("Test.StartedProgram");  // this program, started again
constexpr char kStarted[] = "--started";

// A server that writes its calls into a list, and fails the methods it is told to.
class RecordingServer : public OutsideObject {
public:
    RecordingServer(QStringList& calls, QStringList fails) : calls_(calls), fails_(fails) {}
    bool Call(const QString& method, const QVariantList& arguments) override {
        QStringList call(method);
        for (const QVariant& argument : arguments)
            call.append(argument.toString());
        calls_.append(call.join(' '));
        return !fails_.contains(method);
    }
    bool SetProperty(const QString&, const QVariant&) override { return false; }

private:
    QStringList& calls_;
    QStringList fails_;
};

class RaisingServer : public RecordingServer {
public:
    using RecordingServer::RecordingServer;
    bool Call(const QString& method, const QVariantList& arguments) override {
        if (RecordingServer::Call(method, arguments))
            return true;
        throw DocumentError(QStringLiteral("no %1").arg(method));
    }
};

}  // namespace

// What the bus starts.
class StartedProgram : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "Test.StartedProgram")

public Q_SLOTS:
    void Greet() {}
};

// The log as a program of its own.
class LogObject : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "TFDEventLog.LoggingManager")

public:
    QStringList TakeNotes() {
        const QMutexLocker locker(&mutex_);
        return std::exchange(notes_, {});
    }

public Q_SLOTS:
    void Start() { Note("Start"); }
    void Finish() { Note("Finish"); }
    void LogCommand(const QString& command) { Note("LogCommand " + command); }
    void LogDocumentOpen(const QString& file) { Note("LogDocumentOpen " + file); }
    void LogPreviewInfo(const QString& file, bool viewer, bool data, bool used) {
        Note(QStringLiteral("LogPreviewInfo %1 %2%3%4").arg(file).arg(viewer).arg(data).arg(used));
    }

private:
    void Note(const QString& note) {
        const QMutexLocker locker(&mutex_);
        notes_.append(note);
    }
    QMutex mutex_;
    QStringList notes_;
};

// The log on a bus: it answers while this thread waits for it.
class RunningLog {
public:
    explicit RunningLog(const QString& address) {
        log.moveToThread(&thread_);
        thread_.start();
        QMetaObject::invokeMethod(
            &log,
            [this, address] {
                QDBusConnection own = QDBusConnection::connectToBus(address, "log");
                registered = own.registerObject("/TFDEventLog/LoggingManager", &log,
                                                QDBusConnection::ExportAllSlots) &&
                             own.registerService(kProgramId);
            },
            Qt::BlockingQueuedConnection);
    }
    ~RunningLog() {
        QMetaObject::invokeMethod(
            &log,
            [] {
                QDBusConnection("log").unregisterService(kProgramId);
                QDBusConnection::disconnectFromBus("log");
            },
            Qt::BlockingQueuedConnection);
        thread_.quit();
        thread_.wait();
    }

    LogObject log;
    bool registered = false;

private:
    QThread thread_;
};

class tst_Logging : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        bus_ = std::make_unique<PrivateBus>();
        QVERIFY(!bus_->Address().isEmpty());
    }
    void cleanupTestCase() {
        QDBusConnection::disconnectFromBus("qt_default_session_bus");
        bus_.reset();
    }
    void cleanup() {
        gLogger.reset();
        gSeams.outside = nullptr;
    }

    void withoutAServerEveryCallDoesNothing() {
        FakeOutside outside;
        Log([](LoggingManager& log) {
            log.LogCommand("PREVIEW");
            log.LogDocumentOpen("/w/pin.tfmprt");
            log.LogPreviewInfo("/w/pin.tfmprt", true, true, false);
        });
        QCOMPARE(outside.asked, QStringList(kProgramId));
    }

    void withoutAnyOutsideWorldEveryCallDoesNothing() { LoggingManager().LogCommand("PREVIEW"); }

    void theServerIsStartedOnceCalledAndFinished() {
        FakeOutside outside;
        QStringList calls;
        outside.start = [&](const QString&) {
            return std::make_unique<RecordingServer>(calls, QStringList());
        };
        Log([](LoggingManager& log) { log.LogCommand("REF"); });
        Log([](LoggingManager& log) { log.LogPreviewInfo("/p", true, false, true); });
        gLogger.reset();
        QCOMPARE(calls, QStringList({"Start", "LogCommand REF", "LogPreviewInfo /p true false true",
                                     "Finish"}));
    }

    void aServerThatDoesNotStartIsStillCalled() {
        FakeOutside outside;
        QStringList calls;
        outside.start = [&](const QString&) {
            return std::make_unique<RecordingServer>(calls, QStringList("Start"));
        };
        LoggingManager().LogCommand("REF");
        QCOMPARE(calls, QStringList({"Start", "LogCommand REF", "Finish"}));
    }

    void aServerThatRaisesAtItsStartIsStillCalled() {
        FakeOutside outside;
        QStringList calls;
        outside.start = [&](const QString&) {
            return std::make_unique<RaisingServer>(calls, QStringList("Start"));
        };
        LoggingManager().LogCommand("REF");
        QCOMPARE(calls, QStringList({"Start", "LogCommand REF", "Finish"}));
    }

    void aFailingReportReachesTheCallerButBreaksNoCommand() {
        FakeOutside outside;
        QStringList calls;
        outside.start = [&](const QString&) {
            return std::make_unique<RecordingServer>(calls, QStringList("LogCommand"));
        };
        QVERIFY_THROWS_EXCEPTION(DocumentError, LoggingManager().LogCommand("REF"));
        Log([](LoggingManager& log) { log.LogCommand("REF"); });
        gLogger.reset();  // it writes its end into `calls`
        QCOMPARE(calls.count("LogCommand REF"), 2);
    }

    void aServerOnTheBusTakesTheReports() {
        DesktopOutsideObjects outside;
        gSeams.outside = &outside;
        RunningLog running(bus_->Address());
        QVERIFY(running.registered);
        {
            LoggingManager manager;
            manager.LogCommand("WHERE");
            manager.LogDocumentOpen("/w/my gear.tfmasm");
            manager.LogPreviewInfo("/w/a.tfmprt", false, true, false);
        }
        QCOMPARE(running.log.TakeNotes(),
                 QStringList({"Start", "LogCommand WHERE", "LogDocumentOpen /w/my gear.tfmasm",
                              "LogPreviewInfo /w/a.tfmprt 010", "Finish"}));
    }

    void aServerThatEndsInBetweenBreaksNoCommand() {
        DesktopOutsideObjects outside;
        gSeams.outside = &outside;
        {
            RunningLog running(bus_->Address());
            QVERIFY(running.registered);
            Log([](LoggingManager& log) { log.LogCommand("WHERE"); });
            QCOMPARE(running.log.TakeNotes(), QStringList({"Start", "LogCommand WHERE"}));
        }
        QVERIFY_THROWS_EXCEPTION(DocumentError, gLogger->LogCommand("REF"));
        Log([](LoggingManager& log) { log.LogCommand("REF"); });
        gLogger.reset();
    }

    void aProgramThatTheBusKnowsIsStarted() {
        bus_->LetStart(kStartedId, QCoreApplication::applicationFilePath() + ' ' + kStarted);
        DesktopOutsideObjects outside;
        QVERIFY(!outside.Attach(kStartedId));
        const std::unique_ptr<OutsideObject> program = outside.Start(kStartedId);
        QVERIFY(program);
        QVERIFY(program->Call("Greet", {}));
    }

    void aProgramThatTheBusDoesNotKnowIsNoError() {
        QVERIFY(!DesktopOutsideObjects().Start("Test.UnknownProgram"));
    }

private:
    std::unique_ptr<PrivateBus> bus_;
};

namespace {

// Stays until the bus ends.
int ServeStarted(int argc, char* argv[]) {
    QCoreApplication application(argc, argv);
    QDBusConnection bus =
        QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_STARTER_ADDRESS"), "own");
    StartedProgram program;
    const bool ends =
        bus.connect(QString(), "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local",
                    "Disconnected", &application, SLOT(quit()));
    if (!ends ||
        !bus.registerObject("/Test/StartedProgram", &program, QDBusConnection::ExportAllSlots) ||
        !bus.registerService(kStartedId))
        return 1;
    return QCoreApplication::exec();
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc == 2 && QLatin1String(argv[1]) == QLatin1String(kStarted))
        return ServeStarted(argc, argv);
    const TestEnvironment environment;
    QCoreApplication application(argc, argv);
    tst_Logging test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_logging.moc"
