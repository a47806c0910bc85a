// Spreadsheets as .xlsx files, opened in whatever program the user has for them.
#pragma once

#include "services/spreadsheet.h"
#include "shell/export.h"

namespace docbench {

class XlsxSpreadsheet : public Spreadsheet {
public:
    // Writes into the user's documents folder, under a name that is free.
    QString Show(const TextTable& table) override;
};

// Writes a table as texts; raises DocumentError, and leaves no half file, when it can't be written.
DOCBENCH_EXPORT void WriteXlsx(const TextTable& table, const QString& path);
// The same as comma separated values (RFC 4180, UTF-8).
DOCBENCH_EXPORT void WriteCsv(const TextTable& table, const QString& path);

}  // namespace docbench
