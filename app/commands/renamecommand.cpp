#include "app/commands/renamecommand.h"

#include <QFileInfo>
#include <QJsonArray>
#include <algorithm>

#include "app/commands/console.h"
#include "app/commands/renameplanning.h"
#include "app/exitcodes.h"
#include "cells/celllist.h"
#include "editors/propertyrows.h"
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

// False, and a message says why, when the new name or the documents themselves stand against it.
bool MayBegin(const RenameSubject& subject, const RenamePlan& plan) {
    if (!FitsType(plan.newPath, kTextProperty))
        throw UsageError(
            QStringLiteral("The new name holds a control character, which no document "
                           "can refer to."));
    return (plan.parent.isEmpty() || MayBeWritten(plan.parent)) &&
           (plan.replaces || MayBeWritten(plan.oldPath)) &&
           ValidateTarget(subject, plan.newPath, [](const QString&) {});
}

struct Search {
    int unread = 0;         // documents
    QStringList repeating;  // holders with further references

    void Run(const QCommandLineParser& line, const RenamePlan& plan, CellList& list,
             Console& console);
    // Says what the plan will not show. True when something stays undone by it.
    bool TellLacking(const QString& document, const CellList& list, Console& console) const;
};

void Search::Run(const QCommandLineParser& line, const RenamePlan& plan, CellList& list,
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
                unread = counts.unread;
                if (unread > 0)
                    console.ShowProgress(QStringLiteral("%1 unread").arg(unread));
            },
        .mirrors = HolderSearch::Mirrors::EachEntry,
        .repeated =
            [&](const QString& holder) {
                if (!repeating.contains(holder))
                    repeating.append(holder);
            },
        .unsearched = RaiseUnsearched};
    SearchHolders(search, FoldersToSearch(line, FolderOf(plan.oldPath)), rows);
    rows.Flush();
}

// Those that the search has found to be write-protected.
void TellProtected(const CellList& list, Console& console) {
    for (const CellRow& row : list.Rows()) {
        const QString problem = row.ticked ? QString() : WritingProblem(ReadRow(row).holder);
        if (!problem.isEmpty())
            console.Warn(problem);
    }
}

bool Search::TellLacking(const QString& document, const CellList& list, Console& console) const {
    console.WarnOfUnread(unread);
    for (const QString& holder : repeating)
        console.Warn(QStringLiteral("%1 refers to %2 more than once; only the first reference is "
                                    "updated.")
                         .arg(holder, document));
    bool complete = unread == 0 && repeating.isEmpty();
    for (const CellRow& row : list.Rows())
        complete &= row.ticked;
    return !complete;
}

// Each failing check takes one row out, with a message, until the others are good.
void CheckAllHolders(CellList& list, const RenameSubject& subject, const QString& newName) {
    while (!CheckHolders(list, subject, newName, [](int) {}))
        continue;
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
                     "Each document of the searched folders that refers to FILE gets REPLACEMENT, "
                     "a "
                     "document of the same type, in its place. No file moves. Of several "
                     "references "
                     "of a document to FILE the first alone is written, and the document is "
                     "told.\n\n"
                     "  docbench replace --dry-run old-bolt.tfmprt new-bolt.tfmprt\n")
               : QStringLiteral(
                     "FILE gets the name NEWNAME in its own folder, and each document of the "
                     "searched folders that refers to it is made to refer to the new name. Of "
                     "several "
                     "references of a document to FILE the first alone is written, and the "
                     "document "
                     "is told. Without an extension NEWNAME gets that of FILE.\n\n"
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
    if (!IsWebPath(document) && !QFileInfo::exists(document))
        throw NoDocumentError(Format(Text::DocumentNotFound, document));
    const QString root = line.value(kRootOption);
    const RenameSubject subject{
        .fullName = document,
        .folder = FolderOf(document),
        .ancestorChain = AncestorChain(document, root.isEmpty() ? root : DocumentPath(root)),
        .replaces = Replaces(),
        .wildcards = false};
    const RenamePlan plan{.oldPath = document,
                          .newPath = Replaces()
                                         ? DocumentPath(words[1])
                                         : subject.folder + WithExtension(words[1], document),
                          .parent = subject.ancestorChain.value(1),
                          .replaces = Replaces()};
    if (!MayBegin(subject, plan))
        return kExitPartly;

    CellList list;
    Search search;
    search.Run(line, plan, list, console);
    TellProtected(list, console);
    CheckAllHolders(list, subject, plan.newPath);
    const bool lacking = search.TellLacking(document, list, console);
    const FoundHolders holders{list, search.repeating, ParentApartFrom(list, plan)};
    const Decision decision = DecideAbout(RenamePlanAsTable(plan, holders), line, console);
    if (decision != Decision::Go)
        return std::max(ExitCodeOf(decision, console), lacking ? kExitPartly : kExitDone);

    const RenameResult result =
        RunRename(list, plan,
                  {.status = [&](const QString& text) { console.ShowProgress(text); },
                   .holders = [](int, int) {}});
    if (!result.moved)
        return kExitPartly;
    const RenameOutcome outcome = RenameOutcomeOf(plan, holders, result);
    console.PrintTable(outcome.table);
    console.PrintJson({{QStringLiteral("document"), plan.newPath},
                       {QStringLiteral("updated"), outcome.updated},
                       {QStringLiteral("failed"), outcome.failed},
                       {QStringLiteral("rows"), RowsAsJson(outcome.table)}});
    return outcome.complete && !lacking ? kExitDone : kExitPartly;
}

}  // namespace docbench
