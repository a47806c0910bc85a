// The second half of a copy: points the references of the copies, and of the parents, to the
// copies.
#pragma once

#include <QHash>
#include <QString>
#include <functional>

#include "copy/copyplan.h"
#include "copy/filecopier.h"

namespace docbench {

// What the first half left behind.
struct CopiedFiles {
    QHash<QString, QString> madeFrom;  // the copies that were made: target (its key) to source
    CopyStatus sourceStatus = CopyStatus::Copied;  // of the document itself
    QString sourceReason;                          // why it failed, if it did
};

struct CopyProgress {
    enum class List { Copies, Parents };

    std::function<void(const QString& text)> status;
    // How far it is, and what it works on.
    std::function<void(int done, int all, const QString& path)> step;
    // Is to be brought into view, as soon as there is time for a picture.
    std::function<void(List list, int row)> rowDone;
    // The user is about to be asked about this row, or the copy ended with it.
    std::function<void(List list, int row)> rowInQuestion;
    // Lets events in. False: whoever shows the lists is gone, and so are they.
    std::function<bool()> yield;
};

// Colour and tool tip of `targetCell` tell how the document itself went, those of the rows the
// same. Questions tell of failures and whether to go on; what was done stays done. A table that is
// not the one that was copied is never written: positions in it mean other references. False: the
// lists are gone.
bool RewriteReferences(const CopyPlan& plan, const CopiedFiles& files, const CopyProgress& progress,
                       Cell& targetCell);

}  // namespace docbench
