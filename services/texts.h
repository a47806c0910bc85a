// The texts by their roles, each with the number of values that are put into it.
#pragma once

#include <QString>
#include <concepts>

#include "services/language.h"

namespace docbench {

// A text that takes `Values` values.
template <int Values>
struct TextId {
    int number = 0;  // into gStrings
};

namespace Text {
#define TEXT(number, role, values) inline constexpr TextId<values> role{number};
#include "lang/texts.def"
#undef TEXT
}  // namespace Text

// The text as it was loaded. One that takes values can't be shown without them.
inline const QString& Tr(TextId<0> text) {
    return gStrings[size_t(text.number)];
}

inline const QString& ValueText(const QString& value) {
    return value;
}

template <std::integral Number>
QString ValueText(Number value) {
    return QString::number(value);
}

// The text with its values, which are texts or whole numbers. A number of values that the text does
// not take does not compile; a text of the language file that takes another number is told in a
// box.
template <int Values, typename... Value>
requires(sizeof...(Value) == Values) QString Format(TextId<Values> text, const Value&... values) {
    return sprintf(gStrings[size_t(text.number)], {ValueText(values)...});
}

}  // namespace docbench
