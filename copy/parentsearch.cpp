#include "copy/parentsearch.h"

#include <QSet>

#include "copy/parentlist.h"
#include "services/errorstate.h"
#include "services/paths.h"
#include "services/webcopies.h"
#include "services/webdocument.h"

namespace docbench {
namespace {

// What makes two references the same one.
QString KeyOf(const QString& parent, int number, bool external) {
    return parent.toUpper() + u'\0' + QString::number(number) + (external ? u'x' : u'c');
}

QString TargetOfDrawing(const ParentSearch& parents, const QString& parent) {
    if (DocTypeOf(parent) != DocType::Drawing)
        return {};
    QString target = TargetIn(parents.targetFolder, CopyName(parents.affixes, FileNameOf(parent)));
    if (gWebDocument)
        FindUrlOfCopy(target, target);
    return target;
}

}  // namespace

void SearchParents(const ParentSearch& parents, const QString& folders, RowBatch& rows) {
    QSet<QString> listed;
    HolderSearch search = parents.search;
    LocalCopyOf(search.document);  // so that its users are compared with a document that is there
    search.onFailure = HolderSearch::OnFailure::GoesOn;
    search.take = [&](const FoundReference& found, const QString& parent, const QString& relation) {
        const QString key = KeyOf(parent, found.referenceIndex, found.inContext);
        const bool itself = parent.compare(search.document, Qt::CaseInsensitive) == 0;
        if (itself || listed.contains(key))
            return;
        listed.insert(key);
        AddParent(rows, {.found = found,
                         .parent = parent,
                         .relation = relation,
                         .target = TargetOfDrawing(parents, parent),
                         .local = found.document});
    };
    ErrorState untold;  // what can't be looked through gives no rows
    if (!untold.Run([&] { search.Run(folders); }) && search.unsearched)
        search.unsearched(folders, untold.Description());
}

}  // namespace docbench
