#include "app/commands/searchcommand.h"

#include <QDir>
#include <QJsonArray>
#include <QSet>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "search/documentsearch.h"
#include "search/ruletext.h"
#include "search/savedsearch.h"
#include "search/searchrules.h"
#include "services/documentlibrary.h"
#include "services/filefacts.h"
#include "services/paths.h"
#include "services/texts.h"

namespace docbench {

namespace {

const QString kRuleOption = QStringLiteral("rule");
const QString kSavedOption = QStringLiteral("saved");

// A file of another language has operators that nobody here knows: they would be taken for "is".
void ReadSaved(const QString& file, CellList& rules) {
    const QStringList operators = OperatorTexts(Operators::All);
    ReadSavedSearch(file, operators, rules);
    for (const CellRow& rule : rules.Rows()) {
        if (!operators.contains(rule.cells[kRuleOperator].text))
            throw DocumentError(QStringLiteral("The saved search %1 has the operator \"%2\", which "
                                               "there is none of in this language. Save it again.")
                                    .arg(file, rule.cells[kRuleOperator].text));
    }
}

// Those of the saved search first.
void ReadRules(const QCommandLineParser& line, CellList& rules) {
    for (const QString& file : line.values(kSavedOption))
        ReadSaved(file, rules);
    for (const QString& text : line.values(kRuleOption)) {
        try {
            rules.Append(ParseRule(text));
        } catch (const DocumentError& error) {
            throw UsageError(error.Description());
        }
    }
    if (rules.Count() == 0)
        throw UsageError(QStringLiteral("A search needs a rule: give --rule or --saved."));
}

std::vector<QString> RowOf(const QString& path) {
    const FileFacts facts = FactsOf(path);
    return {path, facts.type, QString::number(facts.size), facts.created.toString(Qt::ISODate),
            FileAttributeText(facts.attributes)};
}

}  // namespace

QString SearchCommand::Help() const {
    return QStringLiteral(
        "Looks at every document of the searched folders. A rule reads PROPERTY OPERATOR VALUE; a "
        "further one must hold as well, or, with \"or\" in front, holds instead of all before "
        "it. The operators are: is, is not, contains, =, !=, <, <=, >, >=, is yes, is no. A "
        "property is one of the summary (Title, Author, Subject, Keywords, Comments, Created, Last "
        "Saved, Last Saved by), \"File name\", or a custom property. Put it, or a value, into "
        "double quotes where it holds an operator.\n\n"
        "  docbench search --in /work/gearbox --rule 'Author is Smith' --rule 'Mass > 0.5'\n"
        "  docbench search --rule 'File name contains m6' --rule 'or Status contains draft'\n");
}

QList<QCommandLineOption> SearchCommand::Options() const {
    QList<QCommandLineOption> options{
        {kRuleOption, QStringLiteral("A rule; may be given several times."),
         QStringLiteral("RULE")},
        {kSavedOption, QStringLiteral("A saved search, whose rules come before the others."),
         QStringLiteral("FILE")}};
    options += FolderOptions(QStringLiteral("the working folder"));
    options.append(OutputOption());
    return options;
}

int SearchCommand::Run(const QCommandLineParser& line, Console& console) const {
    CellList rules;
    ReadRules(line, rules);
    const QString folders = FoldersToSearch(line, QDir::currentPath());
    if (IsWebPath(folders))
        throw UsageError(QStringLiteral("Web folders can't be searched by rules."));
    const auto query = Documents().MakePropertyQuery(
        {.fileName = Tr(Text::FileName), .yes = Tr(Text::ValueYes), .no = Tr(Text::ValueNo)});
    AddRules(rules, *query);
    TextTable table = {{QStringLiteral("Document"), QStringLiteral("Type"), QStringLiteral("Size"),
                        QStringLiteral("Created"), QStringLiteral("Attributes")}};
    QSet<QString> listed;
    SearchCounts counts;
    DocumentSearch search(*query,
                          {.yield = [] {},
                           .stopped = [] { return false; },
                           .descends = [&] { return WithSubfolders(line); },
                           .entering =
                               [&](const QString& folder) {
                                   console.ShowProgress(Format(Text::SearchingFolder, folder));
                               },
                           .isListed = [&](const QString& path) { return listed.contains(path); },
                           .found =
                               [&](const QString& path) {
                                   listed.insert(path);
                                   table.push_back(RowOf(path));
                               },
                           .progress = [&](const SearchCounts& now) { counts = now; }});
    search.Run(SearchEntries(folders));
    WriteOutput(table, line);
    console.PrintTable(table);
    console.PrintJson({{QStringLiteral("documentsRead"), counts.documents},
                       {QStringLiteral("unread"), counts.unread},
                       {QStringLiteral("rows"), RowsAsJson(table)}});
    console.WarnOfUnread(counts.unread);
    return counts.unread == 0 ? kExitDone : kExitPartly;
}

}  // namespace docbench
