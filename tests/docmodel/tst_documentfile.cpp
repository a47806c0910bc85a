// A document's references, configurations and hyperlinks: reading them, changing them, and what is
// left alone.

#include <sys/stat.h>

#include <QDir>
#include <QTemporaryDir>

#include "tests/docmodel/documenttools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;
using docbench::Table;

class TestDocumentFile : public QObject {
    Q_OBJECT

private:
    QTemporaryDir temporary_;
    QString path_;

    // An assembly with some rows in every table.
    void MakeAssembly() {
        DocumentBuilder document = DocumentBuilder::New(path_, DocumentBuilder::IfThere::Replace);
        document.AddComponent("/lib/a.tfmprt", 6);
        document.AddComponent("/lib/b.tfmprt");
        document.AddExternal("/lib/c.tfmprt", "derived");
        document.AddExternal("/lib/d.tfmasm", "in context");
        for (const char* name : {"Default", "A", "C", "with_line"})
            document.AddConfiguration(name,
                                      name == QByteArray("Default") ? kLastingConfiguration : 0,
                                      {{"Finish", QString("of ") + name, 0}});
        document.AddConfiguration("hidden", kInternalConfiguration);
        document.AddHyperlink("http://server/a_b");
        document.AddHyperlink("notes.txt");
        document.SetModel(5000, 7);
        document.Save();
    }
    static constexpr int kDelete = 2;

    // Everything that needs a bound document.
    static QList<std::function<void()>> Operations(DocumentFile& file) {
        return {[&] { file.GetComponentCount(); },
                [&] { file.GetConfigurationCount(); },
                [&] { file.Save(); },
                [&] { file.GetConfiguration(0); },
                [&] { file.RenameConfiguration(0, "x"); },
                [&] { file.GetConfigurationType(0); },
                [&] { file.DeleteConfiguration(0, kDelete); },
                [&] { file.GetHyperlinkCount(); },
                [&] { file.GetHyperlink(0); },
                [&] { file.SetHyperlink(0, "x"); },
                [&] { file.SaveHyperlinks(); },
                [&] { file.SetComponentPath(0, "/x"); },
                [&] { file.GetCustomProperties(0); },
                [&] { file.GetExternalReferenceCount(); },
                [&] { file.SetExternalReferencePath(0, "/x"); },
                [&] { file.IsCurrentFormat(); },
                [&] { file.GetReferencesLocked(); },
                [&] { file.GetComponent(0, QString()); },
                [&] { file.GetExternalReference(0, QString()); },
                [&] { file.GetStamp(Table::Components); }};
    }

private Q_SLOTS:
    void init() {
        path_ = temporary_.filePath(QString("%1.tfmasm").arg(QTest::currentTestFunction()));
        MakeAssembly();
    }

    void TablesComeAsTheyWereStored() {
        const auto file = OpenFile(path_);
        QCOMPARE(file->GetComponentCount(), 2);
        const docbench::ComponentRow component = file->GetComponent(0, QString());
        QCOMPARE(component.name, "a");
        QCOMPARE(component.extension, "tfmprt");
        QCOMPARE(component.path, "/lib/a.tfmprt");
        QCOMPARE(component.count, 6);
        QCOMPARE(file->GetComponent(1, QString()).count, 1);
        QCOMPARE(file->GetExternalReferenceCount(), 2);
        QCOMPARE(file->GetExternalReference(1, QString()).path, "/lib/d.tfmasm");
        QCOMPARE(file->GetExternalReference(1, QString()).kind, "in context");
        QCOMPARE(ConfigurationNames(*file),
                 QStringList({"Default", "A", "C", "with_line", "hidden"}));
        QCOMPARE(file->GetConfigurationType(0), 1);
        QCOMPARE(file->GetConfigurationType(1), 0);
        QCOMPARE(file->GetConfigurationType(4), 2);
        QCOMPARE(file->GetHyperlinkCount(), 2);
        QCOMPARE(file->GetHyperlink(0), "http://server/a_b");
        QVERIFY(file->IsCurrentFormat());
        QVERIFY(!file->GetReferencesLocked());
    }

