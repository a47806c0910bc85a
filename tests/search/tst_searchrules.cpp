// The rules of a document search, from their rows to the conditions.

#include <QLocale>
#include <QTest>

#include "search/searchrules.h"
#include "services/language.h"
#include "services/texts.h"
#include "tests/support/fakequery.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

SearchCondition Condition(int code, const QString& value, const QString& property = "Weight",
                          const QString& connective = {}) {
    return ConditionOf(MakeRule(connective, property, "any", value, code));
}

QDateTime Day(int year, int month, int day) {
    return QDate(year, month, day).startOfDay();
}

}  // namespace

class TestSearchRules : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        const TestLibrary library;
        LoadResources();
    }
    void init() { QLocale::setDefault(QLocale("en_US")); }

    void OperatorsStandInTheOrderOfTheirCodes() {
        QCOMPARE(OperatorTexts(Operators::All),
                 QStringList({gStrings[296], gStrings[297], gStrings[298], "=", gStrings[299], "<",
                              "<=", ">", ">=", gStrings[300], gStrings[301]}));
        QCOMPARE(OperatorTexts(Operators::OnTextsAlone),
                 QStringList({gStrings[296], gStrings[297], gStrings[298]}));
    }

    void EachLabelHasTheKeyOfTheLibrary_data() {
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("text");
        QTest::addColumn<QString>("key");
        const std::vector<std::pair<int, const char*>> properties = {
            {347, nullptr},          {161, "Title"},
            {159, "Author"},         {157, "Comments"},
            {158, "Keywords"},       {160, "Subject"},
            {302, "Last Saved by"},  {303, "Last Saved"},
            {304, "Created"},        {179, "Created by"},
            {181, "Date completed"}, {182, "Department"},
            {183, "Destination"},    {184, "Disposition"},
            {185, "Division"},       {186, "Document Number"},
            {187, "Editor"},         {188, "Forward to"},
            {189, "Group"},          {190, "Language"},
            {191, "Mailstop"},       {192, "Matter"},
            {193, "Office"},         {194, "Owner"},
            {195, "Project"},        {196, "Publisher"},
            {197, "Purpose"},        {198, "Received from"},
            {199, "Recorded by"},    {200, "Recorded date"},
            {201, "Reference"},      {202, "Source"},
            {44, "Status"},          {203, "Telephone number"},
            {204, "Typist"},
        };
        int position = 0;
        for (const auto& [text, key] : properties)
            QTest::addRow("%d", text) << position++ << text << QString(key);
        QCOMPARE(PropertyLabels().size(), qsizetype(properties.size()));
    }
    void EachLabelHasTheKeyOfTheLibrary() {
        QFETCH(int, position);
        QFETCH(int, text);
        QFETCH(QString, key);
        const QString label = PropertyLabels()[position];
        QCOMPARE(label, gStrings[size_t(text)]);
        QCOMPARE(ToPropertyKey(label), key.isEmpty() ? label : key);
    }

    void OnlyTheExactLabelHasAKey() {
        const QString former = gStrings[161];
        gStrings[161] = "Titel";
        QCOMPARE(ToPropertyKey("Titel"), QString("Title"));
        QCOMPARE(ToPropertyKey("titel"), QString("titel"));
        QCOMPARE(ToPropertyKey("Title"), QString("Title"));
        QCOMPARE(ToPropertyKey("Surface finish"), QString("Surface finish"));
        QCOMPARE(ToPropertyKey(""), QString());
        gStrings[161] = former;
    }

    void ValuesGetTheKindThatTheOperatorTakes_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("sentCode");
        QTest::addColumn<QVariant>("value");
        const QVariant nothing;
        const QVariant day = Day(2004, 1, 2);
        QTest::newRow("is, text") << 0 << "abc" << 0 << QVariant("abc");
        QTest::newRow("is, number") << 0 << "12" << 0 << QVariant("12");
        QTest::newRow("is, date") << 0 << "1/2/2004" << 0 << day;
        QTest::newRow("is, empty") << 0 << "" << 0 << QVariant("");
        QTest::newRow("is not, text") << 1 << "abc" << 1 << QVariant("abc");
        QTest::newRow("is not, date") << 1 << "1/2/2004" << 1 << day;
        QTest::newRow("contains, date") << 2 << "1/2/2004" << 2 << QVariant("1/2/2004");
        QTest::newRow("contains, number") << 2 << "12" << 2 << QVariant("12");
        QTest::newRow("=, number") << 3 << "12" << 3 << QVariant(12.0);
        QTest::newRow("=, text") << 3 << "abc" << 0 << QVariant("abc");
        QTest::newRow("=, date") << 3 << "1/2/2004" << 0 << day;
        QTest::newRow("not =, number") << 4 << "12" << 1 << QVariant(12.0);
        QTest::newRow("not =, text") << 4 << "abc" << 4 << QVariant("abc");
        QTest::newRow("not =, date") << 4 << "1/2/2004" << 4 << day;
        for (int code = 5; code <= 8; ++code) {
            QTest::addRow("%d, number", code) << code << "-1,234.5" << code << QVariant(-1234.5);
            QTest::addRow("%d, date", code) << code << "1/2/2004" << code << day;
            QTest::addRow("%d, text", code) << code << "abc" << code << nothing;
            QTest::addRow("%d, empty", code) << code << "" << code << nothing;
            QTest::addRow("%d, too large", code) << code << "1e400" << code << nothing;
            QTest::addRow("%d, no day", code) << code << "13/45/2004" << code << nothing;
        }
        QTest::newRow("is Yes") << 9 << "no" << 9 << QVariant(true);
        QTest::newRow("is No") << 10 << "12" << 10 << QVariant(false);
        QTest::newRow("above all") << 11 << "12" << 11 << QVariant("12");
        QTest::newRow("=, huge text")
            << 3 << QString(100'000, '9') << 0 << QVariant(QString(100'000, '9'));
    }
    void ValuesGetTheKindThatTheOperatorTakes() {
        QFETCH(int, code);
        QFETCH(QString, text);
        QFETCH(int, sentCode);
        QFETCH(QVariant, value);
        const SearchCondition condition = Condition(code, text);
        QCOMPARE(condition.operatorCode, sentCode);
        QCOMPARE(condition.value.typeId(), value.typeId());
        QCOMPARE(condition.value, value);
        QCOMPARE(condition.property, QString("Weight"));
    }

    void NumbersAndDatesAreReadByTheLocale() {
        QLocale::setDefault(QLocale("de_DE"));
        QCOMPARE(Condition(3, "1.234,5").value, QVariant(1234.5));
        QCOMPARE(Condition(0, "1.2.2004").value, QVariant(Day(2004, 2, 1)));
        QCOMPARE(Condition(5, "1/2/2004").value, QVariant());
        QLocale::setDefault(QLocale("en_GB"));
        QCOMPARE(Condition(0, "1/2/2004").value, QVariant(Day(2004, 2, 1)));
    }

    void ANameWithoutExtensionFitsAny_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("is") << 0 << "bolt" << QVariant("bolt.*");
        QTest::newRow("is not") << 1 << "bolt" << QVariant("bolt.*");
        QTest::newRow("contains") << 2 << "bolt" << QVariant("bolt");
        QTest::newRow("=") << 3 << "12" << QVariant("12.*");
        QTest::newRow("a document's") << 0 << "bolt.TFMPRT" << QVariant("bolt.TFMPRT");
        QTest::newRow("any other's") << 0 << "bolt.txt" << QVariant("bolt.txt.*");
        QTest::newRow("none's") << 0 << "bolt.DRW" << QVariant("bolt.DRW.*");
        QTest::newRow("empty") << 0 << "" << QVariant(".*");
        QTest::newRow("<") << 5 << "12" << QVariant();
    }
    void ANameWithoutExtensionFitsAny() {
        QFETCH(int, code);
        QFETCH(QString, text);
        QFETCH(QVariant, value);
        const SearchCondition condition = Condition(code, text, gStrings[347]);
        QCOMPARE(condition.value, value);
        QCOMPARE(condition.property, gStrings[347]);
    }

    void OnlyTheWordOfTheLanguageMeansOr() {
        QCOMPARE(Condition(0, "x", "P", gStrings[279]).connective, QString("OR"));
        QCOMPARE(Condition(0, "x", "P", "").connective, QString("AND"));
        QCOMPARE(Condition(0, "x", "P", "ODER").connective, QString("AND"));
    }

    void RulesAreHandedOverInTheirOrder() {
        CellList rules;
        rules.Append(MakeRule("", gStrings[161], gStrings[298], "gear", 2));
        rules.Append(MakeRule(gStrings[279], "Weight", ">", "2", 7));
        rules.Append(MakeRule("", "Released", gStrings[300], "", 9));
        FakeAnswers answers;
        FakeQuery query(answers);
        AddRules(rules, query);
        QCOMPARE(answers.conditions.size(), size_t(3));
        const QStringList connectives = {"AND", "OR", "AND"};
        const QStringList properties = {"Title", "Weight", "Released"};
        const QList<int> codes = {2, 7, 9};
        const QVariantList values = {"gear", 2.0, true};
        for (size_t i = 0; i < 3; ++i) {
            QCOMPARE(answers.conditions[i].connective, connectives[qsizetype(i)]);
            QCOMPARE(answers.conditions[i].property, properties[qsizetype(i)]);
            QCOMPARE(answers.conditions[i].code, codes[qsizetype(i)]);
            QCOMPARE(answers.conditions[i].value, values[qsizetype(i)]);
        }
    }

    void ARuleThatIsRefusedIsPassedOver() {
        CellList rules;
        for (const char* property : {"First", "Refused", "Last"})
            rules.Append(MakeRule("", property, gStrings[298], "gear", 2));
        FakeAnswers answers;
        answers.refused = {"Refused"};
        FakeQuery query(answers);
        AddRules(rules, query);
        QCOMPARE(answers.conditions.size(), size_t(2));
        QCOMPARE(answers.conditions[1].property, QString("Last"));
    }

    void AnOperatorIsFoundByItsExactText() {
        const QStringList all = OperatorTexts(Operators::All);
        QCOMPARE(FindOperatorCode(all, gStrings[298]), 2);
        QCOMPARE(FindOperatorCode(all, ">="), 8);
        QCOMPARE(FindOperatorCode(all, gStrings[298].toUpper()), 0);
        QCOMPARE(FindOperatorCode(OperatorTexts(Operators::OnTextsAlone), ">="), 0);
        QCOMPARE(FindOperatorCode({}, "="), 0);
        QCOMPARE(FindOperatorCode({"a", "b", "b"}, "b"), 1);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestSearchRules)
#include "tst_searchrules.moc"
