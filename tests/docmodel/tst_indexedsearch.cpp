// Whatever happens to the documents between searches, the index changes no answer: random changes
// and tricks with file times, each followed by a search that is compared with the documents.

#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include "docmodel/referenceindex.h"
#include "tests/docmodel/changingfolder.h"
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

// Documents that refer to some of the targets, in the folder itself.
class Holders {
public:
    explicit Holders(const QString& folder) : folder_(folder) {}

    ChangingFolder::Maker Maker() const {
        return {.write =
                    [this](const QString& path, QRandomGenerator& random) {
                        if (random.bounded(4) == 0)
                            WriteMoved(path, random);
                        else
                            MakeDocument(path, Targets(random.bounded(3), random),
                                         Targets(random.bounded(3), random));
                    },
                .edit =
                    [this](const QString& path, QRandomGenerator& random) {
                        auto document = OpenFile(path);
                        if (document->GetComponentCount() > 0)
                            document->SetComponentPath(0, Target(random));
                        document->Save();
                    },
                .twin =
                    [this](const QString& path, const QString& twin, QRandomGenerator& random) {
                        auto document = OpenFile(path);
                        MakeDocument(twin, Targets(document->GetComponentCount(), random),
                                     Targets(document->GetExternalReferenceCount(), random));
                    },
                .others = {"gear-b.tfmprt", "bolt-a.tfmasm", "bolt-b.tfmdrw"}};
    }

    // Any target, any extension or kind of row.
    ReferenceQuery Question(QRandomGenerator& random) const {
        ReferenceQuery query = NameQuery(folder_, Pick(kTargets, random), "*");
        if (random.bounded(3) == 0)
            query.extension = Pick(kKinds, random);
        query.mask = 1 + random.bounded(7);
        query.fullPathFlag = random.bounded(3) == 0;
        query.fullPath = Target(random);
        return query;
    }

private:
    static QString Pick(const QStringList& of, QRandomGenerator& random) {
        return of[random.bounded(int(of.size()))];
    }
    // As somebody's whose project lay elsewhere: which of the two paths of a row counts is a matter
    // of what exists at the time of the question.
    void WriteMoved(const QString& path, QRandomGenerator& random) const {
        const QString row = QString("<component path=\"%1\" relative=\"%2\"/>");
        const QString elsewhere = "/gone/" + Pick(kTargets, random) + '.' + Pick(kKinds, random);
        const QString here = Target(random).section('/', -1);
        const QString rows = row.arg(elsewhere, here) + row.arg(Target(random), "../" + here);
        WriteTables(path, Tables("<components>" + rows.toUtf8() + "</components>"));
    }
    QString Target(QRandomGenerator& random) const {
        return QString("%1/%2.%3").arg(folder_, Pick(kTargets, random), Pick(kKinds, random));
    }
    QStringList Targets(int count, QRandomGenerator& random) const {
        QStringList targets;
        while (targets.size() < count)
            targets.append(Target(random));
        return targets;
    }

    const QString folder_;
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
        constexpr int kSteps = 600;
        constexpr int kQuestionsAStep = 3;
        const QTemporaryDir home;
        GlobalIndexSettings() = {true, home.filePath("references.sqlite"), kGrain};
        const QString folder = home.filePath("library");
        const Holders holders(folder);
        ChangingFolder library(folder, seed, holders.Maker());
        QRandomGenerator random(seed);
        int found = 0;
        for (int step = 0; step < kSteps; ++step) {
            const char* change = library.Change();
            const auto searcher = Access().MakeFolderSearcher();
            for (int i = 0; i < kQuestionsAStep; ++i) {
                const ReferenceQuery query = holders.Question(random);
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
