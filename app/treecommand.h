// The command "docbench tree FILE": prints the reference tree of a document.
#pragma once

#include <QString>

namespace docbench {

enum class TreeFormat { Text, Json };

// Prints to standard output; messages go to standard error. Gives the program's exit code.
int PrintTree(const QString& path, TreeFormat format);

}  // namespace docbench
