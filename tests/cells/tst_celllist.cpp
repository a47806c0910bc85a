#include <QAbstractItemModelTester>
#include <QFont>
#include <QSignalSpy>
#include <QTest>

#include "cells/celllist.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

class TestCellList : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void rowsAndCellsAreReadBackAsTheyWerePut();
    void aRowMayHaveFewerCellsThanColumns();
    void onlyTheUserRaisesTheTickEvent();
    void aListWithoutTicksTakesNone();
    void changesOfManyRowsAreAnnouncedOnce();
    void headersKeepTheirTag();
};

namespace {

CellRow Row(const QString& name, const QString& folder) {
    return {.cells = {{.text = name, .tag = folder + name}, {.text = folder, .bold = true}}};
}

}  // namespace

void TestCellList::rowsAndCellsAreReadBackAsTheyWerePut() {
    CellList list;
    const QAbstractItemModelTester tester(&list,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    list.SetHeaders({{QStringLiteral("Name")}, {QStringLiteral("Folder")}});
    list.Append(Row(QStringLiteral("a"), QStringLiteral("/x/")));
    list.Append(std::vector{Row(QStringLiteral("b"), QStringLiteral("/y/")),
                            Row(QStringLiteral("c"), QStringLiteral("/z/"))});
    QCOMPARE(list.Count(), 3);
    list.Remove(0);
    QCOMPARE(list.At(0).cells[0].tag, QStringLiteral("/y/b"));
    QCOMPARE(list.index(1, 1).data().toString(), QStringLiteral("/z/"));
    QVERIFY(list.index(1, 1).data(Qt::FontRole).value<QFont>().bold());
    list.Clear();
    QCOMPARE(list.rowCount(), 0);
}

void TestCellList::aRowMayHaveFewerCellsThanColumns() {
    CellList list;
    list.SetHeaders({{QStringLiteral("Name")}, {QStringLiteral("Folder")}});
    list.Append({.cells = {{.text = QStringLiteral("a")}}});
    QVERIFY(!list.index(0, 1).data().isValid());
}

void TestCellList::onlyTheUserRaisesTheTickEvent() {
    CellList list;
    list.SetHeaders({{QStringLiteral("Name")}});
    list.SetTickable(true);
    list.Append(Row(QStringLiteral("a"), QString()));
    QSignalSpy ticks(&list, &CellList::TickedByUser);
    list.Change(0, [](CellRow& row) { row.ticked = true; });
    QCOMPARE(ticks.count(), 0);
    QCOMPARE(list.index(0, 0).data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QVERIFY(list.setData(list.index(0, 0), Qt::Unchecked, Qt::CheckStateRole));
    QCOMPARE(ticks.count(), 1);
    QVERIFY(!list.At(0).ticked);
}

void TestCellList::aListWithoutTicksTakesNone() {
    CellList list;
    list.SetHeaders({{QStringLiteral("Name")}});
    list.Append(Row(QStringLiteral("a"), QString()));
    QVERIFY(!list.setData(list.index(0, 0), Qt::Checked, Qt::CheckStateRole));
    QVERIFY(!list.index(0, 0).data(Qt::CheckStateRole).isValid());
}

void TestCellList::changesOfManyRowsAreAnnouncedOnce() {
    CellList list;
    list.SetHeaders({{QStringLiteral("Name")}});
    list.Append(std::vector<CellRow>(1000, Row(QStringLiteral("a"), QString())));
    QSignalSpy changes(&list, &QAbstractItemModel::dataChanged);
    list.ChangeAll([](CellRow& row) { row.cells[0].foreColor = kColorBlue; });
    QCOMPARE(changes.count(), 1);
    QCOMPARE(list.At(999).cells[0].foreColor, kColorBlue);
}

void TestCellList::headersKeepTheirTag() {
    CellList list;
    list.SetHeaders({{QStringLiteral("File"), QStringLiteral("S")}});
    QCOMPARE(list.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(),
             QStringLiteral("File"));
    list.SetHeader(0, {QStringLiteral("Path"), QStringLiteral("L")});
    QCOMPARE(list.Headers()[0].tag, QStringLiteral("L"));
}

DOCBENCH_TEST_MAIN(QGuiApplication, TestCellList)
#include "tst_celllist.moc"
