// A list of cells on screen.
#pragma once

#include <QTreeView>

#include "cells/celllist.h"

namespace docbench {

class CellListView : public QTreeView {
    Q_OBJECT

public:
    explicit CellListView(QWidget* parent = nullptr);

    CellList& List() { return list_; }
    const CellList& List() const { return list_; }

    int SelectedRow() const;          // the current one if it is selected; -1 without
    QList<int> SelectedRows() const;  // ascending
    void SelectRow(int row);          // and brings it into view
    void FitColumns();                // to what is in view; the last column takes the rest

Q_SIGNALS:
    void HeaderClicked(int column);
    void MenuRequested(QPoint globalPosition);  // right button released, or the menu key
    void Activated(int row);                    // double click or Enter
    void RowClicked(int row);                   // by the user
    void PickedByKey(int row);                  // another row became the current one

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    CellList list_;
};

}  // namespace docbench
