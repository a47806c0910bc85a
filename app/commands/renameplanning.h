// The lists of "docbench rename" and "docbench replace": what is going to be written, and how it
// went.
#pragma once

#include <QStringList>
#include <optional>

#include "rename/renametransaction.h"
#include "services/listtable.h"

namespace docbench {

class CellList;

struct FoundHolders {
    const CellList& list;
    QStringList repeating;  // holders with further references, which stay as they are
    // The reference of the document above, unless a ticked row is the same one.
    std::optional<ParentReference> parent;
};

// The document above as it will be written, which no row does.
std::optional<ParentReference> ParentApartFrom(const CellList& list, const RenamePlan& plan);

// The move, the reference of the document above, the ticked rows.
TextTable RenamePlanAsTable(const RenamePlan& plan, const FoundHolders& holders);

struct RenameOutcome {
    TextTable table;
    int updated = 0;       // references
    int failed = 0;        // the same
    bool complete = true;  // nothing failed or was left out
};
RenameOutcome RenameOutcomeOf(const RenamePlan& plan, const FoundHolders& holders,
                              const RenameResult& result);

}  // namespace docbench
