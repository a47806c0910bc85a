// Making documents, and what the builder refuses.

#include <QDir>
#include <QPluginLoader>
#include <QTemporaryDir>

#include "tests/docmodel/documenttools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

class TestBuilder : public QObject {
    Q_OBJECT

private:
    QTemporaryDir temporary_;
    QString path_ = temporary_.filePath("new.tfmasm");

private Q_SLOTS:
    void init() { QFile::remove(path_); }

    void NothingIsOnDiskBeforeSave() {
        {
            DocumentBuilder document = DocumentBuilder::New(path_);
            document.SetTitle("never saved");
        }
        QVERIFY(!QFile::exists(path_));
        DocumentBuilder::New(path_).Save();
        const QByteArray before = FileBytes(path_);
        {
            DocumentBuilder document = DocumentBuilder::Edit(path_);
            document.AddComponent("a.tfmprt");
        }
        QCOMPARE(FileBytes(path_), before);
    }

    void EverythingIsWrittenAtOnce() {
        DocumentBuilder document = DocumentBuilder::New(path_);
        document.SetTitle("t");
        document.SetAuthor("a");
        document.SetSubject("s");
        document.SetKeywords("k");
        document.SetComments("c");
        QVERIFY(document.SetCustomProperty("p", 1.0));
        QCOMPARE(document.AddComponent("x.tfmprt", 3), 0);
        QCOMPARE(document.AddComponent("y.tfmprt"), 1);
        QCOMPARE(document.AddExternal("z.tfmprt", "derived"), 0);
        QCOMPARE(document.AddConfiguration("A", kLastingConfiguration, {{"p", true, 0}}), 0);
        QCOMPARE(document.AddHyperlink("h"), 0);
        document.SetReferencesLocked(true);
        document.SetLockedBy("eva");
        document.Save();
        const auto info = OpenInfo(path_);
        QCOMPARE(info->GetTitle() + info->GetAuthor() + info->GetSubject() + info->GetKeywords() +
                     info->GetComments(),
                 "taskc");
        QCOMPARE(info->GetLockedBy(), "eva");
        QVERIFY(info->GetLocked());
        QVERIFY(!info->GetCreated().isEmpty());
        QVERIFY(!info->GetLastSavedBy().isEmpty());
        const auto file = OpenFile(path_);
        QCOMPARE(ComponentPaths(*file),
                 QStringList({temporary_.filePath("x.tfmprt"), temporary_.filePath("y.tfmprt")}));
        QVERIFY(file->GetReferencesLocked());
        QCOMPARE(file->GetConfigurationType(0), 1);
        QCOMPARE(file->GetCustomProperties(0)->GetCustomProperty(0).type, 3);
        QCOMPARE(file->GetHyperlink(0), "h");
    }

    void ThePartsAreInTheOrderThatReadersWant() {
        DocumentBuilder document = DocumentBuilder::New(path_);
        document.SetModel(10, 1);
        document.Save();
        const QList<QByteArray> names = Package::Open(path_).PartNames();
        QCOMPARE(names.first(), QByteArray(ContentTypes::kPart));
        QCOMPARE(names.last(), QByteArray(kDocumentPart));
    }

    void AnExistingFileIsReplacedOnlyOnRequest() {
        WriteBytes(path_, "mine");
        QVERIFY(ErrorOf([&] { DocumentBuilder::New(path_).Save(); }).contains(path_));
        QCOMPARE(FileBytes(path_), QByteArray("mine"));
        QVERIFY(QFile::remove(path_));
        DocumentBuilder::New(path_).Save();
        DocumentBuilder::New(path_, DocumentBuilder::IfThere::Replace).Save();
        QCOMPARE(OpenFile(path_)->GetComponentCount(), 0);
    }

