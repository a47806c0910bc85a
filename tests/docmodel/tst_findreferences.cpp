// What a search of one folder finds, which documents it looks at, and what it makes of bad ones.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "tests/docmodel/documenttools.h"
#include "tests/docmodel/searchtools.h"
#include "tests/support/privileges.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

using docbench::FoundReference;

class TestFindReferences : public QObject {
    Q_OBJECT

private:
    QString Path(const QString& name) const { return folder_->filePath(name); }
    QStringList Find(const QString& base, const QString& extension = "*", int mask = 7) const {
        return RowTexts(*SearchByName(folder_->path(), base, extension, mask));
    }
    QStringList FindPath(const QString& fullPath) const {
        ReferenceQuery query;
        query.pattern = folder_->path() + "/*.*";
        query.fullPathFlag = 1;
        query.baseName = "ignored";
        query.extension = "ignored";
        query.fullPath = fullPath;
        auto searcher = Access().MakeFolderSearcher();
        searcher->FindReferences(query);
        return RowTexts(*searcher);
    }

    const UnsyncedDisk disk_;
    std::unique_ptr<QTemporaryDir> folder_;

private Q_SLOTS:
    void init() { folder_ = std::make_unique<QTemporaryDir>(); }

    void BothTablesOfAllDocumentsAreSearchedInNameOrder() {
        MakeDocument(Path("b.tfmasm"), {Path("x.tfmprt"), Path("gear.tfmprt")});
        MakeDocument(Path("a.tfmprt"), {}, {Path("gear.tfmprt"), Path("y.tfmprt")});
        MakeDocument(Path("B.tfmdrw"), {Path("gear.tfmprt")}, {Path("gear.tfmasm")});
        QCOMPARE(Find("gear"), QStringList({"B.tfmdrw 0 gear.tfmprt", "B.tfmdrw x0 gear.tfmasm",
                                            "a.tfmprt x0 gear.tfmprt", "b.tfmasm 1 gear.tfmprt"}));
    }

    void ARowTellsPathsPositionTableAndStamp() {
        const QString holder = Path("a.tfmprt");
        MakeDocument(holder, {Path("x.tfmprt")}, {Path("y.tfmprt"), Path("gear.tfmprt")});
        const auto searcher = SearchByName(folder_->path(), "gear", "*");
        QCOMPARE(searcher->GetResultCount(), 1);
        const FoundReference row = searcher->GetResult(0);
        QCOMPARE(row.document, holder);
        QCOMPARE(row.reference, Path("gear.tfmprt"));
        QCOMPARE(row.referenceIndex, 1);
        QVERIFY(row.inContext);
        QCOMPARE(row.stamp, OpenFile(holder)->GetStamp(docbench::Table::ExternalReferences));
        const auto plain = SearchByName(folder_->path(), "x", "*");
        QCOMPARE(plain->GetResult(0).stamp,
                 OpenFile(holder)->GetStamp(docbench::Table::Components));
        QVERIFY(!plain->GetResult(0).inContext);
    }

    void TheMaskChoosesTheKinds_data() {
        QTest::addColumn<int>("mask");
        QTest::addColumn<QStringList>("found");
        const QString component = "a.tfmprt 0 gear.tfmprt";
        const QString mirrored = "a.tfmprt x0 gear.tfmprt";
        const QString inContext = "a.tfmprt x1 gear.tfmasm";
        const QString ofAssembly = "b.tfmasm x0 gear.tfmprt";
        QTest::newRow("none") << 0 << QStringList();
        QTest::newRow("plain") << 1 << QStringList(component);
        QTest::newRow("in context") << 2 << QStringList({inContext, ofAssembly});
        QTest::newRow("mirrored") << 4 << QStringList(mirrored);
        QTest::newRow("plain, mirrored") << 5 << QStringList({component, mirrored});
        QTest::newRow("all") << 7 << QStringList({component, mirrored, inContext, ofAssembly});
    }
    void TheMaskChoosesTheKinds() {
        QFETCH(int, mask);
        MakeDocument(Path("a.tfmprt"), {Path("gear.tfmprt")},
                     {Path("gear.tfmprt"), Path("gear.tfmasm")});
        MakeDocument(Path("b.tfmasm"), {}, {Path("gear.tfmprt")});
        QTEST(Find("gear", "*", mask), "found");
    }

