// Dates and numbers as users write and read them, by the user's locale.
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

namespace docbench {

// A date, with or without a time, in any of the locale's usual forms or as ISO 8601, in local time.
// A date without a time is the begin of its day; a year of two digits lies between 1930 and 2029.
std::optional<QDateTime> DateFromLocal(const QString& text);

// A finite number with the locale's decimal point; separators of thousands must stand in their
// places.
std::optional<double> NumberFromLocal(const QString& text);

// Texts that read back as the same value: the date to the second, with a year of four digits and
// without a time that is the begin of the day; the number without separators of thousands.
QString DateToLocal(const QDateTime& date);
QString NumberToLocal(double number);

}  // namespace docbench
