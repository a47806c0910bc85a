#include "copy/copyrun.h"

#include <sys/stat.h>

#include <QFile>

#include "copy/copylist.h"
#include "copy/parentlist.h"
#include "services/dialogs.h"
#include "services/errorstate.h"
#include "services/filesystem.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"

namespace docbench {
namespace {

using End = CopyResult::End;
using List = CopyProgress::List;

class Run {
public:
    Run(const CopyPlan& plan, const CopyProgress& progress)
        : plan_(plan),
          progress_(progress),
          copier_(progress.status),
          copies_(PlanCopies(plan)),
          parents_(PlanParentCopies(plan)),
          all_(int(copies_.size() + parents_.size())) {
        // A run that was cancelled left its colours, and this one has copied nothing yet.
        ForgetOutcomes(plan.copies, kCopyTarget);
        ForgetOutcomes(plan.parents, kParentTarget);
    }

    CopyResult Carry() {
        if (!CopySource())
            return result_;
        if (!progress_.yield())
            return Ended(End::Gone);
        for (size_t i = 1; i < copies_.size(); ++i) {
            if (!CopyRowOf(copies_[i], plan_.copies, List::Copies))
                return Ended(progress_.there() ? End::Cancelled : End::Gone);
        }
        for (const PlannedCopy& copy : parents_) {
            if (!CopyRowOf(copy, plan_.parents, List::Parents))
                return Ended(progress_.there() ? End::Cancelled : End::Gone);
        }
        if (BringToDisk() && !RewriteReferences(plan_, files_, progress_, result_.target))
            return Ended(End::Gone);
        return result_;
    }

private:
    static void ForgetOutcomes(CellList& list, int target) {
        list.ChangeAll([target](CellRow& row) {
            Cell& cell = row.cells[size_t(target)];
            cell.foreColor = kColorNormal;
            if (target != kCopyTarget)
                return;
            cell.toolTip = cell.tag;
            row.cells[kCopyTick].toolTip.clear();
        });
    }

    CopyResult Ended(End end) {
        result_.end = end;
        return result_;
    }

    CopyOutcome Copy(const PlannedCopy& copy) {
        progress_.step(++done_, all_, copy.target);
        const CopyOutcome outcome = copier_.CopyOneFile(copy.source, copy.target);
        if (outcome.status == CopyStatus::Copied) {
            files_.madeFrom.insert(TargetKey(copy.target), copy.source);
            madeByFold_.insert(copy.target.toUpper(), copy.target);
        }
        return outcome;
    }

    // Names that differ in letter case alone are one file on some disks.
    bool StandsUnderOtherCase(const QString& target) const {
        const QString made = madeByFold_.value(target.toUpper());
        return !made.isEmpty() && made != target && IsSameFile(made, target);
    }

    bool CopySource() {
        const CopyOutcome outcome = Copy(copies_.front());
        files_.sourceStatus = outcome.status;
        result_.message = outcome.message;
        if (outcome.status == CopyStatus::Cancelled)
            result_.end = End::CancelledAtOnce;
        else if (!outcome.message.isEmpty())
            result_.end = End::SourceFailed;
        files_.sourceReason = outcome.reason;
        result_.sourceReason = outcome.reason;
        return result_.end == End::Done;
    }

    // False: the user cancelled, or the lists are gone.
    bool CopyRowOf(const PlannedCopy& copy, CellList& list, List which) {
        const int column = which == List::Copies ? int(kCopyTarget) : int(kParentTarget);
        const auto show = [&](CellColor color, const QString& toolTip) {
            list.Change(copy.row, [&](CellRow& row) {
                Cell& target = row.cells[size_t(column)];
                target.foreColor = color;
                target.toolTip = toolTip;
            });
        };
        const Cell before = list.At(copy.row).cells[size_t(column)];
        bool goesOn = true;
        if (copy.action == CopyAction::Skips) {
            progress_.step(++done_, all_, copy.target);
            show(before.foreColor, Tr(Text::RowNotCopied));
            return true;
        }
        if (copy.action == CopyAction::SameTarget ||
            (which == List::Copies && StandsUnderOtherCase(copy.target))) {
            progress_.step(++done_, all_, copy.target);
            show(kColorBlue, before.toolTip);
        } else {
            const CopyOutcome outcome = Copy(copy);
            if (!progress_.there())
                return false;
            goesOn = Show(outcome, before, show, [&](const QString& reason) {
                list.Change(copy.row, [&](CellRow& row) { row.cells[0].toolTip = reason; });
            });
        }
        if (goesOn)
            progress_.rowDone(which, copy.row);
        else
            progress_.rowInQuestion(which, copy.row);
        return goesOn;
    }

    template <typename ShowTarget, typename ShowReason>
    bool Show(const CopyOutcome& outcome, const Cell& before, const ShowTarget& show,
              const ShowReason& showReason) {
        switch (outcome.status) {
            case CopyStatus::Cancelled:
                return false;
            case CopyStatus::Copied:
                ++result_.copied;
                show(kColorBlue, before.toolTip);
                break;
            case CopyStatus::Kept:
                show(before.foreColor, Tr(Text::TargetKept));
                break;
            case CopyStatus::NotMade:
                show(before.foreColor, Tr(Text::CopyNotMade));
                break;
            case CopyStatus::Failed:
                ++result_.failed;
                show(kColorRed, outcome.message);
                showReason(outcome.reason);
                break;
        }
        return true;
    }

    // Documents are about to be pointed at the copies, so these must outlast a power failure.
    bool BringToDisk() {
        QStringList folders;
        for (auto made = files_.madeFrom.cbegin(); made != files_.madeFrom.cend(); ++made) {
            const QString folder = FolderOf(made.key());
            // One that is gone took its copies along, which are asked about one by one.
            if (!IsWebPath(folder) && FileExists(folder))
                folders.append(folder);
        }
        folders.removeDuplicates();
        folders.sort();
        ErrorState errors;
        if (errors.Run([&] { Files().Sync(folders); }))
            return true;
        gSeams.dialogs->Box(errors.Description(), Dialogs::Icon::Exclamation, gAppTitle);
        return false;
    }

    const CopyPlan& plan_;
    const CopyProgress& progress_;
    FileCopier copier_;
    const std::vector<PlannedCopy> copies_;
    const std::vector<PlannedCopy> parents_;
    const int all_;
    int done_ = 0;
    CopiedFiles files_;
    QHash<QString, QString> madeByFold_;  // targets of the copies that were made, by their capitals
    CopyResult result_;
};

}  // namespace

CopyResult RunCopy(const CopyPlan& plan, const CopyProgress& progress) {
    return Run(plan, progress).Carry();
}

}  // namespace docbench
