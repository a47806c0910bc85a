#include "app/commands/renameplanning.h"

#include <algorithm>

#include "app/commands/command.h"
#include "cells/celllist.h"
#include "rename/renamelist.h"
#include "services/filesystem.h"

namespace docbench {

namespace {

Table TableOf(const RenameRow& row) {
    return row.external ? Table::ExternalReferences : Table::Components;
}

QString NameOfReference(Table table, int index) {
    return QStringLiteral("%1 %2")
        .arg(table == Table::Components ? QStringLiteral("component")
                                        : QStringLiteral("external reference"))
        .arg(index + 1);
}

void Add(RenameOutcome& outcome, const QString& document, const QString& status,
         const QString& reason) {
    outcome.updated += status == QLatin1String("updated") ? 1 : 0;
    outcome.failed += status == QLatin1String("failed") ? 1 : 0;
    outcome.complete &= status == QLatin1String("updated");
    outcome.table.push_back({document, status, reason});
}

// A document that refers to itself goes by its new name.
QString NameOfHolder(const RenamePlan& plan, const QString& holder) {
    return !plan.replaces && holder == plan.oldPath ? plan.newPath : holder;
}

}  // namespace

std::optional<ParentReference> ParentApartFrom(const CellList& list, const RenamePlan& plan) {
    if (plan.parent.isEmpty())
        return std::nullopt;
    const std::optional<ParentReference> found = FindParentReference(plan);
    const QString file = PathWithoutLinks(plan.parent);
    const bool isListed =
        found && std::any_of(list.Rows().begin(), list.Rows().end(), [&](const CellRow& row) {
            const RenameRow holder = ReadRow(row);
            return row.ticked && PathWithoutLinks(holder.holder) == file &&
                   TableOf(holder) == found->table && holder.index == found->index;
        });
    return isListed ? std::nullopt : found;
}

TextTable RenamePlanAsTable(const RenamePlan& plan, const FoundHolders& holders) {
    TextTable table = {
        {QStringLiteral("Document"), QStringLiteral("Change"), QStringLiteral("To")}};
    if (!plan.replaces)
        table.push_back({plan.oldPath, QStringLiteral("move"), plan.newPath});
    if (holders.parent)
        table.push_back({plan.parent, NameOfReference(holders.parent->table, holders.parent->index),
                         plan.newPath});
    for (const CellRow& row : holders.list.Rows()) {
        const RenameRow holder = ReadRow(row);
        if (row.ticked)
            table.push_back(
                {holder.holder, NameOfReference(TableOf(holder), holder.index), plan.newPath});
    }
    return table;
}

RenameOutcome RenameOutcomeOf(const RenamePlan& plan, const FoundHolders& holders,
                              const RenameResult& result) {
    RenameOutcome outcome{.table = {{QStringLiteral("Document"), QStringLiteral("Status"),
                                     QStringLiteral("Reason")}}};
    if (holders.parent)
        Add(outcome, plan.parent,
            result.parentProblem.isEmpty() ? QStringLiteral("updated") : QStringLiteral("failed"),
            result.parentProblem);
    for (const CellRow& row : holders.list.Rows()) {
        const Cell& holder = row.cells[kHolderColumn];
        const QString name = NameOfHolder(plan, holder.tag);
        if (holder.foreColor == kColorBlue)
            Add(outcome, name, QStringLiteral("updated"), QString());
        else if (row.ticked)
            Add(outcome, name, QStringLiteral("failed"), holder.toolTip);
        else
            Add(outcome, name, QStringLiteral("left out"), WritingProblem(name));
    }
    for (const QString& holder : holders.repeating)
        Add(outcome, NameOfHolder(plan, holder), QStringLiteral("left out"),
            QStringLiteral("Only the first of its references is updated."));
    outcome.complete &= result.uploaded;
    return outcome;
}

}  // namespace docbench