    void TheReferencesLockIsRead() {
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        document.SetReferencesLocked(true);
        document.Save();
        QVERIFY(OpenFile(path_)->GetReferencesLocked());
    }

    void AChangedPathIsSeenAtOnceAndStoredBySave() {
        const auto file = OpenFile(path_);
        file->SetComponentPath(1, "/new/x.tfmprt");
        file->SetExternalReferencePath(0, "/new/y.tfmasm");
        QCOMPARE(file->GetComponent(1, QString()).path, "/new/x.tfmprt");
        QCOMPARE(OpenFile(path_)->GetComponent(1, QString()).path, "/lib/b.tfmprt");
        file->Save();
        const auto again = OpenFile(path_);
        QCOMPARE(again->GetComponent(1, QString()).path, "/new/x.tfmprt");
        QCOMPARE(again->GetExternalReference(0, QString()).path, "/new/y.tfmasm");
        QCOMPARE(again->GetExternalReference(0, QString()).kind, "derived");
        QCOMPARE(again->GetComponent(0, QString()).path, "/lib/a.tfmprt");
        QCOMPARE(again->GetComponent(0, QString()).count, 6);
    }

    void OnlyTheRowThatWasSetGetsNewPaths() {
        QDir().mkpath(temporary_.filePath("moved"));
        const QString copy = temporary_.filePath("moved/copy.tfmasm");
        QFile::remove(copy);
        QVERIFY(QFile::copy(path_, copy));
        const auto file = OpenFile(copy);
        file->SetComponentPath(1, "/new/x.tfmprt");
        file->Save();
        const auto rowOf = [](const QString& path, const QByteArray& target) {
            const QByteArray part = PartOf(path, kDocumentPart);
            const qsizetype at = part.indexOf(target);
            return part.mid(at, part.indexOf('\n', at) - at);
        };
        QCOMPARE(rowOf(copy, "/lib/a.tfmprt"), rowOf(path_, "/lib/a.tfmprt"));
        QCOMPARE(rowOf(copy, "/lib/c.tfmprt"), rowOf(path_, "/lib/c.tfmprt"));
    }

    void SavingWritesTheRecordEvenIfNothingChanged() {
        const QByteArray before = FileBytes(path_);
        OpenFile(path_)->Save();
        const QByteArray after = FileBytes(path_);
        QVERIFY(after.size() > before.size());
        QVERIFY(after.startsWith(before));
    }

    void SavingLeavesTheModelAndThePropertiesAlone() {
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        document.SetTitle("Pump");
        document.SetCustomProperty("Weight", 2.5);
        document.Save();
        const QByteArray model = PartOf(path_, "model/geometry.bin");
        const auto file = OpenFile(path_);
        file->SetComponentPath(0, "/new/x.tfmprt");
        file->Save();
        QCOMPARE(PartOf(path_, "model/geometry.bin"), model);
        const auto info = OpenInfo(path_);
        QCOMPARE(info->GetTitle(), "Pump");
        QCOMPARE(info->GetCustomCount(), 1);
    }

    void ASaveTellsWhenAndWho() {
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        document.SetLastSaved(QDateTime(QDate(2001, 2, 3), QTime(4, 5), Qt::UTC), "former");
        document.Save();
        QCOMPARE(OpenInfo(path_)->GetLastSavedBy(), "former");
        OpenFile(path_)->Save();
        const auto info = OpenInfo(path_);
        QVERIFY(info->GetLastSavedBy() != "former");
        QVERIFY(!info->GetLastSaved().contains("2001"));
    }

