// The values of a settings key, as the panes read and write them through the library.

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTest>
#include <algorithm>

#include "docmodel/access.h"
#include "services/settingsstore.h"
#include "tests/support/testenvironment.h"

using docbench::SettingsKey;

class TestFolderSearcher : public QObject {
    Q_OBJECT

private:
    static std::unique_ptr<docbench::FolderSearcher> Make() {
        return docmodel::Access().MakeFolderSearcher();
    }
    static std::unique_ptr<docbench::FolderSearcher> Opened(const QString& key) {
        auto searcher = Make();
        if (searcher->OpenRegistryKey(key) != 0)
            QTest::qFail("key does not open", __FILE__, __LINE__);
        return searcher;
    }

private Q_SLOTS:
    void NothingIsThereBeforeAKeyIsOpen() {
        const auto searcher = Make();
        QCOMPARE(searcher->GetRegistryValueCount(), 0);
        QCOMPARE(searcher->EnumRegistryValue(0), std::make_pair(QString(), QString()));
        QCOMPARE(searcher->GetRegistryValue("a"), QString());
        QVERIFY(searcher->SetRegistryValue("a", "b") != 0);
        QCOMPARE(searcher->DeleteRegistryValue("a"), 0);
    }

    void ValuesAreSetReadEnumeratedAndDeleted() {
        const QString key = "Software\\Test\\Values";
        const auto searcher = Opened(key);
        QCOMPARE(searcher->GetRegistryValueCount(), 0);
        QCOMPARE(searcher->SetRegistryValue("Vendors TDB-Key", "/a b;/c,d"), 0);
        QCOMPARE(searcher->SetRegistryValue("Document Folders", "/x"), 0);
        const auto other = Opened(key);
        QCOMPARE(other->GetRegistryValueCount(), 2);
        QCOMPARE(other->GetRegistryValue("Vendors TDB-Key"), "/a b;/c,d");
        QCOMPARE(other->GetRegistryValue("missing"), QString());
        QList<std::pair<QString, QString>> values = {other->EnumRegistryValue(0),
                                                     other->EnumRegistryValue(1)};
        std::sort(values.begin(), values.end());
        QCOMPARE(values[0], std::make_pair(QString("Document Folders"), QString("/x")));
        QCOMPARE(values[1], std::make_pair(QString("Vendors TDB-Key"), QString("/a b;/c,d")));
        QCOMPARE(other->EnumRegistryValue(2), std::make_pair(QString(), QString()));
        QCOMPARE(other->EnumRegistryValue(-1), std::make_pair(QString(), QString()));
        QVERIFY(other->DeleteRegistryValue("Document Folders") != 0);
        QCOMPARE(searcher->GetRegistryValueCount(), 1);
        QCOMPARE(other->SetRegistryValue("Vendors TDB-Key", QString()), 0);
        QCOMPARE(searcher->GetRegistryValue("Vendors TDB-Key"), QString());
        QCOMPARE(searcher->GetRegistryValueCount(), 1);
    }

    void AStatusOfZeroMeansThatNothingWasDeleted() {
        const auto searcher = Opened("Software\\Test\\Delete");
        QCOMPARE(searcher->DeleteRegistryValue("a"), 0);
        QCOMPARE(searcher->SetRegistryValue("a", "b"), 0);
        QVERIFY(searcher->DeleteRegistryValue("a") != 0);
        QCOMPARE(searcher->DeleteRegistryValue("a"), 0);
    }

    void ValuesAreEnumeratedInTheKeysOrder() {
        const QString key = "Software\\Test\\Order";
        const auto searcher = Opened(key);
        for (const char* name : {"zeta", "middle", "Alpha"})
            QCOMPARE(searcher->SetRegistryValue(name, QString("of ") + name), 0);
        QVERIFY(searcher->DeleteRegistryValue("middle") != 0);
        QCOMPARE(searcher->SetRegistryValue("zeta", "changed"), 0);  // stays where it is
        const auto other = Opened(key);
        QCOMPARE(other->GetRegistryValueCount(), 2);
        QCOMPARE(other->EnumRegistryValue(0), std::make_pair(QString("zeta"), QString("changed")));
        QCOMPARE(other->EnumRegistryValue(1),
                 std::make_pair(QString("Alpha"), QString("of Alpha")));
        QCOMPARE(other->EnumRegistryValue(2), std::make_pair(QString(), QString()));
    }

    void AKeyThatDoesNotOpenUnbindsTheFormer() {
        const auto searcher = Opened("Software\\Test\\Former");
        QCOMPARE(searcher->SetRegistryValue("a", "b"), 0);
        const QString store =
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
            "/Tessaforma/TessaformaDocbench.ini";
        QVERIFY(QFile::rename(store, store + ".away"));
        QVERIFY(QDir().mkdir(store));  // no file that could be read
        QVERIFY(searcher->OpenRegistryKey("Software\\Test\\Next") != 0);
        QVERIFY(QDir().rmdir(store));
        QVERIFY(QFile::rename(store + ".away", store));
        QCOMPARE(searcher->GetRegistryValue("a"), QString());
        QCOMPARE(searcher->GetRegistryValueCount(), 0);
        QVERIFY(searcher->SetRegistryValue("a", "c") != 0);
        QCOMPARE(searcher->DeleteRegistryValue("a"), 0);
        QCOMPARE(Opened("Software\\Test\\Former")->GetRegistryValue("a"), "b");
    }

    void KeysAreApartAndBelowTheCurrentUser() {
        const auto one = Opened("Software\\Test\\One");
        const auto two = Opened("Software\\Test\\Two");
        QCOMPARE(one->SetRegistryValue("a", "1"), 0);
        QCOMPARE(two->GetRegistryValue("a"), QString());
        const auto key = SettingsKey::Open(SettingsKey::Hive::CurrentUser, "Software\\Test\\One");
        QVERIFY(key);
        QCOMPARE(key->Text("a").value_or("none"), "1");
        QVERIFY(key->SetNumber("number", 5));
        QCOMPARE(one->GetRegistryValue("number"), "5");
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestFolderSearcher)
#include "tst_foldersearcher.moc"
