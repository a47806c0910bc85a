#include "services/localvalues.h"

#include <QLocale>
#include <QStringList>
#include <cmath>
#include <map>
#include <tuple>

namespace docbench {
namespace {

constexpr int kFirstShortYear = 1930;  // what "30" stands for
const QString kFullYear = QStringLiteral("yyyy");
const QString kShortYear = QStringLiteral("yy");
const QString kMinutes = QStringLiteral("mm");

// The locale's short form of dates, with the year in full so that it can be read back.
QString DateFormat(const QLocale& locale) {
    QString format = locale.dateFormat(QLocale::ShortFormat);
    return format.contains(kFullYear) ? format : format.replace(kShortYear, kFullYear);
}

QString WithSeconds(QString timeFormat) {
    const qsizetype minutes = timeFormat.indexOf(kMinutes);
    if (minutes < 1 || timeFormat.contains(u's'))
        return timeFormat;
    const QChar separator = timeFormat[minutes - 1];
    return timeFormat.insert(minutes + kMinutes.size(), separator + QStringLiteral("ss"));
}

// Days and months are also written without the leading zero that the locale's form has.
QString Lenient(QString dateFormat) {
    if (!dateFormat.contains(QLatin1String("ddd")))
        dateFormat.replace(QLatin1String("dd"), QLatin1String("d"));
    if (!dateFormat.contains(QLatin1String("MMM")))
        dateFormat.replace(QLatin1String("MM"), QLatin1String("M"));
    return dateFormat;
}

QStringList DateFormats(const QLocale& locale) {
    const QString full = Lenient(DateFormat(locale));
    QStringList formats{full, QString(full).replace(kFullYear, kShortYear),
                        locale.dateFormat(QLocale::LongFormat), QStringLiteral("yyyy-M-d")};
    if (locale.language() == QLocale::C)
        formats << QStringLiteral("M/d/yyyy") << QStringLiteral("M/d/yy");
    formats.removeDuplicates();
    return formats;
}

QStringList TimeFormats(const QLocale& locale) {
    const QString shortForm = locale.timeFormat(QLocale::ShortFormat);
    QStringList formats{shortForm, WithSeconds(shortForm), QStringLiteral("H:mm"),
                        QStringLiteral("H:mm:ss")};
    formats.removeDuplicates();
    return formats;
}

bool HasShortYear(const QString& format) {
    return format.contains(kShortYear) && !format.contains(kFullYear);
}

QDateTime InItsCentury(const QDateTime& date, const QString& format) {
    constexpr int kCentury = 100;
    return HasShortYear(format) && date.date().year() < kFirstShortYear ? date.addYears(kCentury)
                                                                        : date;
}

QDateTime ParseAs(const QLocale& locale, const QString& text, const QString& dateFormat) {
    if (const QDate date = locale.toDate(text, dateFormat); date.isValid())
        return date.startOfDay();
    for (const QString& timeFormat : TimeFormats(locale)) {
        const QDateTime time = locale.toDateTime(text, dateFormat + u' ' + timeFormat);
        if (time.isValid())
            return time;
    }
    return {};
}

QDateTime ToTheSecond(const QDateTime& time) {
    return time.addMSecs(-time.time().msec());
}

QString ShownTimeFormat(const QLocale& locale, const QTime& time) {
    const QString format = locale.timeFormat(QLocale::ShortFormat);
    return time.second() == 0 ? format : WithSeconds(format);
}

// Whether a text reads back as the date that it was made from. Not every locale reads the digits,
// the names of months and the words for halves of the day that it writes. Trying it takes far
// longer than writing, so each shape of text is tried once: its outcome depends on nothing else.
bool ReadsBack(const QString& shown, const QDateTime& date, const QLocale& locale) {
    const int year = date.date().year();
    if (year < 1000 || year > 9999 || locale.zeroDigit() != QLatin1String("0"))
        return DateFromLocal(shown) == date;
    const QTime time = date.time();
    const int hour = date == date.date().startOfDay() ? -1 : time.hour();
    const std::tuple key(locale.name(), date.date().month(), hour, time.second() != 0);
    thread_local std::map<std::tuple<QString, int, int, bool>, bool> outcomes;
    const auto known = outcomes.find(key);
    return known != outcomes.end()
               ? known->second
               : outcomes.emplace(key, DateFromLocal(shown) == date).first->second;
}

// Locales written from right to left have marks of direction in their numbers, which are written
// but not read.
QString WithoutMarks(QString text) {
    constexpr char16_t kArabicMark = 0x061C;
    constexpr char16_t kLeftToRightMark = 0x200E;
    constexpr char16_t kRightToLeftMark = 0x200F;
    for (const char16_t mark : {kArabicMark, kLeftToRightMark, kRightToLeftMark})
        text.remove(QChar(mark));
    return text;
}

}  // namespace

std::optional<QDateTime> DateFromLocal(const QString& text) {
    const QLocale locale;
    const QString trimmed = text.trimmed();
    for (const QString& format : DateFormats(locale)) {
        if (const QDateTime date = ParseAs(locale, trimmed, format); date.isValid())
            return InItsCentury(date, format);
    }
    const QDateTime standard = QDateTime::fromString(trimmed, Qt::ISODateWithMs);
    return standard.isValid() ? std::optional(standard.toLocalTime()) : std::nullopt;
}

std::optional<double> NumberFromLocal(const QString& text) {
    bool isNumber = false;
    double number = QLocale().toDouble(text.trimmed(), &isNumber);
    if (!isNumber)
        number = QLocale().toDouble(WithoutMarks(text.trimmed()), &isNumber);
    return isNumber && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

QString DateToLocal(const QDateTime& date) {
    const QLocale locale;
    const QDateTime local = ToTheSecond(date.toLocalTime());
    const bool isDay = local == local.date().startOfDay();
    QString shown = locale.toString(local.date(), DateFormat(locale));
    if (!isDay)
        shown += u' ' + locale.toString(local.time(), ShownTimeFormat(locale, local.time()));
    if (ReadsBack(shown, local, locale))
        return shown;
    return isDay ? local.date().toString(Qt::ISODate)
                 : local.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString NumberToLocal(double number) {
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const QString shortest = locale.toString(number, 'g', QLocale::FloatingPointShortest);
    // Not every locale reads the powers of ten that it writes.
    return NumberFromLocal(shortest) == number
               ? shortest
               : locale.toString(number, 'f', QLocale::FloatingPointShortest);
}

}  // namespace docbench
