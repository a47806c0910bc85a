#include "app/commands/copyplanning.h"

#include <QDir>
#include <QHash>
#include <QSet>

#include "app/commands/command.h"
#include "copy/copylist.h"
#include "copy/copypreview.h"
#include "copy/parentlist.h"
#include "services/docaccess.h"
#include "services/filesystem.h"
#include "services/paths.h"
#include "services/webcopies.h"

namespace docbench {

namespace {

std::vector<PlannedCopy> FilesOf(const CopyPlan& plan) {
    std::vector<PlannedCopy> files;
    QSet<QString> listed;
    const auto add = [&](const std::vector<PlannedCopy>& copies) {
        for (const PlannedCopy& copy : copies) {
            if (copy.action != CopyAction::Copies || listed.contains(TargetKey(copy.target)))
                continue;
            listed.insert(TargetKey(copy.target));
            files.push_back(copy);
        }
    };
    add(PlanCopies(plan));
    add(PlanParentCopies(plan));
    return files;
}

bool IsThere(const QString& target) {
    if (!IsWebPath(target))
        return FileExists(target);
    return gWebFolder && gWebFolder->Exists(target) == WebFolderClient::Presence::Present;
}

class Outcome {
public:
    void Add(const QString& document, const QString& status, const QString& reason) {
        const QString key = document + u'\n' + status + u'\n' + reason;
        if (listed_.contains(key))
            return;
        listed_.insert(key);
        result_.table.push_back({document, status, reason});
        if (!reason.isEmpty() || status == QLatin1String("left out"))
            result_.complete = false;
    }

    // A row's own tool tip is no reason.
    void AddByColor(const Cell& cell, const QString& document, const QString& done,
                    const QString& otherReason) {
        const bool isReason = !cell.toolTip.isEmpty() && cell.toolTip != cell.tag;
        const QString reason = otherReason.isEmpty() && isReason ? cell.toolTip : otherReason;
        if (cell.foreColor == kColorRed)
            Add(document, QStringLiteral("failed"),
                reason.isEmpty() ? QStringLiteral("unknown") : reason);
        else if (cell.foreColor == kColorBlue)
            Add(document, done, reason);
        else
            Add(document, QStringLiteral("left out"), reason);
    }

    // A document that is changed in place, which is not changed when there is a reason.
    void AddUpdate(const Cell& cell, const QString& document) {
        const bool isReason = !cell.toolTip.isEmpty() && cell.toolTip != cell.tag;
        if (cell.foreColor == kColorBlue && isReason)
            Add(document, QStringLiteral("failed"), cell.toolTip);
        else
            AddByColor(cell, document, QStringLiteral("updated"), {});
    }

    CopyOutcomeTable Take() { return std::move(result_); }

private:
    CopyOutcomeTable result_{.table = {{QStringLiteral("Document"), QStringLiteral("Status"),
                                        QStringLiteral("Reason")}}};
    QSet<QString> listed_;
};

}  // namespace

TextTable CopyPlanAsTable(const CopyPlan& plan) {
    TextTable table = {
        {QStringLiteral("Document"), QStringLiteral("Change"), QStringLiteral("To")}};
    for (const PlannedCopy& file : FilesOf(plan))
        table.push_back(
            {file.source,
             IsThere(file.target) ? QStringLiteral("copy over") : QStringLiteral("copy"),
             file.target});
    for (const PlannedReference& reference : PlanReferences(plan))
        table.push_back(
            {reference.document,
             QStringLiteral("%1 %2")
                 .arg(reference.table == Table::Components ? QStringLiteral("component")
                                                           : QStringLiteral("external reference"))
                 .arg(reference.position + 1),
             reference.path});
    return table;
}

CopyOutcomeTable CopyOutcomeAsTable(const CopyPlan& plan, const CopyResult& result) {
    Outcome outcome;
    const QString copied = QStringLiteral("copied");
    const bool isMade = result.sourceReason.isEmpty();
    if (isMade)
        outcome.AddByColor(result.target, plan.target, copied, {});
    else
        outcome.Add(plan.target, QStringLiteral("failed"), result.sourceReason);
    for (const CellRow& row : plan.copies.Rows()) {
        const CopyRow copy = ReadCopyRow(row);
        const bool isLeftOut = row.cells[kCopyTarget].foreColor == kColorNormal;
        const QString reason =
            copy.missing ? QStringLiteral("There is no such file.") : row.cells[kCopyTick].toolTip;
        outcome.AddByColor(row.cells[kCopyTarget], isLeftOut ? copy.source : copy.target, copied,
                           reason);
    }
    for (const CellRow& row : plan.parents.Rows()) {
        const ParentRow parent = ReadParentRow(row);
        if (!row.ticked)
            outcome.Add(parent.parent, QStringLiteral("left out"), WritingProblem(parent.parent));
        else if (parent.state == ParentState::Copy)
            outcome.AddByColor(row.cells[kParentHolder], parent.target, copied, {});
        else if (!isMade && row.cells[kParentHolder].foreColor != kColorRed)
            outcome.Add(parent.parent, QStringLiteral("left out"),
                        QStringLiteral("%1 was not copied.").arg(plan.source));
        else
            outcome.AddUpdate(row.cells[kParentHolder], parent.parent);
    }
    return outcome.Take();
}

QStringList ExistingTargets(const CopyPlan& plan) {
    QStringList targets;
    for (const PlannedCopy& file : FilesOf(plan)) {
        if (IsThere(file.target))
            targets.append(file.target);
    }
    return targets;
}

QStringList SharedTargets(const CopyPlan& plan) {
    QHash<QString, QString> sources;
    QStringList shared;
    const auto look = [&](const std::vector<PlannedCopy>& copies) {
        for (const PlannedCopy& copy : copies) {
            if (copy.action == CopyAction::Skips)
                continue;
            const QString first = sources.value(TargetKey(copy.target), copy.source);
            sources.insert(TargetKey(copy.target), first);
            if (first != copy.source)
                shared.append(QStringLiteral("%1 and %2 would both be copied to %3.")
                                  .arg(first, copy.source, copy.target));
        }
    };
    look(PlanCopies(plan));
    look(PlanParentCopies(plan));
    shared.removeDuplicates();
    return shared;
}

QString CopiedOntoItself(const CopyPlan& plan) {
    for (const PlannedCopy& file : FilesOf(plan)) {
        if (PathWithoutLinks(QDir::cleanPath(file.source)) ==
            PathWithoutLinks(QDir::cleanPath(file.target)))
            return file.source;
    }
    return {};
}

QStringList TargetsInUse(const CopyPlan& plan) {
    const std::vector<PlannedCopy> files = FilesOf(plan);
    QSet<QString> used;
    for (const PlannedCopy& file : files)
        used.insert(PathWithoutLinks(file.source));
    for (const CellRow& row : plan.parents.Rows()) {
        if (row.ticked)
            used.insert(PathWithoutLinks(ReadParentRow(row).parent));
    }
    QStringList problems;
    for (const PlannedCopy& file : files) {
        if (used.contains(PathWithoutLinks(file.target)))
            problems.append(QStringLiteral("%1 would be copied over %2, which this copy needs "
                                           "itself.")
                                .arg(file.source, file.target));
    }
    return problems;
}

QStringList TargetProblems(const CopyPlan& plan) {
    QStringList problems;
    for (const QString& target : ExistingTargets(plan)) {
        const QString reserved = ReservationProblem(target);
        problems.append(reserved.isEmpty() ? WritingProblem(target) : reserved);
    }
    problems.removeAll(QString());
    return problems;
}

}  // namespace docbench
