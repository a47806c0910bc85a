// Dates and numbers by the user's locale.

#include <QLocale>
#include <QTest>
#include <limits>

#include "services/localvalues.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

struct UserLocale {
    explicit UserLocale(const QLocale& locale) { QLocale::setDefault(locale); }
    ~UserLocale() { QLocale::setDefault(QLocale::system()); }
};

QDateTime Day(int year, int month, int day) {
    return QDate(year, month, day).startOfDay();
}

}  // namespace

class TestLocalValues : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void datesAreReadByTheLocale_data() {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDateTime>("date");
        QTest::newRow("American") << "en_US"
                                  << "1/2/2004" << Day(2004, 1, 2);
        QTest::newRow("British") << "en_GB"
                                 << "1/2/2004" << Day(2004, 2, 1);
        QTest::newRow("German") << "de_DE"
                                << "31.05.2004" << Day(2004, 5, 31);
        QTest::newRow("without zeros") << "de_DE"
                                       << " 1.5.2004 " << Day(2004, 5, 1);
        QTest::newRow("in the last century") << "de_DE"
                                             << "1.5.30" << Day(1930, 5, 1);
        QTest::newRow("in this century") << "de_DE"
                                         << "1.5.29" << Day(2029, 5, 1);
        QTest::newRow("in words") << "en_GB"
                                  << "Monday, 31 May 2004" << Day(2004, 5, 31);
        QTest::newRow("with a time") << "de_DE"
                                     << "31.5.04 14:05" << Day(2004, 5, 31).addSecs(50700);
        QTest::newRow("with seconds") << "de_DE"
                                      << "31.05.2004 14:05:09" << Day(2004, 5, 31).addSecs(50709);
        QTest::newRow("afternoon") << "en_US"
                                   << "5/31/2004 2:05 PM" << Day(2004, 5, 31).addSecs(50700);
        QTest::newRow("standard") << "de_DE"
                                  << "2004-05-31" << Day(2004, 5, 31);
        QTest::newRow("standard moment")
            << "de_DE"
            << "2004-05-31T12:00:00Z" << QDateTime(QDate(2004, 5, 31), QTime(12, 0), Qt::UTC);
        QTest::newRow("no locale") << "C"
                                   << "5/31/2004" << Day(2004, 5, 31);
    }
    void datesAreReadByTheLocale() {
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QFETCH(QDateTime, date);
        const UserLocale user{QLocale(locale)};
        QCOMPARE(DateFromLocal(text), std::optional(date));
    }

    void whatIsNoDateIsNone() {
        const UserLocale user{QLocale("de_DE")};
        for (const char* text : {"", " ", "12", "31.6.2004", "5/31/2004", "14:05", "soon"})
            QVERIFY2(!DateFromLocal(text), text);
    }

    void numbersAreReadByTheLocale() {
        const UserLocale user{QLocale("de_DE")};
        QCOMPARE(NumberFromLocal("1,5"), std::optional(1.5));
        QCOMPARE(NumberFromLocal(" 1.234,5 "), std::optional(1234.5));
        QCOMPARE(NumberFromLocal("-1e3"), std::optional(-1000.0));
        QLocale::setDefault(QLocale("en_US"));
        QCOMPARE(NumberFromLocal("1.5"), std::optional(1.5));
        QCOMPARE(NumberFromLocal("1,500"), std::optional(1500.0));
    }

    void whatIsNoNumberIsNone() {
        const UserLocale user{QLocale("en_US")};
        for (const char* text : {"", "1,5", "0x10", "nan", "inf", "1e400", "1 m", "one"})
            QVERIFY2(!NumberFromLocal(text), text);
        QLocale::setDefault(QLocale("de_DE"));
        QVERIFY(!NumberFromLocal("1.5"));
    }

    void shownValuesReadBackInEveryLocale() {
        const QList<QDateTime> dates{Day(2004, 5, 31), Day(1929, 12, 1).addSecs(46800),
                                     Day(2031, 1, 9).addSecs(50709), Day(2000, 2, 29).addSecs(60)};
        const QList<double> numbers{
            0, -1.5, 1234567.25, 0.1, 1e-7, 6.02e23, std::numeric_limits<double>::max()};
        const UserLocale user{QLocale::c()};
        QStringList failed;
        for (const QLocale& locale : QLocale::matchingLocales(
                 QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
            QLocale::setDefault(locale);
            for (const QDateTime& date : dates)
                if (DateFromLocal(DateToLocal(date)) != date)
                    failed << locale.name() + ' ' + DateToLocal(date);
            for (const double number : numbers)
                if (NumberFromLocal(NumberToLocal(number)) != number)
                    failed << locale.name() + ' ' + NumberToLocal(number);
        }
        QVERIFY2(failed.isEmpty(), qPrintable(failed.join('\n')));
    }

    void wholeDaysAreShownWithoutATime() {
        const UserLocale user{QLocale("de_DE")};
        QCOMPARE(DateToLocal(Day(2004, 5, 31)), QString("31.05.2004"));
        QCOMPARE(DateToLocal(Day(2004, 5, 31).addSecs(50700)), QString("31.05.2004 14:05"));
        QCOMPARE(NumberToLocal(1234.5), QString("1234,5"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestLocalValues)
#include "tst_localvalues.moc"
