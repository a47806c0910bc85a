#include "copy/textreplace.h"

#include "cells/celllist.h"
#include "services/paths.h"

namespace docbench {
namespace {

constexpr size_t kSearched = 2;  // the column

}  // namespace

bool TextReplace::FindNext(const QString& text) {
    ShowHit(false);
    if (currentRow > list_.Count())
        currentRow = 1;  // rows went away behind our back
    currentRow = FindFrom(currentRow + 1, text);
    ShowHit(true);
    return currentRow > 0;
}

bool TextReplace::Replace(const QString& text, const QString& by) {
    if (!IsThere(currentRow) && !FindNext(text))
        return false;
    ReplaceInRow(currentRow, text, by);
    return FindNext(text);
}

void TextReplace::ReplaceAll(const QString& text, const QString& by) {
    ShowHit(false);
    for (int row = FindFrom(qMax(currentRow, 1), text); row > 0; row = FindFrom(row + 1, text))
        ReplaceInRow(row, text, by);
    currentRow = 0;
}

bool TextReplace::IsThere(int row) const {
    return row >= 1 && row <= list_.Count();
}

int TextReplace::FindFrom(int row, const QString& text) const {
    for (; IsThere(row); ++row) {
        if (list_.At(row - 1).cells[kSearched].text.contains(text))
            return row;
    }
    return 0;
}

void TextReplace::ReplaceInRow(int row, const QString& text, const QString& by) {
    const bool namesOnly = list_.Headers()[kSearched].tag == QLatin1String("S");
    list_.Change(row - 1, [&](CellRow& changed) {
        Cell& cell = changed.cells[kSearched];
        cell.text.replace(text, by);
        cell.tag = namesOnly ? FolderOf(cell.tag) + cell.text : cell.text;
        cell.toolTip = cell.tag;
    });
}

void TextReplace::ShowHit(bool bold) {
    if (IsThere(currentRow))
        list_.Change(currentRow - 1, [bold](CellRow& row) { row.cells[kSearched].bold = bold; });
}

}  // namespace docbench
