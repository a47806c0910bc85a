// The document library's tool: makes, shows, changes and checks documents from the command line.

#include <QCoreApplication>

#include "app/exitcodes.h"
#include "docmodel/tool/command.h"

namespace docmodel::tool {
namespace {

void PrintHelp(QTextStream& stream) {
    stream << "Usage: docmodel COMMAND [options] ARGUMENTS\n"
              "Makes, shows, changes and checks documents.\n\nCommands:\n";
    constexpr int kNameWidth = 20;
    for (const Command& command : Commands())
        stream << "  " << QString::fromLatin1(command.name).leftJustified(kNameWidth)
               << command.summary << '\n';
    stream << "\n\"docmodel COMMAND --help\" shows what a command takes.\n"
              "Exit codes: 0 done, 1 done but something was refused or failed, 2 wrong usage,\n"
              "3 the document can't be opened.\n";
}

int Run(const Command& command, const QStringList& arguments) {
    try {
        return command.run(arguments);
    } catch (const UsageError& error) {
        Err() << error.Text() << "\nSee \"docmodel " << command.name << " --help\".\n";
        return docbench::kExitUsage;
    } catch (const OpenError& error) {
        Err() << error.Description() << '\n';
        return docbench::kExitNoDocument;
    } catch (const docbench::DocumentError& error) {
        Err() << error.Description() << '\n';
        return docbench::kExitPartly;
    }
}

int Main(QStringList arguments) {
    arguments.removeFirst();
    const QString name = arguments.isEmpty() ? QString() : arguments.takeFirst();
    if (name == QLatin1String("--help") || name == QLatin1String("-h")) {
        PrintHelp(Out());
        return docbench::kExitDone;
    }
    for (const Command& command : Commands())
        if (name == QLatin1String(command.name))
            return Run(command, arguments);
    if (!name.isEmpty())
        Err() << "There is no command \"" << name << "\".\n\n";
    PrintHelp(Err());
    return docbench::kExitUsage;
}

}  // namespace
}  // namespace docmodel::tool

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const int result = docmodel::tool::Main(QCoreApplication::arguments());
    docmodel::tool::Out().flush();
    docmodel::tool::Err().flush();
    return result;
}
