// Finding and replacing a text in a list of targets.

#include <QTest>

#include "cells/celllist.h"
#include "copy/textreplace.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

namespace {

struct Targets {
    explicit Targets(const QStringList& paths) {
        list.SetHeaders({{}, {}, {.text = "Target", .tag = "L"}});
        for (const QString& path : paths)
            list.Append(CellRow{.cells = {{}, {}, {.text = path, .tag = path, .toolTip = path}}});
    }
    const Cell& At(int row) const { return list.At(row - 1).cells[2]; }
    CellList list;
};

}  // namespace

class TestTextReplace : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theNextHitIsBoldAndTheLastOneIsNot() {
        Targets targets({"/a/one", "/a/two", "/a/one more"});
        TextReplace replace(targets.list);
        QVERIFY(replace.FindNext("one"));
        QCOMPARE(replace.CurrentRow(), 1);
        QVERIFY(targets.At(1).bold);
        QVERIFY(replace.FindNext("one"));
        QCOMPARE(replace.CurrentRow(), 3);
        QVERIFY(!targets.At(1).bold && targets.At(3).bold);
    }

    void letterCaseCounts() {
        Targets targets({"/a/One"});
        QVERIFY(!TextReplace(targets.list).FindNext("one"));
    }

    void behindTheLastHitTheSearchBeginsAgainFromTheTop() {
        Targets targets({"/a/one", "/a/two"});
        TextReplace replace(targets.list);
        QVERIFY(replace.FindNext("one"));
        QVERIFY(!replace.FindNext("one"));
        QCOMPARE(replace.CurrentRow(), 0);
        QVERIFY(!targets.At(1).bold);
        QVERIFY(replace.FindNext("one"));
        QCOMPARE(replace.CurrentRow(), 1);
    }

    void everyOccurrenceInACellChangesAtOnce() {
        Targets targets({"/a-1/a-1", "/b/a-1"});
        TextReplace replace(targets.list);
        QVERIFY(replace.Replace("a-1", "a-2"));  // finds first
        QCOMPARE(targets.At(1).text, QString("/a-2/a-2"));
        QCOMPARE(targets.At(1).tag, QString("/a-2/a-2"));
        QCOMPARE(targets.At(1).toolTip, QString("/a-2/a-2"));
        QCOMPARE(replace.CurrentRow(), 2);
        QCOMPARE(targets.At(2).text, QString("/b/a-1"));
        QVERIFY(!replace.Replace("a-1", "a-2"));  // the last one
        QCOMPARE(targets.At(2).text, QString("/b/a-2"));
    }

    void aReplacementThatHoldsTheTextIsNotReplacedAgain() {
        Targets targets({"/x", "/x"});
        TextReplace replace(targets.list);
        replace.ReplaceAll("x", "xx");
        QCOMPARE(targets.At(1).text, QString("/xx"));
        QCOMPARE(targets.At(2).text, QString("/xx"));
        Targets others({"/x", "/x"});
        TextReplace one(others.list);
        QVERIFY(one.Replace("x", "xx"));
        QCOMPARE(one.CurrentRow(), 2);
        QVERIFY(!one.Replace("x", "xx"));
        QCOMPARE(others.At(1).text, QString("/xx"));
    }

    void allIsFromTheCurrentRowToTheEnd() {
        Targets targets({"/x1", "/y", "/x2", "/x3"});
        TextReplace replace(targets.list);
        QVERIFY(replace.FindNext("x"));
        QVERIFY(replace.FindNext("x"));
        QCOMPARE(replace.CurrentRow(), 3);
        replace.ReplaceAll("x", "z");
        QCOMPARE(targets.At(1).text, QString("/x1"));
        QCOMPARE(targets.At(3).text, QString("/z2"));
        QCOMPARE(targets.At(4).text, QString("/z3"));
        QCOMPARE(replace.CurrentRow(), 0);
        QVERIFY(!targets.At(3).bold);
    }

    void inShortFormThePathKeepsItsFolder() {
        Targets targets({"/x/x.tfmprt"});
        targets.list.SetHeader(2, {.text = "Target", .tag = "S"});
        targets.list.Change(0, [](CellRow& row) { row.cells[2].text = "x.tfmprt"; });
        TextReplace(targets.list).ReplaceAll("x", "z");
        QCOMPARE(targets.At(1).text, QString("z.tfmprt"));
        QCOMPARE(targets.At(1).tag, QString("/x/z.tfmprt"));
        QCOMPARE(targets.At(1).toolTip, QString("/x/z.tfmprt"));
    }

    void rowsThatWentAwayRestartTheSearchAtTheSecond() {
        Targets targets({"/x1", "/x2", "/x3"});
        TextReplace replace(targets.list);
        for (int i = 0; i < 3; ++i)
            QVERIFY(replace.FindNext("x"));
        targets.list.Remove(2);
        QVERIFY(replace.FindNext("x"));
        QCOMPARE(replace.CurrentRow(), 2);
        targets.list.Clear();
        QVERIFY(!replace.Replace("x", "y"));
    }

    void theEndTakesTheBoldOff() {
        Targets targets({"/x"});
        {
            TextReplace replace(targets.list);
            replace.FindNext("x");
            QVERIFY(targets.At(1).bold);
        }
        QVERIFY(!targets.At(1).bold);
    }
};

DOCBENCH_TEST_MAIN(QCoreApplication, TestTextReplace)
#include "tst_textreplace.moc"
