#include "copy/referencemap.h"

#include "copy/copylist.h"
#include "services/paths.h"

namespace docbench {

ReferenceMap::ReferenceMap(const CopyPlan& plan) : plan_(plan) {
    for (int row = 0; row < plan.copies.Count(); ++row) {
        const QString source = ReadCopyRow(plan.copies.At(row)).source;
        exact_[source].append(row);
        folded_[source.toUpper()].append(row);
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
    const auto folded = folded_.constFind(working.toUpper());
    if (folded != folded_.cend()) {
        if (const auto copy = FirstCopy(*folded))
            return copy;
    }
    return plan_.source.toUpper() == working.toUpper() ? std::optional(plan_.target) : std::nullopt;
}

std::optional<QString> ReferenceMap::FirstCopy(const QList<int>& rows) const {
    for (const int row : rows) {
        const QString target = ReadCopyRow(plan_.copies.At(row)).target;
        if (HasCopy(plan_.copies.At(row)) && IsThere(target))
            return target;
    }
    return std::nullopt;
}

std::optional<QString> ReferenceMap::OwnCopy() const {
    return IsThere(plan_.target) ? std::optional(plan_.target) : std::nullopt;
}

// What is on a server was uploaded a moment ago.
bool ReferenceMap::IsThere(const QString& target) const {
    const auto known = there_.constFind(target);
    if (known != there_.cend())
        return *known;
    const bool there = IsWebPath(target) || FileExists(target);
    there_.insert(target, there);
    return there;
}

}  // namespace docbench
