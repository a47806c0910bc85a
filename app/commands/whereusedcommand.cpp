#include "app/commands/whereusedcommand.h"

#include <QJsonArray>
#include <QSet>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "panes/holdersearch.h"
#include "platform/xlsxspreadsheet.h"
#include "services/paths.h"
#include "services/webdocument.h"

namespace docbench {

namespace {

const QString kOutputOption = QStringLiteral("output");

void WriteFile(const TextTable& table, const QString& file) {
    if (file.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive))
        WriteCsv(table, file);
    else
        WriteXlsx(table, file);
}

}  // namespace

QString WhereUsedCommand::Help() const {
    return QStringLiteral(
        "Looks for references to FILE by its name, in every document of the searched folders. FILE "
        "itself need not be there.\n\n"
        "  docbench where-used --in /work/gearbox --output users.csv bolt.tfmprt\n");
}

void WhereUsedCommand::AddOptions(QCommandLineParser& parser) const {
    AddFolderOptions(parser);
    parser.addOption({{QStringLiteral("o"), kOutputOption},
                      QStringLiteral("Writes the list to a spreadsheet: comma separated values "
                                     "if the name ends in .csv, else .xlsx."),
                      QStringLiteral("FILE")});
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
            }};
    search.Run(FoldersToSearch(line, document));
    if (line.isSet(kOutputOption))
        WriteFile(table, line.value(kOutputOption));
    console.PrintTable(table);
    console.PrintJson({{QStringLiteral("documentsRead"), counts.documents},
                       {QStringLiteral("unread"), counts.unread},
                       {QStringLiteral("rows"), RowsAsJson(table)}});
    if (counts.unread == 0)
        return kExitDone;
    console.Warn(QStringLiteral("%1 documents could not be read.").arg(counts.unread));
    return kExitPartly;
}

}  // namespace docbench
