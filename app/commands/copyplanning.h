// The lists of "docbench copy": what is going to be written, and how it went.
#pragma once

#include "copy/copyrun.h"
#include "services/listtable.h"

namespace docbench {

// The files that are copied, then the references that are written.
TextTable CopyPlanAsTable(const CopyPlan& plan);

struct CopyOutcomeTable {
    TextTable table;
    bool complete = true;  // nothing failed or was left out
};
// How the rows went, each document once.
CopyOutcomeTable CopyOutcomeAsTable(const CopyPlan& plan, const CopyResult& result);

// The targets that are there already, each once.
QStringList ExistingTargets(const CopyPlan& plan);
// The targets that several documents would be copied to, each with its documents, as sentences.
QStringList SharedTargets(const CopyPlan& plan);
// The targets that are documents which are copied, or changed, themselves: as sentences.
QStringList TargetsInUse(const CopyPlan& plan);
// Why targets that are there may not be written over: as sentences.
QStringList TargetProblems(const CopyPlan& plan);
// The first document that would be copied onto itself; empty when there is none.
QString CopiedOntoItself(const CopyPlan& plan);

}  // namespace docbench
