#include "copy/copyplan.h"

#include <QSet>

#include "copy/copylist.h"
#include "copy/parentlist.h"
#include "services/paths.h"

namespace docbench {

QString TargetKey(const QString& target) {
    return IsWebPath(target) ? QString(target).replace(u'\\', u'/') : target;
}

std::vector<PlannedCopy> PlanCopies(const CopyPlan& plan) {
    std::vector<PlannedCopy> copies{{plan.source, plan.target, CopyAction::Copies, -1}};
    // Those of the rows above count whether or not these are copied, as does the document's own.
    QSet<QString> earlier{TargetKey(plan.target)};
    for (int i = 0; i < plan.copies.Count(); ++i) {
        const CopyRow row = ReadCopyRow(plan.copies.At(i));
        const QString key = TargetKey(row.target);
        const CopyAction action = !row.ticked || row.missing ? CopyAction::Skips
                                  : earlier.contains(key)    ? CopyAction::SameTarget
                                                             : CopyAction::Copies;
        copies.push_back({row.source, row.target, action, i});
        earlier.insert(key);
    }
    return copies;
}

std::vector<PlannedCopy> PlanParentCopies(const CopyPlan& plan) {
    std::vector<PlannedCopy> copies;
    for (int i = 0; i < plan.parents.Count(); ++i) {
        if (!IsCopied(plan.parents.At(i)))
            continue;
        const ParentRow row = ReadParentRow(plan.parents.At(i));
        copies.push_back({row.parent, row.target, CopyAction::Copies, i});
    }
    return copies;
}

}  // namespace docbench
