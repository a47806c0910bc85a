#include "docmodel/propertyvalue.h"

#include <QLocale>
#include <cmath>

#include "docmodel/xml.h"

namespace docmodel {

namespace {

constexpr QLatin1String kWholeDay("T00:00:00Z");
constexpr QLatin1String kMidnightMoment("T00:00:00.000Z");

bool IsWholeDay(const QDateTime& time) {
    return time.timeSpec() == Qt::LocalTime && time == time.date().startOfDay();
}

std::optional<PropertyValue> DateValue(const QDateTime& time) {
    if (!time.isValid() || DateToText(time).isEmpty())
        return std::nullopt;
    return PropertyValue{time.toLocalTime(), kDate};
}

std::optional<PropertyValue> NumberValue(double number) {
    if (!std::isfinite(number))
        return std::nullopt;
    return PropertyValue{number, kNumber};
}

}  // namespace

std::optional<PropertyValue> PropertyValueFor(const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::QDateTime:
            return DateValue(value.toDateTime());
        case QMetaType::QDate:
            return DateValue(value.toDate().startOfDay());
        case QMetaType::Bool:
            return PropertyValue{value, kYesNo};
        case QMetaType::Double:
        case QMetaType::Float:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
            return NumberValue(value.toDouble());
        default:
            break;
    }
    const QString text = WithXmlLineEnds(value.toString());
    if (!IsXmlText(text))
        return std::nullopt;
    return PropertyValue{text, kText};
}

QString DateToText(const QDateTime& time) {
    if (IsWholeDay(time)) {
        const QString day = time.date().toString(Qt::ISODate);
        return day.isEmpty() ? day : day + kWholeDay;
    }
    const QDateTime utc = time.toUTC();
    const bool hasMilliseconds = utc.time().msec() != 0;
    QString text = utc.toString(hasMilliseconds ? Qt::ISODateWithMs : Qt::ISODate);
    if (!text.endsWith(kWholeDay))
        return text;
    return text.chopped(kWholeDay.size()) + kMidnightMoment;
}

QDateTime DateFromText(const QString& text) {
    const QString trimmed = text.trimmed();
    const QString day = trimmed.endsWith(kWholeDay) ? trimmed.chopped(kWholeDay.size()) : trimmed;
    constexpr qsizetype kDayLength = 10;  // yyyy-mm-dd
    if (day.size() == kDayLength) {
        const QDate date = QDate::fromString(day, Qt::ISODate);
        return date.isValid() ? date.startOfDay() : QDateTime();
    }
    return QDateTime::fromString(trimmed, Qt::ISODateWithMs).toLocalTime();
}

QString NumberToText(double number) {
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

std::optional<double> NumberFromText(const QString& text) {
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

bool YesNoFromText(const QString& text) {
    const QString trimmed = text.trimmed();
    return trimmed == QLatin1String("1") ||
           trimmed.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
}

QString ToText(const PropertyValue& value) {
    switch (value.type) {
        case kDate:
            return DateToText(value.value.toDateTime());
        case kNumber:
            return NumberToText(value.value.toDouble());
        case kYesNo:
            return value.value.toBool() ? QStringLiteral("true") : QStringLiteral("false");
        case kText:
            break;
    }
    return value.value.toString();
}

PropertyValue FromText(const QString& text, PropertyType type) {
    if (type == kYesNo)
        return {YesNoFromText(text), kYesNo};
    if (type == kNumber)
        if (const std::optional<double> number = NumberFromText(text))
            return {*number, kNumber};
    if (type == kDate)
        if (const QDateTime time = DateFromText(text); time.isValid())
            return {time, kDate};
    return {text, kText};
}

}  // namespace docmodel
