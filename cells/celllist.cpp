#include "cells/celllist.h"

#include <QFont>
#include <QGuiApplication>
#include <QIcon>

namespace docbench {

void CellList::SetHeaders(std::vector<CellHeader> headers) {
    beginResetModel();
    headers_ = std::move(headers);
    endResetModel();
}

void CellList::SetHeader(int column, CellHeader header) {
    headers_[size_t(column)] = std::move(header);
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void CellList::SetPictures(std::function<QIcon(const QString&)> pictures) {
    pictures_ = std::move(pictures);
}

void CellList::SetTickable(bool tickable) {
    beginResetModel();
    tickable_ = tickable;
    endResetModel();
}

void CellList::Append(CellRow row) {
    beginInsertRows({}, Count(), Count());
    rows_.push_back(std::move(row));
    endInsertRows();
}

void CellList::Append(std::vector<CellRow> rows) {
    if (rows.empty())
        return;
    beginInsertRows({}, Count(), Count() + int(rows.size()) - 1);
    rows_.insert(rows_.end(), std::make_move_iterator(rows.begin()),
                 std::make_move_iterator(rows.end()));
    endInsertRows();
}

void CellList::Remove(int first, int count) {
    beginRemoveRows({}, first, first + count - 1);
    rows_.erase(rows_.begin() + first, rows_.begin() + first + count);
    endRemoveRows();
}

void CellList::Clear() {
    beginResetModel();
    rows_.clear();
    endResetModel();
}

void CellList::Change(int row, const std::function<void(CellRow&)>& change) {
    change(rows_[size_t(row)]);
    if (columnCount() > 0)
        Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
}

void CellList::ChangeAll(const std::function<void(CellRow&)>& change) {
    for (CellRow& row : rows_)
        change(row);
    if (!rows_.empty() && columnCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(Count() - 1, columnCount() - 1));
}

int CellList::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Count();
}

int CellList::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(headers_.size());
}

QVariant CellList::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const CellRow& row = At(index.row());
    if (index.column() == 0) {
        if (role == Qt::CheckStateRole && tickable_)
            return row.ticked ? Qt::Checked : Qt::Unchecked;
        if (role == Qt::DecorationRole && pictures_ && !row.image.isEmpty())
            return pictures_(row.image);
    }
    if (size_t(index.column()) >= row.cells.size())
        return {};
    const Cell& cell = row.cells[size_t(index.column())];
    switch (role) {
        case Qt::DisplayRole:
            return cell.text;
        case Qt::ToolTipRole:
            return cell.toolTip;
        case Qt::ForegroundRole:
            return ForegroundFor(cell.foreColor, QGuiApplication::palette());
        case Qt::FontRole: {
            if (!cell.bold)
                return {};
            QFont font;
            font.setBold(true);
            return font;
        }
        default:
            return {};
    }
}

bool CellList::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (!index.isValid() || index.column() != 0 || role != Qt::CheckStateRole || !tickable_)
        return false;
    rows_[size_t(index.row())].ticked = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    Q_EMIT TickedByUser(index.row());
    return true;
}

QVariant CellList::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= columnCount())
        return {};
    return headers_[size_t(section)].text;
}

Qt::ItemFlags CellList::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (tickable_ && index.isValid() && index.column() == 0)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

}  // namespace docbench
