#include "app/commands/configurationscommand.h"

#include <QJsonArray>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "editors/configurationtree.h"
#include "editors/pendingtext.h"
#include "services/paths.h"
#include "services/texts.h"
#include "services/webcopies.h"

namespace docbench {

namespace {

QString NameOfKind(int kind) {
    constexpr int kOrdinary = 0;
    constexpr int kLasting = 1;
    if (kind == kOrdinary)
        return QStringLiteral("ordinary");
    return kind == kLasting ? QStringLiteral("lasting") : QStringLiteral("internal");
}

int Show(DocumentFile& file, Console& console) {
    TextTable table = {{QStringLiteral("Configuration"), QStringLiteral("Kind")}};
    for (int i = 0; i < file.GetConfigurationCount(); ++i)
        table.push_back({file.GetConfiguration(i), NameOfKind(file.GetConfigurationType(i))});
    console.PrintTable(table);
    console.PrintJson({{QStringLiteral("rows"), RowsAsJson(table)}});
    return kExitDone;
}

// The node of a name, which is the same in any case of letters; an exact one goes first.
int NodeNamed(const CellTree& tree, const QString& name, const QString& document) {
    int found = 0;
    for (int node = kDocumentNode + 1; node <= tree.Count(); ++node) {
        const QString stored = StoredText(tree.Nodes().At(node));
        if (stored == name)
            return node;
        if (found == 0 && IsSameText(stored, name))
            found = node;
    }
    if (found == 0)
        throw DocumentError(
            QStringLiteral("There is no configuration \"%1\" in %2 that can be changed.")
                .arg(name, document));
    return found;
}

QString ReasonFor(ConfigurationTree::Answer answer) {
    switch (answer) {
        case ConfigurationTree::Answer::NameEmpty:
            return Tr(Text::ConfigurationNameEmpty);
        case ConfigurationTree::Answer::NameTaken:
            return Tr(Text::ConfigurationNameTaken);
        default:
            return Tr(Text::ConfigurationStays);
    }
}

void Require(ConfigurationTree::Answer answer, const QString& name) {
    if (answer != ConfigurationTree::Answer::Done)
        throw DocumentError(QStringLiteral("%1: %2").arg(name, ReasonFor(answer)));
}

// Lays what the words ask for onto the tree, and gives the plan.
TextTable Edit(const QStringList& words, const QString& document, const CellTree& tree,
               ConfigurationTree& configurations) {
    TextTable plan = {{QStringLiteral("Document"), QStringLiteral("Change"), QStringLiteral("To")}};
    const QStringList names = words.mid(2);
    if (words[1] == QLatin1String("rename") && names.size() == 2) {
        const int node = NodeNamed(tree, names[0], document);
        const QString stored = StoredText(tree.Nodes().At(node));
        Require(configurations.Rename(node, names[1]), stored);
        if (configurations.PendingChanges() > 0)
            plan.push_back({document, QStringLiteral("rename ") + stored, names[1]});
    } else if (words[1] == QLatin1String("delete") && !names.isEmpty()) {
        for (const QString& name : names) {
            const int node = NodeNamed(tree, name, document);
            if (configurations.IsDeleted(node))
                continue;
            Require(configurations.ToggleDeletion(node), name);
            plan.push_back({document, QStringLiteral("delete ") + StoredText(tree.Nodes().At(node)),
                            QString()});
        }
    } else {
        throw UsageError(
            QStringLiteral("Behind FILE comes nothing, rename OLD NEW, or delete "
                           "NAME..."));
    }
    return plan;
}

}  // namespace

QString ConfigurationsCommand::Help() const {
    return QStringLiteral(
        "Without more than FILE, the configurations are listed in the document's order. A lasting "
        "one can't be deleted, and an internal one neither be renamed nor deleted.\n\n"
        "  docbench configurations bolt.tfmprt\n"
        "  docbench configurations --yes bolt.tfmprt rename Default M6x20\n"
        "  docbench configurations --dry-run bolt.tfmprt delete M6x30 M6x40\n");
}

QList<QCommandLineOption> ConfigurationsCommand::Options() const {
    return ChangeOptions();
}

int ConfigurationsCommand::Run(const QCommandLineParser& line, Console& console) const {
    const QStringList words = line.positionalArguments();
    const QString document = DocumentPath(words[0]);
    const auto file = OpenDocument(document);
    RequireTables(*file, document);
    if (words.size() == 1)
        return Show(*file, console);
    CellTree tree;
    ConfigurationTree configurations(tree);
    configurations.Load(*file, FileNameOf(document), document);
    const TextTable plan = Edit(words, document, tree, configurations);
    RequireUnlocked(document);
    RequireWritable(document);
    const QList<ConfigurationEdit> edits = configurations.Edits();
    WriteConfigurations(*OpenDocument(document), edits);  // proves that it can be done
    const Decision decision = DecideAbout(plan, line, console);
    if (decision != Decision::Go)
        return ExitCodeOf(decision, console);
    if (!edits.isEmpty())
        SaveConfigurations(LocalCopyOf(document), *file, edits, document);
    const bool done = edits.isEmpty() || UploadIfWeb(document);
    return TellChanged(document, !edits.isEmpty(), done, console);
}

}  // namespace docbench
