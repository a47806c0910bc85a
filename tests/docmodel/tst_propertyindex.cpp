// Searches by properties with the index, and reading ahead: faster, and no answer different.

#include <sys/stat.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "docmodel/propertyfolder.h"
#include "docmodel/propertyrecord.h"
#include "docmodel/referenceindex.h"
#include "tests/docmodel/changingfolder.h"
#include "tests/docmodel/searchtools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;
using docbench::PropertyQuery;
using docbench::SearchCounts;

namespace {

constexpr qint64 kSecond = 1'000'000'000;
// Everything that was ever written counts as settled: no test has to wait for the clock.
constexpr qint64 kNoGrain = -1000 * kSecond;
// Far above the tick of any clock that stamps files here, and passed within some steps.
constexpr qint64 kGrain = 20'000'000;

constexpr int kContains = 2;

void MakeTitled(const QString& path, const QString& title) {
    auto document = DocumentBuilder::New(path, DocumentBuilder::IfThere::Replace);
    document.SetTitle(title);
    document.Save();
}

std::unique_ptr<PropertyQuery> TitleQuery(const QString& title) {
    auto query = Access().MakePropertyQuery({});
    query->AddCondition("AND", "Title", kContains, title);
    return query;
}

}  // namespace

class TestPropertyIndex : public QObject {
    Q_OBJECT

private:
    QString Path(const QString& name) const { return folder_->filePath(name); }
    QByteArray Key() const { return (folder_->path() + '/').toUtf8(); }
    QStringList Names() const {
        return QDir(folder_->path()).entryList(QDir::Files | QDir::System, QDir::Name);
    }

    // The names of the documents that match, asked for in that order.
    QStringList Ask(PropertyQuery& query, const QStringList& names) const {
        QStringList found;
        for (const QString& name : names)
            if (query.Evaluate(Path(name)))
                found.append(name);
        return found;
    }
    QStringList Search(const QString& title, bool readsAhead = true) const {
        const auto query = TitleQuery(title);
        const QStringList names = Names();
        if (readsAhead)
            query->ReadAhead(folder_->path(), names);
        return Ask(*query, names);
    }
    // What the index knows of the folder: the names of the documents.
    QStringList Known() const {
        const QByteArray packed = ReferenceIndex(ReferenceIndex::Facts::Properties).Load(Key());
        IndexReader reader(packed, Key(), IndexMark::Properties);
        QStringList known;
        for (IndexEntry entry; reader.Next(entry);)
            known.append(QString::fromUtf8(entry.name));
        return known;
    }
    // Tells the index that a document in its present state has no properties.
    void Plant(const QString& name) const {
        struct stat status = {};
        QVERIFY(stat(QFile::encodeName(Path(name)).constData(), &status) == 0);
        IndexPacker packer(IndexMark::Properties);
        packer.Add(name.toUtf8(), StateOf(status), {});
        ReferenceIndex(ReferenceIndex::Facts::Properties).Store(Key(), packer.Packed(Key()));
    }

