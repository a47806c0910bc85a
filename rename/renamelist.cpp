#include "rename/renamelist.h"

#include "services/docaccess.h"
#include "services/filesystem.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/texts.h"

namespace docbench {

RenameRow ReadRow(const CellRow& row) {
    return {.holder = row.cells[kHolderColumn].tag,
            .index = row.cells[kIndexColumn].text.toInt(),
            .external = row.cells[kTableColumn].text != QLatin1String("0"),
            .stamp = QByteArray::fromHex(row.cells[kTableColumn].tag.toLatin1())};
}

PathColumn RenameHolderColumn() {
    return {kHolderColumn, Tr(Text::HolderName), Tr(Text::HolderPath)};
}

void PrepareRenameList(CellList& list) {
    list.SetTickable(true);
    list.SetHeaders({{.text = Tr(Text::UpdateWord)},
                     {},
                     {.text = Tr(Text::Relation)},
                     {.text = Tr(Text::Position)},
                     {.text = Tr(Text::Type)}});
    SetLongForm(list, RenameHolderColumn(), false);
}

CellRow HolderRow(const FoundReference& found, const QString& holder, const QString& relation,
                  const QString& local, const QString& parent) {
    CellRow row{.cells = {{},
                          {.text = {}, .tag = holder, .toolTip = holder},
                          {.text = relation},
                          {.text = QString::number(found.referenceIndex)},
                          {.text = found.inContext ? QStringLiteral("1") : QStringLiteral("0"),
                           .tag = QString::fromLatin1(found.stamp.toHex())}},
                .ticked = true};
    if (IsReadOnlyFile(local)) {
        row.ticked = false;
        row.cells[kRelationColumn].tag = QStringLiteral("R");
        row.cells[kHolderColumn].foreColor = kColorRed;
    } else if (holder.compare(parent, Qt::CaseInsensitive) == 0) {
        row.cells[kRelationColumn].tag = QStringLiteral("M");
    }
    return row;
}

RowBatch RenameRows(CellList& list) {
    return RowBatch(list, [&list](CellRow& row) { ShowHolder(list, row); });
}

void ShowHolder(const CellList& list, CellRow& row) {
    Cell& holder = row.cells[kHolderColumn];
    holder.text = ShownPath(list, kHolderColumn, holder.tag);
    if (row.cells[kRelationColumn].tag == QLatin1String("R"))
        holder.text.prepend(Tr(Text::ReadOnlyMark));
}

void ToggleHolderForm(CellList& list) {
    ToggleForm(list, RenameHolderColumn());
    list.ChangeAll([&](CellRow& row) { ShowHolder(list, row); });
}

void MarkReadOnly(const CellList& list, CellRow& row) {
    if (row.cells[kHolderColumn].foreColor == kColorRed)
        return;
    row.cells[kRelationColumn].tag = QStringLiteral("R");
    row.cells[kHolderColumn].foreColor = kColorRed;
    ShowHolder(list, row);
}

void ClearReadOnly(const CellList& list, CellRow& row) {
    if (row.cells[kRelationColumn].tag == QLatin1String("R"))
        row.cells[kRelationColumn].tag.clear();
    row.cells[kHolderColumn].foreColor = kColorNormal;
    ShowHolder(list, row);
}

std::optional<TextTable> PackRenameList(const CellList& list) {
    if (list.Count() == 0)
        return std::nullopt;
    const std::vector<CellHeader>& headers = list.Headers();
    TextTable table;
    table.push_back({headers[kHolderColumn].text, headers[kTableColumn].text,
                     headers[kTickColumn].text, Tr(Text::Status)});
    for (const CellRow& row : list.Rows()) {
        const Cell& holder = row.cells[kHolderColumn];
        const QString status = holder.foreColor == kColorRed    ? holder.toolTip
                               : holder.foreColor == kColorBlue ? QString(Tr(Text::ExportedUpdated))
                                                                : QString();
        table.push_back({holder.tag, row.cells[kRelationColumn].text,
                         row.ticked ? Tr(Text::TickedYes) : Tr(Text::ExportedUnticked), status});
    }
    return table;
}

}  // namespace docbench
