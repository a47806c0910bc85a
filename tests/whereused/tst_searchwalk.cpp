// The walk over folders and the batches of rows that all searches share.

#include <QTest>

#include "panes/folderwalk.h"
#include "panes/rowbatch.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

// A walk through root(a(a1), b) that writes down what happens and stops at the n-th yield.
QStringList Walk(WalkYields yields, int stopAt) {
    const QMap<QString, QStringList> folders = {{"root", {"a", "b"}}, {"a", {"a1"}}};
    QStringList steps;
    int count = 0;
    const FolderWalk walk{.yields = yields,
                          .yield =
                              [&] {
                                  ++count;
                                  steps.append("-");
                              },
                          .stopped = [&] { return stopAt > 0 && count >= stopAt; },
                          .entering = {},
                          .visit =
                              [&](const QString& folder) {
                                  steps.append(folder);
                                  return folders.value(folder);
                              }};
    walk.Run("root");
    return steps;
}

}  // namespace

class TestSearchWalk : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWalkYieldsForEachSubfolderListedAndEntered() {
        const QStringList all = {"root", "-", "-", "-", "a", "-", "-", "a1", "-", "b"};
        QCOMPARE(Walk(WalkYields::AtSubfolders, -1), all);
        for (int stopAt = 1; stopAt <= all.count("-"); ++stopAt) {
            QStringList before;
            for (const QString& step : all) {
                if (before.count("-") == stopAt)
                    break;
                before.append(step);
            }
            const QStringList stopped = Walk(WalkYields::AtSubfolders, stopAt);
            QCOMPARE(stopped.mid(0, before.size()), before);
            // The folders above may yield once more each, but nothing more is searched.
            const QStringList rest = stopped.mid(before.size());
            QCOMPARE(rest.count("-"), rest.size());
        }
    }

    void orOnEnteringEachFolder() {
        QCOMPARE(Walk(WalkYields::AtFolders, -1),
                 QStringList({"-", "root", "-", "a", "-", "a1", "-", "b"}));
        QCOMPARE(Walk(WalkYields::AtFolders, 2), QStringList({"-", "root", "-"}));
    }

    void rowsAreHandedOnInGrowingPortions() {
        CellList list;
        int announced = 0;
        connect(&list, &CellList::rowsInserted, this, [&] { ++announced; });
        RowBatch batch(list, [](CellRow& row) { row.tag = "shown"; });
        constexpr int kRows = 10'000;
        for (int i = 0; i < kRows; ++i) {
            batch.Add({.cells = {{.text = QString::number(i)}}});
            batch.Offer();
            QCOMPARE(batch.Count(), i + 1);
        }
        batch.Flush();
        QCOMPARE(list.Count(), kRows);
        for (int i = 0; i < kRows; ++i)
            QCOMPARE(list.At(i).cells[0].text, QString::number(i));
        QCOMPARE(list.At(kRows - 1).tag, QString("shown"));
        QVERIFY(announced < 200);  // and not once a row
        QVERIFY(list.Count() > 0);
        batch.Flush();
        QCOMPARE(list.Count(), kRows);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestSearchWalk)
#include "tst_searchwalk.moc"
