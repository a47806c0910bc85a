// A list as a plain table of texts, for the export.
#pragma once

#include <QString>
#include <optional>
#include <vector>

namespace docbench {

class CellList;

using TextTable = std::vector<std::vector<QString>>;  // rows of equally many columns

// Row 0 holds the headers of the columns, each further one the shown texts of a row. One row and
// one column more than are filled stay empty. None for a list without rows.
std::optional<TextTable> ListToTable(const CellList& list);

}  // namespace docbench
