#include <QDBusConnection>
#include <QMutex>
#include <QTest>
#include <QThread>
#include <memory>

#include "platform/desktopoutsideobjects.h"
#include "platform/desktopshellexecute.h"
#include "services/openexternal.h"
#include "services/seams.h"
#include "services/settingsstore.h"
#include "tests/services/argumentscript.h"
#include "tests/services/privatebus.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

const QString kProgramId = QStringLiteral("Tessacad.Application");

}  // namespace

// What the CAD application offers to others, writing down what is asked of it.
class CadObject : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "Tessacad.Application")
    Q_PROPERTY(bool Visible READ Yes WRITE SetVisible)
    Q_PROPERTY(bool UserControl READ Yes WRITE SetUserControl)

public:
    bool Yes() const { return true; }
    void SetVisible(bool visible) { Note(QStringLiteral("Visible=%1").arg(visible)); }
    void SetUserControl(bool control) { Note(QStringLiteral("UserControl=%1").arg(control)); }

    QStringList TakeNotes() {
        const QMutexLocker locker(&mutex_);
        return std::exchange(notes_, {});
    }

public Q_SLOTS:
    int OpenDoc2(const QString& file, int type, int a, int b, int c, int error) {
        Note(QStringLiteral("OpenDoc2 %1 %2 %3%4%5%6")
                 .arg(file)
                 .arg(type)
                 .arg(a)
                 .arg(b)
                 .arg(c)
                 .arg(error));
        return 1;
    }
    void ActivateDoc(const QString& name) { Note("ActivateDoc " + name); }

private:
    void Note(const QString& note) {
        const QMutexLocker locker(&mutex_);
        notes_.append(note);
    }

    QMutex mutex_;
    QStringList notes_;
};

// The application as a program of its own: it answers while this thread waits for it.
class RunningCad {
public:
    explicit RunningCad(const QString& address) {
        cad.moveToThread(&thread_);
        thread_.start();
        QMetaObject::invokeMethod(
            &cad,
            [this, address] {
                QDBusConnection bus = QDBusConnection::connectToBus(address, "cad");
                registered = bus.registerObject("/Tessacad/Application", &cad,
                                                QDBusConnection::ExportAllSlots |
                                                    QDBusConnection::ExportAllProperties) &&
                             bus.registerService(kProgramId);
            },
            Qt::BlockingQueuedConnection);
    }
    ~RunningCad() {
        QMetaObject::invokeMethod(
            &cad,
            [] {
                QDBusConnection::connectToBus(QString(), "cad").unregisterService(kProgramId);
                QDBusConnection::disconnectFromBus("cad");
            },
            Qt::BlockingQueuedConnection);
        thread_.quit();
        thread_.wait();
    }

    CadObject cad;
    bool registered = false;

private:
    QThread thread_;
};

class tst_CadAutomation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        bus_ = std::make_unique<PrivateBus>();
        QVERIFY(!bus_->Address().isEmpty());
        gSeams.outside = &outside_;
        gSeams.shell = &shell_;
        bus_->LetStart(kProgramId, "/bin/sh -c 'touch " + bus_->Folder() + "/started'");
    }

    void init() {
        QFile::remove(qEnvironmentVariable("XDG_CONFIG_DIRS") + "/Tessaforma/Classes.ini");
    }

    void cleanup() {
        // The bus could start the application, and is never let do it.
        QVERIFY(!QFile::exists(bus_->Folder() + "/started"));
    }

    void cleanupTestCase() {
        gSeams = Seams();
        QDBusConnection::disconnectFromBus("qt_default_session_bus");
        bus_.reset();
    }

    void ARunningApplicationShowsTheDocument() {
        RunningCad running(bus_->Address());
        QVERIFY(running.registered);
        OpenDocumentExternally("Open", "/w/my gear.tfmasm", "0", "0", 1);
        QCOMPARE(running.cad.TakeNotes(),
                 QStringList({"Visible=1", "UserControl=1", "OpenDoc2 /w/my gear.tfmasm 2 0000",
                              "ActivateDoc my gear.tfmasm"}));
    }

    void AnApplicationThatDoesNotRunIsNeverStartedByTheBus() {
        QVERIFY(!outside_.Attach(kProgramId));
        QVERIFY(!outside_.Attach("Excel.Application"));
        QVERIFY(!outside_.Attach(""));
        QVERIFY(!outside_.Attach("no program id"));
    }

    void AnApplicationThatHasGoneFailsQuietly() {
        std::unique_ptr<OutsideObject> cad;
        {
            const RunningCad running(bus_->Address());
            cad = outside_.Attach(kProgramId);
            QVERIFY(cad);
            QVERIFY(cad->SetProperty("Visible", true));
            QVERIFY(!cad->SetProperty("NoSuchProperty", true));
            QVERIFY(!cad->Call("NoSuchMethod", {1}));
            QVERIFY(!cad->Call("ActivateDoc", {1, 2, 3}));
        }
        QVERIFY(!cad->SetProperty("Visible", true));
        QVERIFY(!cad->Call("ActivateDoc", {"a"}));
        QVERIFY(!outside_.Attach(kProgramId));
    }

    void TheRegisteredProgramIsStartedWhereNoneRuns() {
        const QTemporaryDir folder;
        const QString program = folder.filePath("my cad");
        WriteArgumentScript(program);
        const auto write = [](const QString& keyPath, const QString& value) {
            QVERIFY(SettingsKey::Open(SettingsKey::Hive::ClassesRoot, keyPath)->SetText("", value));
        };
        write("Tessacad.Application\\CLSID", "{12}");
        write("CLSID\\{12}\\LocalServer32", program);
        OpenDocumentExternally("Open", "/w/my gear.tfmasm", "0", "0", 1);
        QCOMPARE(ArgumentsOf(program).value(0), QString("/w/my gear.tfmasm"));
    }

private:
    std::unique_ptr<PrivateBus> bus_;
    DesktopOutsideObjects outside_;
    DesktopShellExecute shell_;
};

DOCBENCH_TEST_MAIN(QCoreApplication, tst_CadAutomation)

#include "tst_cadautomation.moc"
