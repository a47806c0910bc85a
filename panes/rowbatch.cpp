#include "panes/rowbatch.h"

namespace docbench {

void RowBatch::Offer() {
    constexpr int kShare = 16;  // of the list, which waiting rows come to before they are shown
    if (int(waiting_.size()) > list_.Count() / kShare)
        Flush();
}

void RowBatch::Flush() {
    if (waiting_.empty())
        return;
    for (CellRow& row : waiting_)
        show_(row);
    list_.Append(std::exchange(waiting_, {}));
}

}  // namespace docbench
