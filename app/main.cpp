// The program: makes everything outside the process, hands it in, and runs what was asked for.

#include <QApplication>
#include <QFileInfo>
#include <QIcon>
#include <QTextStream>
#include <QTimer>

#include "app/commandline.h"
#include "app/commands/commandset.h"
#include "app/consoledialogs.h"
#include "app/exitcodes.h"
#include "app/mainwindow.h"
#include "app/theme.h"
#include "platform/desktopseams.h"
#include "services/seams.h"
#include "shell/picturestore.h"

namespace docbench {

namespace {

const char kVersion[] = DOCBENCH_VERSION;

int WriteScreenshot(MainWindow& window, const QString& file) {
    if (window.grab().save(file))
        return kExitDone;
    QTextStream(stderr) << "The picture " << file << " can't be written.\n";
    return kExitPartly;
}

int RunWindow(int argc, char* argv[], const CommandLine& line) {
    QApplication application(argc, argv);
    QApplication::setApplicationVersion(QLatin1String(kVersion));
    // The name of the desktop entry: docks and switchers take the icon from there.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tessaforma.Docbench"));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/pictures/docbench.svg")));
    ApplyTheme(line.theme);
    const DesktopSeams seams;
    const bool endsAlone = line.quitWhenShown || !line.screenshot.isEmpty();
    ConsoleDialogs unattended(line.file);
    if (endsAlone)
        gSeams.dialogs = &unattended;  // nobody is there to answer
    MainWindow window;
    window.show();
    if (!line.file.isEmpty())
        window.Open(line.file);
    int result = kExitDone;
    if (endsAlone) {
        QTimer::singleShot(0, &window, [&] {
            if (!line.screenshot.isEmpty())
                result = WriteScreenshot(window, line.screenshot);
            if (!line.file.isEmpty() && !window.HasDocument())
                result = kExitNoDocument;
            QApplication::exit();  // not quit(), which closes the window as the user does
        });
    }
    const int ended = QApplication::exec();
    return endsAlone ? result : ended;
}

}  // namespace

int Main(int argc, char* argv[]) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    QCoreApplication::setApplicationName(QStringLiteral("docbench"));
    const CommandLine line = ParseCommandLine(arguments);
    switch (line.does) {
        case CommandLine::Does::Command: {
            const QCoreApplication application(argc, argv);
            return RunCommand(*FindCommand(line.command), line.words);
        }
        case CommandLine::Does::Window:
            return RunWindow(argc, argv, line);
        case CommandLine::Does::Help: {
            const QCoreApplication application(argc, argv);
            QTextStream(stdout) << HelpText();
            return kExitDone;
        }
        case CommandLine::Does::Version:
            QTextStream(stdout) << "docbench " << kVersion << '\n';
            return kExitDone;
        case CommandLine::Does::WrongUsage:
            break;
    }
    QTextStream(stderr) << line.message;
    return kExitUsage;
}

}  // namespace docbench

int main(int argc, char* argv[]) {
    return docbench::Main(argc, argv);
}
