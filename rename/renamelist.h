// The list of references to a document that is renamed or replaced: one row for each reference in
// each holder. Its rows are the plan that is carried out.
#pragma once

#include <QString>

#include "cells/celllist.h"
#include "panes/pathcolumn.h"
#include "panes/rowbatch.h"
#include "services/listtable.h"

namespace docbench {

struct FoundReference;

// Columns from 0.
enum RenameColumn {
    kTickColumn = 0,      // its tool tip tells how the row went
    kHolderColumn = 1,    // tag: path or address of the holder
    kRelationColumn = 2,  // tag: "M" must stay ticked, "R" read-only, else empty
    kIndexColumn = 3,     // position of the reference in its table
    kTableColumn = 4,     // "0" components, else external references; tag: the table's stamp
};

// What a row says, read back from its cells.
struct RenameRow {
    QString holder;
    int index;
    bool external;
    QByteArray stamp;
};
RenameRow ReadRow(const CellRow& row);

// Which list of a document: its headers, in the short form of the holder's column.
void PrepareRenameList(CellList& list);
PathColumn RenameHolderColumn();

// The row of a reference, without its text: RenameRows shows it. `holder` is where the document
// really is, `local` its file; `parent` is the document whose row must stay ticked.
CellRow HolderRow(const FoundReference& found, const QString& holder, const QString& relation,
                  const QString& local, const QString& parent);

// What a search gives its rows to, on their way into the list.
RowBatch RenameRows(CellList& list);

// Shows a holder in the form of its column, with the mark of a read-only one.
void ShowHolder(const CellList& list, CellRow& row);
// The other form of the holder's column, as a click on its header asks for.
void ToggleHolderForm(CellList& list);
void MarkReadOnly(const CellList& list, CellRow& row);  // unless it is red already
void ClearReadOnly(const CellList& list, CellRow& row);

// The table of an export: holder, relation, whether it is ticked, how it went. None without rows.
std::optional<TextTable> PackRenameList(const CellList& list);

}  // namespace docbench
