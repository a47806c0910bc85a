#include "cells/celltree.h"

#include <QGuiApplication>
#include <QIcon>

namespace docbench {

int CellNodes::Add(int parent, CellNode node) {
    const int index = int(nodes_.size());
    node.parent = parent;
    node.row = int(nodes_[size_t(parent)].children.size());
    nodes_[size_t(parent)].children.push_back(index);
    nodes_.push_back(std::move(node));
    return index;
}

int CellNodes::LastBelow(int index) const {
    while (!At(index).children.empty())
        index = At(index).children.back();
    return index;
}

void CellTree::SetPictures(std::function<QIcon(const QString&)> pictures) {
    pictures_ = std::move(pictures);
}

void CellTree::Assign(CellNodes nodes) {
    beginResetModel();
    nodes_ = std::move(nodes);
    endResetModel();
}

void CellTree::SetText(int node, const QString& text) {
    nodes_.At(node).text = text;
    const QModelIndex index = IndexOf(node);
    Q_EMIT dataChanged(index, index, {Qt::DisplayRole});
}

void CellTree::SetImage(int node, const QString& image) {
    nodes_.At(node).image = image;
    const QModelIndex index = IndexOf(node);
    Q_EMIT dataChanged(index, index, {Qt::DecorationRole});
}

void CellTree::SetBackColor(int node, CellColor color) {
    nodes_.At(node).backColor = color;
    const QModelIndex index = IndexOf(node);
    Q_EMIT dataChanged(index, index, {Qt::BackgroundRole});
}

QModelIndex CellTree::IndexOf(int node) const {
    return node == 0 ? QModelIndex() : createIndex(nodes_.At(node).row, 0, quintptr(node));
}

int CellTree::NodeOf(const QModelIndex& index) const {
    return index.isValid() ? int(index.internalId()) : 0;
}

QModelIndex CellTree::index(int row, int column, const QModelIndex& parent) const {
    if (column != 0 || row < 0 || row >= rowCount(parent))
        return {};
    return createIndex(row, 0, quintptr(nodes_.At(NodeOf(parent)).children[size_t(row)]));
}

QModelIndex CellTree::parent(const QModelIndex& index) const {
    return index.isValid() ? IndexOf(nodes_.At(NodeOf(index)).parent) : QModelIndex();
}

int CellTree::rowCount(const QModelIndex& parent) const {
    return parent.column() > 0 ? 0 : int(nodes_.At(NodeOf(parent)).children.size());
}

bool CellTree::hasChildren(const QModelIndex& parent) const {
    return rowCount(parent) > 0;
}

int CellTree::columnCount(const QModelIndex&) const {
    return 1;
}

QVariant CellTree::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const CellNode& node = nodes_.At(NodeOf(index));
    switch (role) {
        case Qt::DisplayRole:
            return node.text;
        case Qt::ToolTipRole:
            return node.description.isEmpty() ? node.tag : node.description;
        case Qt::AccessibleDescriptionRole:
            return node.description;
        case Qt::DecorationRole:
            return pictures_ && !node.image.isEmpty() ? QVariant(pictures_(node.image))
                                                      : QVariant();
        case Qt::ForegroundRole:
            return ForegroundFor(node.foreColor, QGuiApplication::palette());
        case Qt::BackgroundRole:
            return BackgroundFor(node.backColor, QGuiApplication::palette());
        default:
            return {};
    }
}

}  // namespace docbench
