#include "app/consoledialogs.h"

#include <QTextStream>

#include "services/webauthority.h"

namespace docbench {

ConsoleDialogs::ConsoleDialogs(const QString& address)
    : server_(ServerOf(qEnvironmentVariable("DOCBENCH_WEB_SERVER", address))) {}

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
    const bool isMeant = server == server_;
    if (isMeant && !refused && !user.isEmpty())
        return Password{user, qEnvironmentVariable("DOCBENCH_WEB_PASSWORD")};
    QTextStream err(stderr);
    err << server << " (" << realm << ") ";
    if (user.isEmpty())
        err << "wants a password: set DOCBENCH_WEB_USER and DOCBENCH_WEB_PASSWORD.\n";
    else if (isMeant)
        err << "refused the user and password in DOCBENCH_WEB_USER and DOCBENCH_WEB_PASSWORD.\n";
    else
        err << "wants a password, and is not the server that you named: if DOCBENCH_WEB_USER and "
               "DOCBENCH_WEB_PASSWORD are for it, set DOCBENCH_WEB_SERVER to its address.\n";
    return std::nullopt;
}

}  // namespace docbench