    void PositionsBeyondATableRaise() {
        const auto file = OpenFile(path_);
        for (const int index : {-1, 2, 1000}) {
            QVERIFY(ErrorOf([&] { file->GetComponent(index, QString()); }).contains(path_));
            QVERIFY(ErrorOf([&] { file->SetComponentPath(index, "/x"); }).contains(path_));
            QVERIFY(!ErrorOf([&] { file->GetExternalReference(index, QString()); }).isEmpty());
            QVERIFY(!ErrorOf([&] { file->SetExternalReferencePath(index, "/x"); }).isEmpty());
            QVERIFY(!ErrorOf([&] { file->GetHyperlink(index); }).isEmpty());
            QVERIFY(!ErrorOf([&] { file->SetHyperlink(index, "x"); }).isEmpty());
        }
        for (const int index : {-1, 5, 1000}) {
            QVERIFY(ErrorOf([&] { file->GetConfiguration(index); }).contains(path_));
            QVERIFY(ErrorOf([&] { file->GetConfigurationType(index); }).contains(path_));
            QVERIFY(!file->GetCustomProperties(index));
        }
        QVERIFY(file->GetCustomProperties(4));
    }

    void APathThatCantBeStoredIsRefused() {
        const auto file = OpenFile(path_);
        for (const QString& path : {QString(), QString("/a\1b"), QString("/a") + QChar(0xD800),
                                    QString("/a") + QChar(0xFFFE), QString("/a") + QChar(0)}) {
            QVERIFY(ErrorOf([&] { file->SetComponentPath(0, path); }).contains(path_));
            QVERIFY(!ErrorOf([&] { file->SetExternalReferencePath(0, path); }).isEmpty());
        }
        QCOMPARE(file->GetComponent(0, QString()).path, "/lib/a.tfmprt");
    }

    void MarkupAndOddCharactersInPathsSurvive() {
        const QString odd = QString::fromUtf8("/l/<a> & \"b\" 'c' \u00fc\u4f53\U0001F527\t.tfmprt");
        const auto file = OpenFile(path_);
        file->SetComponentPath(0, odd);
        file->Save();
        QCOMPARE(OpenFile(path_)->GetComponent(0, QString()).path, odd);
    }

    void NothingWorksBeforeOpen() {
        const auto file = Access().MakeDocumentFile();
        for (const auto& operation : Operations(*file))
            QVERIFY(ErrorOf(operation).contains("No document is open"));
        QCOMPARE(file->GetAccessState(path_), 0);
    }

    void AFailedOpenUnbindsTheObject() {
        const auto file = OpenFile(path_);
        file->SetComponentPath(0, "/new/x.tfmprt");
        const QByteArray before = FileBytes(path_);
        const QString missing = temporary_.filePath("missing.tfmasm");
        for (const bool hyperlinks : {false, true}) {
            const QString error =
                ErrorOf([&] { hyperlinks ? file->OpenHyperlinks(missing) : file->Open(missing); });
            QVERIFY(error.contains(missing));
            for (const auto& operation : Operations(*file))
                QVERIFY(ErrorOf(operation).contains(missing));
            QCOMPARE(FileBytes(path_), before);
            file->OpenHyperlinks(path_);
            QCOMPARE(file->GetHyperlink(1), "notes.txt");
            QCOMPARE(file->GetComponent(0, QString()).path, "/lib/a.tfmprt");
        }
    }

    void OpeningAgainDropsUnsavedChanges() {
        const auto file = OpenFile(path_);
        file->SetComponentPath(0, "/new/x.tfmprt");
        QCOMPARE(file->RenameConfiguration(1, "new"), 0);
        file->Open(path_);
        QCOMPARE(file->GetComponent(0, QString()).path, "/lib/a.tfmprt");
        file->Save();
        QCOMPARE(OpenFile(path_)->GetConfiguration(1), "A");
    }

    void AFileThatVanishesIsAnErrorAtSave() {
        const auto file = OpenFile(path_);
        file->SetComponentPath(0, "/new/x.tfmprt");
        QVERIFY(QFile::remove(path_));
        QCOMPARE(file->GetComponentCount(), 2);
        QVERIFY(ErrorOf([&] { file->Save(); }).contains(path_));
        QVERIFY(!QFile::exists(path_));
    }

    void AFileThatIsReplacedByRubbishIsNotWritten() {
        const auto file = OpenFile(path_);
        file->SetComponentPath(0, "/new/x.tfmprt");
        WriteBytes(path_, "no package at all");
        QVERIFY(ErrorOf([&] { file->Save(); }).contains(path_));
        QCOMPARE(FileBytes(path_), QByteArray("no package at all"));
    }

