// The dialogs of a command line: messages go to standard error, questions are answered with cancel.
#pragma once

#include "services/dialogs.h"

namespace docbench {

class ConsoleDialogs : public Dialogs {
public:
    Answer Box(const QString& text, Icon icon, const QString& title, Buttons buttons,
               const QString& detail) override;
    QString OpenFile(const QString&, const QString&, const QString&) override { return {}; }
    QString BrowseFolder(const QString&, const QString&) override { return {}; }
    // From the environment: DOCBENCH_WEB_USER and DOCBENCH_WEB_PASSWORD. None without them, or when
    // they were refused.
    std::optional<Password> AskPassword(const QString& server, const QString& realm,
                                        bool refused) override;
};

}  // namespace docbench
