// The result list of a document search: what its rows say of each document.
#pragma once

#include <QElapsedTimer>
#include <QSet>
#include <QString>
#include <vector>

#include "cells/celllist.h"
#include "panes/pathcolumn.h"

namespace docbench {

// The column of the documents' paths, with its captions.
PathColumn ResultColumn();

class SearchResults {
public:
    explicit SearchResults(CellList& list);  // sets its headers

    void Clear();
    // Whether a row shows the path. In short form none does.
    bool Lists(const QString& path) const;
    void Add(const QString& path);
    // Rows reach the list some at a time: each time a view lays itself out anew, so that one by one
    // the cost would grow with the square of the hits. Those that have waited long enough, or all.
    void ShowSome();
    void ShowAll();

private:
    CellRow RowOf(const QString& path) const;

    CellList& list_;
    QSet<QString> paths_;  // of all rows
    std::vector<CellRow> waiting_;
    QElapsedTimer shown_;  // since rows reached the list last
};

}  // namespace docbench
