// The commands of the frame: what stands in its menus, drop-downs and icon bar, in order.
#pragma once

#include <QKeySequence>
#include <QLatin1String>
#include <QString>
#include <vector>

#include "services/texts.h"

namespace docbench {

struct CommandEntry {
    QLatin1String code;  // empty: a separator
    TextId<0> text = {};
    QKeySequence shortcut = {};
};

// A button of the toolbar, with the entries of its drop-down and of the popup menu that mirrors it.
struct CommandGroup {
    QLatin1String key;
    QLatin1String menuName;  // of the popup
    TextId<0> caption;
    std::vector<CommandEntry> entries;
};

const std::vector<CommandGroup>& CommandGroups();

// Whether a code stands in one of the groups. Others don't reach the shell through the frame.
bool IsFrameCommand(const QString& code);

struct BarEntry {
    QLatin1String pictureKey;
    TextId<0> caption;
    QLatin1String code;
};

const std::vector<BarEntry>& BarEntries();

}  // namespace docbench
