// Search rules as they are written on a command line.

#include <QLocale>
#include <QTest>

#include "search/ruletext.h"
#include "search/searchrules.h"
#include "services/docaccess.h"
#include "services/language.h"
#include "services/texts.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

class TestRuleText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() {
        const TestLibrary library;
        LoadResources();
    }
    void init() { QLocale::setDefault(QLocale("en_US")); }

    void aTextGivesItsRule_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("cells");  // connective, property, value, code
        const QString either = Tr(Text::RuleOr);
        const auto row = [](const char* text, const QStringList& cells) {
            QTest::newRow(text) << text << cells;
        };
        row("Author is Smith", {"", "Author", "Smith", "0"});
        row("  author   IS   Ann Smith ", {"", "Author", "Ann Smith", "0"});
        row("Author is (exactly) Smith", {"", "Author", "Smith", "0"});
        row("Author is exactly Smith", {"", "Author", "Smith", "0"});
        row("Author is not Smith", {"", "Author", "Smith", "1"});
        row("Author is nothing", {"", "Author", "nothing", "0"});
        row("Thesis contains is", {"", "Thesis", "is", "2"});
        row("Mass=1", {"", "Mass", "1", "3"});
        row("Mass != 1", {"", "Mass", "1", "4"});
        row("Mass not = 1", {"", "Mass", "1", "4"});
        row("Mass not =1", {"", "Mass", "1", "4"});
        row("Mass<1", {"", "Mass", "1", "5"});
        row("Mass <= 1", {"", "Mass", "1", "6"});
        row("Mass > -1", {"", "Mass", "-1", "7"});
        row("Mass>= 1", {"", "Mass", "1", "8"});
        row("Tested is yes", {"", "Tested", "", "9"});
        row("Tested is No ", {"", "Tested", "", "10"});
        row("Status is \"no\"", {"", "Status", "no", "0"});
        row("Status is no good", {"", "Status", "no good", "0"});
        row("\"This is it\" is that", {"", "This is it", "that", "0"});
        row("\"a=b\"=c", {"", "a=b", "c", "3"});
        row("Note is \" a \"", {"", "Note", " a ", "0"});
        row("or Author is Smith", {either, "Author", "Smith", "0"});
        row("OR Author is Smith", {either, "Author", "Smith", "0"});
        row("and Author is Smith", {"", "Author", "Smith", "0"});
        row("\"or\" is Smith", {"", "or", "Smith", "0"});
        row("Order is 5", {"", "Order", "5", "0"});
        row("file name contains pin", {"", "File name", "pin", "2"});
        row("last saved > 2004-05-31", {"", "Last saved", "2004-05-31", "7"});
        row("last saved by is ann", {"", "Last saved by", "ann", "0"});
    }

    void aTextGivesItsRule() {
        QFETCH(QString, text);
        QFETCH(QStringList, cells);
        const CellRow rule = ParseRule(text);
        QCOMPARE(QStringList({rule.cells[kRuleConnective].text, rule.cells[kRuleProperty].text,
                              rule.cells[kRuleValue].text, rule.cells[kRuleCode].text}),
                 cells);
        // The pane shows the operator as if it had been chosen there.
        QCOMPARE(rule.cells[kRuleOperator].text, OperatorTexts(Operators::All)[cells[3].toInt()]);
    }

    void whatIsNoRuleIsRefused_data() {
        QTest::addColumn<QString>("text");
        for (const char* text :
             {"", "Author", "Authoris Smith", "is Smith", "= 1", "Author is", "Author contains  ",
              "\"Author is Smith", "Mass < heavy", "Mass >= ", "File name = pin", "or",
              "File name is yes", "\"\" is Smith", "Author \"is\" Smith"})
            QTest::newRow(text) << text;
    }

    void whatIsNoRuleIsRefused() {
        QFETCH(QString, text);
        QVERIFY_THROWS_EXCEPTION(DocumentError, ParseRule(text));
    }

    void theWordsOfTheLanguageCountAsWellAsEnglishOnes() {
        const QString author = std::exchange(gStrings[159], QString("Autor"));
        const QString contains = std::exchange(gStrings[298], QString("enth\u00e4lt"));
        for (const QString& text :
             {QString("Autor enth\u00e4lt mi"), QString("author contains mi")}) {
            const CellRow rule = ParseRule(text);
            QCOMPARE(rule.cells[kRuleProperty].text, QString("Autor"));
            QCOMPARE(rule.cells[kRuleOperator].text, QString("enth\u00e4lt"));
            QCOMPARE(ConditionOf(rule).property, QString("Author"));
        }
        gStrings[159] = author;
        gStrings[298] = contains;
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestRuleText)
#include "tst_ruletext.moc"
