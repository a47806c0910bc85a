#include "app/commands/commandset.h"

#include <QTextStream>

#include "app/commands/configurationscommand.h"
#include "app/commands/console.h"
#include "app/commands/copycommand.h"
#include "app/commands/hyperlinkscommand.h"
#include "app/commands/listcommand.h"
#include "app/commands/lockcommand.h"
#include "app/commands/propertiescommand.h"
#include "app/commands/referencescommand.h"
#include "app/commands/renamecommand.h"
#include "app/commands/searchcommand.h"
#include "app/commands/treecommand.h"
#include "app/commands/whereusedcommand.h"
#include "app/consoledialogs.h"
#include "app/exitcodes.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/language.h"
#include "services/scratch.h"
#include "services/seams.h"
#include "services/webcopies.h"

namespace docbench {

namespace {

const QString kHelpOption = QStringLiteral("help");
const QString kJsonOption = QStringLiteral("json");
const QString kNullOption = QStringLiteral("null");

// Options whose value names something, and so can't be empty.
const QStringList kNamingOptions{
    QStringLiteral("in"),    QStringLiteral("output"), QStringLiteral("to"),
    QStringLiteral("as"),    QStringLiteral("root"),   QStringLiteral("saved"),
    QStringLiteral("kinds"), QStringLiteral("type"),   QStringLiteral("configuration")};
// Those of which each one counts.
const QStringList kRepeatableOptions{QStringLiteral("in"),   QStringLiteral("target"),
                                     QStringLiteral("rule"), QStringLiteral("saved"),
                                     QStringLiteral("set"),  QStringLiteral("delete")};

QString ProblemOf(const QCommandLineOption& option, const QCommandLineParser& parser) {
    const QString name = option.names().last();
    const QStringList values = parser.values(name);
    if (kNamingOptions.contains(name) && values.contains(QString()))
        return QStringLiteral("--%1 needs a value that is not empty.").arg(name);
    if (values.size() > 1 && !kRepeatableOptions.contains(name))
        return QStringLiteral("--%1 may be given once.").arg(name);
    return {};
}

// What is wrong with the words and options as such; empty when nothing is.
QString UsageProblem(const Command& command, const QCommandLineParser& parser) {
    const QStringList words = parser.positionalArguments();
    if (words.size() < command.FewestWords() || words.size() > command.MostWords())
        return QStringLiteral("The command %1 takes %2.")
            .arg(command.Name(), command.Arguments().isEmpty() ? QStringLiteral("options alone")
                                                               : command.Arguments());
    if (words.mid(0, command.Names()).contains(QString()))
        return QStringLiteral("A name can't be empty: the command %1 takes %2.")
            .arg(command.Name(), command.Arguments());
    if (parser.isSet(kJsonOption) && parser.isSet(kNullOption))
        return QStringLiteral("Give --json or -0, not both.");
    QStringList given = words;
    for (const QCommandLineOption& option : OptionsOf(command)) {
        if (option.valueName().isEmpty())
            continue;
        if (const QString problem = ProblemOf(option, parser); !problem.isEmpty())
            return problem;
        given += parser.values(option);
    }
    return PasswordProblem(given);
}

int WrongUsage(const Command& command, const QString& message) {
    QTextStream(stderr) << message << "\nTry docbench " << command.Name() << " --help.\n";
    return kExitUsage;
}

int RunWithSeams(const Command& command, const QCommandLineParser& parser) {
    ConsoleDialogs dialogs(parser.positionalArguments().value(0));  // the document
    gSeams.dialogs = &dialogs;
    DocumentLibrary library;
    gSeams.documents = library.Access();
    LoadResources();
    PrepareScratch();
    UseWebFolders();
    int result = kExitPartly;
    {
        Console console(command.Name(), parser.isSet(kJsonOption)   ? Console::Format::Json
                                        : parser.isSet(kNullOption) ? Console::Format::Null
                                                                    : Console::Format::Text);
        try {
            result = command.Run(parser, console);
        } catch (const UsageError& error) {
            console.Warn(error.Description());
            console.Warn(QStringLiteral("Try docbench %1 --help.").arg(command.Name()));
            result = kExitUsage;
        } catch (const NoDocumentError& error) {
            console.Warn(error.Description());
            result = kExitNoDocument;
        } catch (const std::exception& error) {
            console.Warn(DescriptionOf(error));
        }
        if (!console.Finish())
            result = kExitPartly;
    }
    DeleteScratch();
    return result;
}

}  // namespace

const std::vector<std::unique_ptr<Command>>& AllCommands() {
    static const auto commands = [] {
        std::vector<std::unique_ptr<Command>> all;
        all.push_back(std::make_unique<TreeCommand>());
        all.push_back(std::make_unique<ReferencesCommand>());
        all.push_back(std::make_unique<WhereUsedCommand>());
        all.push_back(std::make_unique<SearchCommand>());
        all.push_back(std::make_unique<RenameCommand>(RenameCommand::Does::Rename));
        all.push_back(std::make_unique<RenameCommand>(RenameCommand::Does::Replace));
        all.push_back(std::make_unique<CopyCommand>());
        all.push_back(std::make_unique<PropertiesCommand>());
        all.push_back(std::make_unique<ConfigurationsCommand>());
        all.push_back(std::make_unique<HyperlinksCommand>());
        all.push_back(std::make_unique<LockCommand>(LockCommand::Does::Lock));
        all.push_back(std::make_unique<LockCommand>(LockCommand::Does::Unlock));
        all.push_back(std::make_unique<ListCommand>());
        return all;
    }();
    return commands;
}

QList<QCommandLineOption> OptionsOf(const Command& command) {
    const QList<QCommandLineOption> common{
        {{QStringLiteral("h"), kHelpOption}, QStringLiteral("Shows this text.")},
        {kJsonOption, QStringLiteral("Prints JSON.")},
        {{QStringLiteral("0"), kNullOption},
         QStringLiteral("Prints the first column alone, each entry with a NUL behind it: for xargs "
                        "-0.")}};
    return common + command.Options();
}

const Command* FindCommand(const QString& name) {
    for (const auto& command : AllCommands()) {
        if (command->Name() == name)
            return command.get();
    }
    return nullptr;
}

QString HelpOf(const Command& command) {
    QCommandLineParser parser;
    parser.setApplicationDescription(Wrapped(command.Help()));
    parser.addOptions(OptionsOf(command));
    // The toolkit's words know of no commands: its first line, "Usage: ...", is put right.
    QString text = parser.helpText();
    return QStringLiteral("Usage: docbench %1 [options] %2")
               .arg(command.Name(), command.Arguments())
               .trimmed() +
           u'\n' + text.mid(text.indexOf(u'\n') + 1);
}

int RunCommand(const Command& command, const QStringList& words) {
    QCommandLineParser parser;
    parser.addOptions(OptionsOf(command));
    if (!parser.parse(QStringList{QStringLiteral("docbench")} + words))
        return WrongUsage(command, parser.errorText());
    if (parser.isSet(kHelpOption)) {
        QTextStream(stdout) << HelpOf(command);
        return kExitDone;
    }
    if (const QString problem = UsageProblem(command, parser); !problem.isEmpty())
        return WrongUsage(command, problem);
    return RunWithSeams(command, parser);
}

}  // namespace docbench
