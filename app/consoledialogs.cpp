#include "app/consoledialogs.h"

#include <QTextStream>

namespace docbench {

Dialogs::Answer ConsoleDialogs::Box(const QString& text, Icon, const QString&, Buttons buttons,
                                    const QString& detail) {
    QTextStream err(stderr);
    err << text << '\n';
    if (!detail.isEmpty())
        err << detail << '\n';
    return AnswerOfClosing(buttons);
}

std::optional<Dialogs::Password> ConsoleDialogs::AskPassword(const QString& server,
                                                             const QString& realm, bool refused) {
    const QString user = qEnvironmentVariable("DOCBENCH_WEB_USER");
    if (!refused && !user.isEmpty())
        return Password{user, qEnvironmentVariable("DOCBENCH_WEB_PASSWORD")};
    QTextStream(stderr) << server << " (" << realm << ") "
                        << (refused ? "refused the user and password in DOCBENCH_WEB_USER and "
                                      "DOCBENCH_WEB_PASSWORD.\n"
                                    : "wants a password: set DOCBENCH_WEB_USER and "
                                      "DOCBENCH_WEB_PASSWORD.\n");
    return std::nullopt;
}

}  // namespace docbench