    void RowsAndNamesThatMakeNoSenseAreRefused() {
        DocumentBuilder document = DocumentBuilder::New(path_);
        QVERIFY(ErrorOf([&] { document.AddComponent("a", 0); }).contains(path_));
        QVERIFY(!ErrorOf([&] { document.AddComponent(""); }).isEmpty());
        QVERIFY(!ErrorOf([&] { document.AddExternal("a\x01", "k"); }).isEmpty());
        QVERIFY(!ErrorOf([&] { document.AddExternal("a", "k\x01"); }).isEmpty());
        QVERIFY(!ErrorOf([&] { document.AddConfiguration(""); }).isEmpty());
        document.AddConfiguration("A");
        QVERIFY(!ErrorOf([&] { document.AddConfiguration("a"); }).isEmpty());
        QVERIFY(!ErrorOf([&] { document.SetConfigurationProperty("B", "p", 1); }).isEmpty());
        QVERIFY(document.SetConfigurationProperty("a", "p", 1));
        QVERIFY(document.DeleteConfigurationProperty("A", "P"));
        QVERIFY(!document.DeleteConfigurationProperty("A", "P"));
        QVERIFY(!document.SetCustomProperty("", 1));
        QVERIFY(!document.DeleteCustomProperty("p"));
        document.Save();
        QCOMPARE(OpenFile(path_)->GetComponentCount(), 0);
        QCOMPARE(OpenFile(path_)->GetConfigurationCount(), 1);
    }

    void AnOldFormatTakesNoRows() {
        WriteTables(path_, Tables("", "0"));
        DocumentBuilder document = DocumentBuilder::Edit(path_);
        QVERIFY(ErrorOf([&] { document.AddComponent("a"); }).contains("too old"));
        QVERIFY(!ErrorOf([&] { document.AddExternal("a", "k"); }).isEmpty());
        QVERIFY(!ErrorOf([&] { document.AddConfiguration("a"); }).isEmpty());
        QVERIFY(!ErrorOf([&] { document.AddHyperlink("a"); }).isEmpty());
    }

    void RowsAreNumberedAsTheyAreAdded() {
        constexpr int kRows = 20'000;
        DocumentBuilder document = DocumentBuilder::New(path_);
        for (int i = 0; i < kRows; ++i)
            QCOMPARE(document.AddComponent(QString("p%1.tfmprt").arg(i)), i);
        document.Save();
        QCOMPARE(OpenFile(path_)->GetComponentCount(), kRows);
    }

    void TheSameSeedGivesTheSameModel() {
        const auto modelOf = [&](qint64 bytes, quint64 seed) {
            DocumentBuilder document =
                DocumentBuilder::New(path_, DocumentBuilder::IfThere::Replace);
            document.SetModel(bytes, seed);
            document.Save();
            return PartOf(path_, "model/geometry.bin");
        };
        QCOMPARE(modelOf(1001, 1).size(), 1001);
        QCOMPARE(modelOf(1001, 1), modelOf(1001, 1));
        QVERIFY(modelOf(1001, 1) != modelOf(1001, 2));
        QVERIFY(QFileInfo(path_).size() > 1001);
        QCOMPARE(modelOf(0, 1).size(), 0);
    }

    void ADocumentInAMissingFolderIsAnError() {
        const QString path = temporary_.filePath("none/a.tfmprt");
        QVERIFY(ErrorOf([&] { DocumentBuilder::New(path).Save(); }).contains(path));
    }

    void ThePlugInMakesTheObjects() {
        QPluginLoader loader(QCoreApplication::applicationDirPath() + "/docmodel.so");
        auto* access = qobject_cast<docbench::DocumentAccess*>(loader.instance());
        QVERIFY2(access, qPrintable(loader.errorString()));
        DocumentBuilder::New(path_).Save();
        const auto file = access->MakeDocumentFile();
        file->Open(path_);
        QCOMPARE(file->GetComponentCount(), 0);
        QVERIFY(access->MakeDocumentInfo()->Open(path_));
        QVERIFY(access->MakeFolderSearcher());
        QVERIFY(access->MakePreviewExtractor());
        QVERIFY(access->MakeLanguageSettings());
        // Its errors are caught by the type that everybody knows, on this side too.
        const QString error = ErrorOf([&] { file->Open(temporary_.filePath("missing")); });
        QVERIFY(error.contains("missing"));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestBuilder)
#include "tst_builder.moc"
