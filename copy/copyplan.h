// What a copy is going to do: which file goes where, in which order. Made from the lists, and as
// good for reading as for carrying out.
#pragma once

#include <QHash>
#include <QString>
#include <vector>

#include "cells/celllist.h"

namespace docbench {

struct CopyPlan {
    QString source;  // path or address of the document
    QString target;  // the same of its copy
    CellList& copies;
    CellList& parents;
    // Paths of missing documents, and the files that were chosen in their places.
    const QHash<QString, QString>& replacedFiles;
};

enum class CopyAction {
    Copies,
    SameTarget,  // as an earlier one, whose copy does for both
    Skips,       // has no tick, or no source
};

struct PlannedCopy {
    QString source;
    QString target;
    CopyAction action;
    int row;  // of its list; -1 for the document itself
};

// The document first, then the rows of the copy list from the top.
std::vector<PlannedCopy> PlanCopies(const CopyPlan& plan);
// The parents that are copied.
std::vector<PlannedCopy> PlanParentCopies(const CopyPlan& plan);

// Equal for two targets that are the same text. In an address "\" is "/".
QString TargetKey(const QString& target);

}  // namespace docbench
