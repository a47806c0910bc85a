// A list of rows of cells as an item model: the data of a pane that shows a list.
#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "cells/cellcolors.h"

class QIcon;

namespace docbench {

struct Cell {
    QString text;
    QString tag = {};  // hidden: what the cell stands for
    QString toolTip = {};
    CellColor foreColor = kColorNormal;
    bool bold = false;
};

struct CellRow {
    std::vector<Cell> cells;  // the first is the item, the others its sub-items
    QString tag = {};         // hidden: what the row stands for
    QString image = {};       // key of its icon; empty for none
    bool ticked = false;
};

// Header of a column. The tag "S" or "L" says that the column shows short or long paths.
struct CellHeader {
    QString text;
    QString tag = {};
};

// Rows count from 0. A row may have fewer cells than there are columns; the missing ones are empty.
class CellList : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void SetHeaders(std::vector<CellHeader> headers);
    void SetHeader(int column, CellHeader header);
    const std::vector<CellHeader>& Headers() const { return headers_; }
    void SetPictures(std::function<QIcon(const QString&)> pictures);
    void SetTickable(bool tickable);  // shows a tick box in the first column

    int Count() const { return int(rows_.size()); }
    const CellRow& At(int row) const { return rows_[size_t(row)]; }
    const std::vector<CellRow>& Rows() const { return rows_; }

    void Append(CellRow row);
    void Append(std::vector<CellRow> rows);  // announced once
    void Remove(int first, int count = 1);  // announced once
    void Clear();
    void Change(int row, const std::function<void(CellRow&)>& change);
    // Runs `change` on every row, announced once: for what concerns many rows.
    void ChangeAll(const std::function<void(CellRow&)>& change);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    void TickedByUser(int row);  // never for the program's own changes

private:
    std::vector<CellHeader> headers_;
    std::vector<CellRow> rows_;
    std::function<QIcon(const QString&)> pictures_;
    bool tickable_ = false;
};

}  // namespace docbench
