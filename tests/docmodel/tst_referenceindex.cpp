// The reference index: it makes searches faster, and no answer different.

#include <fcntl.h>
#include <linux/magic.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <thread>

#include "docmodel/filestate.h"
#include "docmodel/indexentry.h"
#include "docmodel/referenceindex.h"
#include "docmodel/referencetarget.h"
#include "tests/docmodel/documenttools.h"
#include "tests/docmodel/searchtools.h"
#include "tests/support/privileges.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;

namespace {

constexpr qint64 kSecond = 1'000'000'000;
// Everything that was ever written counts as settled: no test has to wait for the clock.
constexpr qint64 kNoGrain = -1000 * kSecond;

FileState StateOfFile(const QString& path) {
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        QTest::qFail(qPrintable(path + " is not there"), __FILE__, __LINE__);
    return StateOf(status);
}

// Gives a file the modified time `seconds` after 1970.
void SetModified(const QString& path, time_t seconds, long nanoseconds = 0) {
    const timespec times[2] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
    utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0);
}

// Runs statements on the database of the index, as another program would.
class OtherProgram {
public:
    OtherProgram() {
        QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "other");
        database.setDatabaseName(GlobalIndexSettings().file);
        database.open();
    }
    ~OtherProgram() { QSqlDatabase::removeDatabase("other"); }
    bool Run(const QString& statement) {
        QSqlQuery query(QSqlDatabase::database("other"));
        const bool isDone = query.exec(statement);
        if (query.next())
            value_ = query.value(0);
        return isDone;
    }
    QVariant Value(const QString& statement) {
        value_ = {};
        Run(statement);
        return value_;
    }

private:
    QVariant value_;
};

}  // namespace

class TestReferenceIndex : public QObject {
    Q_OBJECT

private:
    QString Path(const QString& name) const { return folder_->filePath(name); }
    QStringList Find() const { return RowTexts(*SearchByName(folder_->path(), "gear", "*")); }
    QByteArray Key() const { return (folder_->path() + '/').toUtf8(); }

    // Tells the index that a document in this state refers to nothing.
    void Plant(const QString& name, const FileState& state) const {
        IndexPacker packer(IndexMark::References);
        packer.Add(name.toUtf8(), state, {});
        ReferenceIndex().Store(Key(), packer.Packed(Key()));
    }
    // What the index knows of the folder: "NAME HASHES" for each document.
    QStringList Known() const {
        const QByteArray packed = ReferenceIndex().Load(Key());
        IndexReader reader(packed, Key(), IndexMark::References);
        QStringList known;
        for (IndexEntry entry; reader.Next(entry);)
            known.append(QString::fromUtf8(entry.name) + ' ' +
                         QString::number(entry.facts.size() / 4));
        return known;
    }

