#include "copy/copylist.h"

#include "services/language.h"
#include "services/paths.h"
#include "services/texts.h"

namespace docbench {

CopyRow ReadCopyRow(const CellRow& row) {
    return {.source = row.cells[kCopySource].tag,
            .target = row.cells[kCopyTarget].tag,
            .ticked = row.ticked,
            .missing = row.cells[kCopySource].foreColor == kColorRed};
}

bool HasCopy(const CellRow& row) {
    return row.cells[kCopyTarget].foreColor == kColorBlue;
}

PathColumn CopySourceColumn() {
    return {kCopySource, Tr(Text::DocumentColumn), Tr(Text::SourcePath)};
}

PathColumn CopyTargetColumn() {
    return {kCopyTarget, Tr(Text::FileColumn), Tr(Text::TargetPath)};
}

CellRow MakeCopyRow(const QString& name, const QString& source, const QString& target,
                    bool missing) {
    return {.cells = {{},
                      {.text = source,
                       .tag = source,
                       .toolTip = source,
                       .foreColor = missing ? kColorRed : kColorNormal},
                      {.text = target, .tag = target, .toolTip = target},
                      {.text = name}},
            .tag = name,
            .ticked = true};
}

void SetCopyTarget(CellList& list, int row, const QString& target) {
    list.Change(row, [&](CellRow& changed) {
        Cell& cell = changed.cells[kCopyTarget];
        cell.tag = target;
        cell.toolTip = target;
        cell.text = ShownPath(list, kCopyTarget, target);
        changed.tag = FileNameOf(target);
    });
}

void PrepareCopyList(CellList& list) {
    list.Clear();
    list.SetTickable(true);
    list.SetHeaders({{.text = Tr(Text::CopyWord)}, {}, {}, {.text = Tr(Text::FileNameColumn)}});
    ResetCopyHeaders(list);
}

void ResetCopyHeaders(CellList& list) {
    list.SetHeader(kCopySource, CopySourceColumn().Header(true));
    list.SetHeader(kCopyTarget, CopyTargetColumn().Header(true));
}

void ToggleCopyColumn(CellList& list, int column) {
    if (column == kCopyTick)
        return;
    PathColumn toggled = column == kCopySource ? CopySourceColumn() : CopyTargetColumn();
    toggled.column = column;
    SetLongForm(list, toggled, list.Headers()[size_t(column)].tag != QLatin1String("L"));
}

void TickAll(CellList& list, bool ticked) {
    list.ChangeAll([ticked](CellRow& row) { row.ticked = ticked; });
}

std::optional<TextTable> PackCopyList(const CellList& list) {
    if (list.Count() == 0)
        return std::nullopt;
    TextTable table;
    table.push_back({list.Headers()[kCopyTick].text, list.Headers()[kCopySource].text,
                     list.Headers()[kCopyTarget].text, Tr(Text::Status)});
    for (const CellRow& row : list.Rows()) {
        const Cell& target = row.cells[kCopyTarget];
        table.push_back({row.ticked ? Tr(Text::TickedYes) : Tr(Text::TickedNo),
                         row.cells[kCopySource].text, target.text,
                         HasCopy(row) ? Tr(Text::ExportedDone) : target.toolTip});
    }
    table.emplace_back(table.front().size());
    return table;
}

}  // namespace docbench
