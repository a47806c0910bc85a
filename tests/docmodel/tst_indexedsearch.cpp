// Whatever happens to the documents between searches, the index changes no answer: random changes
// and tricks with file times, each followed by a search that is compared with the documents.

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include "docmodel/referenceindex.h"
#include "tests/docmodel/documenttools.h"
#include "tests/docmodel/searchtools.h"
#include "tests/support/testenvironment.h"

using namespace docmodel;
using docbench::SearchCounts;

namespace {

// Far above the tick of any clock that stamps files here, and passed within some steps.
constexpr qint64 kGrain = 20'000'000;

// Names of one length: swapping one for another does not change a document's size.
const QStringList kTargets = {"gear-a", "gear-b", "GEAR-a", "bolt-a", "bolt-b", "disc-a"};
const QStringList kKinds = {"tfmprt", "tfmasm", "tfmdrw"};

class Times {
public:
    explicit Times(const QString& path) : path_(QFile::encodeName(path)) {
        struct stat status = {};
        stat(path_.constData(), &status);
        times_[0] = status.st_atim;
        times_[1] = status.st_mtim;
    }
    void Restore(const QString& to) const {
        utimensat(AT_FDCWD, QFile::encodeName(to).constData(), times_, 0);
    }

private:
    QByteArray path_;
    timespec times_[2];
};

// A folder of documents that is changed at random.
class ChangingFolder {
public:
    ChangingFolder(const QString& folder, quint32 seed) : folder_(folder), random_(seed) {
        QDir().mkpath(folder_ + "/elsewhere");
        for (int i = 0; i < kDocuments; ++i)
            Write(folder_ + '/' + NewName());
    }

    // One change; its name, for a failing test to tell.
    const char* Change() {
        switch (random_.bounded(12)) {
            case 0:
                Write(folder_ + '/' + NewName());
                return "write a document";
            case 1:
                QFile::remove(Any());
                return "remove";
            case 2:
                Rename(Any(), folder_ + '/' + NewName());
                return "rename";
            case 3:
                Rename(Any(), Any());
                return "rename over another";
            case 4:
                Swap(Any(), Any());
                return "swap names";
            case 5:
                Copy(Any(), folder_ + '/' + NewName());
                return "copy";
            case 6:
                EditInPlace(Any());
                return "edit through the library";
            case 7:
                PatchInPlace(Any());
                return "patch bytes, size and times as before";
            case 8:
                ReplaceWithOldTimes(Any());
                return "replace, times as before";
            case 9:
                Touch(Any());
                return "set times";
            case 10:
                Spoil(Any());
                return "spoil";
            default:
                LinkTo(folder_ + '/' + NewName());
                return "link";
        }
    }

    // Any target, any extension or kind of row.
    ReferenceQuery Question() {
        ReferenceQuery query = NameQuery(folder_, Pick(kTargets), "*");
        if (random_.bounded(3) == 0)
            query.extension = Pick(kKinds);
        query.mask = 1 + random_.bounded(7);
        query.fullPathFlag = random_.bounded(3) == 0;
        query.fullPath = Target();
        return query;
    }

private:
    static constexpr int kDocuments = 12;

    QString Pick(const QStringList& of) { return of[random_.bounded(int(of.size()))]; }
    QString NewName() { return QString("doc%1.%2").arg(random_.bounded(20)).arg(Pick(kKinds)); }
    QString Any() {
        const QStringList names = QDir(folder_).entryList(QDir::Files | QDir::System);
        return folder_ + '/' + (names.isEmpty() ? NewName() : Pick(names));
    }
    QString Target() { return QString("%1/%2.%3").arg(folder_, Pick(kTargets), Pick(kKinds)); }

    void Write(const QString& path) {
        QStringList rows[2];
        for (QStringList& table : rows)
            for (int count = random_.bounded(3); count > 0; --count)
                table.append(Target());
        QFile::remove(path);
        MakeDocument(path, rows[0], rows[1]);
    }
    void Rename(const QString& from, const QString& to) {
        ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData());
    }
    void Swap(const QString& one, const QString& other) {
        const QString aside = folder_ + "/elsewhere/aside";
        Rename(one, aside);
        Rename(other, one);
        Rename(aside, other);
    }
    void Copy(const QString& from, const QString& to) {
        QFile::remove(to);
        QFile::copy(from, to);
        Times(from).Restore(to);
    }
    void EditInPlace(const QString& path) {
        try {
            auto document = Access().MakeDocumentFile();
            document->Open(path);
            if (document->GetComponentCount() > 0)
                document->SetComponentPath(0, Target());
            document->Save();
        } catch (const DocumentError&) {
            Write(path);  // a spoiled one is made anew
        }
    }
    // Another document of the same size in the same file, and its old times.
    void PatchInPlace(const QString& path) {
        const QByteArray former = FileBytes(path);
        const QString other = folder_ + "/elsewhere/other.tfmprt";
        QFile::remove(other);
        try {
            MakeTwin(path, other);
        } catch (const DocumentError&) {
            return;
        }
        const QByteArray bytes = FileBytes(other);
        const Times times(path);
        const int file = open(QFile::encodeName(path).constData(), O_WRONLY);
        if (file >= 0 && pwrite(file, bytes.constData(), size_t(bytes.size()), 0) > 0)
            (void)!ftruncate(file, bytes.size());
        close(file);
        times.Restore(path);
        sameSize += bytes.size() == former.size() ? 1 : 0;
    }
    // A document with as many rows of other targets.
    void MakeTwin(const QString& path, const QString& twin) {
        auto document = Access().MakeDocumentFile();
        document->Open(path);
        QStringList rows[2];
        for (int i = document->GetComponentCount(); i > 0; --i)
            rows[0].append(Target());
        for (int i = document->GetExternalReferenceCount(); i > 0; --i)
            rows[1].append(Target());
        MakeDocument(twin, rows[0], rows[1]);
    }
    void ReplaceWithOldTimes(const QString& path) {
        const Times times(path);
        const QString other = folder_ + "/elsewhere/other.tfmprt";
        Write(other);
        times.Restore(other);
        Rename(other, path);
    }
    void Touch(const QString& path) {
        const qint64 seconds = random_.bounded(2) ? 0 : 4'000'000'000;  // long ago, or to come
        const timespec times[2] = {{time_t(seconds), 0}, {time_t(seconds), 0}};
        utimensat(AT_FDCWD, QFile::encodeName(path).constData(), times, 0);
    }
    void Spoil(const QString& path) {
        const Times times(path);
        QFile::resize(path, random_.bounded(100));
        times.Restore(path);
    }
    void LinkTo(const QString& path) {
        const QString other = folder_ + "/elsewhere/linked.tfmasm";
        Write(other);
        QFile::remove(path);
        QFile::link(other, path);
    }

