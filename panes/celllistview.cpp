#include "panes/celllistview.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QStyledItemDelegate>
#include <algorithm>

#include "shell/picturestore.h"

namespace docbench {
namespace {

constexpr int kWidest = 420;  // pixels that a column takes by itself
constexpr int kLeading = 4;   // pixels between the lines of two rows

class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kLeading);
    }
};

}  // namespace

CellListView::CellListView(QWidget* parent) : QTreeView(parent) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setItemsExpandable(false);
    setSelectionBehavior(SelectRows);
    setTextElideMode(Qt::ElideMiddle);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    header()->setSectionsClickable(true);
    header()->setStretchLastSection(true);
    setItemDelegate(new RowDelegate(this));
    list_.SetPictures(PictureOf);
    setModel(&list_);
    connect(header(), &QHeaderView::sectionClicked, this, &CellListView::HeaderClicked);
    connect(this, &QTreeView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT Activated(index.row()); });
    connect(this, &QTreeView::clicked, this,
            [this](const QModelIndex& index) { Q_EMIT RowClicked(index.row()); });
}

int CellListView::SelectedRow() const {
    const QModelIndex current = currentIndex();
    return current.isValid() && selectionModel()->isRowSelected(current.row()) ? current.row() : -1;
}

QList<int> CellListView::SelectedRows() const {
    QList<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void CellListView::SelectRow(int row) {
    setCurrentIndex(list_.index(row, 0));
    scrollTo(currentIndex());
}

void CellListView::FitColumns() {
    for (int column = 0; column + 1 < list_.columnCount(); ++column) {
        resizeColumnToContents(column);
        if (columnWidth(column) > kWidest)
            setColumnWidth(column, kWidest);
    }
}

void CellListView::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && state() != EditingState && SelectedRow() >= 0) {
        Q_EMIT Activated(SelectedRow());
        return;
    }
    const int former = currentIndex().row();
    QTreeView::keyPressEvent(event);
    if (SelectedRow() >= 0 && SelectedRow() != former)
        Q_EMIT PickedByKey(SelectedRow());
}

void CellListView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton)
        Q_EMIT MenuRequested(event->globalPosition().toPoint());
}

// Of the mouse, the release counts and not the press.
void CellListView::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT MenuRequested(viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft()));
}

}  // namespace docbench
