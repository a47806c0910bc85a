// The user's spreadsheet program.
#pragma once

#include <QString>

#include "services/listtable.h"

namespace docbench {

class Spreadsheet {
public:
    virtual ~Spreadsheet() = default;
    // Shows a table in a new sheet, its columns as wide as their texts; gives the file that it is
    // in. Raises DocumentError when it can't be written.
    virtual QString Show(const TextTable& table) = 0;
};

}  // namespace docbench
