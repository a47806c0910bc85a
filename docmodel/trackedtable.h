// A table's rows as one object sees them: the state at Open, and which rows were changed since
// then.
#pragma once

#include <QByteArray>
#include <QList>
#include <QSet>

#include "docmodel/documentpart.h"

namespace docmodel {

template <typename Row>
class TrackedTable {
public:
    TrackedTable() = default;
    explicit TrackedTable(QList<Row> rows) : rows_(std::move(rows)) {}

    const QList<Row>& Rows() const { return rows_; }
    bool IsChanged() const { return !changed_.isEmpty(); }
    const QSet<int>& Changed() const { return changed_; }

    // Of the rows at Open. Most objects are never asked, so it is made when it is.
    const QByteArray& StampAtOpen() {
        if (stamp_.isEmpty())
            stamp_ = StampOf(rows_);
        return stamp_;
    }

    // The row for changing. The reference holds until the next call.
    Row& Change(int index) {
        StampAtOpen();
        changed_.insert(index);
        return rows_[index];
    }

    // The changed rows by position, as `part` of a row has them.
    template <typename Value>
    QMap<int, Value> Changes(Value Row::*part) const {
        QMap<int, Value> changes;
        for (const int index : changed_)
            changes.insert(index, rows_[index].*part);
        return changes;
    }

private:
    QList<Row> rows_;
    QSet<int> changed_;
    QByteArray stamp_;
};

}  // namespace docmodel
