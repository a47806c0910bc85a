// The walk of a document search and its result list, without a pane.

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTest>

#include "search/documentsearch.h"
#include "search/searchresults.h"
#include "services/filefacts.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/settingsstore.h"
#include "services/texts.h"
#include "tests/support/fakequery.h"
#include "tests/support/testenvironment.h"
#include "tests/support/testlibrary.h"

using namespace docbench;

namespace {

// A walk over folders that a test fills, with what it was told.
struct Bench {
    Bench() {
        LoadResources();
        root = library.Folder();
    }
    QString File(const QString& name) {
        const QString path = root + '/' + name;
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("no file");
        return path;
    }
    void Run(const QStringList& entries) {
        FakeQuery query(answers);
        DocumentSearch search(query,
                              {.yield =
                                   [this] {
                                       ++yields;
                                       if (onYield)
                                           onYield();
                                   },
                               .stopped = [this] { return stops; },
                               .descends = [this] { return descends; },
                               .entering = [this](const QString& folder) { entered << folder; },
                               .isListed = [this](const QString& path) { return list.Lists(path); },
                               .found =
                                   [this](const QString& path) {
                                       found << path.mid(root.size() + 1);
                                       list.Add(path);
                                   },
                               .progress = [this](const SearchCounts& now) { counts = now; }});
        search.Run(entries);
        list.ShowAll();
        count = search.Found();
    }

    TestLibrary library;
    QString root;
    FakeAnswers answers;
    CellList cells;
    SearchResults list{cells};
    bool descends = true;
    bool stops = false;
    std::function<void()> onYield;
    int yields = 0;
    int count = 0;
    QStringList entered;
    QStringList found;
    SearchCounts counts;
};

}  // namespace

