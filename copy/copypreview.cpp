#include "copy/copypreview.h"

#include "copy/copylist.h"
#include "copy/parentlist.h"
#include "copy/referencemap.h"
#include "services/documentlibrary.h"
#include "services/errorstate.h"
#include "services/paths.h"
#include "services/webcopies.h"

namespace docbench {
namespace {

QString WebFolderOf(const QString& path) {
    return IsWebPath(path) ? UrlFolder(QString(path).replace(u'\\', u'/')) : QString();
}

// The copy list as it is once everything is copied.
void MarkAsMade(const std::vector<PlannedCopy>& copies, const CellList& planned, CellList& made) {
    for (const PlannedCopy& copy : copies) {
        if (copy.row < 0)
            continue;
        CellRow row = planned.At(copy.row);
        if (copy.action != CopyAction::Skips)
            row.cells[kCopyTarget].foreColor = kColorBlue;
        made.Append(std::move(row));
    }
}

QHash<QString, QString> MadeFrom(const std::vector<PlannedCopy>& copies) {
    QHash<QString, QString> made;
    for (const PlannedCopy& copy : copies) {
        if (copy.action == CopyAction::Copies)
            made.insert(TargetKey(copy.target), copy.source);
    }
    return made;
}

class Preview {
public:
    Preview(const CopyPlan& plan, const ReferenceMap& map) : plan_(plan), map_(map) {}

    std::vector<PlannedReference> Run(const std::vector<PlannedCopy>& copies) {
        ErrorState untold;  // the copy itself will tell
        for (const PlannedCopy& copy : copies) {
            if (copy.action == CopyAction::Copies)
                untold.Run([&] { AddCopy(copy); });
        }
        for (const CellRow& row : plan_.parents.Rows()) {
            if (row.ticked)
                untold.Run([&] { AddParent(ReadParentRow(row)); });
        }
        return std::move(references_);
    }

private:
    void Add(const QString& document, Table table, int position, const QString& path) {
        if (const auto copy = map_.MapReferencePath(path))
            references_.push_back({document, table, position, *copy});
    }

    void AddCopy(const PlannedCopy& copy) {
        const auto file = Documents().MakeDocumentFile();
        file->Open(LocalCopyOf(copy.source));
        const QString webFolder = WebFolderOf(copy.source);
        for (int i = 0; i < file->GetComponentCount(); ++i)
            Add(copy.target, Table::Components, i, file->GetComponent(i, webFolder).path);
        for (int i = 0; i < file->GetExternalReferenceCount(); ++i)
            Add(copy.target, Table::ExternalReferences, i,
                file->GetExternalReference(i, webFolder).path);
    }

    void AddParent(const ParentRow& row) {
        const auto file = Documents().MakeDocumentFile();
        file->Open(LocalCopyOf(row.parent));
        const QString webFolder = WebFolderOf(row.parent);
        const QString& document = row.state == ParentState::Copy ? row.target : row.parent;
        if (row.external)
            Add(document, Table::ExternalReferences, row.number,
                file->GetExternalReference(row.number, webFolder).path);
        else
            Add(document, Table::Components, row.number,
                file->GetComponent(row.number, webFolder).path);
    }

    const CopyPlan& plan_;
    const ReferenceMap& map_;
    std::vector<PlannedReference> references_;
};

}  // namespace

std::vector<PlannedReference> PlanReferences(const CopyPlan& plan) {
    const std::vector<PlannedCopy> copies = PlanCopies(plan);
    const QHash<QString, QString> madeFrom = MadeFrom(copies);
    CellList made;
    MarkAsMade(copies, plan.copies, made);
    const CopyPlan carried{.source = plan.source,
                           .target = plan.target,
                           .copies = made,
                           .parents = plan.parents,
                           .replacedFiles = plan.replacedFiles};
    const ReferenceMap map(carried, madeFrom, true, ReferenceMap::Targets::Granted);
    return Preview(plan, map).Run(copies);
}

}  // namespace docbench
