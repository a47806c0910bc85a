#include "panes/pathcolumn.h"

#include "services/paths.h"

namespace docbench {
namespace {

const QString kShort = QStringLiteral("S");
const QString kLong = QStringLiteral("L");

}  // namespace

CellHeader PathColumn::Header(bool isLong) const {
    return {.text = isLong ? longCaption : shortCaption, .tag = isLong ? kLong : kShort};
}

void SetLongForm(CellList& list, const PathColumn& column, bool isLong) {
    list.SetHeader(column.column, column.Header(isLong));
    list.ChangeAll([&](CellRow& row) {
        if (column.column >= int(row.cells.size()))
            return;
        const QString& path = PathOf(row, column.column);
        row.cells[size_t(column.column)].text = isLong ? path : FileNameOf(path);
    });
}

void ToggleForm(CellList& list, const PathColumn& column) {
    SetLongForm(list, column, list.Headers()[size_t(column.column)].tag == kShort);
}

QString ShownPath(const CellList& list, int column, const QString& path) {
    return list.Headers()[size_t(column)].tag == kShort ? FileNameOf(path) : path;
}

const QString& PathOf(const CellRow& row, int column) {
    return column == 0 ? row.tag : row.cells[size_t(column)].tag;
}

}  // namespace docbench
