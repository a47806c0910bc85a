// A tree of cells as an item model: the data of a pane that shows a tree.
#pragma once

#include <QAbstractItemModel>
#include <QString>
#include <functional>
#include <vector>

#include "cells/cellcolors.h"

class QIcon;

namespace docbench {

// One node. Its index in the tree's node list, counted from 1, is its handle; 0 stands for no node.
struct CellNode {
    QString text = {};
    QString tag = {};          // hidden: what the node stands for
    QString description = {};  // what picture and colour say, in words; empty for a plain node
    QString image = {};        // key of its picture; empty for none
    CellColor foreColor = kColorNormal;
    CellColor backColor = kColorWhite;
    int parent = 0;
    int row = 0;                     // position among its siblings, from 0
    std::vector<int> children = {};  // in order
};

// The nodes in the order in which they were added. Plain data, so that a tree can be built, read
// and written out where there is no view.
class CellNodes {
public:
    int Add(int parent, CellNode node);  // parent 0: a further root; returns the index
    int Count() const { return int(nodes_.size()) - 1; }
    const CellNode& At(int index) const { return nodes_[size_t(index)]; }
    CellNode& At(int index) { return nodes_[size_t(index)]; }
    const std::vector<int>& Roots() const { return nodes_[0].children; }
    // The last node of the subtree of `index`. A tree that was added parent first, child by child
    // (as a walk adds it), has the subtree in one piece from `index` to there.
    int LastBelow(int index) const;

private:
    std::vector<CellNode> nodes_{1};  // entry 0 holds the roots
};

class CellTree : public QAbstractItemModel {
    Q_OBJECT

public:
    using QAbstractItemModel::QAbstractItemModel;

    // Gives the icon of a picture key.
    void SetPictures(std::function<QIcon(const QString&)> pictures);

    void Assign(CellNodes nodes);  // replaces all nodes, announced once
    void Clear() { Assign({}); }
    const CellNodes& Nodes() const { return nodes_; }
    int Count() const { return nodes_.Count(); }

    void SetText(int node, const QString& text);
    void SetImage(int node, const QString& image);
    void SetBackColor(int node, CellColor color);

    QModelIndex IndexOf(int node) const;         // invalid for 0
    int NodeOf(const QModelIndex& index) const;  // 0 for an invalid index

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    CellNodes nodes_;
    std::function<QIcon(const QString&)> pictures_;
};

}  // namespace docbench