    void NamesAreComparedWithoutLetterCase_data() {
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QStringList>("found");
        const QStringList both = {"GEAR.TfmPrt", "gear.tfmasm"};
        QTest::newRow("any extension") << "gEaR"
                                       << "*" << both;
        QTest::newRow("extension") << "gear"
                                   << "TFMPRT" << QStringList("GEAR.TfmPrt");
        QTest::newRow("other extension") << "gear"
                                         << "tfmdrw" << QStringList();
        QTest::newRow("other letters")
            << QString::fromUtf8("räDER") << "*" << QStringList(QString::fromUtf8("RÄDER.tfmprt"));
        QTest::newRow("letters beyond the first plane")
            << QString::fromUtf8("\U00010428") << "*"
            << QStringList(QString::fromUtf8("\U00010400.tfmprt"));
        QTest::newRow("part of a name") << "gea"
                                        << "*" << QStringList();
        QTest::newRow("longer name") << "gear2"
                                     << "*" << QStringList();
        QTest::newRow("name with a dot") << "gear.v2"
                                         << "*" << QStringList("gear.v2.tfmprt");
        QTest::newRow("a name that is whole") << "gear.step"
                                              << "*" << QStringList("gear.step");
        QTest::newRow("an extension alone") << "asm"
                                            << "ASM" << QStringList("asm");
    }
    void NamesAreComparedWithoutLetterCase() {
        QFETCH(QString, base);
        QFETCH(QString, extension);
        MakeDocument(
            Path("a.tfmasm"),
            {Path("GEAR.TfmPrt"), Path("gear.tfmasm"), Path(QString::fromUtf8("RÄDER.tfmprt")),
             Path(QString::fromUtf8("\U00010400.tfmprt")), Path("gear.v2.tfmprt"), Path("asm")},
            {Path("gear.step")});
        QStringList references;
        for (const QString& row : Find(base, extension))
            references.append(row.section(u' ', 2));
        if (base == "gEaR")
            QCOMPARE(references.takeLast(), "gear.step");  // any extension is any
        QTEST(references, "found");
    }

    void AFullPathLeavesNoOtherFolder() {
        QDir(folder_->path()).mkpath("sub");
        MakeDocument(Path("a.tfmasm"), {Path("sub/gear.tfmprt"), Path("gear.tfmprt")});
        QCOMPARE(FindPath(Path("sub/gear.tfmprt")), QStringList("a.tfmasm 0 gear.tfmprt"));
        QCOMPARE(FindPath(Path("sub/GEAR.TFMPRT")), QStringList("a.tfmasm 0 gear.tfmprt"));
        QCOMPARE(FindPath(Path("sub/gear.*")), QStringList("a.tfmasm 0 gear.tfmprt"));
        QCOMPARE(FindPath(Path("./sub//../gear.tfmprt")), QStringList("a.tfmasm 1 gear.tfmprt"));
        QCOMPARE(FindPath(Path("SUB/gear.tfmprt")), QStringList());
        QCOMPARE(FindPath(Path("sub/gear.tfmasm")), QStringList());
        QCOMPARE(FindPath(Path("sub/gear")), QStringList());
    }

    void PathsOfAnotherSystemAndWebAddressesAreFound() {
        MakeDocument(Path("a.tfmasm"),
                     {"C:\\parts\\gear.TFMPRT", "http://server/a//b/gear.tfmprt"});
        QCOMPARE(FindPath("c:\\parts\\gear.tfmprt"), QStringList());
        QCOMPARE(FindPath("C:\\parts\\gear.tfmprt"), QStringList("a.tfmasm 0 gear.TFMPRT"));
        QCOMPARE(FindPath("http://server/a//b/Gear.*"), QStringList("a.tfmasm 1 gear.tfmprt"));
        QCOMPARE(FindPath("http://server/a/b/gear.tfmprt"), QStringList());
        QCOMPARE(Find("gear", "tfmprt").size(), 2);
    }