    const UnsyncedDisk disk_;
    std::unique_ptr<QTemporaryDir> folder_;
    std::unique_ptr<QTemporaryDir> cache_;

private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        cache_ = std::make_unique<QTemporaryDir>();
        GlobalIndexSettings() = {true, cache_->filePath("index/references.sqlite"), kNoGrain};
    }

    void TheIndexLiesInTheUsersCacheFolder() {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        QVERIFY(usualFile_.endsWith("/tessaforma-docbench/references.sqlite"));
        QVERIFY(usualFile_.startsWith(environment.value("XDG_CACHE_HOME")));
    }

    void EntriesComeOutAsTheyWentIn() {
        const FileState state = {1, 2, 3, 4};
        IndexPacker packer(IndexMark::References);
        packer.Add("a", state, "facts");
        packer.Add("b", {5, 6, 7, 8}, {});
        const QByteArray packed = packer.Packed("/folder/");
        IndexReader reader(packed, "/folder/", IndexMark::References);
        IndexEntry entry;
        QVERIFY(reader.Next(entry));
        QCOMPARE(entry.name, QByteArrayView("a"));
        QVERIFY(entry.state == state);
        QCOMPARE(entry.facts, QByteArrayView("facts"));
        QVERIFY(reader.Next(entry));
        QCOMPARE(entry.name, QByteArrayView("b"));
        QVERIFY(!reader.Next(entry));
    }

    void DamagedOrForeignBytesHaveNoEntries() {
        IndexPacker packer(IndexMark::References);
        packer.Add("name", {1, 2, 3, 4}, "facts");
        const QByteArray packed = packer.Packed("/folder/");
        IndexEntry entry;
        QVERIFY(!IndexReader(packed, "/other/", IndexMark::References).Next(entry));
        QVERIFY(!IndexReader(packed, "/folder/", IndexMark::Properties).Next(entry));
        for (qsizetype length = 0; length < packed.size(); ++length)
            QVERIFY(
                !IndexReader(packed.left(length), "/folder/", IndexMark::References).Next(entry));
        for (qsizetype bit = 0; bit < packed.size() * 8; ++bit) {
            QByteArray damaged = packed;
            damaged[bit / 8] = char(damaged[bit / 8] ^ (1 << bit % 8));
            QVERIFY(!IndexReader(damaged, "/folder/", IndexMark::References).Next(entry));
        }
    }

    void WhatWasReadIsRememberedWithAllItsTargets() {
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt"), Path("gear.tfmasm")}, {"/x/y.tfmprt"});
        MakeDocument(Path("b.tfmprt"));
        Find();
        QCOMPARE(Known(), QStringList({"a.tfmasm 2", "b.tfmprt 0"}));
    }

    // So the tests below can tell by the answer whether a document was read.
    void WhatIsKnownIsNotReadAgain() {
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        Plant("a.tfmasm", StateOfFile(Path("a.tfmasm")));
        QCOMPARE(Find(), QStringList());
    }

    void AnotherSizeTimeOrInodeIsRead_data() {
        QTest::addColumn<int>("what");
        QTest::newRow("size") << 0;
        QTest::newRow("modified time") << 1;
        QTest::newRow("change time") << 2;
        QTest::newRow("inode") << 3;
    }
    void AnotherSizeTimeOrInodeIsRead() {
        QFETCH(int, what);
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        FileState state = StateOfFile(Path("a.tfmasm"));
        if (what == 3)
            state.inode ^= 1;
        else
            ++(what == 0 ? state.size : what == 1 ? state.modified : state.changed);
        Plant("a.tfmasm", state);
        QCOMPARE(Find(), QStringList("a.tfmasm 0 gear.tfmprt"));
        QCOMPARE(Known(), QStringList("a.tfmasm 1"));
    }

    void WhatWasWrittenJustNowIsNotRemembered() {
        GlobalIndexSettings().grain = 1000 * kSecond;
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        QCOMPARE(Find().size(), 1);
        QCOMPARE(Known(), QStringList());
        SetModified(Path("a.tfmasm"), 1'000'000'000);  // long ago, but changed just now
        QCOMPARE(Find().size(), 1);
        QCOMPARE(Known(), QStringList());
    }

    void TimesAheadOfTheClockAreNotSettled() {
        const qint64 now = SystemClockNow();
        const qint64 old = now - 10 * kSecond;
        QVERIFY(GrainOf(EXT4_SUPER_MAGIC).has_value());
        for (const quint32 untrusted :
             {quint32(NFS_SUPER_MAGIC), quint32(SMB2_SUPER_MAGIC), quint32(MSDOS_SUPER_MAGIC)})
            QVERIFY(!GrainOf(untrusted));
        QVERIFY(IsSettled({0, old, old, 0}, now, 2 * kSecond));
        QVERIFY(!IsSettled({0, now - kSecond, old, 0}, now, 2 * kSecond));
        QVERIFY(!IsSettled({0, old, now - kSecond, 0}, now, 2 * kSecond));
        QVERIFY(!IsSettled({0, now + kSecond, old, 0}, now, 2 * kSecond));
    }

    void TheDiskTellsItsGrain() {
        GlobalIndexSettings().grain = {};
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        QCOMPARE(Find().size(), 1);
        QCOMPARE(Known(), QStringList());  // on no disk is a file of this moment settled
    }

    void APartlySearchedFolderIsStillKnownAsAWhole() {
        for (const char* name : {"a.tfmprt", "b.tfmprt", "c.tfmprt"})
            MakeDocument(Path(name), {Path("gear.tfmprt")});
        Find();
        MakeDocument(Path("b.tfmprt"), {Path("gear.tfmprt"), Path("x.tfmprt")});
        ReferenceQuery query = NameQuery(folder_->path(), "gear", "*");
        query.pattern = Path("b.*");
        QCOMPARE(Access().MakeFolderSearcher()->FindReferences(query), 1);
        QCOMPARE(Known(), QStringList({"a.tfmprt 1", "b.tfmprt 2", "c.tfmprt 1"}));
    }

    void WhatIsGoneIsForgotten() {
        MakeDocument(Path("a.tfmprt"));
        MakeDocument(Path("b.tfmprt"));
        MakeDocument(Path("c.tfmprt"));
        Find();
        for (const char* name : {"a.tfmprt", "c.tfmprt"})
            QVERIFY(QFile::remove(Path(name)));
        Find();
        QCOMPARE(Known(), QStringList("b.tfmprt 0"));
    }

    void BrokenDocumentsAndLinksAreLookedAtEachTime() {
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        QVERIFY(QFile::link(Path("a.tfmasm"), Path("link.tfmasm")));
        WriteBytes(Path("broken.tfmprt"), "nothing");
        for (int i = 0; i < 2; ++i) {
            const auto searcher = SearchByName(folder_->path(), "other", "*");
            QCOMPARE(searcher->GetSearchCounts().documents, 3);
            QCOMPARE(searcher->GetSearchCounts().unread, 1);
        }
        QCOMPARE(Known(), QStringList("a.tfmasm 1"));
    }

    void AMovedFolderKeepsNothingOfItsFormerPlace() {
        QDir().mkpath(Path("one"));
        MakeDocument(Path("one/a.tfmasm"), {Path("one/gear.tfmprt")});
        SearchByName(Path("one"), "gear", "*");
        QVERIFY(QDir().rename(Path("one"), Path("two")));
        QCOMPARE(RowTexts(*SearchByName(Path("two"), "gear", "*")),
                 QStringList("a.tfmasm 0 gear.tfmprt"));
    }

    void SwitchedOffNothingIsWritten() {
        GlobalIndexSettings().isOn = false;
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        QCOMPARE(Find().size(), 1);
        QVERIFY(!QFile::exists(GlobalIndexSettings().file));
    }

    void OtherUsersCantReadTheIndex() {
        MakeDocument(Path("a.tfmasm"));
        Find();
        struct stat status;
        QCOMPARE(stat(QFile::encodeName(cache_->filePath("index")).constData(), &status), 0);
        QCOMPARE(int(status.st_mode & 077), 0);
    }

    void WhatIsNoIndexIsReplaced_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty") << QByteArray("");
        QTest::newRow("text")
            << QByteArray("this is no database, whatever its name says").repeated(99);
        QTest::newRow("noise") << Noise(20000);
        QTest::newRow("head alone") << QByteArray("SQLite format 3\0", 16) + Noise(20000);
    }
    void WhatIsNoIndexIsReplaced() {
        QFETCH(QByteArray, bytes);
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        QDir().mkpath(cache_->filePath("index"));
        WriteBytes(GlobalIndexSettings().file, bytes);
        QCOMPARE(Find().size(), 1);
        QCOMPARE(Known(), QStringList("a.tfmasm 1"));
    }

    void AnIndexOfAnotherShapeIsReplaced() {
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        QDir().mkpath(cache_->filePath("index"));
        QVERIFY(OtherProgram().Run("CREATE TABLE folders (something INTEGER)"));
        QCOMPARE(Find().size(), 1);
        QCOMPARE(Known(), QStringList("a.tfmasm 1"));
    }

    // Whatever piece of the file is overwritten: the answer is the same, before and after.
    void ADamagedIndexChangesNoAnswer() {
        for (int i = 0; i < 60; ++i)
            MakeDocument(Path(QString("a%1.tfmasm").arg(i)),
                         {Path("gear.tfmprt"), Path(QString("x%1.tfmprt").arg(i))});
        const QStringList right = Find();
        QCOMPARE(right.size(), 60);
        QVERIFY(OtherProgram().Run("PRAGMA wal_checkpoint(TRUNCATE)"));
        const QByteArray whole = FileBytes(GlobalIndexSettings().file);
        QVERIFY(whole.size() > 8000);
        for (qsizetype at = 0; at < whole.size(); at += 500) {
            QDir(cache_->filePath("index")).removeRecursively();
            QDir().mkpath(cache_->filePath("index"));
            QByteArray damaged = whole;
            damaged.replace(at, qMin<qsizetype>(64, whole.size() - at),
                            Noise(qMin<qsizetype>(64, whole.size() - at)));
            WriteBytes(GlobalIndexSettings().file, damaged);
            QCOMPARE(Find(), right);
            QCOMPARE(Find(), right);
        }
    }

    void AnIndexThatCantBeMadeCostsNothingElse_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("no folder can be made") << "/proc/docbench/references.sqlite";
        QTest::newRow("a device") << "/dev/full";
        QTest::newRow("a folder in its place") << "FOLDER";
        QTest::newRow("below a file") << "BELOW";
    }
    void AnIndexThatCantBeMadeCostsNothingElse() {
        QFETCH(QString, file);
        if (file == "FOLDER") {
            file = cache_->filePath("folder");
            QDir().mkpath(file + "/full");
        } else if (file == "BELOW") {
            WriteBytes(cache_->filePath("plain"), "x");
            file = cache_->filePath("plain/references.sqlite");
        }
        GlobalIndexSettings().file = file;
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        QCOMPARE(Find().size(), 1);
        QCOMPARE(Find().size(), 1);
    }

    void AFullDiskCostsNothingElse() {
        for (int i = 0; i < 300; ++i)
            MakeDocument(Path(QString("a%1.tfmasm").arg(i)), {Path("gear.tfmprt")});
        const auto search = [this] {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit limit = {6000, 6000};
            setrlimit(RLIMIT_FSIZE, &limit);
            for (int i = 0; i < 2; ++i)
                if (Find().size() != 300)
                    throw DocumentError("rows are missing");
        };
        QCOMPARE(InChild(search), 0);
        QCOMPARE(Find().size(), 300);
    }

    // Of somebody else, or on a disk that takes no writes.
    void AReadOnlyIndexChangesNoAnswer_data() {
        QTest::addColumn<bool>("withLog");
        QTest::newRow("with a log of writes beside it") << true;
        QTest::newRow("alone") << false;
    }
    void AReadOnlyIndexChangesNoAnswer() {
        QFETCH(bool, withLog);
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        MakeDocument(Path("b.tfmasm"), {Path("gear.tfmprt")});
        Find();
        MakeDocument(Path("b.tfmasm"), {Path("other.tfmprt")});  // which the index does not know
        const std::unique_ptr<OtherProgram> log(withLog ? new OtherProgram : nullptr);
        if (log)
            QVERIFY(log->Run("UPDATE folders SET properties = x'00'"));
        const QString index = cache_->filePath("index");
        for (const QString& name : QDir(index).entryList(QDir::Files))
            QFile::setPermissions(index + '/' + name, QFile::Permissions(0x4444));
        QCOMPARE(QFile::exists(GlobalIndexSettings().file + "-wal"), withLog);
        for (const QString& folder : {index, cache_->path(), folder_->path()})
            QFile::setPermissions(folder, QFile::Permissions(0x5555));
        const QByteArray before = FileBytes(GlobalIndexSettings().file);
        const auto search = [this] {
            docbench::GiveUpPrivileges();
            for (int i = 0; i < 2; ++i)
                if (Find() != QStringList("a.tfmasm 0 gear.tfmprt"))
                    throw DocumentError("another answer");
        };
        const int result = InChild(search);
        for (const QString& folder : {index, cache_->path(), folder_->path()})
            QFile::setPermissions(folder, QFile::Permissions(0x7555));
        QCOMPARE(result, 0);
        QCOMPARE(FileBytes(GlobalIndexSettings().file), before);
    }

    void ALockedIndexIsDoneWithout() {
        MakeDocument(Path("a.tfmasm"), {Path("gear.tfmprt")});
        Find();
        OtherProgram other;
        QVERIFY(other.Run("BEGIN IMMEDIATE"));
        QVERIFY(other.Run("UPDATE folders SET documents = x'00'"));
        MakeDocument(Path("b.tfmasm"), {Path("gear.tfmprt")});
        QCOMPARE(Find().size(), 2);
        QVERIFY(other.Run("ROLLBACK"));
        QCOMPARE(Known(), QStringList("a.tfmasm 1"));
        QVERIFY(other.Run("PRAGMA locking_mode = EXCLUSIVE"));
        QVERIFY(other.Run("BEGIN EXCLUSIVE"));
        QCOMPARE(Find().size(), 2);
        QVERIFY(other.Run("COMMIT"));
    }

    void ASearchLeavesWhatOthersKeepOfTheFolder() {
        MakeDocument(Path("a.tfmasm"));
        Find();
        OtherProgram other;
        QVERIFY(other.Run("UPDATE folders SET properties = x'1234'"));
        MakeDocument(Path("b.tfmasm"));
        Find();
        QCOMPARE(other.Value("SELECT properties FROM folders").toByteArray(),
                 QByteArray("\x12\x34"));
        QCOMPARE(Known().size(), 2);
    }

    void SeveralSearchersAtOnceAllGetTheRightAnswer() {
        constexpr int kThreads = 4;
        constexpr int kFolders = 8;
        for (int i = 0; i < kFolders; ++i) {
            QDir().mkpath(Path(QString::number(i)));
            for (int k = 0; k < 40; ++k)
                MakeDocument(Path(QString("%1/a%2.tfmasm").arg(i).arg(k)), {Path("gear.tfmprt")});
        }
        std::atomic<int> rows = 0;
        const auto search = [&] {
            for (int round = 0; round < 3; ++round) {
                auto searcher = Access().MakeFolderSearcher();
                for (int i = 0; i < kFolders; ++i)
                    rows +=
                        searcher->FindReferences(NameQuery(Path(QString::number(i)), "gear", "*"));
            }
        };
        {
            std::vector<std::jthread> threads;
            for (int i = 0; i < kThreads; ++i)
                threads.emplace_back(search);
        }
        QCOMPARE(int(rows), kThreads * 3 * kFolders * 40);
    }

    void SeveralProgramsAtOnceAllGetTheRightAnswer() {
        constexpr int kPrograms = 4;
        constexpr int kDocuments = 60;
        for (int i = 0; i < kDocuments; ++i)
            MakeDocument(Path(QString("a%1.tfmasm").arg(i)), {Path("gear.tfmprt")});
        const auto program = [this] {
            for (int round = 0; round < 5; ++round)
                if (Find().size() != kDocuments)
                    throw DocumentError("another answer");
        };
        std::vector<pid_t> children;
        for (int i = 0; i < kPrograms; ++i) {
            children.push_back(fork());
            if (children.back() == 0) {
                try {
                    program();
                } catch (const DocumentError&) {
                    _exit(1);
                }
                _exit(0);
            }
        }
        for (const pid_t child : children) {
            int status = -1;
            QCOMPARE(waitpid(child, &status, 0), child);
            QCOMPARE(status, 0);
        }
        QCOMPARE(Find().size(), kDocuments);
    }

    void initTestCase() { usualFile_ = GlobalIndexSettings().file; }

private:
    QString usualFile_;
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestReferenceIndex)
#include "tst_referenceindex.moc"
