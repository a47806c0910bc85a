// The performance log: with a server on a bus of its own, with one that fails, and without any.

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

}  // namespace

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

class tst_Logging : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { gLogger.reset(); }

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
        const PrivateBus bus;
        QVERIFY(!bus.Address().isEmpty());
        DesktopOutsideObjects outside;
        gSeams.outside = &outside;
        QThread thread;
        LogObject log;
        log.moveToThread(&thread);
        thread.start();
        bool registered = false;
        QMetaObject::invokeMethod(
            &log,
            [&] {
                QDBusConnection own = QDBusConnection::connectToBus(bus.Address(), "log");
                registered = own.registerObject("/TFDEventLog/LoggingManager", &log,
                                                QDBusConnection::ExportAllSlots) &&
                             own.registerService(kProgramId);
            },
            Qt::BlockingQueuedConnection);
        QVERIFY(registered);
        {
            LoggingManager manager;
            manager.LogCommand("WHERE");
            manager.LogDocumentOpen("/w/my gear.tfmasm");
            manager.LogPreviewInfo("/w/a.tfmprt", false, true, false);
        }
        QCOMPARE(log.TakeNotes(),
                 QStringList({"Start", "LogCommand WHERE", "LogDocumentOpen /w/my gear.tfmasm",
                              "LogPreviewInfo /w/a.tfmprt 010", "Finish"}));
        QMetaObject::invokeMethod(
            &log, [] { QDBusConnection::disconnectFromBus("log"); }, Qt::BlockingQueuedConnection);
        thread.quit();
        thread.wait();
        QDBusConnection::disconnectFromBus("qt_default_session_bus");
        gSeams.outside = nullptr;
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, tst_Logging)
#include "tst_logging.moc"
