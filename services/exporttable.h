// The export of a list to a spreadsheet.
#pragma once

#include <QString>
#include <optional>

#include "services/listtable.h"

namespace docbench {

// False without a table, and when the sheet can't be filled, which a box tells. `where`, if given,
// gets the file.
bool ExportToSpreadsheet(const std::optional<TextTable>& table, QString* where = nullptr);

}  // namespace docbench
