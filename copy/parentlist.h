// The parent list: one row for each reference to the document that is copied, saying what is to
// become of the document that holds it.
#pragma once

#include <QString>
#include <optional>

#include "cells/celllist.h"
#include "panes/pathcolumn.h"
#include "panes/rowbatch.h"
#include "services/docaccess.h"
#include "services/listtable.h"

namespace docbench {

// Columns from 0. The row's tag is the parent's path or address.
enum ParentColumn {
    kParentState = 0,     // text: the state
    kParentHolder = 1,    // tag: as the row's; red: refused or failed, blue: done
    kParentRelation = 2,  //
    kParentTarget = 3,    // tag: where a drawing is copied to; shown in the state Copy alone
    kParentTable = 4,     // "0" components, else external references; tag: the table's stamp
    kParentNumber = 5,    // position of the reference in its table
};

// None: stays as it is. Update: is changed in place. Copy, for drawings alone: is copied, and the
// copy is changed.
enum class ParentState { None, Update, Copy };

// What a row says, read back from its cells.
struct ParentRow {
    QString parent;
    QString target;
    ParentState state;
    bool ticked;
    int number;
    bool external;
    QByteArray stamp;
};
ParentRow ReadParentRow(const CellRow& row);
bool IsCopied(const CellRow& row);  // ticked, in the state Copy

PathColumn ParentHolderColumn();
PathColumn ParentTargetColumn();

void PrepareParentList(CellList& list);
void ResetParentHeaders(CellList& list);
// The other form of a column of paths; a click on another does nothing.
void ToggleParentColumn(CellList& list, int column);

// Adds the row of a reference. `local` is the parent's file.
struct NewParent {
    FoundReference found;
    QString parent;  // path or address
    QString relation;
    QString target;  // for a drawing; empty for others
    QString local;
};
void AddParent(RowBatch& rows, const NewParent& added);
// Rows on their way into a parent list.
RowBatch ParentRows(CellList& list);

// What the user's click on a row's box does: the row goes on to its next state. A box tells why a
// document can't be updated.
void GoToNextState(CellList& list, int row);
// For a parent that can't be written: no state, and red.
void RefuseParent(CellList& list, int row);
// Sets the target of a row by hand, in the form of its column.
void SetParentTarget(CellList& list, int row, const QString& target);

// The table of an export: what becomes of each parent, its path, relation and target, how it went.
// None without rows.
std::optional<TextTable> PackParentList(const CellList& list);

}  // namespace docbench
