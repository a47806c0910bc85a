// Saved searches: text files with one rule a line, in double-quoted fields.
#pragma once

#include <QString>
#include <QStringList>

namespace docbench {

class CellList;

// A field that holds a double quote can't be kept: its line is skipped when the file is read.

// Writes the rules in UTF-8, in place of a file that is there. Raises DocumentError; the file is
// then as it was.
void WriteSavedSearch(const QString& path, const CellList& rules);

// Appends the rules of a file (UTF-8, UTF-16 with its mark, else Windows-1252). Their codes are the
// positions of their operators among `operators`. Lines that are no rules are skipped. Raises
// DocumentError when not all of the file can be read; what was read is in the list all the same.
void ReadSavedSearch(const QString& path, const QStringList& operators, CellList& rules);

}  // namespace docbench
