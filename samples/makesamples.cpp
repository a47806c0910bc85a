// Makes the sample library in a folder and prints the path of its main assembly.

#include <QGuiApplication>
#include <QTextStream>

#include "app/exitcodes.h"
#include "samples/writesamples.h"
#include "services/docaccess.h"

namespace {

// The pictures need fonts, and those a platform plug-in, but no display.
void DoWithoutDisplay() {
    const auto isUnset = [](const char* name) { return qEnvironmentVariableIsEmpty(name); };
    if (isUnset("DISPLAY") && isUnset("WAYLAND_DISPLAY") && isUnset("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

const char kHelp[] =
    "Usage: docbench-samples [options] FOLDER\n"
    "Makes the sample library, a small gearbox with its drawings, in a folder, and prints the "
    "path\n"
    "of its main assembly. Documents of an earlier call are replaced, other files stay.\n"
    "\n"
    "Options:\n"
    "  -h, --help  Shows this text.\n"
    "\n"
    "Arguments:\n"
    "  FOLDER      Made if it is not there.\n"
    "\n"
    "Exit codes: 0 done, 1 the library can't be written, 2 wrong usage.\n";

bool AsksForHelp(const QByteArray& word) {
    return word == "-h" || word == "--help";
}

}  // namespace

int main(int argc, char* argv[]) {
    if (argc == 2 && AsksForHelp(argv[1])) {
        QTextStream(stdout) << kHelp;
        return docbench::kExitDone;
    }
    if (argc != 2 || argv[1][0] == '-' || argv[1][0] == '\0') {
        QTextStream(stderr) << "usage: docbench-samples FOLDER\nTry docbench-samples --help.\n";
        return docbench::kExitUsage;
    }
    DoWithoutDisplay();
    const QGuiApplication application(argc, argv);
    try {
        const QString assembly = samples::WriteSamples(QString::fromLocal8Bit(argv[1]));
        QTextStream(stdout) << assembly << '\n';
        return docbench::kExitDone;
    } catch (const docbench::DocumentError& error) {
        QTextStream(stderr) << error.Description() << '\n';
        return docbench::kExitPartly;
    }
}
