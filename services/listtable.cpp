#include "services/listtable.h"

#include <algorithm>

#include "cells/celllist.h"

namespace docbench {

std::optional<TextTable> ListToTable(const CellList& list) {
    if (list.Count() == 0)
        return std::nullopt;
    const size_t columns = list.Headers().size();
    TextTable table(list.Rows().size() + 2, std::vector<QString>(columns + 1));
    for (size_t column = 0; column < columns; ++column)
        table[0][column] = list.Headers()[column].text;
    for (size_t row = 0; row < list.Rows().size(); ++row) {
        const std::vector<Cell>& cells = list.Rows()[row].cells;
        for (size_t column = 0; column < std::min(columns, cells.size()); ++column)
            table[row + 1][column] = cells[column].text;
    }
    return table;
}

}  // namespace docbench
