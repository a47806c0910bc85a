#include "docmodel/propertyrule.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "services/localvalues.h"

namespace docmodel {

namespace {

bool SameText(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

// As the user writes it, else as documents are filled by programs.
std::optional<double> NumberInText(const QString& text) {
    const std::optional<double> number = docbench::NumberFromLocal(text);
    return number ? number : NumberFromText(text);
}

std::optional<double> NumberIn(const PropertyValue& property) {
    switch (property.type) {
        case kNumber:
            return property.value.toDouble();
        case kText:
            return NumberInText(property.value.toString());
        case kDate:
        case kYesNo:
            break;
    }
    return std::nullopt;
}

// Reading a date takes longer than reading a document, so most texts are told from dates before: a
// date has two numbers at least, and the first three are no longer than a year.
bool MayBeDate(QStringView text) {
    constexpr int kYearDigits = 4;
    int numbers = 0;
    int digits = 0;
    for (const QChar character : text) {
        digits = character.isDigit() ? digits + 1 : 0;
        numbers += digits == 1 ? 1 : 0;
        if (digits > kYearDigits && numbers <= 3)
            return false;
    }
    return numbers >= 2;
}

QDateTime ToTheSecond(const QDateTime& time) {
    const QDateTime local = time.toLocalTime();
    return local.addMSecs(-local.time().msec());
}

template <typename Value>
int Compare(const Value& one, const Value& other) {
    return one < other ? -1 : other < one ? 1 : 0;
}

}  // namespace

PropertyRule::PropertyRule(int operatorCode, const QVariant& value, docbench::QueryWords words)
    : operator_(Operator(operatorCode)), words_(std::move(words)) {
    switch (value.typeId()) {
        case QMetaType::QString:
            text_ = value.toString();
            kind_ = text_.isEmpty() ? Kind::Nothing : Kind::Text;
            number_ = NumberInText(text_);
            date_ = docbench::DateFromLocal(text_).value_or(QDateTime());
            break;
        case QMetaType::QDateTime:
            date_ = value.toDateTime().toLocalTime();
            kind_ = date_.isValid() ? Kind::Date : Kind::Nothing;
            break;
        case QMetaType::Double:
            number_ = value.toDouble();
            kind_ = std::isnan(*number_) ? Kind::Nothing : Kind::Number;
            break;
        case QMetaType::Bool:
            isYes_ = value.toBool();
            kind_ = Kind::YesNo;
            break;
        default:
            break;
    }
}

bool PropertyRule::HoldsFor(const std::optional<PropertyValue>& property) const {
    if (kind_ == Kind::Nothing)
        return false;
    switch (operator_) {
        case Operator::IsNot:
        case Operator::NotEqual:
            return !property || !IsSame(*property);
        case Operator::Is:
        case Operator::Equal:
            return property && IsSame(*property);
        case Operator::Yes:
        case Operator::No:
            return property && property->type == kYesNo &&
                   property->value.toBool() == (operator_ == Operator::Yes);
        case Operator::Contains:
            return property && Includes(*property);
        case Operator::Less:
        case Operator::AtMost:
        case Operator::More:
        case Operator::AtLeast:
            return property && IsInOrder(*property);
    }
    return false;  // an operator that there is not
}

bool PropertyRule::HoldsForFileName(const QString& name) const {
    const QLatin1String anyExtension(".*");
    if (text_ == anyExtension)
        return false;  // an empty value, with any extension
    if (kind_ != Kind::Text || operator_ == Operator::Contains || !text_.endsWith(anyExtension))
        return HoldsFor(PropertyValue{name, kText});
    const bool isSame = SameText(name.left(name.lastIndexOf(u'.')), text_.chopped(2));
    switch (operator_) {
        case Operator::Is:
        case Operator::Equal:
            return isSame;
        case Operator::IsNot:
        case Operator::NotEqual:
            return !isSame;
        default:
            return false;
    }
}

bool PropertyRule::IsSame(const PropertyValue& property) const {
    switch (kind_) {
        case Kind::Text:
            return IsSameText(property);
        case Kind::Number:
            return NumberIn(property) == number_;
        case Kind::Date: {
            const std::optional<QDateTime> date = DateIn(property);
            return date && CompareDate(*date) == 0;
        }
        case Kind::YesNo:
            return property.type == kYesNo && property.value.toBool() == isYes_;
        case Kind::Nothing:
            break;
    }
    return false;
}

bool PropertyRule::IsSameText(const PropertyValue& property) const {
    switch (property.type) {
        case kText:
            return SameText(property.value.toString(), text_);
        case kNumber:
            return number_ == property.value.toDouble();
        case kDate:
            return date_.isValid() && date_ == ToTheSecond(property.value.toDateTime());
        case kYesNo:
            return SameText(WordFor(property.value.toBool()), text_);
    }
    return false;
}

// What the user sees of the property holds what the user has typed.
bool PropertyRule::Includes(const PropertyValue& property) const {
    if (kind_ != Kind::Text)
        return false;
    const auto in = [this](const QString& shown) {
        return shown.contains(text_, Qt::CaseInsensitive);
    };
    switch (property.type) {
        case kText:
            return in(property.value.toString());
        case kNumber:
            return in(docbench::NumberToLocal(property.value.toDouble()));
        case kDate:
            return in(docbench::DateToLocal(property.value.toDateTime()));
        case kYesNo:
            return in(WordFor(property.value.toBool()));
    }
    return false;
}

bool PropertyRule::IsInOrder(const PropertyValue& property) const {
    std::optional<int> order;  // of the property to the rule's value
    if (kind_ == Kind::Number) {
        if (const std::optional<double> number = NumberIn(property))
            order = Compare(*number, *number_);
    } else if (kind_ == Kind::Date) {
        if (const std::optional<QDateTime> date = DateIn(property))
            order = CompareDate(*date);
    }
    if (!order)
        return false;
    switch (operator_) {
        case Operator::Less:
            return *order < 0;
        case Operator::AtMost:
            return *order <= 0;
        case Operator::More:
            return *order > 0;
        case Operator::AtLeast:
            return *order >= 0;
        default:
            return false;
    }
}

std::optional<QDateTime> PropertyRule::DateIn(const PropertyValue& property) const {
    constexpr qsizetype kLongestDate = 64;
    constexpr qsizetype kMostTexts = 10'000;
    if (property.type == kDate)
        return property.value.toDateTime().toLocalTime();
    const QString text = property.type == kText ? property.value.toString() : QString();
    if (text.size() > kLongestDate || !MayBeDate(text))
        return std::nullopt;
    const auto known = datesOfTexts_.constFind(text);
    if (known != datesOfTexts_.constEnd())
        return *known;
    if (datesOfTexts_.size() >= kMostTexts)
        datesOfTexts_.clear();
    return *datesOfTexts_.insert(text, docbench::DateFromLocal(text));
}

// A value without a time stands for the whole day, one without seconds for the whole minute.
int PropertyRule::CompareDate(const QDateTime& date) const {
    if (date_ == date_.date().startOfDay())
        return Compare(date.date(), date_.date());
    const qint64 unit = date_.time().second() == 0 ? 60 : 1;
    const auto unitsIn = [unit](const QDateTime& time) {
        const qint64 seconds = time.addMSecs(-time.time().msec()).toSecsSinceEpoch();
        return (seconds - time.time().second() % unit) / unit;
    };
    return Compare(unitsIn(date), unitsIn(date_));
}

}  // namespace docmodel
