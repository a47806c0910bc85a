// The folder in which the programs, the document library and the language folders stand together.
#pragma once

#include <QString>

namespace docbench {

// Without a separator at its end; links are followed. It is found through this library, not through
// the running program: a host of the controls lies somewhere else.
QString ProgramFolder();

}  // namespace docbench
