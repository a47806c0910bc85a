// The dialogs of a command line: messages go to standard error, questions are answered with cancel.
#pragma once

#include "services/dialogs.h"

namespace docbench {

class ConsoleDialogs : public Dialogs {
public:
    Answer Box(const QString& text, Icon icon, const QString& title, Buttons buttons) override;
    QString OpenFile(const QString&, const QString&) override { return {}; }
    QString BrowseFolder(const QString&, const QString&) override { return {}; }
};

}  // namespace docbench
