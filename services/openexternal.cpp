#include "services/openexternal.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <optional>

#include "services/dialogs.h"
#include "services/errorstate.h"
#include "services/helpviewer.h"
#include "services/language.h"
#include "services/loggingmanager.h"
#include "services/outsideobjects.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/settingsstore.h"
#include "services/shellexecute.h"
#include "services/texts.h"

namespace docbench {
namespace {

const QString kCadProgramId = QStringLiteral("Tessacad.Application");

// The numbers by which the CAD application is told what it opens; none for a file of another kind.
std::optional<int> CadTypeOf(const QString& file) {
    constexpr int kPart = 1;
    constexpr int kAssembly = 2;
    constexpr int kDrawing = 3;
    const QString extension = ExtensionOf(file).toUpper();
    if (extension == QLatin1String("PRT") || extension == QLatin1String("TFMPRT"))
        return kPart;
    if (extension == QLatin1String("ASM") || extension == QLatin1String("TFMASM"))
        return kAssembly;
    if (extension == QLatin1String("DRW") || extension == QLatin1String("TFMDRW"))
        return kDrawing;
    return std::nullopt;
}

// A step that fails does not keep the next ones from being tried, and nobody is told.
void OpenInRunningCad(OutsideObject& cad, const QString& file, int type) {
    const int none = 0;   // for the options and the configuration
    const int error = 0;  // the program may leave its error here
    cad.SetProperty(QStringLiteral("Visible"), true);
    cad.SetProperty(QStringLiteral("UserControl"), true);
    cad.Call(QStringLiteral("OpenDoc2"), {file, type, none, none, none, error});
    cad.Call(QStringLiteral("ActivateDoc"), {FileNameOf(file)});
}

// Default value of a key of the classes root; empty when it can't be read.
QString ClassesRootValue(const QString& keyPath) {
    const auto key = SettingsKey::Open(SettingsKey::Hive::ClassesRoot, keyPath);
    const QString value = key ? key->Text(QString()).value_or(QString()) : QString();
    return value.left(value.indexOf(QChar(0)));  // whole where there is none
}

// The registered value is a program's path, or a command line with the path in its front.
void StartCad(const QString& file) {
    const QString classId = ClassesRootValue(kCadProgramId + QStringLiteral("\\CLSID"));
    if (classId.isEmpty())
        return;
    const QString server =
        ClassesRootValue(QStringLiteral("CLSID\\") + classId + QStringLiteral("\\LocalServer32"));
    QStringList arguments =
        QFileInfo(server).isFile() ? QStringList{server} : QProcess::splitCommand(server);
    if (arguments.isEmpty() || !gSeams.shell)
        return;
    const QString program = arguments.takeFirst();
    gSeams.shell->StartProgram(program, arguments << file);
}

void OpenDocument(const QString& file, int cadType) {
    const std::unique_ptr<OutsideObject> cad =
        gSeams.outside ? gSeams.outside->Attach(kCadProgramId) : nullptr;
    if (cad)
        OpenInRunningCad(*cad, file, cadType);
    else
        StartCad(file);
}

}  // namespace

bool IsHostedByCad() {
    // Asked of the system where it tells: a host of another kind has no application object.
    QFile commandLine(QStringLiteral("/proc/self/cmdline"));
    const QString line = commandLine.open(QIODevice::ReadOnly)
                             ? QString::fromLocal8Bit(commandLine.readAll().replace('\0', ' '))
                             : QCoreApplication::arguments().join(u' ');
    return line.toLower().contains(QLatin1String("tessacad.exe"));
}

void OpenDocumentExternally(const QString& verb, const QString& file, const QString& parameters,
                            const QString& folder, int showCommand) {
    if (const std::optional<int> cadType = CadTypeOf(file)) {
        Log([](LoggingManager& log) { log.LogCommand(QStringLiteral("CMDTESSACAD")); });
        ErrorState untold;  // what goes wrong with the CAD application is not reported here
        untold.Run([&] { OpenDocument(file, *cadType); });
        return;
    }
    try {
        if (ExtensionOf(file).toUpper() == QLatin1String("CHM") && gSeams.help)
            gSeams.help->Open(file);
        else if (gSeams.shell)
            gSeams.shell->Execute(verb, file, parameters, folder, showCommand);
    } catch (const std::exception& error) {
        if (gSeams.dialogs)
            gSeams.dialogs->Box(DescriptionOf(error), Dialogs::Icon::None, QString());
    }
}

QString BrowseForFolder(const QString& start, const QString& what) {
    return gSeams.dialogs ? gSeams.dialogs->BrowseFolder(Format(Text::ChooseFolder, what), start)
                          : QString();
}

}  // namespace docbench