    void AReadOnlyDocumentIsNotWritten() {
        const auto file = OpenFile(path_);
        file->SetComponentPath(0, "/new/x.tfmprt");
        QCOMPARE(chmod(qPrintable(path_), 0444), 0);
        QCOMPARE(file->GetAccessState(path_), 2);
        QVERIFY(ErrorOf([&] { file->Save(); }).contains(path_));
        QCOMPARE(OpenFile(path_)->GetComponent(0, QString()).path, "/lib/a.tfmprt");
        QCOMPARE(chmod(qPrintable(path_), 0644), 0);
        file->Save();  // the change is still there and can be saved now
        QCOMPARE(OpenFile(path_)->GetComponent(0, QString()).path, "/new/x.tfmprt");
    }

    void ADocumentThatNoSaveCouldReadMayNotBeWritten_data() {
        QTest::addColumn<QByteArray>("tables");
        QTest::addColumn<QByteArray>("core");
        QTest::addColumn<int>("state");
        const QByteArray core =
            "<coreProperties xmlns='http://schemas.openxmlformats.org/package/2006/metadata/"
            "core-properties'/>";
        QTest::newRow("sound") << Tables("") << core << 0;
        QTest::newRow("old format") << Tables("", "0") << core << 0;
        QTest::newRow("newer format") << Tables("", "2") << core << 4;
        QTest::newRow("cut tables") << Tables("").chopped(3) << core << 4;
        QTest::newRow("broken row")
            << Tables("<components><component path='/a' count='x'/></components>") << core << 4;
        QTest::newRow("broken configuration")
            << Tables("<configurations><configuration id='x'/></configurations>") << core << 4;
        QTest::newRow("cut summary") << Tables("") << core.chopped(1) << 4;
    }
    void ADocumentThatNoSaveCouldReadMayNotBeWritten() {
        QFETCH(QByteArray, tables);
        QFETCH(QByteArray, core);
        QFETCH(int, state);
        PackageWriter::Create(path_, {{"docProps/core.xml", core}, {kDocumentPart, tables}}, true);
        const auto file = Access().MakeDocumentFile();
        QCOMPARE(file->GetAccessState(path_), state);
        QCOMPARE(chmod(qPrintable(path_), 0444), 0);
        QCOMPARE(file->GetAccessState(path_), 2);
        QVERIFY(QFile::remove(path_));
    }

    void HyperlinksAreRewrittenInPlace() {
        const auto file = Access().MakeDocumentFile();
        file->OpenHyperlinks(path_);
        QCOMPARE(file->GetHyperlinkCount(), 2);
        file->SetHyperlink(1, "http://server/\"x\"?a=1&b=2");
        file->SetHyperlink(0, QString());
        file->SaveHyperlinks();
        file->OpenHyperlinks(path_);
        QCOMPARE(file->GetHyperlink(0), QString());
        QCOMPARE(file->GetHyperlink(1), "http://server/\"x\"?a=1&b=2");
    }

    void SavingHyperlinksLeavesOtherChangesForSave() {
        const auto file = OpenFile(path_);
        file->SetHyperlink(0, "new link");
        file->SetComponentPath(0, "/new/x.tfmprt");
        QCOMPARE(file->DeleteConfiguration(1, kDelete), 0);
        file->SaveHyperlinks();
        QCOMPARE(OpenFile(path_)->GetHyperlink(0), "new link");
        QCOMPARE(OpenFile(path_)->GetComponent(0, QString()).path, "/lib/a.tfmprt");
        QCOMPARE(OpenFile(path_)->GetConfigurationCount(), 5);
        file->Save();
        QCOMPARE(OpenFile(path_)->GetComponent(0, QString()).path, "/new/x.tfmprt");
        QCOMPARE(OpenFile(path_)->GetConfigurationCount(), 4);
    }

