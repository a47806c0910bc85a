#include "app/commands/hyperlinkscommand.h"

#include <QJsonArray>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "editors/hyperlinktree.h"
#include "editors/pendingtext.h"
#include "services/paths.h"
#include "services/webcopies.h"

namespace docbench {

namespace {

int Show(DocumentFile& file, Console& console) {
    TextTable table = {{QStringLiteral("Hyperlink"), QStringLiteral("Position")}};
    for (int i = 0; i < file.GetHyperlinkCount(); ++i)
        table.push_back({file.GetHyperlink(i), QString::number(i + 1)});
    console.PrintTable(table);
    console.PrintJson({{QStringLiteral("rows"), RowsAsJson(table)}});
    return kExitDone;
}

// Every hyperlink that reads `old` gets the new text. Gives the plan.
TextTable Change(const QString& old, const QString& text, const QString& document,
                 const CellTree& tree, HyperlinkTree& hyperlinks) {
    TextTable plan = {{QStringLiteral("Document"), QStringLiteral("Change"), QStringLiteral("To")}};
    bool found = false;
    for (int node = kDocumentNode + 1; node <= tree.Count(); ++node) {
        if (StoredText(tree.Nodes().At(node)) != old)
            continue;
        found = true;
        const int before = hyperlinks.PendingChanges();
        hyperlinks.Edit(node, text);
        if (hyperlinks.PendingChanges() > before)
            plan.push_back(
                {document,
                 QStringLiteral("hyperlink %1").arg(StoredPosition(tree.Nodes().At(node)) + 1),
                 text});
    }
    if (!found)
        throw DocumentError(
            QStringLiteral("There is no hyperlink \"%1\" in %2.").arg(old, document));
    return plan;
}

}  // namespace

QString HyperlinksCommand::Help() const {
    return QStringLiteral(
        "Without more than FILE, the hyperlinks are listed in the document's order. With change, "
        "every one that reads OLD gets the text NEW; other letter case alone is no change.\n\n"
        "  docbench hyperlinks bolt.tfmprt\n"
        "  docbench hyperlinks --yes bolt.tfmprt change http://old/m6.pdf http://new/m6.pdf\n");
}

QList<QCommandLineOption> HyperlinksCommand::Options() const {
    return ChangeOptions();
}

int HyperlinksCommand::Run(const QCommandLineParser& line, Console& console) const {
    const QStringList words = line.positionalArguments();
    const QString document = DocumentPath(words[0]);
    const auto file = OpenDocument(document);
    const QString local = LocalCopyOf(document);
    RequireTables(*file, document);
    file->OpenHyperlinks(local);
    if (words.size() == 1)
        return Show(*file, console);
    if (words.size() != 4 || words[1] != QLatin1String("change"))
        throw UsageError(QStringLiteral("Behind FILE comes nothing, or change OLD NEW."));
    CellTree tree;
    HyperlinkTree hyperlinks(tree);
    hyperlinks.Load(*file, FileNameOf(document), document);
    const TextTable plan = Change(words[2], words[3], document, tree, hyperlinks);
    RequireUnlocked(document);
    RequireWritable(document);
    const Decision decision = DecideAbout(plan, line, console);
    if (decision != Decision::Go)
        return ExitCodeOf(decision, console);
    const bool isChanged = hyperlinks.Save(local, *file, document);
    const bool done = !isChanged || UploadIfWeb(document);
    return TellChanged(document, isChanged, done, console);
}

}  // namespace docbench
