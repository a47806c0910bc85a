// The panes of the shell and the commands that show them.
#pragma once

#include <QString>

#include "services/texts.h"

namespace docbench {

enum class PaneId {
    Preview,
    Properties,
    References,
    WhereUsed,
    Search,
    Configurations,
    Hyperlinks,
    Setup,
    Rename,
    Copy,
};
inline constexpr int kPaneCount = 10;

// When a pane that comes up is handed the current document.
enum class Handover {
    IfAny,   // only if there is one: else the pane keeps what it held
    Always,  // also none, which blanks the pane
    Never,
};

struct PaneCommand {
    QLatin1String code;
    TextId<0> heading;
    PaneId pane;
    Handover handover = Handover::IfAny;
    bool takesFocus = true;
    bool takesShowDesc = true;
    bool takesChain = false;   // is handed the documents above the selected node
    bool followsLock = false;  // is enabled by the document's lock when it comes up
    bool actionReplace = false;
};

// The command of a code; null for one that is not a pane's.
const PaneCommand* FindPaneCommand(const QString& code);

// Whether the pane of a command works on the very document it was shown for, so that another
// document must not land in it.
bool LeavesWithDocument(const QString& code);

}  // namespace docbench