    void AConfigurationIsRenamed() {
        const auto file = OpenFile(path_);
        QCOMPARE(file->RenameConfiguration(0, "Standard"), 0);
        QCOMPARE(file->GetConfiguration(0), "Standard");
        file->Save();
        const auto again = OpenFile(path_);
        QCOMPARE(again->GetConfiguration(0), "Standard");
        QCOMPARE(again->GetConfigurationType(0), 1);
        QCOMPARE(again->GetCustomProperties(0)->GetCustomProperty(0).value.toString(),
                 "of Default");
    }

    void ANameOfAConfigurationMayBeTakenOverInOrder() {
        const auto file = OpenFile(path_);
        QCOMPARE(file->RenameConfiguration(1, "B"), 0);
        QCOMPARE(file->RenameConfiguration(2, "A"), 0);
        file->Save();
        QCOMPARE(ConfigurationNames(*OpenFile(path_)),
                 QStringList({"Default", "B", "A", "with_line", "hidden"}));
    }

    void ATakenOrEmptyNameIsRefused() {
        const auto file = OpenFile(path_);
        QVERIFY(file->RenameConfiguration(1, "c") != 0);
        QVERIFY(file->RenameConfiguration(1, "Hidden") != 0);
        QVERIFY(file->RenameConfiguration(1, QString()) != 0);
        QVERIFY(file->RenameConfiguration(9, "x") != 0);
        QVERIFY(file->RenameConfiguration(-1, "x") != 0);
        QCOMPARE(file->RenameConfiguration(1, "a"), 0);  // its own, in other case
        QVERIFY(!ErrorOf([&] { file->RenameConfiguration(1, "x\x02"); }).isEmpty());
        QCOMPARE(file->GetConfiguration(1), "a");
    }

    void ADeletedConfigurationFreesItsNameAndKeepsIdsUntilSave() {
        const auto file = OpenFile(path_);
        QCOMPARE(file->DeleteConfiguration(1, kDelete), 0);
        QCOMPARE(file->DeleteConfiguration(1, kDelete), 0);
        QCOMPARE(file->GetConfigurationCount(), 5);
        QVERIFY(file->RenameConfiguration(1, "x") != 0);
        QCOMPARE(file->RenameConfiguration(3, "A"), 0);
        QCOMPARE(file->DeleteConfiguration(2, kDelete), 0);
        file->Save();
        QCOMPARE(ConfigurationNames(*file), QStringList({"Default", "A", "hidden"}));
        QCOMPARE(ConfigurationNames(*OpenFile(path_)), QStringList({"Default", "A", "hidden"}));
        QCOMPARE(file->GetCustomProperties(1)->GetCustomProperty(0).value.toString(),
                 "of with_line");
    }

    void ALastingConfigurationIsNotDeleted() {
        const auto file = OpenFile(path_);
        QVERIFY(file->DeleteConfiguration(0, kDelete) != 0);
        QVERIFY(file->DeleteConfiguration(5, kDelete) != 0);
        QVERIFY(file->DeleteConfiguration(-1, kDelete) != 0);
        file->Save();
        QCOMPARE(file->GetConfigurationCount(), 5);
    }

    void AnotherModeDeletesNothing() {
        const auto file = OpenFile(path_);
        for (const int mode : {-1, 0, 1, 3})
            QVERIFY(file->DeleteConfiguration(1, mode) != 0);
        file->Save();
        QCOMPARE(OpenFile(path_)->GetConfigurationCount(), 5);
        QCOMPARE(file->DeleteConfiguration(1, kDelete), 0);
    }

    void AConfigurationAddedLaterNeverGetsAFormerId() {
        const auto file = OpenFile(path_);
        QCOMPARE(file->DeleteConfiguration(1, kDelete), 0);
        file->Save();
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        document.AddConfiguration("A");
        document.Save();
        const QByteArray part = PartOf(path_, kDocumentPart);
        QVERIFY(!part.contains("id=\"2\""));
        QVERIFY(part.contains("id=\"6\""));
    }

