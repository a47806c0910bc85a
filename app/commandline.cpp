#include "app/commandline.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include "app/commands/commandset.h"
#include "services/paths.h"

namespace docbench {

namespace {

const char kExitCodes[] =
    "Exit codes: 0 done, 1 done but something was refused or failed, 2 wrong usage,\n"
    "3 the document can't be opened.\n";

const QString kHelpOption = QStringLiteral("help");
const QString kVersionOption = QStringLiteral("version");
const QString kScreenshotOption = QStringLiteral("screenshot");
const QString kQuitOption = QStringLiteral("quit-when-shown");
const QString kThemeOption = QStringLiteral("theme");

CommandLine Wrong(const QString& message) {
    CommandLine line;
    line.does = CommandLine::Does::WrongUsage;
    line.message = message + QStringLiteral("\nTry docbench --help.\n");
    return line;
}

// What can be no document that somebody wants to see.
bool IsMistypedCommand(const QString& word) {
    return DocTypeOf(word) == DocType::None && !word.contains(u'/') && !IsWebPath(word) &&
           !QFileInfo::exists(word);
}

void AddOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        QStringLiteral("Shows the documents of a CAD folder and what they refer to."));
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("part, assembly or drawing"),
                                 QStringLiteral("[FILE]"));
    parser.addOptions({
        {{QStringLiteral("h"), kHelpOption}, QStringLiteral("Shows this text.")},
        {{QStringLiteral("v"), kVersionOption}, QStringLiteral("Shows the version.")},
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
    // The toolkit names the program with its folder in the first line.
    const QString toolkits = parser.helpText();
    QString text = QStringLiteral("Usage: docbench [options] [FILE]\n") +
                   toolkits.mid(toolkits.indexOf(u'\n') + 1);
    text += QStringLiteral("\nCommands (docbench COMMAND --help tells more):\n");
    for (const auto& command : AllCommands())
        text += QStringLiteral("  %1%2\n").arg(command->Name(), -16).arg(command->Summary());
    return text + u'\n' + QLatin1String(kExitCodes);
}

CommandLine ParseCommandLine(const QStringList& arguments) {
    CommandLine line;
    if (FindCommand(arguments.value(1))) {
        line.does = CommandLine::Does::Command;
        line.command = arguments[1];
        line.words = arguments.mid(2);
        return line;
    }
    QCommandLineParser parser;
    AddOptions(parser);
    if (!parser.parse(arguments))
        return Wrong(parser.errorText());
    if (parser.isSet(kHelpOption) || parser.isSet(kVersionOption)) {
        line.does =
            parser.isSet(kHelpOption) ? CommandLine::Does::Help : CommandLine::Does::Version;
        return line;
    }
    const QStringList words = parser.positionalArguments();
    if (words.size() == 1 && IsMistypedCommand(words[0]))
        return Wrong(QStringLiteral("No file and no command is named %1.").arg(words[0]));
    if (words.size() > 1)
        return Wrong(QStringLiteral("One FILE only, and no command is named %1.").arg(words[0]));
    line.file = words.value(0);
    if (const QString problem = PasswordProblem(words); !problem.isEmpty())
        return Wrong(problem);
    line.screenshot = parser.value(kScreenshotOption);
    line.quitWhenShown = parser.isSet(kQuitOption);
    line.theme = parser.value(kThemeOption);
    if (!QStringList{QStringLiteral("light"), QStringLiteral("dark"), QStringLiteral("system")}
             .contains(line.theme))
        return Wrong(QStringLiteral("There is no theme %1.").arg(line.theme));
    return line;
}

}  // namespace docbench
