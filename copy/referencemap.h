// Which copy a reference is to lead to.
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <optional>

#include "copy/copyplan.h"

namespace docbench {

// Made once the sources of all rows are settled. Which rows have a copy is read anew at each
// question.
class ReferenceMap {
public:
    explicit ReferenceMap(const CopyPlan& plan);

    // The copy of the document at `path`: of the first row with a copy, else the document's own.
    // None: it was not copied, and the reference stays. Letter case counts only where documents
    // differ in nothing else. A copy that is not on the disk, since making it failed, is none.
    std::optional<QString> MapReferencePath(const QString& path) const;

private:
    std::optional<QString> FirstCopy(const QList<int>& rows) const;
    std::optional<QString> OwnCopy() const;
    bool IsThere(const QString& target) const;

    const CopyPlan& plan_;
    QHash<QString, QList<int>> exact_;    // rows by the path of their source
    QHash<QString, QList<int>> folded_;   // the same in capitals
    mutable QHash<QString, bool> there_;  // targets that were looked for
};

}  // namespace docbench