    void AConfigurationsPropertiesAreASetOfTheirOwn() {
        const auto file = OpenFile(path_);
        QVERIFY(!file->GetCustomProperties(5));
        QVERIFY(!file->GetCustomProperties(-1));
        const auto set = file->GetCustomProperties(2);
        QCOMPARE(set->GetCustomCount(), 1);
        QCOMPARE(set->GetTitle(), QString());
        QVERIFY(set->SetCustomProperty("Weight", 1.5));
        QVERIFY(set->SetCustomProperty("finish", "rough"));
        QVERIFY(set->SetCustomProperty("Checked", true));
        set->Save();
        const auto again = OpenFile(path_)->GetCustomProperties(2);
        QCOMPARE(again->GetCustomCount(), 3);
        QCOMPARE(again->GetCustomProperty(0).name, "Finish");
        QCOMPARE(again->GetCustomProperty(0).value.toString(), "rough");
        QCOMPARE(again->GetCustomProperty(1).value, QVariant(1.5));
        QCOMPARE(again->GetCustomProperty(1).type, 2);
        QCOMPARE(again->GetCustomProperty(2).value, QVariant(true));
        QVERIFY(again->DeleteCustomProperty("WEIGHT"));
        QVERIFY(!again->DeleteCustomProperty("Weight"));
        again->Save();
        QCOMPARE(OpenFile(path_)->GetCustomProperties(2)->GetCustomCount(), 2);
        QCOMPARE(OpenFile(path_)->GetCustomProperties(1)->GetCustomCount(), 1);
        QVERIFY(!ErrorOf([&] { again->SetTitle("x"); }).isEmpty());
    }

    void ElementsOfLaterWritersSurviveASave() {
        WriteTables(path_, Tables("<components later='1'><component path='/a.tfmprt' colour='red'>"
                                  "<place x='1'/></component><!-- why --></components>"
                                  "<later:table xmlns:later='urn:later'><later:row/></later:table>"
                                  "<components2>text</components2>"));
        const auto file = OpenFile(path_);
        QCOMPARE(file->GetComponentCount(), 1);
        file->SetComponentPath(0, "/b.tfmprt");
        file->Save();
        const QByteArray part = PartOf(path_, kDocumentPart);
        for (const char* kept :
             {"later=\"1\"", "colour=\"red\"", "<place x=\"1\"", "<!-- why -->", "<later:row",
              "<components2>text</components2>", "path=\"/b.tfmprt\""})
            QVERIFY2(part.contains(kept), kept);
    }

    void TablesUnderAPrefixAreRead() {
        WriteTables(path_,
                    "<d:document xmlns:d='http://schemas.tessaforma.com/docmodel/2004/document' "
                    "version='1'><d:components><component path='/foreign'/>"
                    "<d:component path='/a.tfmprt'/></d:components></d:document>");
        const auto file = OpenFile(path_);
        QCOMPARE(ComponentPaths(*file), QStringList("/a.tfmprt"));
        file->SetComponentPath(0, "/b.tfmprt");
        file->Save();
        QCOMPARE(ComponentPaths(*OpenFile(path_)), QStringList("/b.tfmprt"));
    }

    void AnOldFormatHasNoTables() {
        WriteTables(path_, Tables("<components><component path='/a.tfmprt'/></components>"
                                  "<lock locked='true' user='eva'/>",
                                  "0"));
        const auto file = OpenFile(path_);
        QVERIFY(!file->IsCurrentFormat());
        QCOMPARE(file->GetComponentCount(), 0);
        QCOMPARE(file->GetHyperlinkCount(), 0);
        QCOMPARE(OpenInfo(path_)->GetLockedBy(), "eva");
    }