    const UnsyncedDisk disk_;
    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<QTemporaryDir> cache_;

private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        cache_ = std::make_unique<QTemporaryDir>();
        GlobalIndexSettings() = {true, cache_->filePath("references.sqlite"), kNoGrain};
    }

    void WhatWasReadIsRemembered() {
        for (const char* name : {"b.tfmprt", "a.tfmasm", "c.tfmdrw"})
            MakeTitled(Path(name), "gear");
        QCOMPARE(Search("gear").size(), 3);
        QCOMPARE(Known(), QStringList({"a.tfmasm", "b.tfmprt", "c.tfmdrw"}));
    }

    void WithoutAWordBeforehandItIsRememberedAsWell() {
        MakeTitled(Path("a.tfmprt"), "gear");
        QCOMPARE(Search("gear", false).size(), 1);
        QCOMPARE(Known(), QStringList({"a.tfmprt"}));
    }

    // So the tests below can tell by the answer whether a document was read.
    void WhatIsKnownIsNotReadAgain() {
        MakeTitled(Path("a.tfmprt"), "gear");
        Plant("a.tfmprt");
        QCOMPARE(Search("gear"), QStringList());
        QCOMPARE(Search("gear", false), QStringList());
    }

    void AChangedDocumentIsReadAgain() {
        MakeTitled(Path("a.tfmprt"), "gear");
        Plant("a.tfmprt");
        MakeTitled(Path("a.tfmprt"), "gear wheel");
        QCOMPARE(Search("wheel"), QStringList("a.tfmprt"));
        QCOMPARE(Search("wheel"), QStringList("a.tfmprt"));
    }

    void ADocumentOfTheLastMomentIsReadEachTime() {
        GlobalIndexSettings().grain = 3600 * kSecond;
        MakeTitled(Path("a.tfmprt"), "gear");
        QCOMPARE(Search("gear").size(), 1);
        QCOMPARE(Known(), QStringList());
    }

    void LinksAreReadEachTime() {
        const QTemporaryDir elsewhere;
        MakeTitled(elsewhere.filePath("a.tfmprt"), "gear");
        QFile::link(elsewhere.filePath("a.tfmprt"), Path("link.tfmprt"));
        QCOMPARE(Search("gear").size(), 1);
        QCOMPARE(Known(), QStringList());
        MakeTitled(elsewhere.filePath("a.tfmprt"), "bolt");
        QCOMPARE(Search("gear").size(), 0);
    }

    void DocumentsWithHugeTextsAreReadEachTime() {
        MakeTitled(Path("a.tfmprt"), QString(100'000, 'x') + "gear");
        QCOMPARE(Search("gear").size(), 1);
        QCOMPARE(Search("gear").size(), 1);
        QCOMPARE(Known(), QStringList());
    }

    void ReferencesAndPropertiesOfAFolderLeaveEachOtherAlone() {
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        QCOMPARE(SearchByName(folder_->path(), "gear", "*")->GetResultCount(), 1);
        const QByteArray references = ReferenceIndex().Load(Key());
        QVERIFY(!references.isEmpty());
        Search("gear");
        QCOMPARE(Known(), QStringList("a.tfmasm"));
        QCOMPARE(ReferenceIndex().Load(Key()), references);
        MakeDocument(Path("b.tfmasm"), {Path("gear.tfmprt")});
        QCOMPARE(SearchByName(folder_->path(), "gear", "*")->GetResultCount(), 2);
        QCOMPARE(Known(), QStringList("a.tfmasm"));
    }

    void WhatIsGoneIsForgottenAfterASearchOfTheWholeFolder() {
        for (const char* name : {"a.tfmprt", "b.tfmprt", "c.tfmprt"})
            MakeTitled(Path(name), "gear");
        Search("gear");
        QFile::remove(Path("b.tfmprt"));
        MakeTitled(Path("d.tfmprt"), "gear");
        const auto query = TitleQuery("gear");
        QVERIFY(query->Evaluate(Path("d.tfmprt")));  // the others may still be there
        QCOMPARE(Search("gear").size(), 3);
        MakeTitled(Path("e.tfmprt"), "gear");
        Search("gear");
        QCOMPARE(Known(), QStringList({"a.tfmprt", "c.tfmprt", "d.tfmprt", "e.tfmprt"}));
    }

    // Those that are listed already are passed over, and are there all the same.
    void WhatWasNotAskedForStaysKnown() {
        for (const char* name : {"a.tfmprt", "b.tfmprt"})
            MakeTitled(Path(name), "gear");
        Search("gear");
        MakeTitled(Path("c.tfmprt"), "gear");
        {
            const auto query = TitleQuery("gear");
            query->ReadAhead(folder_->path(), {"c.tfmprt"});
            QVERIFY(query->Evaluate(Path("c.tfmprt")));
        }
        QCOMPARE(Known(), QStringList({"a.tfmprt", "b.tfmprt", "c.tfmprt"}));
    }

    void AnIndexThatIsBrokenOrOffChangesNoAnswer() {
        MakeTitled(Path("a.tfmprt"), "gear");
        QCOMPARE(Search("gear").size(), 1);
        const QString file = GlobalIndexSettings().file;
        for (const char* ending : {"-wal", "-shm"})
            QFile::remove(file + ending);
        QFile index(file);
        QVERIFY(index.open(QIODevice::WriteOnly) && index.write("no database") > 0);
        index.close();
        QCOMPARE(Search("gear").size(), 1);
        QCOMPARE(Search("gear").size(), 1);
        GlobalIndexSettings().isOn = false;
        QCOMPARE(Search("gear").size(), 1);
    }

    void ReadingAheadGivesWhatReadingDoes() {
        GlobalIndexSettings().isOn = false;
        for (int i = 0; i < 300; ++i)  // more than are read ahead at once
            MakeTitled(Path(QString("d%1.tfmprt").arg(i, 3, 10, QChar('0'))),
                       i % 3 ? "gear" : "bolt");
        QFile::resize(Path("d100.tfmprt"), 40);
        QFile::remove(Path("d101.tfmprt"));
        QStringList names = Names();
        names.insert(101, "d101.tfmprt");
        const auto plain = TitleQuery("gear");
        const QStringList right = Ask(*plain, names);
        QCOMPARE(right.size(), 198);
        const auto ahead = TitleQuery("gear");
        ahead->ReadAhead(folder_->path(), names);
        QCOMPARE(Ask(*ahead, names), right);
        QCOMPARE(ahead->GetSearchCounts().documents, 300);
        QCOMPARE(ahead->GetSearchCounts().unread, 2);
        QCOMPARE(Ask(*ahead, names), right);  // asked for once more, read as before
        QStringList backwards(names.crbegin(), names.crend());
        const auto other = TitleQuery("gear");
        other->ReadAhead(folder_->path(), names);
        QCOMPARE(Ask(*other, backwards), QStringList(right.crbegin(), right.crend()));
    }

    void WhatChangesAfterItWasReadAheadIsReadAgain() {
        GlobalIndexSettings().isOn = false;
        for (int i = 0; i < 100; ++i)
            MakeTitled(Path(QString("d%1.tfmprt").arg(i, 3, 10, QChar('0'))), "gear");
        const QStringList names = Names();
        const auto query = TitleQuery("gear");
        query->ReadAhead(folder_->path(), names);
        QVERIFY(query->Evaluate(Path(names[0])));
        for (const QString& name : names.mid(1))
            MakeTitled(Path(name), "a much longer title");
        QCOMPARE(Ask(*query, names.mid(1)), QStringList());
    }

    void AQueryMayGoAwayInTheMidstOfReadingAhead() {
        GlobalIndexSettings().isOn = false;
        for (int i = 0; i < 300; ++i)
            MakeTitled(Path(QString("d%1.tfmprt").arg(i, 3, 10, QChar('0'))), "gear");
        for (int asked = 0; asked < 20; ++asked) {
            const auto query = TitleQuery("gear");
            query->ReadAhead(folder_->path(), Names());
            QCOMPARE(Ask(*query, Names().mid(0, asked)).size(), asked);
        }
    }

    void AFolderThatIsNotThereIsReadAheadInVain() {
        const auto query = TitleQuery("gear");
        query->ReadAhead(Path("nowhere"), {"a.tfmprt"});
        QVERIFY(!query->Evaluate(Path("nowhere/a.tfmprt")));
        QCOMPARE(query->GetSearchCounts().unread, 1);
    }

    void AFolderThatVanishesLeavesUnreadDocuments() {
        QDir().mkpath(Path("sub"));
        for (int i = 0; i < 3; ++i)
            MakeTitled(Path(QString("sub/%1.tfmprt").arg(i)), "gear");
        const auto query = TitleQuery("gear");
        query->ReadAhead(Path("sub"), {"0.tfmprt", "1.tfmprt", "2.tfmprt"});
        QVERIFY(query->Evaluate(Path("sub/0.tfmprt")));
        QVERIFY(QDir(Path("sub")).removeRecursively());
        QVERIFY(!query->Evaluate(Path("sub/1.tfmprt")));
        QVERIFY(!query->Evaluate(Path("sub/2.tfmprt")));
        QCOMPARE(query->GetSearchCounts().unread, 2);
    }

    void DamagedRecordsHaveNoProperties() {
        MakeTitled(Path("a.tfmprt"), "gear");
        const QByteArray record = ReadPropertyRecord(Package::Open(Path("a.tfmprt")));
        QVERIFY(PropertyRecord(record).Find(PropertyKey::For("Created")));
        for (qsizetype length = 0; length < record.size(); ++length)
            PropertyRecord(QByteArrayView(record).first(length)).Find(PropertyKey::For("Created"));
        QVERIFY(!PropertyRecord(QByteArray(40, '\xff')).Find(PropertyKey::For("Title")));
    }

    void NoChangeOfTheDocumentsGoesUnseen_data() {
        QTest::addColumn<quint32>("seed");
        for (const quint32 seed : {1U, 2U, 3U})
            QTest::addRow("seed %u", seed) << seed;
    }
    void NoChangeOfTheDocumentsGoesUnseen() {
        QFETCH(quint32, seed);
        constexpr int kSteps = 400;
        GlobalIndexSettings().grain = kGrain;
        // Of one length: swapping one for another does not change a document's size.
        const auto anyTitle = [](QRandomGenerator& random) {
            const QStringList titles = {"gear-a", "gear-b", "bolt-a", "bolt-b"};
            return titles[random.bounded(int(titles.size()))];
        };
        ChangingFolder library(
            folder_->path(), seed,
            {.write = [&](const QString& path,
                          QRandomGenerator& random) { MakeTitled(path, anyTitle(random)); },
             .edit =
                 [&](const QString& path, QRandomGenerator& random) {
                     const auto info = OpenInfoOrRaise(path);
                     info->SetTitle(anyTitle(random));
                     info->Save();
                 },
             .twin = [&](const QString&, const QString& twin,
                         QRandomGenerator& random) { MakeTitled(twin, anyTitle(random)); }});
        QRandomGenerator random(seed);
        int found = 0;
        for (int step = 0; step < kSteps; ++step) {
            const char* change = library.Change();
            const QString title = anyTitle(random);
            const QStringList names = Names();
            QStringList right;
            for (const QString& name : names) {
                auto info = Access().MakeDocumentInfo();
                if (info->Open(Path(name)) && info->GetTitle() == title)
                    right.append(name);
            }
            found += int(right.size());
            const QStringList given = Search(title, random.bounded(2) == 0);
            QVERIFY2(given == right,
                     qPrintable(QString("step %1 (%2): %3 instead of %4")
                                    .arg(step)
                                    .arg(change, given.join(", "), right.join(", "))));
        }
        QVERIFY(found > kSteps);
        QVERIFY(library.sameSize > 5);
    }

private:
    static std::unique_ptr<DocumentInfo> OpenInfoOrRaise(const QString& path) {
        auto info = Access().MakeDocumentInfo();
        if (!info->Open(path))
            throw DocumentError("no record");
        return info;
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestPropertyIndex)
#include "tst_propertyindex.moc"
