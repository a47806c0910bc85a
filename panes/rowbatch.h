// Rows on their way into a list while a search goes on.
#pragma once

#include <functional>
#include <vector>

#include "cells/celllist.h"

namespace docbench {

// Hands rows on in portions that grow with the list: a view lays out the whole list anew for each
// portion, so that handing on a few rows at a time would cost the square of their number.
class RowBatch {
public:
    // `show` puts a row into the form that its list has when the row arrives there.
    RowBatch(CellList& list, std::function<void(CellRow&)> show)
        : list_(list), show_(std::move(show)) {}

    void Add(CellRow row) { waiting_.push_back(std::move(row)); }
    // Hands the waiting rows on if they are enough for the length of the list.
    void Offer();
    // Hands on whatever waits: at the end of a search, however it ends.
    void Flush();
    // Rows of the list and those that wait for it.
    int Count() const { return list_.Count() + int(waiting_.size()); }

private:
    CellList& list_;
    std::function<void(CellRow&)> show_;
    std::vector<CellRow> waiting_;
};

}  // namespace docbench
