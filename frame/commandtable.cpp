#include "frame/commandtable.h"

namespace docbench {

namespace {

QLatin1String Code(const char* code) {
    return QLatin1String(code);
}

const CommandEntry kSeparator{};

}  // namespace

const std::vector<CommandGroup>& CommandGroups() {
    static const std::vector<CommandGroup> groups = {
        {Code("OPEN"),
         Code("menufile"),
         Text::ToolbarOpen,
         {{Code("OPEN"), Text::MenuOpenFile, QKeySequence::Open},
          {Code("OPENURL"), Text::OpenWebFolder, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O)}}},
        {Code("RENAME"),
         Code("menuedit"),
         Text::ToolbarRename,
         {{Code("RENAME"), Text::Rename, QKeySequence(Qt::Key_F2)},
          {Code("REPLACE"), Text::Replace},
          {Code("COPY"), Text::Copy}}},
        {Code("PREVIEW"),
         Code("menutools"),
         Text::ToolbarView,
         {{Code("PREVIEW"), Text::Preview, QKeySequence(Qt::CTRL | Qt::Key_1)},
          {Code("SUMMARY"), Text::Properties, QKeySequence(Qt::CTRL | Qt::Key_2)},
          {Code("REF"), Text::References, QKeySequence(Qt::CTRL | Qt::Key_3)},
          kSeparator,
          {Code("WHERE"), Text::WhereUsed, QKeySequence(Qt::CTRL | Qt::Key_4)},
          {Code("SEARCH"), Text::Search, QKeySequence(Qt::CTRL | Qt::Key_5)},
          kSeparator,
          {Code("EDIT"), Text::Configurations, QKeySequence(Qt::CTRL | Qt::Key_6)},
          {Code("LINK"), Text::Hyperlinks, QKeySequence(Qt::CTRL | Qt::Key_7)},
          kSeparator,
          {Code("SETUP"), Text::Setup, QKeySequence(Qt::CTRL | Qt::Key_8)}}},
        {Code("ABOUT"),
         Code("menuhelp"),
         Text::Help,
         {{Code("HELP"), Text::Help, QKeySequence::HelpContents}, {Code("ABOUT"), Text::About}}},
    };
    return groups;
}

bool IsFrameCommand(const QString& code) {
    for (const CommandGroup& group : CommandGroups()) {
        for (const CommandEntry& entry : group.entries) {
            if (!entry.code.isEmpty() && entry.code == code)
                return true;
        }
    }
    return false;
}

const std::vector<BarEntry>& BarEntries() {
    static const std::vector<BarEntry> entries = {
        {Code("PVIW"), Text::Preview, Code("PREVIEW")},
        {Code("PROP"), Text::Properties, Code("SUMMARY")},
        {Code("EREF"), Text::References, Code("REF")},
        {Code("WUSE"), Text::WhereUsed, Code("WHERE")},
        {Code("PSRC"), Text::Search, Code("SEARCH")},
        {Code("ECON"), Text::Configurations, Code("EDIT")},
        {Code("ELIK"), Text::Hyperlinks, Code("LINK")},
        {Code("SETU"), Text::Setup, Code("SETUP")},
    };
    return entries;
}

}  // namespace docbench
