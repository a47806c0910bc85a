#include "shell/panetable.h"

#include <algorithm>
#include <iterator>

namespace docbench {

namespace {

const PaneCommand kCommands[] = {
    {.code = QLatin1String("PREVIEW"),
     .heading = Text::Preview,
     .pane = PaneId::Preview,
     .takesFocus = false},
    {.code = QLatin1String("SUMMARY"), .heading = Text::Properties, .pane = PaneId::Properties},
    {.code = QLatin1String("REF"), .heading = Text::References, .pane = PaneId::References},
    {.code = QLatin1String("WHERE"), .heading = Text::WhereUsed, .pane = PaneId::WhereUsed},
    {.code = QLatin1String("SEARCH"),
     .heading = Text::Search,
     .pane = PaneId::Search,
     .handover = Handover::Always},
    {.code = QLatin1String("EDIT"),
     .heading = Text::Configurations,
     .pane = PaneId::Configurations,
     .followsLock = true},
    {.code = QLatin1String("LINK"),
     .heading = Text::Hyperlinks,
     .pane = PaneId::Hyperlinks,
     .followsLock = true},
    {.code = QLatin1String("SETUP"),
     .heading = Text::Setup,
     .pane = PaneId::Setup,
     .handover = Handover::Never,
     .takesShowDesc = false},
    {.code = QLatin1String("RENAME"),
     .heading = Text::Rename,
     .pane = PaneId::Rename,
     .handover = Handover::Always,
     .takesFocus = false,
     .takesChain = true},
    {.code = QLatin1String("REPLACE"),
     .heading = Text::Replace,
     .pane = PaneId::Rename,
     .handover = Handover::Always,
     .takesFocus = false,
     .takesChain = true,
     .actionReplace = true},
    {.code = QLatin1String("COPY"),
     .heading = Text::Copy,
     .pane = PaneId::Copy,
     .handover = Handover::Always,
     .takesFocus = false,
     .takesChain = true},
};

}  // namespace

const PaneCommand* FindPaneCommand(const QString& code) {
    const auto found =
        std::find_if(std::begin(kCommands), std::end(kCommands),
                     [&](const PaneCommand& command) { return command.code == code; });
    return found == std::end(kCommands) ? nullptr : found;
}

bool LeavesWithDocument(const QString& code) {
    const PaneCommand* command = FindPaneCommand(code);
    return command && command->takesChain;
}

}  // namespace docbench
