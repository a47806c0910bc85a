#include "copy/copynaming.h"

#include "copy/copylist.h"
#include "copy/parentlist.h"
#include "services/paths.h"

namespace docbench {
namespace {

bool ShowsWholePaths(const CellList& list, int column) {
    return list.Headers()[size_t(column)].tag == QLatin1String("L");
}

void PutTarget(Cell& cell, const QString& target) {
    cell.text = target;
    cell.tag = target;
    cell.toolTip = target;
}

}  // namespace

QString CopyName(const Affixes& affixes, const QString& fileName) {
    const qsizetype dot = fileName.lastIndexOf(u'.');
    const QString base = dot < 0 ? fileName : fileName.left(dot);
    const QString extension = dot < 0 ? QString() : fileName.mid(dot);
    return affixes.prefix + base + affixes.suffix + extension;
}

QString TargetIn(const QString& folder, const QString& name) {
    return folder + u'/' + name;
}

QString RelativeFolder(const QString& base, const QString& path) {
    const QString folder = FolderOf(path);
    return folder.startsWith(base, Qt::CaseInsensitive) ? folder.mid(base.size()) : QString();
}

void RecomputeTargets(const TargetRule& rule, const QStringList& rowFolders, CellList& copies,
                      CellList& parents) {
    if (rule.forceLong) {
        copies.SetHeader(kCopyTarget, CopyTargetColumn().Header(true));
        parents.SetHeader(kParentTarget, ParentTargetColumn().Header(true));
    }
    const bool wholeCopies = ShowsWholePaths(copies, kCopyTarget);
    qsizetype row = 0;
    copies.ChangeAll([&](CellRow& copied) {
        const QString relative = rowFolders.value(++row);  // the first is that of the source
        if (!copied.ticked)
            return;
        const QString name = CopyName(rule.affixes, copied.tag);
        PutTarget(copied.cells[kCopyTarget],
                  wholeCopies ? TargetIn(rule.folder, relative + name) : name);
    });
    const bool wholeParents = ShowsWholePaths(parents, kParentTarget);
    parents.ChangeAll([&](CellRow& parent) {
        if (!IsCopied(parent))
            return;
        const QString name = CopyName(rule.affixes, FileNameOf(parent.tag));
        PutTarget(parent.cells[kParentTarget], wholeParents ? TargetIn(rule.folder, name) : name);
    });
}

}  // namespace docbench
