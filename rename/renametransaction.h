// Carries out a renaming or a replacement: moves the file, then writes the new path into the parent
// and into every ticked row of the list.
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "services/docaccess.h"

namespace docbench {

class CellList;

struct RenamePlan {
    QString oldPath;
    QString newPath;
    QString parent;         // the document above the place in the tree; empty for a root
    bool replaces = false;  // no file moves
};

// The parent's first reference to the document, found by its name: the components first. None when
// it has none. Raises what opening and reading raise.
struct ParentReference {
    Table table;
    int index;
};
std::optional<ParentReference> FindParentReference(const RenamePlan& plan);

struct RenameResult {
    bool moved = true;  // false: nothing has changed
    int updated = 0;
    int failed = 0;
};

struct RenameProgress {
    std::function<void(const QString& text)> status;  // what is being written
    std::function<void(int done, int all)> holders;   // how far the rows are
};

// The rows tell how they went, by colour and tool tip; a box tells each failure. Nothing is undone.
RenameResult RunRename(CellList& rows, const RenamePlan& plan, const RenameProgress& progress);

}  // namespace docbench