    // The row stores both ways; which one counts is told by what is there at the search.
    void AMovedProjectIsFoundWhereItIs() {
        const QString before = Path("before");
        const QString after = Path("after");
        QDir().mkpath(before);
        MakeDocument(before + "/gear.tfmprt");
        MakeDocument(before + "/a.tfmasm", {before + "/gear.tfmprt"});
        QVERIFY(QDir().rename(before, after));
        ReferenceQuery query = NameQuery(after, "gear", "*");
        query.fullPathFlag = 1;
        query.fullPath = after + "/gear.tfmprt";
        auto searcher = Access().MakeFolderSearcher();
        QCOMPARE(searcher->FindReferences(query), 1);
        QCOMPARE(searcher->GetResult(0).reference, after + "/gear.tfmprt");
        query.fullPath = before + "/gear.tfmprt";
        QCOMPARE(searcher->FindReferences(query), 0);
        QVERIFY(QFile::remove(after + "/gear.tfmprt"));
        QCOMPARE(searcher->FindReferences(query), 1);
    }

    void OnlyDocumentsThatFitThePatternAreLookedAt_data() {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("documents");
        QTest::newRow("every") << "*.*"
                               << QStringList({"a1.ASM", "a2.prt", "a3.Drw", "b.tfmasm", "b.tfmdrw",
                                               "b.tfmprt"});
        QTest::newRow("star") << "b.*" << QStringList({"b.tfmasm", "b.tfmdrw", "b.tfmprt"});
        QTest::newRow("question mark") << "a?.???" << QStringList({"a1.ASM", "a2.prt", "a3.Drw"});
        QTest::newRow("one") << "b.tfmprt" << QStringList("b.tfmprt");
        QTest::newRow("no document") << "c.txt" << QStringList();
    }
    void OnlyDocumentsThatFitThePatternAreLookedAt() {
        QFETCH(QString, pattern);
        QFETCH(QStringList, documents);
        for (const char* name : {"a1.ASM", "a2.prt", "a3.Drw", "b.tfmasm", "b.tfmdrw", "b.tfmprt",
                                 "c.txt", "d", "e.tfmprt.bak"})
            MakeDocument(Path(name), {Path("gear.tfmprt")});
        QDir(folder_->path()).mkpath("folder.tfmprt");
        ReferenceQuery query = NameQuery(folder_->path(), "gear", "*");
        query.pattern = Path(pattern);
        auto searcher = Access().MakeFolderSearcher();
        QCOMPARE(searcher->FindReferences(query), documents.size());
        QCOMPARE(searcher->GetSearchCounts().documents, documents.size());
        for (int i = 0; i < documents.size(); ++i)
            QCOMPARE(searcher->GetResult(i).document, Path(documents[i]));
        QCOMPARE(searcher->GetSubfolder(0), Path("folder.tfmprt"));
    }

    void ThePatternsFolderIsTheDocumentsFolder_data() {
        QTest::addColumn<QString>("separator");
        QTest::newRow("slash") << "/";
        QTest::newRow("two slashes") << "//";
        QTest::newRow("backslash") << "\\";
    }
    void ThePatternsFolderIsTheDocumentsFolder() {
        QFETCH(QString, separator);
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        QDir(folder_->path()).mkpath("sub");
        ReferenceQuery query = NameQuery(folder_->path(), "gear", "*");
        query.pattern = folder_->path() + separator + "*.*";
        auto searcher = Access().MakeFolderSearcher();
        QCOMPARE(searcher->FindReferences(query), 1);
        QCOMPARE(searcher->GetResult(0).document, Path("a.tfmasm"));
        QCOMPARE(searcher->GetSubfolder(0), Path("sub"));
    }

