// The dialogs of a command line: messages go to standard error, questions are answered with cancel.
#pragma once

#include "services/dialogs.h"

namespace docbench {

class ConsoleDialogs : public Dialogs {
public:
    // `address` is what the user named on the command line.
    explicit ConsoleDialogs(const QString& address);

    Answer Box(const QString& text, Icon icon, const QString& title, Buttons buttons,
               const QString& detail) override;
    QString OpenFile(const QString&, const QString&, const QString&) override { return {}; }
    QString BrowseFolder(const QString&, const QString&) override { return {}; }
    // From the environment: DOCBENCH_WEB_USER and DOCBENCH_WEB_PASSWORD. None without them, when
    // they were refused, and for any server but the one of DOCBENCH_WEB_SERVER or, without that, of
    // the command line: a document may refer to wherever its author likes.
    std::optional<Password> AskPassword(const QString& server, const QString& realm,
                                        bool refused) override;

private:
    const QString server_;  // the password is for it; empty for none
};

}  // namespace docbench
