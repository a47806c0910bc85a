// A search rule in one line of text, as it is written on a command line.
#pragma once

#include <QString>

#include "cells/celllist.h"

namespace docbench {

// The rule that a text such as `Author is Smith` says:
//
//   [and | or] PROPERTY OPERATOR [VALUE]
//
// The operator is the first that stands behind the property: is, is not, contains, =, != (or not
// =), <, <=, >, >=, is yes, is no, or a word of the user's language for one of them. Words stand
// between blanks; letter case doesn't count in them. A property or value in double quotes is taken
// as it is, so that `Status is "no"` asks for a text. Without "or", the rule is joined by "and".
//
// Raises DocumentError for a text without an operator, a comparison with what is neither a number
// nor a date, and the like.
CellRow ParseRule(const QString& text);

}  // namespace docbench
