// The texts by their roles, each with the number of values that are put into it.
#pragma once

#include <QString>

#include "services/language.h"

namespace docbench {

// A text that takes `Values` values; formatting it with another number does not compile.
template <int Values>
struct TextId {
    int number = 0;
};

namespace Text {
#define TEXT(number, role, values) inline constexpr TextId<values> role{number};
#include "lang/texts.def"
#undef TEXT
}  // namespace Text

inline const QString& Tr(TextId<0> text) {
    return gStrings[size_t(text.number)];
}

template <int Values, typename... Value>
QString Format(TextId<Values> text, const Value&... values) {
    static_assert(sizeof...(values) == Values, "the text takes another number of values");
    return sprintf(gStrings[size_t(text.number)], {values...});
}

}  // namespace docbench
