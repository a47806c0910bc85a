// Manual pages, in roff, of what a program's help tells.
#pragma once

#include "manual/helptext.h"

namespace manual {

// "docbench" or "docbench-rename".
QString PageName(const HelpText& help);

// The page of section 1. `others` are the pages to refer to; `version` is the program's.
QString ManPage(const HelpText& help, const QStringList& others, const QString& version);

// The pages that a reader of `help`, one of `all`, wants to find next: a program's commands, or a
// command's program.
QStringList OtherPages(const HelpText& help, const QList<HelpText>& all);

}  // namespace manual
