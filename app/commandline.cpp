#include "app/commandline.h"

#include <QCommandLineParser>

#include "services/webauthority.h"

namespace docbench {

namespace {

const char kHelp[] =
    "\n"
    "Commands:\n"
    "  docbench [FILE]              opens the window, with the document if one is named\n"
    "  docbench tree FILE [--json]  prints the document's reference tree\n"
    "\n"
    "Exit codes: 0 done, 1 done but something was refused or failed, 2 wrong usage,\n"
    "3 the document can't be opened.\n";

const QString kHelpOption = QStringLiteral("help");
const QString kVersionOption = QStringLiteral("version");
const QString kJsonOption = QStringLiteral("json");
const QString kScreenshotOption = QStringLiteral("screenshot");
const QString kQuitOption = QStringLiteral("quit-when-shown");
const QString kThemeOption = QStringLiteral("theme");

CommandLine Wrong(const QString& message) {
    CommandLine line;
    line.does = CommandLine::Does::WrongUsage;
    line.message = message + QStringLiteral("\nTry docbench --help.\n");
    return line;
}

void AddOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        QStringLiteral("Shows the documents of a CAD folder and what they refer to."));
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("part, assembly or drawing"),
                                 QStringLiteral("[tree] [FILE]"));
    parser.addOptions({
        {{QStringLiteral("h"), kHelpOption}, QStringLiteral("Shows this text.")},
        {{QStringLiteral("v"), kVersionOption}, QStringLiteral("Shows the version.")},
        {kJsonOption, QStringLiteral("Prints the tree as JSON.")},
        {kScreenshotOption, QStringLiteral("Writes a picture of the window to PNG and ends."),
         QStringLiteral("PNG")},
        {kQuitOption, QStringLiteral("Ends once the window is on screen.")},
        {kThemeOption, QStringLiteral("light, dark or system (default)."), QStringLiteral("NAME"),
         QStringLiteral("system")},
    });
}

}  // namespace

QString HelpText() {
    QCommandLineParser parser;
    AddOptions(parser);
    return parser.helpText() + QLatin1String(kHelp);
}

CommandLine ParseCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    AddOptions(parser);
    if (!parser.parse(arguments))
        return Wrong(parser.errorText());

    CommandLine line;
    if (parser.isSet(kHelpOption) || parser.isSet(kVersionOption)) {
        line.does =
            parser.isSet(kHelpOption) ? CommandLine::Does::Help : CommandLine::Does::Version;
        return line;
    }
    QStringList words = parser.positionalArguments();
    if (!words.isEmpty() && words.first() == QLatin1String("tree")) {
        line.does = CommandLine::Does::Tree;
        words.removeFirst();
        if (words.isEmpty())
            return Wrong(QStringLiteral("The command tree needs a FILE."));
    }
    const bool asksForWindow =
        parser.isSet(kScreenshotOption) || parser.isSet(kThemeOption) || parser.isSet(kQuitOption);
    if (asksForWindow && line.does == CommandLine::Does::Tree)
        return Wrong(QStringLiteral("The command tree opens no window."));
    if (words.size() > 1)
        return Wrong(QStringLiteral("One FILE only."));
    if (parser.isSet(kJsonOption) && line.does != CommandLine::Does::Tree)
        return Wrong(QStringLiteral("--json goes with the command tree."));
    line.file = words.value(0);
    if (HasPassword(line.file))
        return Wrong(
            QStringLiteral("Name the address without the password: others see the command line."));
    line.json = parser.isSet(kJsonOption);
    line.screenshot = parser.value(kScreenshotOption);
    line.quitWhenShown = parser.isSet(kQuitOption);
    line.theme = parser.value(kThemeOption);
    if (!QStringList{QStringLiteral("light"), QStringLiteral("dark"), QStringLiteral("system")}
             .contains(line.theme))
        return Wrong(QStringLiteral("There is no theme %1.").arg(line.theme));
    return line;
}

}  // namespace docbench
