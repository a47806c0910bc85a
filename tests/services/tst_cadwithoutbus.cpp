#include <QTemporaryDir>
#include <QTest>

#include "platform/desktopoutsideobjects.h"
#include "platform/desktopshellexecute.h"
#include "services/openexternal.h"
#include "services/seams.h"
#include "services/settingsstore.h"
#include "tests/services/argumentscript.h"
#include "tests/support/testdialogs.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

class tst_CadWithoutBus : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere/bus");
        gSeams.outside = &outside_;
        gSeams.shell = &shell_;
    }
    void cleanupTestCase() { gSeams = Seams(); }

    void NoProgramRunsWhereThereIsNoBus() {
        const TestDialogs dialogs;  // and nobody is told
        QVERIFY(!outside_.Attach("Tessacad.Application"));
        OpenDocumentExternally("Open", "/w/a.tfmprt", "0", "0", 1);
    }

    void TheRegisteredProgramIsStartedAllTheSame() {
        const TestDialogs dialogs;
        const QTemporaryDir folder;
        const QString program = folder.filePath("cad");
        WriteArgumentScript(program);
        const auto write = [](const QString& keyPath, const QString& value) {
            QVERIFY(SettingsKey::Open(SettingsKey::Hive::ClassesRoot, keyPath)->SetText("", value));
        };
        write("Tessacad.Application\\CLSID", "{12}");
        write("CLSID\\{12}\\LocalServer32", program + " /automation");
        OpenDocumentExternally("Open", "/w/\"my\" part.tfmprt", "0", "0", 1);
        QCOMPARE(ArgumentsOf(program).mid(0, 2),
                 QStringList({"/automation", "/w/\"my\" part.tfmprt"}));
    }

private:
    DesktopOutsideObjects outside_;
    DesktopShellExecute shell_;
};

DOCBENCH_TEST_MAIN(QCoreApplication, tst_CadWithoutBus)

#include "tst_cadwithoutbus.moc"
