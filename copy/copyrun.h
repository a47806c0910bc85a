// Carries out a copy: first the files, then the references, since those of a document can be
// rewritten only when it is known what has a copy.
#pragma once

#include <QString>

#include "copy/copyplan.h"
#include "copy/referencerewrite.h"

namespace docbench {

struct CopyResult {
    enum class End {
        Done,             // to the end, whatever failed on the way
        CancelledAtOnce,  // at the question whether to overwrite the document's own target
        Cancelled,        // at a later one; no reference was rewritten
        SourceFailed,     // the document itself was not copied; `message` says why
        Gone,             // whoever showed the lists is gone, and so are they
    };
    End end = End::Done;
    int copied = 0;  // rows; the document itself does not count
    int failed = 0;
    QString message = {};
    QString sourceReason = {};  // why the document itself was not copied; the rows may have been
    Cell target = {};           // colour and tool tip for the document's own target
};

// Run CheckBeforeCopy first. The rows tell how they went, by colour and tool tip. Nothing is
// undone.
CopyResult RunCopy(const CopyPlan& plan, const CopyProgress& progress);

}  // namespace docbench
