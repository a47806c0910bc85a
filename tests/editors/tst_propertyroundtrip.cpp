// What the property pane writes, read by a program that has nothing of ours: Python's zipfile and
// ElementTree on the parts that the packaging standard names.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QRandomGenerator>

#include "services/localvalues.h"
#include "tests/docmodel/packagetools.h"
#include "tests/editors/propertiesbench.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// Prints summary and custom properties of a package as JSON, found by their relationships.
const QString kReader = QStringLiteral(R"(
import json, sys, zipfile
import xml.etree.ElementTree as ET
REL = '{http://schemas.openxmlformats.org/package/2006/relationships}Relationship'
CORE = 'http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties'
CUSTOM = ('http://schemas.openxmlformats.org/officeDocument/2006/relationships/'
          'custom-properties')
CP = '{http://schemas.openxmlformats.org/package/2006/metadata/core-properties}'
DC = '{http://purl.org/dc/elements/1.1/}'
TERMS = '{http://purl.org/dc/terms/}'
PROPERTY = '{http://schemas.openxmlformats.org/officeDocument/2006/custom-properties}property'
VT = '{http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes}'
package = zipfile.ZipFile(sys.argv[1])
assert package.testzip() is None
targets = {r.get('Type'): r.get('Target').lstrip('/')
           for r in ET.fromstring(package.read('_rels/.rels')).iter(REL)}
core = ET.fromstring(package.read(targets[CORE]))
text = lambda tag: core.findtext(tag) or ''
created, modified = core.find(TERMS + 'created'), core.find(TERMS + 'modified')
for time in filter(lambda t: t is not None, (created, modified)):
    assert list(time.attrib.values()) == ['dcterms:W3CDTF'], time.attrib
custom = []
for p in ET.fromstring(package.read(targets[CUSTOM])).iter(PROPERTY):
    assert p.get('fmtid') == '{D5CDD505-2E9C-101B-9397-08002B2CF9AE}'
    (value,) = list(p)
    assert value.tag.startswith(VT)
    custom.append([p.get('name'), value.tag[len(VT):], value.text or '', int(p.get('pid'))])
assert len({c[3] for c in custom}) == len(custom) and all(c[3] >= 2 for c in custom)
print(json.dumps({'title': text(DC + 'title'), 'subject': text(DC + 'subject'),
                  'creator': text(DC + 'creator'), 'keywords': text(CP + 'keywords'),
                  'description': text(DC + 'description'), 'created': text(TERMS + 'created'),
                  'modified': modified.text, 'custom': [c[:3] for c in custom]}))
)");

QJsonObject ReadByPython(const QString& path) {
    const QByteArray output = docmodel::RunPython(kReader, {path});
    const QJsonObject read = QJsonDocument::fromJson(output).object();
    if (read.isEmpty())
        qWarning("%s", output.constData());
    return read;
}

// Random texts of characters of all planes, and values of all types.
class Random {
public:
    explicit Random(quint32 seed) : generator_(seed) {}

    int Below(int bound) { return int(generator_.bounded(bound)); }
    QString Text(int longest) {
        QString text;
        for (int count = Below(longest) + 1; count > 0; --count)
            text += Character();
        return text;
    }
    double Number() {
        const double mantissa = generator_.generateDouble() * 2 - 1;
        return mantissa * std::pow(10.0, Below(40) - 20);
    }
    QDateTime Date() {
        const QDateTime day = QDate(1930, 1, 1).addDays(Below(36500)).startOfDay();
        return Below(2) == 0 ? day : day.addSecs(1 + Below(80000));
    }

private:
    QString Character() {
        static constexpr std::pair<char32_t, char32_t> kRanges[] = {
            {0x20, 0x7E},     {0x20, 0x7E},       {0xA0, 0x17F},
            {0x370, 0x5FF},   {0x2010, 0x2027},   {0x4E00, 0x9FFF},
            {0xE000, 0xF8FF}, {0x1F300, 0x1F6FF}, {0x20000, 0x2A6DF}};
        const auto [first, last] = kRanges[Below(int(std::size(kRanges)))];
        const char32_t one = first + char32_t(Below(int(last - first) + 1));
        return QString::fromUcs4(&one, 1);
    }
    QRandomGenerator generator_;
};

// A moment in UTC, a whole day as its own date: what any reader takes for the same day.
QString StoredDate(const QDateTime& date) {
    if (date == date.date().startOfDay())
        return date.date().toString(Qt::ISODate) + "T00:00:00Z";
    return date.toUTC().toString(Qt::ISODate);
}

struct Property {
    QString name;
    int type = 0;
    QString typed;      // of yes or no, empty for no
    QJsonArray stored;  // name, element, text
};

Property MakeProperty(Random& random, int number) {
    const QString name = QString("%1 %2").arg(number).arg(random.Text(20));
    switch (random.Below(4)) {
        case 1: {
            const QDateTime date = random.Date();
            return {name, 1, DateToLocal(date), {name, "filetime", StoredDate(date)}};
        }
        case 2: {
            const double value = random.Number();
            return {name,
                    2,
                    NumberToLocal(value),
                    {name, "r8", QString::number(value, 'g', QLocale::FloatingPointShortest)}};
        }
        case 3: {
            const bool yes = random.Below(2) == 0;
            return {name, 3, yes ? "yes" : "", {name, "bool", yes ? "true" : "false"}};
        }
        default: {
            const QString text = random.Text(200);
            return {name, 0, text, {name, "lpwstr", text}};
        }
    }
}