    void AnOldFormatStaysItWithAllItHolds_data() {
        QTest::addColumn<std::function<void(const QString&)>>("change");
        const auto add = [](const char* name, std::function<void(const QString&)> change) {
            QTest::newRow(name) << std::move(change);
        };
        add("save", [](const QString& path) { OpenFile(path)->Save(); });
        add("hyperlinks", [](const QString& path) { OpenFile(path)->SaveHyperlinks(); });
        add("title", [](const QString& path) {
            const auto info = OpenInfo(path);
            info->SetTitle("new");
            info->Save();
            QCOMPARE(OpenInfo(path)->GetTitle(), "new");
        });
        add("lock", [](const QString& path) {
            const auto info = OpenInfo(path);
            info->SetLocked(true);
            info->Save();
            QVERIFY(OpenInfo(path)->GetLocked());
        });
    }
    void AnOldFormatStaysItWithAllItHolds() {
        QFETCH(std::function<void(const QString&)>, change);
        WriteTables(path_, Tables("<components><component path='/a.tfmprt'/></components>"
                                  "<old:table xmlns:old='urn:old'><old:row a='b'>text</old:row>"
                                  "</old:table>",
                                  "0"));
        change(path_);
        QVERIFY(!OpenFile(path_)->IsCurrentFormat());
        const QByteArray part = PartOf(path_, kDocumentPart);
        for (const char* kept :
             {"version=\"0\"", "<component path=\"/a.tfmprt\"", "<old:table xmlns:old=\"urn:old\">",
              "<old:row a=\"b\">text</old:row>"})
            QVERIFY2(part.contains(kept), part.constData());
    }

    void ANewerFormatSaysSo() {
        WriteTables(path_, Tables("", "2"));
        QVERIFY(ErrorOf([&] { OpenFile(path_); }).contains("newer version"));
        QVERIFY(!Access().MakeDocumentInfo()->Open(path_));
    }

    void APackageWithoutTablesIsADocumentWithEmptyOnes() {
        PackageWriter::Create(path_, {{"a.txt", "x"}}, true);
        const auto file = OpenFile(path_);
        QVERIFY(file->IsCurrentFormat());
        QCOMPARE(file->GetComponentCount(), 0);
        QCOMPARE(file->GetExternalReferenceCount(), 0);
        QCOMPARE(file->GetConfigurationCount(), 0);
        QCOMPARE(file->GetHyperlinkCount(), 0);
        QVERIFY(!file->GetReferencesLocked());
        file->Save();
        QCOMPARE(PartOf(path_, "a.txt"), QByteArray("x"));
        QVERIFY(PartOf(path_, "_rels/.rels").contains(kDocumentKind.relationship));
    }

    void TablesOfAnotherNameAreFoundByTheirRelationship() {
        Relationships relationships(nullptr);
        relationships.Set(kDocumentKind, "parts/tables.xml");
        PackageWriter::Create(path_,
                              {{Relationships::kPart, relationships.Bytes()},
                               {"parts/tables.xml",
                                Tables("<components><component path='/a.tfmprt'/></components>")}},
                              true);
        const auto file = OpenFile(path_);
        QCOMPARE(file->GetComponentCount(), 1);
        file->SetComponentPath(0, "/b.tfmprt");
        file->Save();
        QCOMPARE(ComponentPaths(*OpenFile(path_)), QStringList("/b.tfmprt"));
        QVERIFY(!Package::Open(path_).HasPart("parts/tables.xml"));
        QVERIFY(!PartOf(path_, "_rels/.rels").contains("parts/tables.xml"));
    }

    void LargeTablesAreReadAndRewritten() {
        constexpr int kRows = 20'000;
        QByteArray rows;
        for (int i = 0; i < kRows; ++i)
            rows += "<component path='/lib/p" + QByteArray::number(i) + ".tfmprt' count='2'/>";
        WriteTables(path_, Tables("<components>" + rows + "</components>"));
        const auto file = OpenFile(path_);
        QCOMPARE(file->GetComponentCount(), kRows);
        for (int i = 0; i < kRows; i += 2)
            file->SetComponentPath(i, QString("/new/p%1.tfmprt").arg(i));
        file->Save();
        const auto again = OpenFile(path_);
        QCOMPARE(again->GetComponent(kRows - 2, QString()).path,
                 QString("/new/p%1.tfmprt").arg(kRows - 2));
        QCOMPARE(again->GetComponent(kRows - 1, QString()).path,
                 QString("/lib/p%1.tfmprt").arg(kRows - 1));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestDocumentFile)
#include "tst_documentfile.moc"
