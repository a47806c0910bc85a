#include "app/commands/whereusedcommand.h"

#include <QJsonArray>
#include <QSet>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "panes/holdersearch.h"
#include "services/paths.h"
#include "services/webdocument.h"

namespace docbench {

QString WhereUsedCommand::Help() const {
    return QStringLiteral(
        "Looks for references to FILE by its name, in every document of the searched folders. FILE "
        "itself need not be there.\n\n"
        "  docbench where-used --in /work/gearbox --output users.csv bolt.tfmprt\n");
}

QList<QCommandLineOption> WhereUsedCommand::Options() const {
    return FolderOptions(QStringLiteral("the folder of FILE")) +
           QList{KindsOption(), OutputOption()};
}

int WhereUsedCommand::Run(const QCommandLineParser& line, Console& console) const {
    const QString document = DocumentPath(line.positionalArguments().first());
    gWebDocument = IsWebPath(document);
    TextTable table = {
        {QStringLiteral("Document"), QStringLiteral("Relation"), QStringLiteral("Reference")}};
    QSet<QString> listed;
    SearchCounts counts;
    const HolderSearch search{
        .document = document,
        .kinds = KindsToFind(line),
        .subfolders = WithSubfolders(line),
        .onFailure = HolderSearch::OnFailure::Raises,
        .status = [&](const QString& text) { console.ShowProgress(text); },
        .yield = [] {},
        .cancelled = [] { return false; },
        .progress = [&](const SearchCounts& now) { counts = now; },
        .take =
            [&](const FoundReference& found, const QString& holder, const QString& relation) {
                const QString key = holder + u'\0' + relation + u'\0' + found.reference;
                if (listed.contains(key))
                    return;
                listed.insert(key);
                table.push_back({holder, relation, found.reference});
            },
        .unsearched = RaiseUnsearched};
    search.Run(FoldersToSearch(line, FolderOf(document)));
    WriteOutput(table, line);
    console.PrintTable(table);
    console.PrintJson({{QStringLiteral("documentsRead"), counts.documents},
                       {QStringLiteral("unread"), counts.unread},
                       {QStringLiteral("rows"), RowsAsJson(table)}});
    console.WarnOfUnread(counts.unread);
    return counts.unread == 0 ? kExitDone : kExitPartly;
}

}  // namespace docbench
