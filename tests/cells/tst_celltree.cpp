#include <QAbstractItemModelTester>
#include <QBrush>
#include <QIcon>
#include <QSignalSpy>
#include <QTest>

#include "cells/celltree.h"
#include "tests/support/testenvironment.h"

using namespace docbench;

class TestCellTree : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void nodesAreListedInTheOrderInWhichTheyWereAdded();
    void aSubtreeEndsAtItsLastDescendant();
    void theModelFollowsTheNodes();
    void coloursAreStoredBlueGreenRed();
    void normalTextAndWhiteBackgroundAreThePalettes();
    void redStaysReadableOnADarkBackground();
    void replacingAllNodesIsAnnouncedOnce();
    void aChangedCellIsAnnounced();
};

namespace {

// root(1) -> a(2) -> b(3), root -> c(4)
CellNodes SmallTree() {
    CellNodes nodes;
    const int root = nodes.Add(0, {.text = QStringLiteral("root"), .tag = QStringLiteral("/r")});
    const int a = nodes.Add(root, {.text = QStringLiteral("a")});
    nodes.Add(a, {.text = QStringLiteral("b"), .foreColor = kColorRed});
    nodes.Add(root, {.text = QStringLiteral("c"), .backColor = kColorMarked});
    return nodes;
}

}  // namespace

void TestCellTree::nodesAreListedInTheOrderInWhichTheyWereAdded() {
    const CellNodes nodes = SmallTree();
    QCOMPARE(nodes.Count(), 4);
    QCOMPARE(nodes.Roots(), std::vector<int>{1});
    QCOMPARE(nodes.At(1).children, (std::vector<int>{2, 4}));
    QCOMPARE(nodes.At(3).parent, 2);
    QCOMPARE(nodes.At(4).row, 1);
}

void TestCellTree::aSubtreeEndsAtItsLastDescendant() {
    const CellNodes nodes = SmallTree();
    QCOMPARE(nodes.LastBelow(1), 4);
    QCOMPARE(nodes.LastBelow(2), 3);
    QCOMPARE(nodes.LastBelow(4), 4);
}

void TestCellTree::theModelFollowsTheNodes() {
    CellTree tree;
    const QAbstractItemModelTester tester(&tree,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    tree.SetPictures([](const QString&) { return QIcon(); });
    tree.Assign(SmallTree());
    const QModelIndex root = tree.index(0, 0);
    QCOMPARE(tree.NodeOf(root), 1);
    QCOMPARE(tree.rowCount(root), 2);
    const QModelIndex c = tree.index(1, 0, root);
    QCOMPARE(c.data().toString(), QStringLiteral("c"));
    QCOMPARE(tree.parent(c), root);
    QCOMPARE(root.data(Qt::ToolTipRole).toString(), QStringLiteral("/r"));
    QCOMPARE(tree.IndexOf(4), c);
    QCOMPARE(tree.NodeOf(QModelIndex()), 0);
    tree.Clear();
    QCOMPARE(tree.rowCount(), 0);
}

void TestCellTree::coloursAreStoredBlueGreenRed() {
    const QPalette light(Qt::white);
    QCOMPARE(ForegroundFor(kColorRed, light).value<QBrush>().color(), QColor(Qt::red));
    QCOMPARE(ForegroundFor(kColorBlue, light).value<QBrush>().color(), QColor(Qt::blue));
    QCOMPARE(BackgroundFor(kColorMarked, light).value<QBrush>().color(), QColor(0x80, 0x80, 0x80));
}

void TestCellTree::normalTextAndWhiteBackgroundAreThePalettes() {
    QVERIFY(!ForegroundFor(kColorNormal, QPalette(Qt::white)).isValid());
    QVERIFY(!BackgroundFor(kColorWhite, QPalette(Qt::white)).isValid());
}

void TestCellTree::redStaysReadableOnADarkBackground() {
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    const QColor red = ForegroundFor(kColorRed, dark).value<QBrush>().color();
    QVERIFY(red.lightness() >= 160);
    QVERIFY(red.red() > red.blue());
}

void TestCellTree::replacingAllNodesIsAnnouncedOnce() {
    CellTree tree;
    QSignalSpy resets(&tree, &QAbstractItemModel::modelReset);
    QSignalSpy inserts(&tree, &QAbstractItemModel::rowsInserted);
    tree.Assign(SmallTree());
    QCOMPARE(resets.count(), 1);
    QCOMPARE(inserts.count(), 0);
}

void TestCellTree::aChangedCellIsAnnounced() {
    CellTree tree;
    tree.Assign(SmallTree());
    QSignalSpy changes(&tree, &QAbstractItemModel::dataChanged);
    tree.SetImage(3, QStringLiteral("picPart"));
    tree.SetBackColor(2, kColorMarked);
    QCOMPARE(changes.count(), 2);
    QCOMPARE(changes.at(0).at(0).toModelIndex(), tree.IndexOf(3));
    QCOMPARE(tree.Nodes().At(2).backColor, kColorMarked);
}

DOCBENCH_TEST_MAIN(QGuiApplication, TestCellTree)
#include "tst_celltree.moc"
