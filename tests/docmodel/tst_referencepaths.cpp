// What a reference row stores for a path and what it points at later, wherever its document went.

#include <QDir>
#include <QTemporaryDir>

#include "docmodel/referencepath.h"
#include "tests/docmodel/documenttools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

class TestReferencePaths : public QObject {
    Q_OBJECT

private:
    QTemporaryDir temporary_;
    QString folder_;

    QString Path(const QString& name) const { return folder_ + '/' + name; }
    static void Touch(const QString& path) {
        QDir().mkpath(QFileInfo(path).path());
        WriteBytes(path, "x");
    }
    static QString MakeHolder(const QString& path, const QString& target) {
        QDir().mkpath(QFileInfo(path).path());
        DocumentBuilder holder = DocumentBuilder::New(path, DocumentBuilder::IfThere::Replace);
        holder.AddComponent(target);
        holder.AddExternal(target, "derived");
        holder.Save();
        return path;
    }
    static QString TargetOf(const QString& holder, const QString& webFolder = {}) {
        const auto file = OpenFile(holder);
        const QString path = file->GetComponent(0, webFolder).path;
        return file->GetExternalReference(0, webFolder).path == path ? path : "tables differ";
    }

private Q_SLOTS:
    void init() {
        folder_ = temporary_.path() + '/' + QTest::currentTestFunction();
        const char* tag = QTest::currentDataTag();
        if (tag)
            folder_ += QString::number(qHash(QByteArray(tag)));
        QVERIFY(QDir().mkpath(folder_));
    }

    void APasswordInAnAddressIsNotStored() {
        const QString holder = MakeHolder(Path("top.tfmasm"), "http://ann:pw@s:81/w/a@b.tfmprt");
        QCOMPARE(TargetOf(holder), QString("http://s:81/w/a@b.tfmprt"));
        const auto file = OpenFile(holder);
        file->SetComponentPath(0, "https://bob:pw@s\\w\\c.tfmprt");
        file->SetExternalReferencePath(0, "https://bob:pw@s\\w\\c.tfmprt");
        file->Save();
        QCOMPARE(TargetOf(holder), QString("https://s\\w\\c.tfmprt"));
        QCOMPARE(TargetOf(MakeHolder(holder, "/x/ann:pw@s.tfmprt")), QString("/x/ann:pw@s.tfmprt"));
    }

