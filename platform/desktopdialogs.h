// The dialogs of a desktop.
#pragma once

#include "services/dialogs.h"

namespace docbench {

class DesktopDialogs : public Dialogs {
public:
    Answer Box(const QString& text, Icon icon, const QString& title, Buttons buttons,
               const QString& detail) override;
    QString OpenFile(const QString& title, const QString& filter, const QString& start) override;
    QString SaveFile(const QString& title, const QString& filter, const QString& start) override;
    QString BrowseFolder(const QString& title, const QString& start) override;
    std::optional<Password> AskPassword(const QString& server, const QString& realm,
                                        bool refused) override;
};

}  // namespace docbench
