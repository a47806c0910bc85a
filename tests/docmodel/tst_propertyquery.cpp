// Rules on the properties of documents: what satisfies which, and what joins them.

#include <QLocale>
#include <QTemporaryDir>
#include <QTest>
#include <limits>

#include "docmodel/referenceindex.h"
#include "tests/docmodel/documenttools.h"
#include "tests/docmodel/searchtools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;
using docbench::PropertyQuery;

namespace {

// Operator codes.
enum { Is, IsNot, Contains, Equal, NotEqual, Less, AtMost, More, AtLeast, Yes, No, kOperators };

std::unique_ptr<PropertyQuery> MakeQuery() {
    return Access().MakePropertyQuery({.fileName = "File name", .yes = "Yes", .no = "No"});
}

QDateTime Day(int year, int month, int day) {
    return QDate(year, month, day).startOfDay();
}

const QDateTime kDay = Day(2004, 5, 31);
const QDateTime kNextDay = Day(2004, 6, 1);
const QDateTime kMinute = kDay.addSecs((14 * 60 + 5) * 60);

struct UserLocale {
    explicit UserLocale(const char* name) { QLocale::setDefault(QLocale(name)); }
    ~UserLocale() { QLocale::setDefault(QLocale("en_US")); }
};

}  // namespace

class TestPropertyQuery : public QObject {
    Q_OBJECT

private:
    const UnsyncedDisk disk_;
    QTemporaryDir folder_;

    QString Path(const QString& name) const { return folder_.filePath(name); }
    QString Make(const QString& name, const QList<std::pair<QString, QVariant>>& properties) const {
        DocumentBuilder document =
            DocumentBuilder::New(Path(name), DocumentBuilder::IfThere::Replace);
        for (const auto& [property, value] : properties)
            document.SetCustomProperty(property, value);
        document.Save();
        return Path(name);
    }
    // Whether the document satisfies one rule.
    static bool Holds(const QString& path, const QString& property, int operatorCode,
                      const QVariant& value) {
        const auto query = MakeQuery();
        query->AddCondition("AND", property, operatorCode, value);
        query->SetFileName(path.section('/', -1));
        return query->Evaluate(path);
    }

private Q_SLOTS:
    void initTestCase() {
        QLocale::setDefault(QLocale("en_US"));
        GlobalIndexSettings().isOn = false;
    }