    const QString folder_;
    QRandomGenerator random_;

public:
    int sameSize = 0;  // patches that left size and modified time as they were
};

// What the documents themselves say, found without any of the search's own means.
struct Answer {
    QStringList rows;
    int documents = 0;
    int unread = 0;
};

bool IsAsked(const ReferenceQuery& query, const QString& path, const QString& document,
             bool isExternal) {
    const bool isMirrored = document.endsWith("prt") && path.endsWith("prt");
    const int kind = !isExternal ? 1 : isMirrored ? 4 : 2;
    const QString folder = path.section('/', 0, -2);
    const QString name = path.section('/', -1).toLower();
    if (!(query.mask & kind))
        return false;
    if (query.fullPathFlag)
        return folder == query.fullPath.section('/', 0, -2) &&
               name == query.fullPath.section('/', -1).toLower();
    return name.section('.', 0, -2) == query.baseName.toLower() &&
           (query.extension == "*" || name.section('.', -1) == query.extension);
}

Answer Ask(const QString& folder, const ReferenceQuery& query) {
    Answer answer;
    QStringList names =
        QDir(folder).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Unsorted);
    names.sort();
    for (const QString& name : names) {
        ++answer.documents;
        const QString path = folder + '/' + name;
        const auto take = [&](const QString& reference, int position, bool isExternal) {
            if (IsAsked(query, reference, path, isExternal))
                answer.rows.append(QString("%1 %2%3 %4")
                                       .arg(name, isExternal ? "x" : "")
                                       .arg(position)
                                       .arg(reference.section('/', -1)));
        };
        try {
            auto document = Access().MakeDocumentFile();
            document->Open(path);
            for (int i = 0; i < document->GetComponentCount(); ++i)
                take(document->GetComponent(i, {}).path, i, false);
            for (int i = 0; i < document->GetExternalReferenceCount(); ++i)
                take(document->GetExternalReference(i, {}).path, i, true);
        } catch (const DocumentError&) {
            ++answer.unread;
        }
    }
    return answer;
}

}  // namespace

class TestIndexedSearch : public QObject {
    Q_OBJECT

private:
    const UnsyncedDisk disk_;

private Q_SLOTS:
    void NoChangeOfTheDocumentsGoesUnseen_data() {
        QTest::addColumn<quint32>("seed");
        for (const quint32 seed : {1U, 2U, 3U})
            QTest::addRow("seed %u", seed) << seed;
    }
    void NoChangeOfTheDocumentsGoesUnseen() {
        QFETCH(quint32, seed);
        constexpr int kSteps = 400;
        constexpr int kQuestionsAStep = 3;
        const QTemporaryDir home;
        GlobalIndexSettings() = {true, home.filePath("references.sqlite"), kGrain};
        const QString folder = home.filePath("library");
        ChangingFolder library(folder, seed);
        int found = 0;
        for (int step = 0; step < kSteps; ++step) {
            const char* change = library.Change();
            const auto searcher = Access().MakeFolderSearcher();
            for (int i = 0; i < kQuestionsAStep; ++i) {
                const ReferenceQuery query = library.Question();
                const Answer right = Ask(folder, query);
                const SearchCounts before = searcher->GetSearchCounts();
                searcher->FindReferences(query);
                const SearchCounts after = searcher->GetSearchCounts();
                found += int(right.rows.size());
                QVERIFY2(RowTexts(*searcher) == right.rows,
                         qPrintable(QString("step %1 (%2): %3 instead of %4")
                                        .arg(step)
                                        .arg(change, RowTexts(*searcher).join(", "),
                                             right.rows.join(", "))));
                QCOMPARE(after.documents - before.documents, right.documents);
                QCOMPARE(after.unread - before.unread, right.unread);
            }
        }
        QVERIFY(found > kSteps);
        QVERIFY(library.sameSize > 5);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestIndexedSearch)
#include "tst_indexedsearch.moc"
