#include <QFile>
#include <QTest>

#include "cells/celllist.h"
#include "services/folderlists.h"
#include "services/listtable.h"
#include "tests/services/settingsaccess.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

void Store(const QString& name, const QString& folders) {
    const auto key =
        SettingsKey::Open(SettingsKey::Hive::CurrentUser, QLatin1String(kExtReferencesKey));
    QVERIFY(key->SetText(name, folders));
}

CellRow Row(const QStringList& texts) {
    CellRow row;
    for (const QString& text : texts)
        row.cells.push_back({.text = text});
    return row;
}

}  // namespace

class tst_FolderLists : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        QFile::remove(qEnvironmentVariable("XDG_CONFIG_HOME") +
                      "/Tessaforma/TessaformaDocbench.ini");
    }

    void ASettingsLibraryThatFailsGivesTheEmptyResult() {
        Store(QStringLiteral("Parts TDB-Key"), QStringLiteral("/y"));
        CellList list;
        struct Failing : SettingsAccess {
            std::unique_ptr<FolderSearcher> MakeFolderSearcher() override {
                throw DocumentError(QStringLiteral("no settings"));
            }
        } access;
        list.Append(Row({QStringLiteral("old"), QString()}));
        RefreshFolderList(list);
        QCOMPARE(list.Count(), 0);
        QCOMPARE(ExpandFolderList(QStringLiteral(" Parts;/x")), QStringLiteral("/x"));
    }

    void NamedListsAreExpanded_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expanded");
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("folders alone") << "C:\\x;/y;C:\\x"
                                       << "C:\\x;/y";
        QTest::newRow("with the marker") << " Parts;C:\\x;C:\\x"
                                         << "C:\\y;C:\\x";
        QTest::newRow("by its whole name") << " Document Folders"
                                           << "/d1;/d2";
        QTest::newRow("the plain name first") << " Both"
                                              << "/plain";
        QTest::newRow("an empty plain value") << " Hollow"
                                              << "/marked";
        QTest::newRow("both values empty") << "/a; Empty;/b"
                                           << "/a;/b";
        QTest::newRow("unknown") << "/a; Unknown;/b"
                                 << "/a;/b";
        QTest::newRow("wherever it occurs") << " Both;/x Bothy"
                                            << "/plain;/x/plainy";
        QTest::newRow("no list in a list") << " Nested"
                                           << " Parts";
        QTest::newRow("empties") << ";;/a;;"
                                 << "/a";
        QTest::newRow("case counts") << "/a;/A; parts"
                                     << "/a;/A";
        QTest::newRow("two blanks") << "  Both"
                                    << "";
        QTest::newRow("web folder") << "http://s/w/"
                                    << "http://s/w/";
    }

    void NamedListsAreExpanded() {
        QFETCH(const QString, text);
        Store("Parts TDB-Key", "C:\\y;C:\\x");
        Store("Document Folders", "/d1;/d2");
        Store("Both", "/plain");
        Store("Both TDB-Key", "/marked");
        Store("Hollow", "");
        Store("Hollow TDB-Key", "/marked");
        Store("Nested TDB-Key", " Parts");
        Store("Empty", "");
        Store("Empty TDB-Key", "");
        const SettingsAccess access;
        QTEST(ExpandFolderList(text), "expanded");
    }

    void TheKeyIsOpenedOnceAndOnlyForNames() {
        Store("Parts TDB-Key", "/p");
        const SettingsAccess access;
        ExpandFolderList("/a;/b");
        QCOMPARE(access.opened, 0);
        ExpandFolderList(" Parts; Parts; Other");
        QCOMPARE(access.opened, 1);
    }

    void WithoutTheLibraryNamesStandForNothing() {
        Store("Parts TDB-Key", "/p");
        QCOMPARE(ExpandFolderList(" Parts;/a"), QString("/a"));
        CellList list;
        RefreshFolderList(list);
        QCOMPARE(list.Count(), 0);
    }

    void TheListsOfTheStoreAreListedInItsOrder() {
        Store("Vendors TDB-Key", "/v");
        Store("Show Description", "1");
        Store("Document Folders", "/d");
        Store("My Document Folders 2", "/d2");
        Store("Document Folders TDB-Key", "/own");
        Store("document folders", "/no");
        Store("TDB-Key", "/no");
        Store("Parts TDB-Key", "/p");
        const SettingsAccess access;
        CellList list;
        list.Append(Row({"from before"}));
        RefreshFolderList(list);
        QStringList shown;
        for (const CellRow& row : list.Rows()) {
            QCOMPARE(int(row.cells.size()), 2);
            shown.append(row.cells[0].text + u'|' + row.cells[1].text);
        }
        QCOMPARE(shown,
                 QStringList({"Vendors| TDB-Key", "Document Folders|", "My Document Folders 2|",
                              "Document Folders| TDB-Key", "Parts| TDB-Key"}));
    }

    void OnlyTheExactTextOfAnItemIsFound() {
        CellList list;
        QVERIFY(!ListContains(list, ""));
        list.Append(Row({"Parts", "Vendors"}));
        QVERIFY(ListContains(list, "Parts"));
        QVERIFY(!ListContains(list, "parts"));
        QVERIFY(!ListContains(list, "Vendors"));
        QVERIFY(!ListContains(list, "Part"));
    }

    void AListBecomesATableWithASpareRowAndColumn() {
        CellList list;
        list.SetHeaders({{.text = "Name"}, {.text = "Folder"}});
        QVERIFY(!ListToTable(list));
        list.Append(Row({"a", "/a"}));
        list.Append(Row({"b"}));
        list.Append(Row({"c", "/c", "beyond the columns"}));
        const TextTable expected = {
            {"Name", "Folder", ""}, {"a", "/a", ""}, {"b", "", ""}, {"c", "/c", ""}, {"", "", ""}};
        QVERIFY(ListToTable(list) == expected);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, tst_FolderLists)

#include "tst_folderlists.moc"
