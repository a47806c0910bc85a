#include "shell/referencetreeview.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMouseEvent>
#include <QScopedValueRollback>

#include "cells/celltree.h"

namespace docbench {

namespace {

// The view lays opened levels out one inside the other; a hostile chain of documents stays closed.
constexpr size_t kDeepestShown = 1000;

}  // namespace

ReferenceTreeView::ReferenceTreeView(QWidget* parent) : QTreeView(parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);  // keeps layout independent of the number of rows
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTextElideMode(Qt::ElideNone);
    setIconSize({20, 20});
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(this, &QAbstractItemView::pressed, this, [this](const QModelIndex& index) {
        if (!pickedByPress_)
            Pick(index);
    });
}

void ReferenceTreeView::SetTree(CellTree* tree) {
    tree_ = tree;
    const QScopedValueRollback guard(programSelects_, true);
    setModel(tree);
}

int ReferenceTreeView::SelectedNode() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? 0 : tree_->NodeOf(selected.first());
}

void ReferenceTreeView::SelectNode(int node) {
    const QScopedValueRollback guard(programSelects_, true);
    const QModelIndex index = tree_->IndexOf(node);
    setCurrentIndex(index);
    scrollTo(index);
}

void ReferenceTreeView::ShowNode(int node) {
    std::vector<int> above;
    for (int i = tree_->Nodes().At(node).parent; i != 0; i = tree_->Nodes().At(i).parent)
        above.push_back(i);
    if (above.size() > kDeepestShown)
        return;
    for (const int i : above)
        ExpandNode(i);
}

void ReferenceTreeView::ExpandNode(int node) {
    expand(tree_->IndexOf(node));
}

void ReferenceTreeView::mousePressEvent(QMouseEvent* event) {
    Q_EMIT MousePressed(event->button());
    const QScopedValueRollback guard(pickedByPress_, false);
    QTreeView::mousePressEvent(event);
}

void ReferenceTreeView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeView::mouseReleaseEvent(event);
    Q_EMIT MouseReleased(event->button(), event->modifiers(), event->globalPosition().toPoint());
}

void ReferenceTreeView::keyPressEvent(QKeyEvent* event) {
    const QScopedValueRollback guard(keyPressed_, true);
    QTreeView::keyPressEvent(event);
}

// A loaded tree always has a selected node: what would only take the selection away does nothing.
QItemSelectionModel::SelectionFlags ReferenceTreeView::selectionCommand(const QModelIndex& index,
                                                                        const QEvent* event) const {
    const QItemSelectionModel::SelectionFlags command = QTreeView::selectionCommand(index, event);
    const bool deselects = command & (QItemSelectionModel::Deselect | QItemSelectionModel::Toggle);
    return deselects ? QItemSelectionModel::NoUpdate : command;
}

// The column is as wide as its longest label, and at least as the view, so that a selected row is
// marked to its end.
void ReferenceTreeView::resizeEvent(QResizeEvent* event) {
    header()->setMinimumSectionSize(viewport()->width());
    resizeColumnToContents(0);
    QTreeView::resizeEvent(event);
}

// A right click opens its menu when the button is released; the menu key has no release.
void ReferenceTreeView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard && currentIndex().isValid()) {
        scrollTo(currentIndex());
        const QRect row = visualRect(currentIndex());
        Q_EMIT MenuKeyPressed(viewport()->mapToGlobal(
            QPoint(qMin(row.center().x(), viewport()->width() / 2), row.center().y())));
    }
    event->accept();
}

void ReferenceTreeView::selectionChanged(const QItemSelection& selected,
                                         const QItemSelection& deselected) {
    QTreeView::selectionChanged(selected, deselected);
    if (programSelects_ || selected.isEmpty())
        return;
    pickedByPress_ = true;
    Pick(selected.indexes().first());
}

void ReferenceTreeView::Pick(const QModelIndex& index) {
    const int node = tree_->NodeOf(index);
    Q_EMIT NodeClick(node);
    if (keyPressed_)
        Q_EMIT PickedByKey(node);
}

}  // namespace docbench