    void PathsAreCleanedTextually_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("clean");
        const auto row = [](const char* path, const char* clean) {
            QTest::newRow(path) << path << clean;
        };
        row("/a/b.tfmprt", "/a/b.tfmprt");
        row("/a/./b.tfmprt", "/a/b.tfmprt");
        row("/a/x/../b.tfmprt", "/a/b.tfmprt");
        row("/a//b.tfmprt", "/a/b.tfmprt");
        row("//a/b.tfmprt", "/a/b.tfmprt");
        row("/../../b.tfmprt", "/b.tfmprt");
        row("/a/.hidden/b..tfmprt", "/a/.hidden/b..tfmprt");
        row("/a/..b/b.tfmprt", "/a/..b/b.tfmprt");
        row("../../b.tfmprt", "../../b.tfmprt");
        row("a/../../b.tfmprt", "../b.tfmprt");
        row("sub\\b.tfmprt", "sub/b.tfmprt");
        row("..\\b.tfmprt", "../b.tfmprt");
        row("C:\\lib\\.\\b.tfmprt", "C:/lib/b.tfmprt");
        row("C:/lib\\b.tfmprt", "C:/lib/b.tfmprt");
        row("/a/odd\\name.tfmprt", "/a/odd\\name.tfmprt");
    }
    void PathsAreCleanedTextually() {
        QFETCH(QString, path);
        QFETCH(QString, clean);
        QCOMPARE(CleanPath(path), clean);
        QCOMPARE(CleanPath(clean), clean);
    }

    void ARowStoresWhatWasGivenAndTheWayFromItsHolder_data() {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("relative");
        QTest::newRow("beside") << "/h/f/b.tfmprt"
                                << "/h/f/b.tfmprt"
                                << "b.tfmprt";
        QTest::newRow("below") << "/h/f/s/b.tfmprt"
                               << "/h/f/s/b.tfmprt"
                               << "s/b.tfmprt";
        QTest::newRow("above") << "/h/b.tfmprt"
                               << "/h/b.tfmprt"
                               << "../b.tfmprt";
        QTest::newRow("elsewhere") << "/x/b.tfmprt"
                                   << "/x/b.tfmprt"
                                   << "../../x/b.tfmprt";
        QTest::newRow("name begins alike") << "/h/fine/b.tfmprt"
                                           << "/h/fine/b.tfmprt"
                                           << "../fine/b.tfmprt";
        QTest::newRow("unclean") << "/h/./f//b.tfmprt"
                                 << "/h/./f//b.tfmprt"
                                 << "b.tfmprt";
        QTest::newRow("relative") << "s/b.tfmprt"
                                  << "/h/f/s/b.tfmprt"
                                  << "s/b.tfmprt";
        QTest::newRow("backslashes") << "s\\b.tfmprt"
                                     << "/h/f/s/b.tfmprt"
                                     << "s/b.tfmprt";
        QTest::newRow("address") << "http://s//b.tfmprt"
                                 << "http://s//b.tfmprt"
                                 << "";
        QTest::newRow("secure address") << "HTTPS://s/b.tfmprt"
                                        << "HTTPS://s/b.tfmprt"
                                        << "";
        QTest::newRow("drive") << "D:\\b.tfmprt"
                               << "D:\\b.tfmprt"
                               << "";
        QTest::newRow("the folder itself") << "/h/f"
                                           << "/h/f"
                                           << "../f";
        QTest::newRow("the root") << "/"
                                  << "/"
                                  << "";
    }
    void ARowStoresWhatWasGivenAndTheWayFromItsHolder() {
        QFETCH(QString, given);
        const StoredPath stored = StoredPathFor(given, "/h/f/");
        QTEST(stored.path, "path");
        QTEST(stored.relative, "relative");
    }

    void AStoredAddressStandsAsItIs() {
        const QString url = "http://server//lib/../a.tfmprt";
        const QString holder = MakeHolder(Path("h.tfmasm"), url);
        QCOMPARE(TargetOf(holder), url);
        QCOMPARE(TargetOf(holder, "http://other/"), url);
    }

    void AnAbsolutePathIsGivenBackCleaned() {
        Touch(Path("lib/a.tfmprt"));
        const QString holder = MakeHolder(Path("h.tfmasm"), folder_ + "/lib/../lib//./a.tfmprt");
        QCOMPARE(TargetOf(holder), Path("lib/a.tfmprt"));
    }

    void AMissingTargetIsNamedByItsAbsolutePath() {
        const QString holder = MakeHolder(Path("h.tfmasm"), Path("gone/a.tfmprt"));
        QCOMPARE(TargetOf(holder), Path("gone/a.tfmprt"));
        QDir().mkpath(Path("copy"));
        QVERIFY(QFile::copy(holder, Path("copy/h.tfmasm")));
        QCOMPARE(TargetOf(Path("copy/h.tfmasm")), Path("gone/a.tfmprt"));
    }

    void AMovedProjectFindsItsParts() {
        Touch(Path("old/lib/a.tfmprt"));
        MakeHolder(Path("old/asm/h.tfmasm"), Path("old/lib/a.tfmprt"));
        QVERIFY(QDir().rename(Path("old"), Path("new")));
        QCOMPARE(TargetOf(Path("new/asm/h.tfmasm")), Path("new/lib/a.tfmprt"));
    }

    void ACopyPointsAtItsSourceWhileThatIsThere() {
        Touch(Path("old/a.tfmprt"));
        const QString holder = MakeHolder(Path("old/h.tfmasm"), Path("old/a.tfmprt"));
        Touch(Path("copy/a.tfmprt"));
        QVERIFY(QFile::copy(holder, Path("copy/h.tfmasm")));
        QCOMPARE(TargetOf(Path("copy/h.tfmasm")), Path("old/a.tfmprt"));
        QVERIFY(QFile::remove(Path("old/a.tfmprt")));
        QCOMPARE(TargetOf(Path("copy/h.tfmasm")), Path("copy/a.tfmprt"));
    }

    void RowsOfAWebDocumentComeAsAddresses() {
        const QString below = MakeHolder(Path("h.tfmasm"), "sub/a.tfmprt");
        QCOMPARE(TargetOf(below, "http://s//web/asm/"), QString("http://s//web/asm/sub/a.tfmprt"));
        const QString above = MakeHolder(Path("i.tfmasm"), "../lib/a.tfmprt");
        QCOMPARE(TargetOf(above, "http://s//web/asm/"), QString("http://s//web/lib/a.tfmprt"));
        const auto file = OpenFile(above);
        QCOMPARE(file->GetExternalReference(0, "http://s//web/asm/").path,
                 QString("http://s//web/lib/a.tfmprt"));
        QCOMPARE(file->GetExternalReference(0, QString()).path,
                 QDir::cleanPath(Path("../lib/a.tfmprt")));
        const QString far = MakeHolder(Path("j.tfmasm"), "../../../../a.tfmprt");
        QCOMPARE(TargetOf(far, "http://s/web/asm/").left(9), QString("http://s/"));
    }

    void AnotherSystemsPathIsFoundByItsRelativeOne() {
        Touch(Path("sub/a.tfmprt"));
        WriteTables(Path("h.tfmasm"), Tables("<components><component path='D:\\lib\\sub\\a.tfmprt' "
                                             "relative='sub\\a.tfmprt'/></components>"));
        QCOMPARE(OpenFile(Path("h.tfmasm"))->GetComponent(0, QString()).path, Path("sub/a.tfmprt"));
        QVERIFY(QFile::remove(Path("sub/a.tfmprt")));
        QCOMPARE(OpenFile(Path("h.tfmasm"))->GetComponent(0, QString()).path,
                 QString("D:/lib/sub/a.tfmprt"));
    }

    void ARowMayHaveOnlyOneOfBothPaths() {
        WriteTables(Path("h.tfmasm"), Tables("<components>"
                                             "<component relative='sub/a.tfmprt'/>"
                                             "<component path='sub/../b.tfmprt'/>"
                                             "<component path='/x/./c.tfmprt'/>"
                                             "<component/></components>"));
        const auto file = OpenFile(Path("h.tfmasm"));
        QCOMPARE(ComponentPaths(*file),
                 QStringList({Path("sub/a.tfmprt"), Path("b.tfmprt"), "/x/c.tfmprt", QString()}));
    }

    void TheHolderMayBeOpenedByARelativePath() {
        MakeHolder(Path("asm/h.tfmasm"), Path("lib/a.tfmprt"));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(Path("asm")));
        const auto file = OpenFile("../asm/./h.tfmasm");
        file->SetComponentPath(0, Path("other/b.tfmprt"));
        file->Save();
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(file->GetComponent(0, QString()).path, Path("other/b.tfmprt"));
        QVERIFY(
            PartOf(Path("asm/h.tfmasm"), kDocumentPart).contains("relative=\"../other/b.tfmprt\""));
    }

    void ASaveWritesTheOpenedDocumentAlsoFromAnotherFolder() {
        for (const char* folder : {"one", "two"}) {
            const QString path = Path(QString("%1/h.tfmasm").arg(folder));
            MakeHolder(path, Path("lib/a.tfmprt"));
            DocumentBuilder document = DocumentBuilder::Edit(path);
            document.AddConfiguration("A");
            document.Save();
        }
        const QByteArray untouched = FileBytes(Path("two/h.tfmasm"));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(Path("one")));
        const auto file = OpenFile("h.tfmasm");
        const auto info = OpenInfo("h.tfmasm");
        const auto properties = file->GetCustomProperties(0);
        QVERIFY(QDir::setCurrent(Path("two")));
        for (int round = 0; round < 2; ++round) {
            file->SetComponentPath(0, Path("lib/b%1.tfmprt").arg(round));
            file->Save();
            info->SetTitle(QString("title %1").arg(round));
            info->Save();
            QVERIFY(properties->SetCustomProperty("p", double(round)));
            properties->Save();
        }
        QCOMPARE(FileBytes(Path("two/h.tfmasm")), untouched);
        const auto saved = OpenFile(Path("one/h.tfmasm"));
        QCOMPARE(saved->GetComponent(0, QString()).path, Path("lib/b1.tfmprt"));
        QCOMPARE(saved->GetCustomProperties(0)->GetCustomProperty(0).value, QVariant(1.0));
        QCOMPARE(OpenInfo(Path("one/h.tfmasm"))->GetTitle(), "title 1");
        QVERIFY(PartOf(Path("one/h.tfmasm"), kDocumentPart).contains("\"../lib/b1.tfmprt\""));
        QVERIFY(QFile::remove(Path("one/h.tfmasm")));
        for (const QString& error : {ErrorOf([&] { file->Save(); }), ErrorOf([&] { info->Save(); }),
                                     ErrorOf([&] { properties->Save(); })})
            QVERIFY2(error.startsWith("The document h.tfmasm "), qPrintable(error));
        QVERIFY(QDir::setCurrent(before));
    }

    void AHolderBehindALinkKeepsThePathItWasOpenedBy() {
        Touch(Path("real/a.tfmprt"));
        MakeHolder(Path("real/h.tfmasm"), Path("gone/a.tfmprt"));
        DocumentBuilder holder = DocumentBuilder::Edit(Path("real/h.tfmasm"));
        holder.AddComponent("a.tfmprt");
        holder.Save();
        QVERIFY(QFile::link(Path("real"), Path("link")));
        QVERIFY(QFile::remove(Path("real/a.tfmprt")));
        const auto file = OpenFile(Path("link/h.tfmasm"));
        file->SetComponentPath(0, Path("link/b.tfmprt"));
        file->Save();
        QVERIFY(PartOf(Path("real/h.tfmasm"), kDocumentPart).contains("relative=\"b.tfmprt\""));
    }

    void NamesAndExtensionsAreTakenFromThePath() {
        DocumentBuilder holder = DocumentBuilder::New(Path("h.tfmasm"));
        for (const char* target : {"/l/a.b.tfmprt", "/l/notes.txt", "/l.x/plain", "/l/UP.PRT",
                                   "http://s/w/c.tfmasm", "/l/old.drw"})
            holder.AddComponent(target);
        holder.Save();
        const auto file = OpenFile(Path("h.tfmasm"));
        QStringList names;
        QStringList extensions;
        for (int i = 0; i < file->GetComponentCount(); ++i) {
            names.append(file->GetComponent(i, QString()).name);
            extensions.append(file->GetComponent(i, QString()).extension);
        }
        QCOMPARE(names, QStringList({"a.b", "notes.txt", "plain", "UP", "c", "old.drw"}));
        QCOMPARE(extensions, QStringList({"tfmprt", "txt", "", "PRT", "tfmasm", "drw"}));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestReferencePaths)
#include "tst_referencepaths.moc"
