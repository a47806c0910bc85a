// The copy list: one row for each reference below the document that is copied. Its rows are the
// plan that is carried out, and say afterwards how it went.
#pragma once

#include <QString>
#include <optional>

#include "cells/celllist.h"
#include "panes/pathcolumn.h"
#include "services/listtable.h"

namespace docbench {

// Columns from 0. The row's tag is the document's file name.
enum CopyColumn {
    kCopyTick = 0,    // ticked: to be copied; its tool tip gives the reason of a failure
    kCopySource = 1,  // tag: path or address; red: there is no such file
    kCopyTarget = 2,  // tag: path or address; blue: the copy is there, red: it failed
    kCopyName = 3,
};

// What a row says, read back from its cells.
struct CopyRow {
    QString source;
    QString target;
    bool ticked;
    bool missing;
};
CopyRow ReadCopyRow(const CellRow& row);
bool HasCopy(const CellRow& row);  // its copy is there

PathColumn CopySourceColumn();
PathColumn CopyTargetColumn();

CellRow MakeCopyRow(const QString& name, const QString& source, const QString& target,
                    bool missing);

// Sets the target of a row by hand, in the form of its column.
void SetCopyTarget(CellList& list, int row, const QString& target);

// An empty list with all its headers, paths in long form.
void PrepareCopyList(CellList& list);
void ResetCopyHeaders(CellList& list);
// The other form of a column, as a click on its header asks for. The last one holds nothing but
// names, which the click takes away.
void ToggleCopyColumn(CellList& list, int column);

void TickAll(CellList& list, bool ticked);

// The table of an export: whether each row is ticked, source, target, how it went. None without
// rows.
std::optional<TextTable> PackCopyList(const CellList& list);

}  // namespace docbench
