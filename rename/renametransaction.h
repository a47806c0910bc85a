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
    bool moved = true;           // false: nothing has changed
    int updated = 0;             // rows, and the parent as soon as its reference was found
    int failed = 0;              // rows
    QString parentProblem = {};  // why the parent's reference was not written; no box tells it
    bool uploaded = true;        // false: a box told of a document that the server did not take
};

struct RenameProgress {
    std::function<void(const QString& text)> status;  // what is being written
    std::function<void(int done, int all)> holders;   // how far the rows are
};

// The rows tell how they went, by colour and tool tip; a box tells each failure. Nothing is undone.
RenameResult RunRename(CellList& rows, const RenamePlan& plan, const RenameProgress& progress);

}  // namespace docbench
