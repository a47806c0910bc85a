#include "rename/renametransaction.h"

#include <QHash>

#include "cells/celllist.h"
#include "rename/renamelist.h"
#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/filesystem.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"

namespace docbench {
namespace {

Table TableOf(bool external) {
    return external ? Table::ExternalReferences : Table::Components;
}

// Opens the parent and finds its first reference to the document.
std::optional<ParentReference> OpenParent(DocumentFile& parent, const RenamePlan& plan) {
    const QString webFolder = IsWebPath(plan.parent) ? UrlFolder(plan.parent) : QString();
    const QString oldName = BaseNameOf(plan.oldPath).toUpper();
    parent.Open(LocalCopyOf(plan.parent));
    for (int i = 0; i < parent.GetComponentCount(); ++i) {
        if (parent.GetComponent(i, webFolder).name.toUpper() == oldName)
            return ParentReference{Table::Components, i};
    }
    for (int i = 0; i < parent.GetExternalReferenceCount(); ++i) {
        if (parent.GetExternalReference(i, webFolder).name.toUpper() == oldName)
            return ParentReference{Table::ExternalReferences, i};
    }
    return std::nullopt;
}

class Transaction {
public:
    Transaction(CellList& rows, const RenamePlan& plan, const RenameProgress& progress)
        : rows_(rows),
          plan_(plan),
          progress_(progress),
          document_(Documents().MakeDocumentFile()),
          movedFile_(PathWithoutLinks(plan.oldPath)) {
        for (int row = 0; row < rows_.Count(); ++row) {
            const QString& holder = rows_.At(row).cells[kHolderColumn].tag;
            fileOf_.insert(holder, PathWithoutLinks(holder));
            rowsOf_[fileOf_[holder]].append(row);
        }
    }

    RenameResult Run() {
        if (!plan_.replaces && !Move())
            return {.moved = false};
        if (!plan_.parent.isEmpty())
            UpdateParent();
        const int all = CountTicked();
        int done = 0;
        for (int row = 0; row < rows_.Count(); ++row) {
            if (!rows_.At(row).ticked)
                continue;
            UpdateRow(row);
            progress_.holders(++done, all);
        }
        return result_;
    }

private:
    bool Move() {
        ErrorState errors;
        bool moved = true;
        if (IsWebPath(plan_.oldPath)) {
            if (gWebFolder)
                gWebFolder->MoveResource(plan_.oldPath, plan_.newPath, 1);
            moved = RenameWebCopy(plan_.oldPath, plan_.newPath);
        } else {
            moved = errors.Run([&] { Files().Move(plan_.oldPath, plan_.newPath); });
        }
        if (!moved)
            gSeams.dialogs->Box(Format(Text::NotRenamed, plan_.newPath), Dialogs::Icon::Exclamation,
                                gAppTitle, Dialogs::Buttons::Ok, errors.Description());
        return moved;
    }

    int CountTicked() const {
        int count = 0;
        for (const CellRow& row : rows_.Rows())
            count += row.ticked ? 1 : 0;
        return count;
    }

    // A failure is not told: the row of the same parent, if there is one, tells its own.
    void UpdateParent() {
        progress_.status(Format(Text::UpdatingDocument, plan_.parent));
        ErrorState errors;
        errors.Run([&] {
            const auto found = OpenParent(*document_, plan_);
            if (!found)
                return;
            ++result_.updated;
            const QByteArray before = document_->GetStamp(found->table);
            SetReference(found->table, found->index);
            document_->Save();
            RenewStamps(plan_.parent, found->table, before);
            Upload(plan_.parent);
        });
        result_.parentProblem = errors.Description();
    }

    void Upload(const QString& path) {
        const bool uploaded = UploadIfWeb(path);
        result_.uploaded &= uploaded;
    }

    // A document that refers to itself has moved with its reference.
    QString PlaceOf(const QString& holder) const {
        const bool moved = !plan_.replaces && fileOf_.value(holder) == movedFile_;
        return moved ? plan_.newPath : holder;
    }

    void SetReference(Table table, int index) {
        if (table == Table::Components)
            document_->SetComponentPath(index, plan_.newPath);
        else
            document_->SetExternalReferencePath(index, plan_.newPath);
    }

    void UpdateRow(int index) {
        const RenameRow row = ReadRow(rows_.At(index));
        progress_.status(Format(Text::UpdatingDocument, row.holder));
        ErrorState errors;
        // After a failed statement the object is bound to nothing, and those behind it would fail
        // as well: the first failure is the one to tell.
        errors.Run([&] {
            document_->Open(LocalCopyOf(PlaceOf(row.holder)));
            CheckStamp(row);
            Write(row);
        });
        ShowOutcome(index, errors);
    }

    void CheckStamp(const RenameRow& row) {
        if (!row.stamp.isEmpty() && document_->GetStamp(TableOf(row.external)) != row.stamp)
            throw DocumentError(QStringLiteral("The references of %1 were changed since they were "
                                               "looked for. Look for them again.")
                                    .arg(row.holder));
    }

    void Write(const RenameRow& row) {
        SetReference(TableOf(row.external), row.index);
        document_->Save();
        RenewStamps(row.holder, TableOf(row.external), row.stamp);
        Upload(PlaceOf(row.holder));
    }

    void ShowOutcome(int index, const ErrorState& errors) {
        if (!errors.Failed()) {
            ++result_.updated;
            rows_.Change(index, [](CellRow& row) {
                row.cells[kHolderColumn].foreColor = kColorBlue;
                row.cells[kTickColumn].toolTip = Tr(Text::RowUpdatedTip);
            });
            return;
        }
        ++result_.failed;
        const QString holder = rows_.At(index).cells[kHolderColumn].text;
        gSeams.dialogs->Box(Format(Text::RowFailed, holder), Dialogs::Icon::Exclamation, gAppTitle,
                            Dialogs::Buttons::Ok, errors.Description());
        rows_.Change(index, [&](CellRow& row) {
            row.cells[kHolderColumn].foreColor = kColorRed;
            row.cells[kHolderColumn].toolTip = Format(Text::RowFailedTip, errors.Description());
        });
    }

    // The holder's other rows go on being good for writing: the change was our own.
    void RenewStamps(const QString& holder, Table table, const QByteArray& before) {
        const QString former = QString::fromLatin1(before.toHex());
        const QString renewed = QString::fromLatin1(document_->GetStamp(table).toHex());
        for (const int index : rowsOf_.value(fileOf_.value(holder, holder))) {
            const CellRow& row = rows_.At(index);
            if (TableOf(ReadRow(row).external) == table && row.cells[kTableColumn].tag == former)
                rows_.Change(index, [&](CellRow& own) { own.cells[kTableColumn].tag = renewed; });
        }
    }

    CellList& rows_;
    const RenamePlan& plan_;
    const RenameProgress& progress_;
    std::unique_ptr<DocumentFile> document_;
    const QString movedFile_;            // without links; where it was
    QHash<QString, QString> fileOf_;     // by holder; two may be one file, found through a link
    QHash<QString, QList<int>> rowsOf_;  // by the holder's file
    RenameResult result_;
};

}  // namespace

std::optional<ParentReference> FindParentReference(const RenamePlan& plan) {
    return OpenParent(*Documents().MakeDocumentFile(), plan);
}

RenameResult RunRename(CellList& rows, const RenamePlan& plan, const RenameProgress& progress) {
    return Transaction(rows, plan, progress).Run();
}

}  // namespace docbench
