// Which copy a reference is to lead to.
#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <optional>

#include "copy/copyplan.h"

namespace docbench {

// Made once the files are copied. A row whose target is the copy of another document has none.
class ReferenceMap {
public:
    // `madeFrom` gives the sources of the copies that were made, by the keys of their targets. It
    // must outlive the map. `hasOwnCopy`: what stands at the target of the document is its copy.
    // Before a copy, its targets are taken for granted.
    enum class Targets { LookedFor, Granted };
    ReferenceMap(const CopyPlan& plan, const QHash<QString, QString>& madeFrom, bool hasOwnCopy,
                 Targets targets = Targets::LookedFor);

    // The copy of the document at `path`: of the first row with a copy, else the document's own.
    // None: it was not copied, and the reference stays. Letter case counts only where documents
    // differ in nothing else. A copy that is not on the disk, since making it failed, is none.
    std::optional<QString> MapReferencePath(const QString& path) const;

private:
    std::optional<QString> FirstCopy(const QList<int>& rows) const;
    std::optional<QString> OwnCopy() const;
    bool IsAnotherFile(const QString& path) const;
    bool IsThere(const QString& target) const;

    const CopyPlan& plan_;
    const QHash<QString, QString>& madeFrom_;
    const bool hasOwnCopy_;
    const Targets targets_;
    QHash<QString, QList<int>> exact_;    // rows by the path of their source
    QHash<QString, QList<int>> folded_;   // the same in capitals
    mutable QHash<QString, bool> there_;  // targets that were looked for
};

}  // namespace docbench
