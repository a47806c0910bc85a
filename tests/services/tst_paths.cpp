#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <limits>

#include "services/language.h"
#include "services/paths.h"
#include "services/relationlabel.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

void Touch(const QString& path) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

}  // namespace

class tst_Paths : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void APathIsTakenApart_data() {
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("extensionOrEmpty");
        QTest::addColumn<QString>("fileName");
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("folderNoSeparator");
        QTest::addColumn<QString>("baseName");
        const auto row = [](const char* path, const QStringList& parts) {
            auto& data = QTest::newRow(path);
            for (const QString& part : parts)
                data << part;
        };
        row("", {"", "", "", "", "", ""});
        row("notes", {"notes", "", "notes", "", "", "notes"});
        row("a.txt", {"txt", "txt", "a.txt", "", "", "a.txt"});
        row("a.b.tfmprt", {"tfmprt", "tfmprt", "a.b.tfmprt", "", "", "a.b"});
        row("/w/a.b.TFMASM", {"TFMASM", "TFMASM", "a.b.TFMASM", "/w/", "/w", "a.b"});
        row("C:\\w\\a.prt", {"prt", "prt", "a.prt", "C:\\w\\", "C:\\w", "a"});
        row("C:\\w/x\\a.drw", {"drw", "drw", "a.drw", "C:\\w/x\\", "C:\\w/x", "a.drw"});
        row("C:a.prt", {"prt", "prt", "C:a.prt", "C:", "C:", "C:a"});
        row("/w/a:b.prt", {"prt", "prt", "a:b.prt", "/w/", "/w", "a:b"});
        row("C:", {"C:", "", "C:", "C:", "C:", "C:"});
        row("/a.prt", {"prt", "prt", "a.prt", "/", "", "a"});
        row("/w/", {"/w/", "", "", "/w/", "/w", ""});
        row("//s//a.asm", {"asm", "asm", "a.asm", "//s//", "//s/", "a"});
        row("/w.x/notes", {"x/notes", "x/notes", "notes", "/w.x/", "/w.x", "notes"});
        row("prt", {"prt", "", "prt", "", "", "prt"});
        row(".prt", {"prt", "prt", ".prt", "", "", ""});
        row("a.", {"", "", "a.", "", "", "a."});
        row("http://s/w/a.tfmdrw",
            {"tfmdrw", "tfmdrw", "a.tfmdrw", "http://s/w/", "http://s/w", "a"});
    }

    void APathIsTakenApart() {
        const QString path = QString::fromUtf8(QTest::currentDataTag());
        QTEST(ExtensionOf(path), "extension");
        QTEST(ExtensionOrEmpty(path), "extensionOrEmpty");
        QTEST(FileNameOf(path), "fileName");
        QTEST(FolderOf(path), "folder");
        QTEST(FolderNoSeparator(path), "folderNoSeparator");
        QTEST(BaseNameOf(path), "baseName");
    }

    void TheExtensionTellsTheTypeInAnyCase() {
        for (const char* part : {"x.prt", "x.PRT", "x.TfmPrt", "a.asm.prt", "prt"})
            QVERIFY2(DocTypeOf(part) == DocType::Part, part);
        for (const char* assembly : {"x.asm", "x.TFMASM", "C:\\a.tfmasm"})
            QVERIFY2(DocTypeOf(assembly) == DocType::Assembly, assembly);
        QVERIFY(DocTypeOf("x.TFMDRW") == DocType::Drawing);
        for (const char* none : {"x.drw", "x.DRW", "", "x", "x.prt.bak", "x.prt/notes", "x.tfm"})
            QVERIFY2(DocTypeOf(none) == DocType::None, none);
        QCOMPARE(int(DocType::None), 0);
        QCOMPARE(int(DocType::Assembly), 1);
        QCOMPARE(int(DocType::Part), 2);
        QCOMPARE(int(DocType::Drawing), 3);
    }

    void HttpAnywhereMakesAWebPath() {
        QVERIFY(IsWebPath("http://s/a.tfmprt"));
        QVERIFY(IsWebPath("https://s/a.tfmprt"));
        QVERIFY(IsWebPath("C:\\HTTPfiles\\a.tfmprt"));
        QVERIFY(IsWebPath("/w/xhTTpx"));
        QVERIFY(!IsWebPath("/w/htt/p"));
        QVERIFY(!IsWebPath(""));
    }

    void TheTypesOfTwoDocumentsTellTheirRelation() {
        gRelationDefault = "component";
        gRelationAssembly = "in context";
        gRelationPart = "derived";
        QCOMPARE(RelationLabel("a.tfmprt", "/w/b.PRT"), gRelationPart);
        QCOMPARE(RelationLabel("a.prt", "b.tfmasm"), gRelationAssembly);
        QCOMPARE(RelationLabel("a.prt", "b.tfmdrw"), gRelationDefault);
        QCOMPARE(RelationLabel("a.prt", ""), gRelationDefault);
        QCOMPARE(RelationLabel("a.asm", "b.prt"), gRelationDefault);
        QCOMPARE(RelationLabel("a.asm", "b.asm"), gRelationDefault);
        QCOMPARE(RelationLabel("a.tfmdrw", "b.prt"), gRelationDefault);
    }

    void FilesAndFoldersExist() {
        const QTemporaryDir folder;
        Touch(folder.filePath("a[1].tfmprt"));
        Touch(folder.filePath(".hidden"));
        QVERIFY(QDir(folder.path()).mkdir("sub"));
        QVERIFY(FileExists(folder.filePath("a[1].tfmprt")));
        QVERIFY(FileExists(folder.path()));
        QVERIFY(FileExists(folder.path() + "/sub/"));
        QVERIFY(FileExists(folder.path() + "\\sub"));
        QVERIFY(FileExists(folder.filePath(".hidden")));
        QVERIFY(!FileExists(folder.filePath("a1.tfmprt")));
        QVERIFY(!FileExists(folder.filePath("A[1].tfmprt")));
        QVERIFY(!FileExists(folder.filePath("missing")));
        QVERIFY(!FileExists(""));
    }

    void StarsAndQuestionMarksAreWildcards_data() {
        QTest::addColumn<bool>("found");
        QTest::newRow("*.tfmprt") << true;
        QTest::newRow("*.*") << true;
        QTest::newRow("*") << true;
        QTest::newRow("a*b*.tfmprt") << true;
        QTest::newRow("*aab*") << true;
        QTest::newRow("aaa?.tfmprt") << true;
        QTest::newRow("????.tfmprt") << true;
        QTest::newRow("???.tfmprt") << false;
        QTest::newRow("?????.tfmprt") << false;
        QTest::newRow("[a]aab*") << false;
        QTest::newRow("x[1]*") << true;
        QTest::newRow("x1*") << false;
        QTest::newRow("su?") << true;
        QTest::newRow("*.drw") << false;
        QTest::newRow("*B*") << false;
        QTest::newRow("**a**b**") << true;
        QTest::newRow("*.tfmprt*x") << false;
    }

    void StarsAndQuestionMarksAreWildcards() {
        QFETCH(const bool, found);
        const QTemporaryDir folder;
        Touch(folder.filePath("aaab.tfmprt"));
        Touch(folder.filePath("x[1].asm"));
        QVERIFY(QDir(folder.path()).mkdir("sub"));
        const QString pattern = QString::fromUtf8(QTest::currentDataTag());
        QCOMPARE(FileExists(folder.filePath(pattern)), found);
        QCOMPARE(FileExists(folder.path() + u'\\' + pattern), found);
    }

    void EveryFileMeansThoseWithoutExtensionToo() {
        const QTemporaryDir folder;
        QVERIFY(!FileExists(folder.filePath("*.*")));
        QVERIFY(!FileExists(folder.filePath("missing/*")));
        Touch(folder.filePath("notes"));
        QVERIFY(FileExists(folder.filePath("*.*")));
    }

    void WildcardsOfAFolderAreNone() {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("sub"));
        Touch(folder.filePath("sub/a"));
        QVERIFY(FileExists(folder.filePath("sub/*")));
        QVERIFY(!FileExists(folder.filePath("s*/a")));
    }

    void AFolderIsMadeWithAllAboveIt() {
        const QTemporaryDir folder;
        QVERIFY(CreateFolderPath(folder.filePath("a/b/c")));
        QVERIFY(QFileInfo(folder.filePath("a/b/c")).isDir());
        QVERIFY(CreateFolderPath(folder.filePath("a/b/c/")));
        QVERIFY(CreateFolderPath(folder.path() + "\\d\\e"));
        QVERIFY(QFileInfo(folder.filePath("d/e")).isDir());
        Touch(folder.filePath("file"));
        QVERIFY(!CreateFolderPath(folder.filePath("file")));
        QVERIFY(!CreateFolderPath(folder.filePath("file/x")));
        QVERIFY(!CreateFolderPath(""));
    }

    void AttributesHaveLetters() {
        QCOMPARE(FileAttributeText(0), QString());
        QCOMPARE(FileAttributeText(128 | 32), QString("CA"));
        QCOMPARE(FileAttributeText(32 | 1), QString("AR"));
        QCOMPARE(FileAttributeText(255), QString("CAHR"));
        QCOMPARE(FileAttributeText(2), QString("H"));
        QCOMPARE(FileAttributeText(16 | 64 | 8 | 4), QString());
    }

    void NumbersAreBounded() {
        QCOMPARE(AtLeastOne(std::numeric_limits<qint16>::min()), 1);
        QCOMPARE(AtLeastOne(0), 1);
        QCOMPARE(AtLeastOne(1), 1);
        QCOMPARE(AtLeastOne(7), 7);
        QCOMPARE(ClampToInt16(-1), 0);
        QCOMPARE(ClampToInt16(0), 0);
        QCOMPARE(ClampToInt16(32767), 32767);
        QCOMPARE(ClampToInt16(70000), 32767);
    }

    void TheFirstOfEqualEntriesStays() {
        QStringList entries = {"b", "", "a", "b", "B", "a", ""};
        QCOMPARE(RemoveDuplicates(entries), QStringList({"b", "a", "B"}));
        QCOMPARE(entries, QStringList({"b", "", "a", "", "B", "", ""}));
        QStringList none;
        QCOMPARE(RemoveDuplicates(none), QStringList());
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, tst_Paths)

#include "tst_paths.moc"
