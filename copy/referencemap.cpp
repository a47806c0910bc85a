#include "copy/referencemap.h"

#include "copy/copylist.h"
#include "services/filesystem.h"
#include "services/paths.h"

namespace docbench {

ReferenceMap::ReferenceMap(const CopyPlan& plan, const QHash<QString, QString>& madeFrom,
                           bool hasOwnCopy, Targets targets)
    : plan_(plan), madeFrom_(madeFrom), hasOwnCopy_(hasOwnCopy), targets_(targets) {
    for (int row = 0; row < plan.copies.Count(); ++row) {
        const CopyRow shown = ReadCopyRow(plan.copies.At(row));
        QList<int>& exact = exact_[shown.source];
        if (!HasCopy(plan.copies.At(row)) ||
            madeFrom_.value(TargetKey(shown.target)) != shown.source)
            continue;
        exact.append(row);
        folded_[shown.source.toUpper()].append(row);
    }
}

std::optional<QString> ReferenceMap::MapReferencePath(const QString& path) const {
    const QString working = plan_.replacedFiles.value(path, path);
    const auto exact = exact_.constFind(working);
    if (exact != exact_.cend() || plan_.source == working) {
        if (exact != exact_.cend()) {
            if (const auto copy = FirstCopy(*exact))
                return copy;
        }
        return plan_.source == working ? OwnCopy() : std::nullopt;
    }
    if (IsAnotherFile(working))
        return std::nullopt;
    const auto folded = folded_.constFind(working.toUpper());
    if (folded != folded_.cend()) {
        if (const auto copy = FirstCopy(*folded))
            return copy;
    }
    return plan_.source.toUpper() == working.toUpper() ? OwnCopy() : std::nullopt;
}

// Where the disk tells names apart that differ in letter case alone, such a one is no copied
// document's.
bool ReferenceMap::IsAnotherFile(const QString& path) const {
    if (IsWebPath(path) || !FileExists(path))
        return false;
    const auto folded = folded_.constFind(path.toUpper());
    if (folded == folded_.cend() || folded->isEmpty())
        return plan_.source.toUpper() == path.toUpper() && !IsSameFile(path, plan_.source);
    return !IsSameFile(path, ReadCopyRow(plan_.copies.At(folded->first())).source);
}

std::optional<QString> ReferenceMap::FirstCopy(const QList<int>& rows) const {
    for (const int row : rows) {
        const QString target = ReadCopyRow(plan_.copies.At(row)).target;
        if (IsThere(target))
            return target;
    }
    return std::nullopt;
}

std::optional<QString> ReferenceMap::OwnCopy() const {
    return hasOwnCopy_ && IsThere(plan_.target) ? std::optional(plan_.target) : std::nullopt;
}

// What is on a server was uploaded a moment ago.
bool ReferenceMap::IsThere(const QString& target) const {
    if (targets_ == Targets::Granted)
        return true;
    const auto known = there_.constFind(target);
    if (known != there_.cend())
        return *known;
    const bool there = IsWebPath(target) || FileExists(target);
    there_.insert(target, there);
    return there;
}

}  // namespace docbench
