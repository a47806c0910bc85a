// How far a search has come, in a label of its pane.
#pragma once

class QLabel;

namespace docbench {

struct SearchCounts;

// Drawn at once: events run only where a search yields.
void ShowSearchProgress(QLabel& label, const SearchCounts& counts, int rowsFound);

}  // namespace docbench
