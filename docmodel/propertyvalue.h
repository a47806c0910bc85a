// The values of custom properties: from and to the texts in which XML stores them.
#pragma once

#include <QDateTime>
#include <QString>
#include <QVariant>
#include <optional>

namespace docmodel {

// The types of a custom property, as CustomProperty::type has them.
enum PropertyType { kText = 0, kDate = 1, kNumber = 2, kYesNo = 3 };

// A value with the type that it is stored as, in the shape that readers get it back.
struct PropertyValue {
    QVariant value;
    PropertyType type = kText;
    bool operator==(const PropertyValue& other) const = default;
};

// None when no document can store the value: an invalid date, a number that is none, a text with
// control characters.
std::optional<PropertyValue> PropertyValueFor(const QVariant& value);

// UTC in ISO 8601. A date without a time (midnight, local time) is the day at midnight UTC, so that
// it is the same day wherever it is read; a moment that falls on midnight UTC has milliseconds
// instead.
QString DateToText(const QDateTime& time);
QDateTime DateFromText(const QString& text);  // in local time; invalid if it is no date

QString NumberToText(double number);
std::optional<double> NumberFromText(const QString& text);
bool YesNoFromText(const QString& text);

QString ToText(const PropertyValue& value);

// A stored text as the value of that type; as a text if it does not fit the type.
PropertyValue FromText(const QString& text, PropertyType type);

}  // namespace docmodel
