// A column of a list that shows paths in short or long form.
#pragma once

#include <QString>

#include "cells/celllist.h"

namespace docbench {

// The header's tag says which form is shown: "S" file names, "L" whole paths. The path itself is
// the row's tag in the first column, and the cell's tag in any other.
struct PathColumn {
    int column;  // from 0
    QString shortCaption;
    QString longCaption;

    CellHeader Header(bool isLong) const;
};

// Puts the column into one of its forms: the header, and every row that is there.
void SetLongForm(CellList& list, const PathColumn& column, bool isLong);
// What a click on the header does: the other form.
void ToggleForm(CellList& list, const PathColumn& column);
// The text that a path has in the column as it is now.
QString ShownPath(const CellList& list, int column, const QString& path);
// The path of a row in the column.
const QString& PathOf(const CellRow& row, int column);

}  // namespace docbench
