#include "copy/parentlist.h"

#include "services/dialogs.h"
#include "services/filesystem.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/texts.h"
#include "services/webcopies.h"

namespace docbench {
namespace {

ParentState StateOf(const CellRow& row) {
    const QString& text = row.cells[kParentState].text;
    if (text == Tr(Text::CopyWord))
        return ParentState::Copy;
    return text == Tr(Text::UpdateWord) ? ParentState::Update : ParentState::None;
}

bool IsDrawing(const CellRow& row) {
    return DocTypeOf(row.cells[kParentHolder].tag) == DocType::Drawing;
}

// The file of a parent that was looked for in a web folder is there already.
QString FileOf(const CellRow& row) {
    const QString& parent = row.cells[kParentHolder].tag;
    return IsWebPath(parent) ? gWebCopies.value(parent) : parent;
}

void ShowHolder(const CellList& list, CellRow& row, bool readOnly) {
    Cell& holder = row.cells[kParentHolder];
    holder.text = ShownPath(list, kParentHolder, holder.tag);
    if (readOnly)
        holder.text += Tr(Text::ReadOnlyMark);
}

void ShowTarget(const CellList& list, CellRow& row) {
    Cell& target = row.cells[kParentTarget];
    target.text =
        StateOf(row) == ParentState::Copy ? ShownPath(list, kParentTarget, target.tag) : QString();
}

void Become(CellRow& row, ParentState state) {
    row.cells[kParentState].text = state == ParentState::Copy     ? Tr(Text::CopyWord)
                                   : state == ParentState::Update ? Tr(Text::UpdateWord)
                                                                  : QString();
    row.ticked = state != ParentState::None;
}

void SetState(const CellList& list, CellRow& row, ParentState state) {
    Become(row, state);
    ShowTarget(list, row);
}

// A read-only document can't be updated; its copy can.
void MarkReadOnly(const CellList& list, CellRow& row) {
    SetState(list, row, ParentState::None);
    Cell& holder = row.cells[kParentHolder];
    if (holder.foreColor == kColorRed)
        return;
    holder.foreColor = kColorRed;
    ShowHolder(list, row, true);
}

ParentState NextState(const CellRow& row, bool readOnly) {
    switch (StateOf(row)) {
        case ParentState::Copy:
            return readOnly ? ParentState::None : ParentState::Update;
        case ParentState::Update:
            return ParentState::None;
        case ParentState::None:
            break;
    }
    return IsDrawing(row) ? ParentState::Copy : ParentState::Update;
}

}  // namespace

ParentRow ReadParentRow(const CellRow& row) {
    return {.parent = row.tag,
            .target = row.cells[kParentTarget].tag,
            .state = StateOf(row),
            .ticked = row.ticked,
            .number = row.cells[kParentNumber].text.toInt(),
            .external = row.cells[kParentTable].text != QLatin1String("0"),
            .stamp = QByteArray::fromHex(row.cells[kParentTable].tag.toLatin1())};
}

bool IsCopied(const CellRow& row) {
    return row.ticked && StateOf(row) == ParentState::Copy;
}

PathColumn ParentHolderColumn() {
    return {kParentHolder, Tr(Text::HolderName), Tr(Text::HolderPath)};
}

PathColumn ParentTargetColumn() {
    return {kParentTarget, Tr(Text::FileColumn), Tr(Text::TargetPath)};
}

void PrepareParentList(CellList& list) {
    list.Clear();
    list.SetTickable(true);
    list.SetHeaders({{.text = Tr(Text::UpdateWord)},
                     {},
                     {.text = Tr(Text::Relation)},
                     {},
                     {.text = Tr(Text::ReferenceTable)},
                     {.text = Tr(Text::ReferenceNumber)}});
    ResetParentHeaders(list);
}

void ResetParentHeaders(CellList& list) {
    list.SetHeader(kParentHolder, ParentHolderColumn().Header(false));
    list.SetHeader(kParentTarget, ParentTargetColumn().Header(true));
}

void ToggleParentColumn(CellList& list, int column) {
    const bool toLong = list.Headers()[size_t(column)].tag == QLatin1String("S");
    if (column == kParentHolder) {
        list.SetHeader(column, ParentHolderColumn().Header(toLong));
        list.ChangeAll([&](CellRow& row) {
            ShowHolder(list, row, row.cells[kParentHolder].text.endsWith(Tr(Text::ReadOnlyMark)));
        });
    } else if (column == kParentTarget) {
        list.SetHeader(column, ParentTargetColumn().Header(toLong));
        list.ChangeAll([&](CellRow& row) { ShowTarget(list, row); });
    }
}

void AddParent(RowBatch& rows, const NewParent& added) {
    CellRow row{
        .cells = {{.text = {}, .toolTip = Tr(Text::ParentRowTip)},
                  {.text = {}, .tag = added.parent, .toolTip = added.parent},
                  {.text = added.relation},
                  {.text = {}, .tag = added.target},
                  {.text = added.found.inContext ? QStringLiteral("1") : QStringLiteral("0"),
                   .tag = QString::fromLatin1(added.found.stamp.toHex())},
                  {.text = QString::number(added.found.referenceIndex)}},
        .tag = added.parent};
    if (!added.target.isEmpty())
        row.cells[kParentTarget].toolTip = Tr(Text::TargetTip);
    if (IsReadOnlyFile(added.local))
        row.cells[kParentHolder].foreColor = kColorRed;
    else
        Become(row, IsDrawing(row) ? ParentState::Copy : ParentState::Update);
    rows.Add(std::move(row));
}

RowBatch ParentRows(CellList& list) {
    return RowBatch(list, [&list](CellRow& row) {
        ShowHolder(list, row, row.cells[kParentHolder].foreColor == kColorRed);
        ShowTarget(list, row);
    });
}

void GoToNextState(CellList& list, int index) {
    const bool readOnly = IsReadOnlyFile(FileOf(list.At(index)));
    if (readOnly && !IsDrawing(list.At(index))) {
        gSeams.dialogs->Box(Tr(Text::ParentReadOnly), Dialogs::Icon::Exclamation, gAppTitle);
        list.Change(index, [&](CellRow& row) { MarkReadOnly(list, row); });
        return;
    }
    list.Change(index, [&](CellRow& row) {
        Cell& holder = row.cells[kParentHolder];
        if (!readOnly && holder.foreColor == kColorRed) {
            holder.foreColor = kColorNormal;
            ShowHolder(list, row, false);
        }
        SetState(list, row, NextState(row, readOnly));
    });
}

void RefuseParent(CellList& list, int index) {
    list.Change(index, [&](CellRow& row) {
        row.cells[kParentHolder].foreColor = kColorRed;
        SetState(list, row, ParentState::None);
    });
}

void SetParentTarget(CellList& list, int index, const QString& target) {
    list.Change(index, [&](CellRow& row) {
        Cell& cell = row.cells[kParentTarget];
        cell.tag = target;
        cell.toolTip = target;
        cell.text = ShownPath(list, kParentTarget, target);
    });
}

std::optional<TextTable> PackParentList(const CellList& list) {
    if (list.Count() == 0)
        return std::nullopt;
    const auto state = [](const CellRow& row) {
        const QString& text = row.cells[kParentState].text;
        if (!row.ticked)
            return Tr(Text::TickedNo);
        return text.isEmpty() ? Tr(Text::TickedYes) : text;
    };
    const auto outcome = [](const CellRow& row) {
        const Cell& holder = row.cells[kParentHolder];
        if (holder.foreColor == kColorRed)
            return holder.toolTip;
        return holder.foreColor == kColorNormal ? QString() : Tr(Text::ExportedDone);
    };
    TextTable table;
    table.push_back({Tr(Text::UpdateWord), list.Headers()[0].text, list.Headers()[1].text,
                     list.Headers()[2].text, Tr(Text::Status)});
    for (const CellRow& row : list.Rows())
        table.push_back({state(row), row.cells[kParentHolder].tag, row.cells[kParentRelation].text,
                         row.cells[kParentTarget].tag, outcome(row)});
    table.emplace_back(table.front().size());
    return table;
}

}  // namespace docbench