class TestDocumentSearch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void OnlyDocumentsAreLookedAt() {
        Bench bench;
        for (const char* name :
             {"a.TFMPRT", "b.tfmasm", "c.tfmdrw", "d.PRT", "e.asm", "f.DRW", "g.txt", "h.prt.bak"})
            bench.File(name);
        bench.Run({bench.root});
        QCOMPARE(bench.found, QStringList({"a.TFMPRT", "b.tfmasm", "c.tfmdrw", "d.PRT", "e.asm"}));
        QCOMPARE(bench.answers.fileNames, bench.found);
        QCOMPARE(bench.answers.announced, bench.answers.evaluated);
        QCOMPARE(bench.count, 5);
    }

    void AYieldComesOnceAFolderAndOnceAFile() {
        Bench bench;
        bench.File("a.prt");
        bench.File("b.txt");
        bench.File("sub/c.prt");
        bench.Run({bench.root});
        QCOMPARE(bench.yields, 5);
    }

    void AFolderComesBeforeItsSubfoldersAndDepthFirst() {
        Bench bench;
        for (const char* name : {"b/deep/1.prt", "b/2.prt", "a/3.prt", "4.prt", ".hidden/5.prt"})
            bench.File(name);
        bench.Run({bench.root});
        QCOMPARE(bench.found,
                 QStringList({"4.prt", ".hidden/5.prt", "a/3.prt", "b/2.prt", "b/deep/1.prt"}));
        const QString root = bench.root;
        QCOMPARE(bench.entered, QStringList({root, root + "/.hidden", root + "/a", root + "/b",
                                             root + "/b/deep"}));
    }

    void SubfoldersAreAskedForAfterEachFolder() {
        Bench bench;
        bench.File("a.prt");
        bench.File("sub/b.prt");
        bench.descends = false;
        bench.Run({bench.root});
        QCOMPARE(bench.found, QStringList("a.prt"));
    }

    void AStopEndsTheWalkBeforeTheNextDocumentIsOpened() {
        Bench bench;
        for (const char* name : {"a.prt", "b.prt", "sub/c.prt"})
            bench.File(name);
        bench.onYield = [&] { bench.stops |= bench.yields == 3; };  // the folder, a, b
        bench.Run({bench.root, bench.root + "/sub"});
        QCOMPARE(bench.found, QStringList("a.prt"));
        QCOMPARE(bench.count, 1);
    }

    void AStopAtTheFirstYieldLooksAtNothing() {
        Bench bench;
        bench.File("a.prt");
        bench.stops = true;
        bench.Run({bench.root});
        QCOMPARE(bench.entered, QStringList());
        QCOMPARE(bench.answers.evaluated, QStringList());
    }

    void OnlyHitsAreListed() {
        Bench bench;
        for (const char* name : {"a.prt", "b.prt", "c.prt"})
            bench.File(name);
        bench.answers.matches = [](const QString& path) { return !path.endsWith("b.prt"); };
        bench.answers.unread = {bench.root + "/c.prt"};
        bench.Run({bench.root});
        QCOMPARE(bench.found, QStringList("a.prt"));
        QCOMPARE(bench.counts.documents, 3);
        QCOMPARE(bench.counts.unread, 1);
    }

    void WhatIsListedIsNotOpenedAgain() {
        Bench bench;
        bench.File("a.prt");
        bench.File("sub/b.prt");
        bench.Run({bench.root, bench.root + "/sub", bench.root + '/'});
        QCOMPARE(bench.count, 2);
        QCOMPARE(bench.answers.evaluated.size(), 2);
        QCOMPARE(bench.answers.announced.size(), 2);
    }

    void InShortFormHitsAreListedTwice() {
        Bench bench;
        bench.File("a.prt");
        ToggleForm(bench.cells, ResultColumn());
        bench.Run({bench.root, bench.root + '/'});
        QCOMPARE(bench.count, 2);
        QCOMPARE(bench.cells.Count(), 2);
        QCOMPARE(bench.cells.At(1).cells[0].text, QString("a.prt"));
    }

    void AnEntryThatIsNoFolderStandsForTheOneBeforeIt() {
        Bench bench;
        const QString file = bench.File("a.prt");
        bench.Run({"/no/such/folder", bench.root, "/nor/this", file});
        QCOMPARE(bench.found, QStringList("a.prt"));
        QCOMPARE(bench.entered, QStringList({bench.root, bench.root, bench.root}));
    }

    void WithoutAnyFolderNothingIsFound() {
        Bench bench;
        bench.Run({"/no/such/folder", "http://server/folder"});
        QCOMPARE(bench.entered, QStringList());
        QCOMPARE(bench.count, 0);
    }

    void AFolderThatVanishesEndsNothing() {
        Bench bench;
        bench.File("a/1.prt");
        bench.File("a/2.prt");
        bench.File("b/3.prt");
        bench.answers.matches = [&](const QString& path) {
            if (path.endsWith("1.prt"))
                QDir(bench.root + "/a").removeRecursively();
            return QFile::exists(path);
        };
        bench.Run({bench.root});
        QCOMPARE(bench.found, QStringList("b/3.prt"));
    }

    void AFolderThatCanNotBeListedIsCounted() {
        Bench bench;
        bench.File("a.prt");
        bench.File("sub/b.prt");
        bench.answers.matches = [&](const QString&) {
            QDir(bench.root + "/sub").removeRecursively();
            return true;
        };
        bench.Run({bench.root});
        QCOMPARE(bench.counts.documents, 1);
        QCOMPARE(bench.counts.unread, 1);
    }

    void AWalkThroughLinkedFoldersEnds() {
        Bench bench;
        bench.File("sub/a.prt");
        QFile::link(bench.root, bench.root + "/sub/up");
        QFile::link(bench.root + "/sub", bench.root + "/current");
        QFile::link("/no/such/place", bench.root + "/dangling.prt");
        bench.Run({bench.root});
        QCOMPARE(bench.found, QStringList({"dangling.prt", "sub/a.prt"}));
    }

    void NamesWithStrangeCharactersAreSpeltAsTheyAre() {
        Bench bench;
        const QStringList names = {" a;b.prt", QString::fromUtf8("Ö齿.prt"), "a*b?.prt"};
        for (const QString& name : names)
            bench.File(name);
        bench.Run({bench.root});
        QStringList sorted = names;
        sorted.sort();
        QCOMPARE(bench.found, sorted);
    }

    void EntriesAreExpandedAndEachComesOnce() {
        const TestLibrary library;
        const auto key = SettingsKey::Open(SettingsKey::Hive::CurrentUser, kExtReferencesKey);
        key->SetText("Standard parts TDB-Key", "/std;/norm");
        QCOMPARE(SearchEntries("/w; Standard parts TDB-Key;/std"),
                 QStringList({"/w", "/std", "/norm"}));
        QCOMPARE(SearchEntries(" no such list"), QStringList());
        QCOMPARE(SearchEntries(";;"), QStringList());
        QCOMPARE(SearchEntries(""), QStringList());
    }

    void ARowTellsOfTheFile() {
        Bench bench;
        const QString path = bench.File(".bolt.prt");
        QVERIFY(QFile::resize(path, 12'600));
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
        bench.list.Add(path);
        bench.list.ShowAll();
        const CellRow& row = bench.cells.At(0);
        QCOMPARE(row.tag, path);
        QCOMPARE(row.cells[0].text, path);
        QCOMPARE(row.cells[0].toolTip, path);
        QVERIFY(!row.cells[1].text.isEmpty());
        QCOMPARE(row.cells[2].text, sprintf(gStrings[371], {"13"}));
        const QDateTime created = FactsOf(path).created;
        const int hour = (created.time().hour() + 11) % 12 + 1;
        QCOMPARE(
            row.cells[3].text,
            QString::asprintf("%02d/%02d/%02d  %02d:%02d %s", created.date().month(),
                              created.date().day(), created.date().year() % 100, hour,
                              created.time().minute(), created.time().hour() < 12 ? "AM" : "PM"));
        QCOMPARE(row.cells[4].text, QString("HR"));
        QCOMPARE(bench.cells.Headers()[0].text, gStrings[28]);
        QCOMPARE(bench.cells.Headers()[0].tag, QString("L"));
        const QList<int> captions = {117, 116, 284, 119};
        for (int i = 0; i < 4; ++i)
            QCOMPARE(bench.cells.Headers()[size_t(i) + 1].text, gStrings[size_t(captions[i])]);
    }

    void FactsOfAFileThatIsGoneAreFew() {
        const FileFacts facts = FactsOf("/no/such/file.tfmprt");
        QCOMPARE(facts.type, QString("TFMPRT"));
        QCOMPARE(facts.size, qint64(0));
        QCOMPARE(facts.attributes, quint8(0));
        QCOMPARE(FileAttributeText(kAttributeArchive | kAttributeReadOnly), QString("AR"));
    }

    void RowsThatWaitFollowTheFormOfTheirColumn() {
        Bench bench;
        const QString first = bench.File("a.prt");
        const QString second = bench.File("b.prt");
        bench.list.Add(first);
        bench.list.ShowSome();  // the first rows do not wait
        QCOMPARE(bench.cells.Count(), 1);
        bench.list.Add(second);
        ToggleForm(bench.cells, ResultColumn());
        bench.list.ShowAll();
        QCOMPARE(bench.cells.At(0).cells[0].text, QString("a.prt"));
        QCOMPARE(bench.cells.At(1).cells[0].text, QString("b.prt"));
        QVERIFY(!bench.list.Lists(first));
        ToggleForm(bench.cells, ResultColumn());
        QVERIFY(bench.list.Lists(first) && bench.list.Lists(second));
        bench.list.Clear();
        QVERIFY(!bench.list.Lists(first));
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestDocumentSearch)
#include "tst_documentsearch.moc"
