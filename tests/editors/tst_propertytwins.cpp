// The property pane on sets with several properties of one name, which only documents of others
// have: all are shown, none is lost, and no edit hits the wrong one.

#include <QFile>

#include "tests/editors/propertiesbench.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// Of a foreign document; "Twice" is there twice, "Colour" in two spellings, "Empty" once more
// without a value.
QByteArray CustomPart() {
    QByteArray part =
        "<Properties xmlns='http://schemas.openxmlformats.org/officeDocument/2006/"
        "custom-properties' xmlns:vt='http://schemas.openxmlformats.org/officeDocument/2006/"
        "docPropsVTypes'>";
    int pid = 2;
    for (const auto& [name, value] : {std::pair("Twice", "<vt:i4>1</vt:i4>"),
                                      {"Twice", "<vt:lpstr>two</vt:lpstr>"},
                                      {"colour", "<vt:lpstr>red</vt:lpstr>"},
                                      {"COLOUR", "<vt:lpstr>blue</vt:lpstr>"},
                                      {"Empty", "<vt:lpstr />"},
                                      {"Empty", "<vt:lpstr>full</vt:lpstr>"}})
        part += "<property fmtid='{D5CDD505-2E9C-101B-9397-08002B2CF9AE}' pid='" +
                QByteArray::number(pid++) + "' name='" + name + "'>" + value + "</property>";
    return part + "</Properties>";
}

const QByteArray kTables =
    "<document xmlns='http://schemas.tessaforma.com/docmodel/2004/document' version='1'>"
    "<configurations><configuration id='1' type='0' name='Short'>"
    "<property name='Twice' type='number'>1</property>"
    "<property name='Twice' type='text'>two</property>"
    "<property name='colour' type='text'>red</property>"
    "<property name='COLOUR' type='text'>blue</property>"
    "<property name='Empty' type='text' />"
    "<property name='Empty' type='text'>full</property>"
    "</configuration></configurations></document>";

struct Bench : PropertiesBench {
    Bench() {
        docmodel::PackageWriter::Create(
            pin, {{"docProps/custom.xml", CustomPart()}, {"docmodel/document.xml", kTables}}, true);
        Load();
        PickConfiguration(0);
    }
    QByteArray Part(const QByteArray& name) {
        return docmodel::Package::Open(pin).ReadPart(name, 1 << 20);
    }
    // The `<property>` elements of the part that holds a set, whatever quotes and line ends it has.
    QList<QByteArray> Elements(int set) {
        QList<QByteArray> elements =
            Part(set == kCustomSet ? "docProps/custom.xml" : "docmodel/document.xml")
                .replace("'", "\"")
                .replace("\n", "")
                .replace("<property ", "\x01<property ")
                .split('\x01');
        elements.removeFirst();
        for (QByteArray& element : elements)
            element.truncate(element.indexOf("</property>") < 0
                                 ? element.indexOf("/>") + 2
                                 : element.indexOf("</property>") + 11);
        return elements;
    }
    void ExpectRefusal() {
        dialogs.Expect(gStrings[170].section("%s", 0, 0) + "The document " + pin + " has several*");
    }
};

void AddRowsForBothSets() {
    QTest::addColumn<int>("set");
    QTest::newRow("configuration") << int(kConfigurationSet);
    QTest::newRow("custom") << int(kCustomSet);
}

}  // namespace

class TestPropertyTwins : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void allWithAValueAreShown_data() { AddRowsForBothSets(); }
    void allWithAValueAreShown() {
        QFETCH(int, set);
        Bench bench;
        QStringList names;
        for (int row = 0; row < bench.Rows(set).Count(); ++row)
            names.append(bench.Row(set, row).section('|', 0, 1));
        QCOMPARE(names,
                 QStringList({"Twice|1", "Twice|two", "colour|red", "COLOUR|blue", "Empty|full"}));
    }

    void anotherEditLeavesThemToTheBit_data() { AddRowsForBothSets(); }
    void anotherEditLeavesThemToTheBit() {
        QFETCH(int, set);
        Bench bench;
        const QList<QByteArray> before = bench.Elements(set);
        QCOMPARE(before.size(), 6);
        bench.Put(set, "Owner", "Castings");
        bench.Apply();
        bench.Put(set, "Owner", "Drives");
        bench.Apply();
        const QList<QByteArray> after = bench.Elements(set);
        QCOMPARE(after.first(6), before);
        QCOMPARE(after.size(), 7);
        bench.Remove(set, "Owner");
        bench.Apply();
        QCOMPARE(bench.Elements(set), before);
    }

    void anEditOfANameThatIsThereTwiceIsRefused_data() { AddRowsForBothSets(); }
    void anEditOfANameThatIsThereTwiceIsRefused() {
        QFETCH(int, set);
        Bench bench;
        for (const char* name : {"Twice", "TWICE", "Empty", "Colour"}) {
            bench.ExpectRefusal();
            bench.Put(set, name, "three");
            QVERIFY(bench.dialogs.AllCame());
            QCOMPARE(bench.Value(set)->text(), QString("three"));  // what was typed stays
            bench.ExpectRefusal();
            bench.Remove(set, name);
            QVERIFY(bench.dialogs.AllCame());
        }
        bench.ClickRow(set, 1);
        bench.Value(set)->setText("three");
        bench.ExpectRefusal();
        QTest::mouseClick(bench.AddButton(set), Qt::LeftButton);
        QCOMPARE(bench.Rows(set).Count(), 5);
        QVERIFY(!bench.ApplyButton()->isEnabled());
    }

    void aSpellingOfItsOwnCanBeEdited_data() { AddRowsForBothSets(); }
    void aSpellingOfItsOwnCanBeEdited() {
        QFETCH(int, set);
        Bench bench;
        const QList<QByteArray> before = bench.Elements(set);
        bench.ClickRow(set, 3);
        bench.Value(set)->setText("green");
        QTest::mouseClick(bench.AddButton(set), Qt::LeftButton);
        QCOMPARE(bench.Row(set, 2).section('|', 0, 1), QString("colour|red"));
        QCOMPARE(bench.Row(set, 3).section('|', 0, 1), QString("COLOUR|green"));
        bench.Apply();
        QList<QByteArray> after = bench.Elements(set);
        QVERIFY(after[3].contains("green"));
        after[3] = before[3];
        QCOMPARE(after, before);
        bench.Remove(set, "COLOUR");
        bench.Apply();
        after = before;
        after.removeAt(3);
        QCOMPARE(bench.Elements(set), after);
    }

    void theOneThatIsLeftCanBeEditedInAnySpelling_data() { AddRowsForBothSets(); }
    void theOneThatIsLeftCanBeEditedInAnySpelling() {
        QFETCH(int, set);
        Bench bench;
        bench.Remove(set, "COLOUR");
        bench.ExpectRefusal();
        bench.Put(set, "Colour", "green");  // both are still in the document
        QVERIFY(bench.dialogs.AllCame());
        bench.Apply();
        bench.Put(set, "Colour", "green");
        QCOMPARE(bench.Row(set, 2).section('|', 0, 1), QString("colour|green"));
        bench.Apply();
        QCOMPARE(set == kCustomSet ? bench.Stored("colour") : bench.StoredIn(0, "colour"),
                 QVariant("green"));
    }
};

DOCBENCH_TEST_MAIN(QApplication, TestPropertyTwins)
#include "tst_propertytwins.moc"