    void APatternWithoutAFolderSearchesTheWorkingFolder() {
        const QString former = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder_->path()));
        MakeDocument("a.tfmasm", {"gear.tfmprt"});
        ReferenceQuery query = NameQuery(folder_->path(), "gear", "*");
        query.pattern = "*.*";
        auto searcher = Access().MakeFolderSearcher();
        const int found = searcher->FindReferences(query);
        QVERIFY(QDir::setCurrent(former));
        QCOMPARE(found, 1);
        QCOMPARE(searcher->GetResult(0).document, "a.tfmasm");
        QCOMPARE(searcher->GetResult(0).reference,
                 QDir(folder_->path()).canonicalPath() + "/gear.tfmprt");
    }

    void SubfoldersComeInNameOrderAndOutliveTheRows() {
        for (const char* name : {"b", "a", "C", ".hidden"})
            QDir(folder_->path()).mkpath(name);
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        const auto searcher = SearchByName(folder_->path(), "gear", "*");
        searcher->ClearResults();
        QCOMPARE(searcher->GetResultCount(), 0);
        QCOMPARE(Subfolders(*searcher),
                 QStringList({Path(".hidden"), Path("C"), Path("a"), Path("b")}));
    }

    void PositionsBeyondTheEndRaise() {
        const auto searcher = SearchByName(folder_->path(), "gear", "*");
        QVERIFY(!ErrorOf([&] { searcher->GetResult(0); }).isEmpty());
        QVERIFY(!ErrorOf([&] { searcher->GetResult(-1); }).isEmpty());
        QVERIFY(!ErrorOf([&] { searcher->GetSubfolder(0); }).isEmpty());
    }

    void ALinkToAFolderThatWasSearchedIsLeftOut() {
        QDir(folder_->path()).mkpath("a");
        QDir(folder_->path()).mkpath("b");
        QVERIFY(QFile::link(folder_->path(), Path("a/up")));
        QVERIFY(QFile::link(Path("b"), Path("a/other")));
        QVERIFY(QFile::link(Path("a"), Path("b/back")));
        QVERIFY(QFile::link(".", Path("self")));
        MakeDocument(Path("b/x.tfmasm"), {Path("gear.tfmprt")});
        auto searcher = Access().MakeFolderSearcher();
        QStringList walked;
        Walk(*searcher, folder_->path(), walked);
        QCOMPARE(walked, QStringList({folder_->path(), Path("a"), Path("a/other"), Path("b")}));
    }

    void AFolderIsSearchedUnderItsOwnNameRatherThanALinks() {
        QDir(folder_->path()).mkpath("library");
        QDir(folder_->path()).mkpath("works");
        QVERIFY(QFile::link(Path("library"), Path("current")));
        MakeDocument(Path("library/x.tfmasm"), {Path("gear.tfmprt")});
        auto searcher = Access().MakeFolderSearcher();
        searcher->FindReferences(NameQuery(folder_->path(), "gear", "*"));
        QCOMPARE(Subfolders(*searcher),
                 QStringList({Path("library"), Path("works"), Path("current")}));
        QCOMPARE(searcher->FindReferences(NameQuery(Path("library"), "gear", "*")), 1);
        QCOMPARE(searcher->FindReferences(NameQuery(Path("current"), "gear", "*")), 0);
        QCOMPARE(searcher->GetSearchCounts().documents, 1);
        QCOMPARE(searcher->FindReferences(NameQuery(Path("library"), "gear", "*")), 1);
    }

    void ALinkCanBeAskedAboutAgain() {
        QDir(folder_->path()).mkpath("library");
        QVERIFY(QFile::link(Path("library"), Path("current")));
        MakeDocument(Path("library/x.tfmasm"), {Path("gear.tfmprt")});
        auto searcher = Access().MakeFolderSearcher();
        for (int i = 0; i < 2; ++i)
            QCOMPARE(searcher->FindReferences(NameQuery(Path("current"), "gear", "*")), 1);
    }

    void ALinkToADocumentIsADocument() {
        QDir(folder_->path()).mkpath("elsewhere");
        QDir(folder_->path()).mkpath("here");
        MakeDocument(Path("elsewhere/x.tfmasm"), {Path("elsewhere/gear.tfmprt")});
        QVERIFY(QFile::link(Path("elsewhere/x.tfmasm"), Path("here/link.tfmasm")));
        QCOMPARE(RowTexts(*SearchByName(Path("here"), "gear", "*")),
                 QStringList("link.tfmasm 0 gear.tfmprt"));
    }

    void UnreadableDocumentsAreCountedAndPassedOver() {
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        MakeDocument(Path("z.tfmasm"), {Path("gear.tfmprt")});
        WriteBytes(Path("empty.tfmprt"), QByteArray());
        WriteBytes(Path("noise.tfmprt"), Noise(10000));
        WriteBytes(Path("cut.tfmprt"), FileBytes(Path("a.tfmasm")).chopped(200));
        WriteTables(Path("tables.tfmprt"), Tables("<components><component path="));
        WriteTables(Path("newer.tfmprt"), Tables("", "99"));
        QVERIFY(QFile::link(Path("nowhere"), Path("dangling.tfmprt")));
        QVERIFY(QFile::link(Path("circle.tfmprt"), Path("circle.tfmprt")));
        QCOMPARE(mkfifo(QFile::encodeName(Path("pipe.tfmprt")).constData(), 0600), 0);
        const auto searcher = SearchByName(folder_->path(), "gear", "*");
        QCOMPARE(RowTexts(*searcher),
                 QStringList({"a.tfmasm 0 gear.tfmprt", "z.tfmasm 0 gear.tfmprt"}));
        QCOMPARE(searcher->GetSearchCounts().documents, 10);
        QCOMPARE(searcher->GetSearchCounts().unread, 8);
    }

    void AFolderWithoutPermissionCountsAsUnread() {
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        QDir().mkpath(Path("closed"));
        MakeDocument(Path("closed/b.tfmasm"), {Path("gear.tfmprt")});
        QVERIFY(QFile::setPermissions(Path("closed"), {}));
        const int result = InChild([this] {
            docbench::GiveUpPrivileges();
            auto searcher = Access().MakeFolderSearcher();
            QStringList walked;
            Walk(*searcher, folder_->path(), walked);
            const docbench::SearchCounts counts = searcher->GetSearchCounts();
            if (walked.size() != 2 || counts.documents != 1 || counts.unread != 1)
                throw DocumentError("other counts");
        });
        QVERIFY(QFile::setPermissions(Path("closed"), QFile::Permissions(0x7700)));
        QCOMPARE(result, 0);
    }

    void NamesThatAreNoTextAreCounted() {
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        const QByteArray folder = QFile::encodeName(folder_->path());
        const int file = open((folder + "/bad\xff.tfmprt").constData(), O_CREAT | O_WRONLY, 0600);
        QVERIFY(file >= 0);
        close(file);
        QCOMPARE(mkdir((folder + "/bad\xfe").constData(), 0700), 0);
        const auto searcher = SearchByName(folder_->path(), "gear", "*");
        unlink((folder + "/bad\xff.tfmprt").constData());  // the temporary folder can't
        rmdir((folder + "/bad\xfe").constData());
        QCOMPARE(searcher->GetResultCount(), 1);
        QCOMPARE(searcher->GetSubfolderCount(), 0);
        QCOMPARE(searcher->GetSearchCounts().documents, 3);
        QCOMPARE(searcher->GetSearchCounts().unread, 2);
    }

    void CountsAddUpOverTheSearchesOfOneObject() {
        MakeDocument(Path("a.tfmasm"));
        WriteBytes(Path("b.tfmprt"), "no document");
        auto searcher = Access().MakeFolderSearcher();
        const ReferenceQuery query = NameQuery(folder_->path(), "gear", "*");
        searcher->FindReferences(query);
        searcher->FindReferences(query);
        searcher->ClearResults();
        QCOMPARE(searcher->GetSearchCounts().documents, 4);
        QCOMPARE(searcher->GetSearchCounts().unread, 2);
    }

    void AFolderThatIsNotThereCountsAsUnreadAndLeavesNoRows() {
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        QDir(folder_->path()).mkpath("vanishing");
        const auto searcher = SearchByName(folder_->path(), "gear", "*");
        const QString vanishing = searcher->GetSubfolder(0);
        QVERIFY(QDir().rmdir(vanishing));
        QCOMPARE(searcher->GetSearchCounts().unread, 0);
        QCOMPARE(searcher->FindReferences(NameQuery(vanishing, "gear", "*")), 0);
        QCOMPARE(searcher->GetSearchCounts().unread, 1);
        QCOMPARE(searcher->GetResultCount(), 0);
        QCOMPARE(searcher->GetSubfolderCount(), 0);
        QCOMPARE(searcher->FindReferences(NameQuery(Path("a.tfmasm"), "gear", "*")), 0);
        QCOMPARE(searcher->GetSearchCounts().unread, 2);
    }

    void PackagesOfOthersAndOldDocumentsHaveNoRows() {
        PackageWriter::Create(Path("foreign.tfmprt"), {{"any/part.xml", "<x>gear</x>"}});
        WriteTables(Path("old.tfmprt"),
                    Tables("<components><component path=\"/gear.tfmprt\"/></components>", "0"));
        const auto searcher = SearchByName(folder_->path(), "gear", "*");
        QCOMPARE(searcher->GetResultCount(), 0);
        QCOMPARE(searcher->GetSearchCounts().documents, 2);
        QCOMPARE(searcher->GetSearchCounts().unread, 0);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestFindReferences)
#include "tst_findreferences.moc"
