// Which references a copy is going to write: for who wants to know before anything is copied.
#pragma once

#include <QString>
#include <vector>

#include "copy/copyplan.h"
#include "services/docaccess.h"

namespace docbench {

struct PlannedReference {
    QString document;  // that is written: a copy, or a parent
    Table table;
    int position;  // from 0
    QString path;  // that it is to lead to
};

// Those of the copies and then of the parents, in the order of their writing, as if every copy of
// the plan was made. Reads the documents, of which one that can't be read gives none, and writes
// nothing.
std::vector<PlannedReference> PlanReferences(const CopyPlan& plan);

}  // namespace docbench
