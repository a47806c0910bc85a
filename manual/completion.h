// Completion scripts for shells, of what the programs' help tells.
#pragma once

#include "manual/helptext.h"

namespace manual {

// Both take the help of one program and of its commands, as HelpOfProgram gives it, and give a
// whole script: commands first, then options, documents where a command takes them, folders where
// they are asked for, any file elsewhere.
QString BashCompletion(const QList<HelpText>& program);
QString ZshCompletion(const QList<HelpText>& program);

}  // namespace manual
