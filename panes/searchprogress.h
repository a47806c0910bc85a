// How far a search has come, in a label of its pane.
#pragma once

#include "services/texts.h"

class QLabel;

namespace docbench {

struct SearchCounts;

// Drawn at once: events run only where a search yields. `foundText` says what the rows are.
void ShowSearchProgress(QLabel& label, const SearchCounts& counts, int rowsFound,
                        TextId<1> foundText = Text::HoldersFound);

}  // namespace docbench