void PutYesOrNo(PropertiesBench& bench, const QString& name, bool yes) {
    bench.ShowTabOf(kCustomSet);
    bench.Name(kCustomSet)->setEditText(name);
    bench.Type(kCustomSet)->setCurrentIndex(3);
    bench.Of<QRadioButton>(kCustomSet, yes ? "OptionYes" : "OptionNo")->click();
    bench.Click(bench.AddButton(kCustomSet));
}

}  // namespace

class TestPropertyRoundTrip : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void randomPropertiesAreWhatTheStandardSays_data() {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("seed");
        for (const char* locale : {"C", "en_US", "de_DE", "ar_EG"})
            for (int seed = 1; seed <= 2; ++seed)
                QTest::addRow("%s, %d", locale, seed) << locale << seed;
    }
    void randomPropertiesAreWhatTheStandardSays() {
        QFETCH(QString, locale);
        QFETCH(int, seed);
        QLocale::setDefault(QLocale(locale));
        Random random{quint32(seed)};
        PropertiesBench bench;
        bench.Load();
        for (const char* name : {"Material", "Checked", "Mass", "Released"})
            bench.Remove(kCustomSet, name);
        QJsonArray expected;
        for (int number = 0; number < 25; ++number) {
            const Property property = MakeProperty(random, number);
            if (property.type == 3)
                PutYesOrNo(bench, property.name, !property.typed.isEmpty());
            else
                bench.Put(kCustomSet, property.name, property.typed, property.type);
            expected.append(property.stored);
        }
        QStringList summary;
        for (const int field : {0, 1, 2, 5}) {
            summary.append(random.Text(500));
            bench.Summary(field)->setText(summary.last());
        }
        const QString comments = random.Text(500) + "\n\n " + random.Text(500) + '\n';
        bench.Comments()->setPlainText(comments);
        bench.Apply();

        const QJsonObject read = ReadByPython(bench.pin);
        QCOMPARE(read["custom"].toArray(), expected);
        QCOMPARE(read["title"].toString(), summary[0]);
        QCOMPARE(read["subject"].toString(), summary[1]);
        QCOMPARE(read["creator"].toString(), summary[2]);
        QCOMPARE(read["keywords"].toString(), summary[3]);
        QCOMPARE(read["description"].toString(), comments);
        const QDateTime modified = QDateTime::fromString(read["modified"].toString(), Qt::ISODate);
        QCOMPARE(QLocale().toString(modified.toLocalTime(), QLocale::ShortFormat),
                 bench.Fact("labLastsaved"));
        QVERIFY(read["created"].toString() <= read["modified"].toString());

        // And read again here, nothing edited: written back as they are.
        bench.Load();
        bench.Put(kCustomSet, "Last", "x");
        QLocale::setDefault(QLocale("fr_FR"));
        bench.Apply();
        expected.append(QJsonArray{"Last", "lpwstr", "x"});
        QCOMPARE(ReadByPython(bench.pin)["custom"].toArray(), expected);
        QLocale::setDefault(QLocale::system());
    }

    void aHundredThousandCharactersAreReadWhole() {
        PropertiesBench bench;
        const QString text = QString::fromUtf8("<&\u4f53\U0001F529>").repeated(20000);
        bench.Load();
        bench.Put(kCustomSet, "Long", text);
        bench.Summary(5)->setText(text);
        bench.Apply();
        const QJsonObject read = ReadByPython(bench.pin);
        QCOMPARE(read["keywords"].toString(), text);
        QCOMPARE(read["custom"].toArray().last().toArray()[2].toString(), text);
    }

    void propertiesOfOthersKeepTheirElements() {
        PropertiesBench bench;
        const QByteArray custom =
            "<Properties xmlns='http://schemas.openxmlformats.org/officeDocument/2006/"
            "custom-properties' xmlns:vt='http://schemas.openxmlformats.org/officeDocument/2006/"
            "docPropsVTypes'>"
            "<property fmtid='{D5CDD505-2E9C-101B-9397-08002B2CF9AE}' pid='2' name='Count'>"
            "<vt:i8>9007199254740993</vt:i8></property>"
            "<property fmtid='{D5CDD505-2E9C-101B-9397-08002B2CF9AE}' pid='3' name='Price'>"
            "<vt:decimal>1.10</vt:decimal></property>"
            "<property fmtid='{D5CDD505-2E9C-101B-9397-08002B2CF9AE}' pid='4' name='Twice'>"
            "<vt:lpstr>one</vt:lpstr></property>"
            "<property fmtid='{D5CDD505-2E9C-101B-9397-08002B2CF9AE}' pid='5' name='Twice'>"
            "<vt:lpstr>two</vt:lpstr></property>"
            "<property fmtid='{D5CDD505-2E9C-101B-9397-08002B2CF9AE}' pid='6' name='Day'>"
            "<vt:date>2004-05-31</vt:date></property></Properties>";
        docmodel::PackageWriter::Create(
            bench.pin,
            {{"docProps/custom.xml", custom},
             {"docProps/core.xml",
              "<coreProperties xmlns='http://schemas.openxmlformats.org/package/2006/metadata/"
              "core-properties'/>"}},
            true);
        bench.Load();
        QCOMPARE(bench.Rows(kCustomSet).Count(), 5);
        bench.Put(kCustomSet, "Owner", "Castings");
        bench.Apply();
        const QJsonArray read = ReadByPython(bench.pin)["custom"].toArray();
        QCOMPARE(read,
                 QJsonArray(
                     {QJsonArray{"Count", "i8", "9007199254740993"},
                      QJsonArray{"Price", "decimal", "1.10"}, QJsonArray{"Twice", "lpstr", "one"},
                      QJsonArray{"Twice", "lpstr", "two"}, QJsonArray{"Day", "date", "2004-05-31"},
                      QJsonArray{"Owner", "lpwstr", "Castings"}}));
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestPropertyRoundTrip)
#include "tst_propertyroundtrip.moc"
