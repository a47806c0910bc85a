#include "app/commands/renamecommand.h"

#include <QJsonArray>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "cells/celllist.h"
#include "rename/renamechecks.h"
#include "rename/renamelist.h"
#include "rename/renamesearch.h"
#include "rename/renametransaction.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/texts.h"
#include "services/webdocument.h"
#include "shell/referencetree.h"

namespace docbench {

namespace {

const QString kRootOption = QStringLiteral("root");

// The document and all above it in the tree of `root`; the document alone without one. Raises
// DocumentError when it does not stand in that tree.
QStringList AncestorChain(const QString& document, const QString& root) {
    if (root.isEmpty())
        return {document};
    ReferenceTree tree;
    if (tree.Load(root)) {
        for (int node = 1; node <= tree.Nodes().Count(); ++node) {
            if (tree.Nodes().At(node).tag != document)
                continue;
            QString chain;
            tree.BuildReferencingChain(node, chain);
            return chain.split(u';');
        }
    }
    throw DocumentError(
        QStringLiteral("%1 is not in the reference tree of %2.").arg(document, root));
}

QString NameOfTable(Table table) {
    return table == Table::Components ? QStringLiteral("component")
                                      : QStringLiteral("external reference");
}

// What would be written: the move, the parent's first match, the ticked rows.
TextTable PlanAsTable(const RenamePlan& plan, const CellList& list) {
    TextTable table = {
        {QStringLiteral("Document"), QStringLiteral("Change"), QStringLiteral("To")}};
    if (!plan.replaces)
        table.push_back({plan.oldPath, QStringLiteral("move"), plan.newPath});
    const auto add = [&](const QString& document, Table which, int index) {
        table.push_back({document, QStringLiteral("%1 %2").arg(NameOfTable(which)).arg(index + 1),
                         plan.newPath});
    };
    if (!plan.parent.isEmpty()) {
        if (const auto found = FindParentReference(plan))
            add(plan.parent, found->table, found->index);
    }
    for (const CellRow& row : list.Rows()) {
        if (!row.ticked)
            continue;
        const RenameRow holder = ReadRow(row);
        add(holder.holder, holder.external ? Table::ExternalReferences : Table::Components,
            holder.index);
    }
    return table;
}

TextTable OutcomeAsTable(const CellList& list) {
    TextTable table = {
        {QStringLiteral("Document"), QStringLiteral("Status"), QStringLiteral("Reason")}};
    for (const CellRow& row : list.Rows()) {
        const Cell& holder = row.cells[kHolderColumn];
        if (holder.foreColor == kColorBlue)
            table.push_back({holder.tag, QStringLiteral("updated"), QString()});
        else if (row.ticked)
            table.push_back({holder.tag, QStringLiteral("failed"), holder.toolTip});
        else
            table.push_back({holder.tag, QStringLiteral("left out"), WritingProblem(holder.tag)});
    }
    return table;
}

void Search(const QCommandLineParser& line, const RenamePlan& plan, CellList& list,
            Console& console) {
    PrepareRenameList(list);
    RowBatch rows = RenameRows(list);
    const RenameSearch search{
        .document = plan.oldPath,
        .parent = plan.parent,
        .kinds = KindsToFind(line),
        .subfolders = WithSubfolders(line),
        .status = [&](const QString& text) { console.ShowProgress(text); },
        .yield = [] {},
        .cancelled = [] { return false; },
        .progress =
            [&](const SearchCounts& counts, int) {
                if (counts.unread > 0)
                    console.ShowProgress(QStringLiteral("%1 unread").arg(counts.unread));
            },
        .mirrors = HolderSearch::Mirrors::EachEntry,
        .unsearched = RaiseUnsearched};
    SearchHolders(search, FoldersToSearch(line, FolderOf(plan.oldPath)), rows);
    rows.Flush();
}

// Each failing check takes one row out, with a message, until the others are good.
void CheckAllHolders(CellList& list, const RenameSubject& subject, const QString& newName) {
    while (!CheckHolders(list, subject, newName, [](int) {}))
        continue;
}

int CountLeftOut(const CellList& list) {
    int count = 0;
    for (const CellRow& row : list.Rows())
        count += row.ticked ? 0 : 1;
    return count;
}

}  // namespace

QString RenameCommand::Name() const {
    return Replaces() ? QStringLiteral("replace") : QStringLiteral("rename");
}

QString RenameCommand::Summary() const {
    return Replaces() ? QStringLiteral("points the users of a document at another one")
                      : QStringLiteral("renames a document and updates all that refer to it");
}

QString RenameCommand::Arguments() const {
    return Replaces() ? QStringLiteral("FILE REPLACEMENT") : QStringLiteral("FILE NEWNAME");
}

QString RenameCommand::Help() const {
    return Replaces()
               ? QStringLiteral(
                     "Every reference to FILE that is found in the searched folders is written "
                     "anew to lead to REPLACEMENT, a document of the same type. No file moves.\n\n"
                     "  docbench replace --dry-run old-bolt.tfmprt new-bolt.tfmprt\n")
               : QStringLiteral(
                     "FILE gets the name NEWNAME in its own folder, and every reference to it that "
                     "is found in the searched folders is written anew. Without an extension "
                     "NEWNAME gets that of FILE.\n\n"
                     "  docbench rename --in /work/gearbox --yes bolt.tfmprt m6-bolt\n");
}

QList<QCommandLineOption> RenameCommand::Options() const {
    QList<QCommandLineOption> options = FolderOptions(QStringLiteral("the folder of FILE"));
    options.append(KindsOption());
    options.append(
        {kRootOption,
         QStringLiteral("Assembly in whose reference tree FILE stands: the document above "
                        "FILE is updated first, and the new name must be that of none above."),
         QStringLiteral("ASSEMBLY")});
    return options + ChangeOptions();
}

int RenameCommand::Run(const QCommandLineParser& line, Console& console) const {
    const QStringList words = line.positionalArguments();
    const QString document = DocumentPath(words[0]);
    gWebDocument = IsWebPath(document);
    if (!IsWebPath(document) && !FileExists(document))
        throw NoDocumentError(Format(Text::DocumentNotFound, document));
    const QString root = line.value(kRootOption);
    const RenameSubject subject{
        .fullName = document,
        .folder = FolderOf(document),
        .ancestorChain = AncestorChain(document, root.isEmpty() ? root : DocumentPath(root)),
        .replaces = Replaces()};
    const RenamePlan plan{.oldPath = document,
                          .newPath = Replaces()
                                         ? DocumentPath(words[1])
                                         : subject.folder + WithExtension(words[1], document),
                          .parent = subject.ancestorChain.value(1),
                          .replaces = Replaces()};
    if ((!plan.parent.isEmpty() && !MayBeWritten(plan.parent)) ||
        (!Replaces() && !MayBeWritten(document)) ||
        !ValidateTarget(subject, plan.newPath, [](const QString&) {}))
        return kExitPartly;

    CellList list;
    Search(line, plan, list, console);
    CheckAllHolders(list, subject, plan.newPath);
    const Decision decision = DecideAbout(PlanAsTable(plan, list), line, console);
    if (decision != Decision::Go)
        return ExitCodeOf(decision, console);

    const RenameResult result =
        RunRename(list, plan,
                  {.status = [&](const QString& text) { console.ShowProgress(text); },
                   .holders = [](int, int) {}});
    if (!result.moved)
        return kExitPartly;
    const TextTable outcome = OutcomeAsTable(list);
    console.PrintTable(outcome);
    console.PrintJson({{QStringLiteral("document"), plan.newPath},
                       {QStringLiteral("updated"), result.updated},
                       {QStringLiteral("failed"), result.failed},
                       {QStringLiteral("rows"), RowsAsJson(outcome)}});
    return result.failed == 0 && CountLeftOut(list) == 0 ? kExitDone : kExitPartly;
}

}  // namespace docbench