    // One digit an operator, in the order of their codes:
    // is, is not, contains, =, not =, <, <=, >, >=, is Yes, is No.
    void EveryKindOfPropertyAnswersEveryOperatorAndValue_data() {
        QTest::addColumn<QVariant>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("answers");
        const QVariant none;
        const std::vector<std::pair<const char*, QVariant>> values = {
            {"text alpha beta", "alpha beta"},
            {"text pha", "pha"},
            {"text 12", "12"},
            {"number 12", 12.0},
            {"number 13", 13.0},
            {"day", kDay},
            {"next day", kNextDay},
            {"minute", kMinute},
            {"yes", true},
            {"no", false},
            {"nothing", none},
            {"empty text", ""},
        };
        struct Row {
            const char* name;
            QVariant property;
            std::vector<const char*> answers;
        };
        const std::vector<Row> rows = {
            {"lacking",
             none,
             {"01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "00000000000", "00000000000"}},
            {"empty",
             "",
             {"01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "00000000000", "00000000000"}},
            {"text Alpha Beta",
             "Alpha Beta",
             {"10110000000", "01101000000", "01001000000", "01001000000", "01001000000",
              "01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "00000000000", "00000000000"}},
            {"text 12",
             "12",
             {"01001000000", "01001000000", "10110000000", "10010010100", "01001110000",
              "01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "00000000000", "00000000000"}},
            {"text 2004-05-31",
             "2004-05-31",
             {"01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "10010010100", "01001110000", "01001110000", "01001000000", "01001000000",
              "00000000000", "00000000000"}},
            // No yes, though it reads like one.
            {"text Yes",
             "Yes",
             {"01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "00000000000", "00000000000"}},
            {"text 2004-05-31 14:05",
             "2004-05-31 14:05",
             {"01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "10010010100", "01001110000", "10010010100", "01001000000", "01001000000",
              "00000000000", "00000000000"}},
            {"text 5/31/2004 2:05 PM",
             "5/31/2004 2:05 PM",
             {"01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "10010010100", "01001110000", "10010010100", "01001000000", "01001000000",
              "00000000000", "00000000000"}},
            {"number 12",
             12.0,
             {"01001000000", "01001000000", "10110000000", "10010010100", "01001110000",
              "01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "00000000000", "00000000000"}},
            {"day",
             kDay,
             {"01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "10010010100", "01001110000", "01001110000", "01001000000", "01001000000",
              "00000000000", "00000000000"}},
            {"nine seconds past the minute",
             kMinute.addSecs(9),
             {"01001000000", "01001000000", "01001000000", "01001000000", "01001000000",
              "10010010100", "01001110000", "10010010100", "01001000000", "01001000000",
              "00000000000", "00000000000"}},
            {"yes",
             true,
             {"01001000010", "01001000010", "01001000010", "01001000010", "01001000010",
              "01001000010", "01001000010", "01001000010", "10010000010", "01001000010",
              "00000000000", "00000000000"}},
            {"no",
             false,
             {"01001000001", "01001000001", "01001000001", "01001000001", "01001000001",
              "01001000001", "01001000001", "01001000001", "01001000001", "10010000001",
              "00000000000", "00000000000"}},
        };
        for (const Row& row : rows)
            for (size_t i = 0; i < values.size(); ++i)
                QTest::addRow("%s - %s", row.name, values[i].first)
                    << row.property << values[i].second << QString(row.answers[i]);
    }
    void EveryKindOfPropertyAnswersEveryOperatorAndValue() {
        QFETCH(QVariant, property);
        QFETCH(QVariant, value);
        QFETCH(QString, answers);
        const QString path =
            property.isValid() ? Make("table.tfmprt", {{"P", property}}) : Make("table.tfmprt", {});
        QString given;
        for (int code = 0; code < kOperators; ++code)
            given += Holds(path, "P", code, value) ? '1' : '0';
        QCOMPARE(given, answers);
    }

    // Texts are compared with what the user sees of a property, but for numbers and dates as such.
    void EveryOperatorLooksAtTextsAsTheUserSeesThem_data() {
        QTest::addColumn<QVariant>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("answers");
        const std::vector<const char*> values = {"5/31/2004", "yes", "0.250"};
        struct Row {
            const char* name;
            QVariant property;
            std::vector<const char*> answers;
        };
        const std::vector<Row> rows = {
            {"day", kDay, {"10110000000", "01001000000", "01001000000"}},
            {"nine seconds past the minute",
             kMinute.addSecs(9),
             {"01101000000", "01001000000", "01001000000"}},
            {"yes", true, {"01001000010", "10110000010", "01001000010"}},
            {"no", false, {"01001000001", "01001000001", "01001000001"}},
            {"a quarter", 0.25, {"01001000000", "01001000000", "10010000000"}},
        };
        for (const Row& row : rows)
            for (size_t i = 0; i < values.size(); ++i)
                QTest::addRow("%s - %s", row.name, values[i])
                    << row.property << QVariant(values[i]) << QString(row.answers[i]);
    }
    void EveryOperatorLooksAtTextsAsTheUserSeesThem() {
        EveryKindOfPropertyAnswersEveryOperatorAndValue();
    }

    void DatesOfTheSummaryAnswerAsThoseOfPropertiesDo() {
        const QDateTime created = kMinute.addSecs(9);
        auto document = DocumentBuilder::New(Path("a.tfmprt"), DocumentBuilder::IfThere::Replace);
        document.SetCreated(created);
        document.SetCustomProperty("P", created);
        document.Save();
        const QVariantList values = {kDay,  kNextDay, kMinute, created,    "2004",
                                     "pha", 12.0,     true,    QVariant(), "5/31/2004"};
        for (const QVariant& value : values)
            for (int code = 0; code < kOperators; ++code)
                QCOMPARE(Holds(Path("a.tfmprt"), "Created", code, value),
                         Holds(Path("a.tfmprt"), "P", code, value));
    }

    void OperatorsThatThereAreNotMatchNothing() {
        const QString path = Make("a.tfmprt", {{"P", "x"}});
        for (const int code : {-1, 11, 1000, std::numeric_limits<int>::max()})
            QVERIFY(!Holds(path, "P", code, "x"));
    }

    void LetterCaseCountsInNoLanguage() {
        const QString path = Make("a.tfmprt", {{"Maker", QString::fromUtf8("Énergie ÄÖÜ")}});
        QVERIFY(Holds(path, "Maker", Is, QString::fromUtf8("éNERGIE äöü")));
        QVERIFY(Holds(path, "Maker", Contains, QString::fromUtf8("äöü")));
        QVERIFY(!Holds(path, "Maker", IsNot, QString::fromUtf8("énergie äöü")));
    }

    void KeysReachTheFieldsOfTheSummary_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("title") << "Title" << QVariant("the title");
        QTest::newRow("author") << "Author" << QVariant("the author");
        QTest::newRow("comments") << "Comments" << QVariant("the comments");
        QTest::newRow("keywords") << "Keywords" << QVariant("the keywords");
        QTest::newRow("subject") << "Subject" << QVariant("the subject");
        QTest::newRow("saved by") << "Last Saved by" << QVariant("the user");
        QTest::newRow("saved") << "Last Saved" << QVariant(kNextDay);
        QTest::newRow("created") << "Created" << QVariant(kDay);
        QTest::newRow("any letters") << "lAST sAVED BY" << QVariant("THE USER");
        QTest::newRow("custom") << "Created by" << QVariant("somebody");
    }
    void KeysReachTheFieldsOfTheSummary() {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        auto document = DocumentBuilder::New(Path("a.tfmprt"), DocumentBuilder::IfThere::Replace);
        document.SetTitle("The title");
        document.SetAuthor("The author");
        document.SetComments("The comments");
        document.SetKeywords("The keywords");
        document.SetSubject("The subject");
        document.SetCreated(kDay.addSecs(3600));
        document.SetLastSaved(kNextDay.addSecs(7200), "The user");
        document.SetCustomProperty("Created by", "Somebody");
        document.SetCustomProperty("Title", "a custom property that no key reaches");
        document.Save();
        QVERIFY(Holds(Path("a.tfmprt"), key, Is, value));
        QVERIFY(!Holds(Path("a.tfmprt"), key, IsNot, value));
    }

    void AnEmptyFieldOfTheSummaryIsLacking() {
        const QString path = Make("a.tfmprt", {});
        QVERIFY(!Holds(path, "Title", Is, "x"));
        QVERIFY(Holds(path, "Title", IsNot, "x"));
        QVERIFY(Holds(path, "Title", NotEqual, 1.0));
        QVERIFY(!Holds(path, "Title", IsNot, ""));
    }

    void NamesOfCustomPropertiesIgnoreLetterCaseButTheSameSpellingGoesFirst() {
        const QString path = Make("a.tfmprt", {{"Weight", 3.0}});
        QVERIFY(Holds(path, "WEIGHT", Equal, 3.0));
        const char kCustom[] =
            "<Properties xmlns=\"http://schemas.openxmlformats.org/officeDocument/2006/"
            "custom-properties\" xmlns:vt=\"http://schemas.openxmlformats.org/officeDocument/2006/"
            "docPropsVTypes\"><property pid=\"2\" name=\"weight\"><vt:i4>1</vt:i4></property>"
            "<property pid=\"3\" name=\"Weight\"><vt:decimal>2</vt:decimal></property>"
            "</Properties>";
        PackageWriter::Create(
            path,
            {{ContentTypes::kPart, ContentTypes(nullptr).Bytes()}, {kCustomKind.name, kCustom}},
            true);
        QVERIFY(Holds(path, "Weight", Equal, 2.0));
        QVERIFY(Holds(path, "weight", Equal, 1.0));
        QVERIFY(Holds(path, "WEIGHT", Equal, 1.0));
    }

    void WholeDaysAndMinutesAreComparedAsSuch() {
        const QString path = Make("a.tfmprt", {{"P", kMinute.addSecs(9)}});
        QVERIFY(Holds(path, "P", AtMost, kDay));
        QVERIFY(Holds(path, "P", AtLeast, kDay));
        QVERIFY(!Holds(path, "P", More, kDay));
        QVERIFY(Holds(path, "P", More, Day(2004, 5, 30)));
        QVERIFY(!Holds(path, "P", More, kMinute));
        QVERIFY(Holds(path, "P", More, kMinute.addSecs(8)));
        QVERIFY(Holds(path, "P", Less, kMinute.addSecs(10)));
        QVERIFY(Holds(path, "P", Is, kMinute.addSecs(9)));
        const QString old = Make("b.tfmprt", {{"P", Day(1899, 12, 30).addSecs(59)}});
        QVERIFY(Holds(old, "P", Is, Day(1899, 12, 30)));
        QVERIFY(Holds(old, "P", Less, Day(1899, 12, 30).addSecs(60)));
        QVERIFY(!Holds(old, "P", Less, Day(1899, 12, 30).addSecs(59)));
    }

    void TextsAreReadByTheUsersLocaleElseAsPlainValues() {
        const UserLocale german("de_DE");
        const QString path = Make(
            "a.tfmprt",
            {{"Mine", "1.234,5"}, {"Plain", "1234.5"}, {"Day", "31.05.2004"}, {"Stored", 1234.5}});
        for (const char* name : {"Mine", "Plain", "Stored"}) {
            QVERIFY2(Holds(path, name, Equal, 1234.5), name);
            QVERIFY2(Holds(path, name, Less, 1235.0), name);
        }
        QVERIFY(Holds(path, "Stored", Is, "1.234,5"));
        QVERIFY(Holds(path, "Stored", Contains, "234,5"));
        QVERIFY(Holds(path, "Day", Is, kDay));
        QVERIFY(!Holds(path, "Day", Is, Day(2004, 5, 30)));
    }

    void RulesOnTextsLookAtWhatTheUserSees() {
        const QString path =
            Make("a.tfmprt", {{"Day", kDay}, {"Done", true}, {"Open", false}, {"N", 0.25}});
        QVERIFY(Holds(path, "Day", Contains, "/2004"));
        QVERIFY(Holds(path, "Day", Is, "5/31/2004"));
        QVERIFY(Holds(path, "Done", Is, "yes"));
        QVERIFY(Holds(path, "Open", Contains, "n"));
        QVERIFY(!Holds(path, "Open", Is, "yes"));
        QVERIFY(Holds(path, "N", Contains, ".25"));
        QVERIFY(Holds(path, "N", Is, "0.250"));
    }

    void AbsurdNumbersAndDatesAreValuesLikeAny() {
        const double largest = std::numeric_limits<double>::max();
        const QString path = Make("a.tfmprt", {{"Huge", largest},
                                               {"Tiny", 5e-324},
                                               {"Text", "1e400"},
                                               {"Long", QString(100'000, '9')},
                                               {"Far", Day(9999, 12, 31)}});
        QVERIFY(Holds(path, "Huge", Equal, largest));
        QVERIFY(!Holds(path, "Huge", Less, largest));
        QVERIFY(Holds(path, "Huge", Less, std::numeric_limits<double>::infinity()));
        QVERIFY(!Holds(path, "Huge", Equal, std::numeric_limits<double>::quiet_NaN()));
        QVERIFY(!Holds(path, "Huge", Less, std::numeric_limits<double>::quiet_NaN()));
        QVERIFY(!Holds(path, "Huge", AtLeast, std::numeric_limits<double>::quiet_NaN()));
        QVERIFY(Holds(path, "Tiny", More, 0.0));
        QVERIFY(!Holds(path, "Text", More, 0.0));
        QVERIFY(!Holds(path, "Long", Is, kDay));
        QVERIFY(Holds(path, "Far", More, Day(2004, 1, 1)));
        QVERIFY(Holds(path, "Far", Less, QDateTime(QDate(200'000, 1, 1), QTime(12, 0))));
        QVERIFY(!Holds(path, "Far", IsNot, QDateTime()));
    }

    void ManyTextsAreReadAsDates() {
        const auto query = MakeQuery();
        query->AddCondition("AND", "P", Is, kDay);
        for (int round = 0; round < 2; ++round)
            for (const char* text : {"5/31/2004", "5/30/2004", "soon", "31", ""})
                QCOMPARE(query->Evaluate(Make("a.tfmprt", {{"P", text}})),
                         QByteArray(text) == "5/31/2004");
    }

    void RulesOnTheFileName_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("holds");
        QTest::newRow("any extension") << int(Is) << QVariant("BOLT.v2.*") << true;
        QTest::newRow("not that base") << int(Is) << QVariant("bolt.*") << false;
        QTest::newRow("whole") << int(Is) << QVariant("bolt.V2.tfmprt") << true;
        QTest::newRow("other extension") << int(Is) << QVariant("bolt.v2.tfmasm") << false;
        QTest::newRow("star elsewhere") << int(Is) << QVariant("b*.v2.*") << false;
        QTest::newRow("is not") << int(IsNot) << QVariant("bolt.v2.*") << false;
        QTest::newRow("is not another") << int(IsNot) << QVariant("nut.*") << true;
        QTest::newRow("is nothing") << int(Is) << QVariant(".*") << false;
        QTest::newRow("is not nothing") << int(IsNot) << QVariant(".*") << false;
        QTest::newRow("equal") << int(Equal) << QVariant("bolt.v2.*") << true;
        QTest::newRow("not equal") << int(NotEqual) << QVariant("bolt.v2.*") << false;
        QTest::newRow("contains") << int(Contains) << QVariant("OLT.") << true;
        QTest::newRow("contains a star") << int(Contains) << QVariant(".*") << false;
        QTest::newRow("less") << int(Less) << QVariant("bolt.v2.*") << false;
        QTest::newRow("is Yes") << int(Yes) << QVariant(true) << false;
        QTest::newRow("nothing") << int(IsNot) << QVariant() << false;
    }
    void RulesOnTheFileName() {
        QFETCH(int, code);
        QFETCH(QVariant, value);
        QFETCH(bool, holds);
        const QString path = Make("bolt.v2.tfmprt", {{"file name", "a custom property"}});
        QCOMPARE(Holds(path, "File name", code, value), holds);
    }

    void OnlyTheExactWordStandsForTheFileName() {
        const QString path = Make("bolt.tfmprt", {{"file name", "custom"}});
        QVERIFY(Holds(path, "file name", Is, "custom"));
        const auto wordless = Access().MakePropertyQuery({});
        wordless->AddCondition("AND", "", Is, "bolt.*");
        wordless->SetFileName("bolt.tfmprt");
        QVERIFY(!wordless->Evaluate(path));
    }

    void ConnectivesApplyFromLeftToRight_data() {
        QTest::addColumn<QString>("rules");  // "t" and "f", "&" and "|"
        QTest::addColumn<bool>("matches");
        const std::vector<std::pair<const char*, bool>> rows = {
            {"t", true},       {"f", false},      {"t&t", true},    {"t&f", false},
            {"f&t", false},    {"t|f", true},     {"f|t", true},    {"f|f", false},
            {"t|t&f", false},  {"t|f&f", false},  {"f&f|t", true},  {"f&t|t", true},
            {"t|f&t", true},   {"f|f&t", false},  {"t&f|f", false}, {"t&f|t&t", true},
            {"f|t&f|t", true}, {"t|t|t&f", false}};
        for (const auto& [rules, matches] : rows)
            QTest::newRow(rules) << rules << matches;
    }
    void ConnectivesApplyFromLeftToRight() {
        QFETCH(QString, rules);
        QFETCH(bool, matches);
        const QString path = Make("a.tfmprt", {{"P", 1.0}});
        for (const char* first : {"AND", "OR"}) {
            const auto query = MakeQuery();
            for (qsizetype i = 0; i < rules.size(); i += 2) {
                const char* connective = i == 0 ? first : rules[i - 1] == '&' ? "AND" : "OR";
                query->AddCondition(connective, "P", Equal, rules[i] == 't' ? 1.0 : 2.0);
            }
            QCOMPARE(query->Evaluate(path), matches);
        }
    }

    void AnyOtherConnectiveIsRefused() {
        const auto query = MakeQuery();
        for (const char* connective : {"", "and", "XOR", "OR "})
            QVERIFY_THROWS_EXCEPTION(DocumentError, query->AddCondition(connective, "P", Is, "x"));
        QVERIFY(!query->Evaluate(Make("a.tfmprt", {{"P", "x"}})));
    }

    void WithoutRulesNothingMatches() { QVERIFY(!MakeQuery()->Evaluate(Make("a.tfmprt", {}))); }

    void DocumentsThatCanNotBeReadMatchNothing() {
        const auto query = MakeQuery();
        query->AddCondition("AND", "P", IsNot, "x");
        QFile broken(Path("broken.tfmprt"));
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("no package") > 0);
        broken.close();
        QDir().mkpath(Path("folder.tfmprt"));
        Make("good.tfmprt", {});
        PackageWriter::Create(Path("badxml.tfmprt"), {{kCoreKind.name, "<oops"}}, true);
        for (const char* name : {"broken.tfmprt", "folder.tfmprt", "lost.tfmprt", "badxml.tfmprt",
                                 "nowhere/at/all.tfmprt", ""})
            QVERIFY2(!query->Evaluate(Path(name)), name);
        QVERIFY(query->Evaluate(Path("good.tfmprt")));
        QCOMPARE(query->GetSearchCounts().documents, 7);
        QCOMPARE(query->GetSearchCounts().unread, 6);
    }

    void APackageWithoutPropertiesLacksThemAll() {
        WriteTables(Path("bare.tfmprt"), Tables(""));
        QVERIFY(Holds(Path("bare.tfmprt"), "Title", IsNot, "x"));
        QVERIFY(!Holds(Path("bare.tfmprt"), "Title", Contains, "x"));
    }

    // Relationships are remembered from one document to the next.
    void EachDocumentIsReadByItsOwnRelationships() {
        const auto make = [this](const QString& name, const QByteArray& core) {
            const QByteArray relationships =
                "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/"
                "relationships\"><Relationship Id=\"r\" Target=\"" +
                core + "\" Type=\"" + kCoreKind.relationship + "\"/></Relationships>";
            const auto titled = [](const QByteArray& title) {
                return "<c:coreProperties xmlns:c=\"http://schemas.openxmlformats.org/package/2006/"
                       "metadata/core-properties\" xmlns:d=\"http://purl.org/dc/elements/1.1/\">"
                       "<d:title>" +
                       title + "</d:title></c:coreProperties>";
            };
            PackageWriter::Create(Path(name),
                                  {{Relationships::kPart, relationships},
                                   {"one.xml", titled("one.xml")},
                                   {"two.xml", titled("two.xml")}},
                                  true);
            return Path(name);
        };
        const QString one = make("one.tfmprt", "one.xml");
        const QString two = make("two.tfmprt", "two.xml");
        for (int round = 0; round < 3; ++round) {
            QVERIFY(Holds(one, "Title", Is, "one.xml"));
            QVERIFY(Holds(two, "Title", Is, "two.xml"));
            QVERIFY(Holds(two, "Title", Is, "two.xml"));
        }
    }

    void DocumentsMayBeGivenByRelativePaths() {
        Make("a.tfmprt", {{"P", "x"}});
        const QString former = QDir::currentPath();
        QDir::setCurrent(folder_.path());
        const bool holds = Holds("a.tfmprt", "P", Is, "x");
        QDir::setCurrent(former);
        QVERIFY(holds);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestPropertyQuery)
#include "tst_propertyquery.moc"
