#include "services/credentials.h"

#include <QCoreApplication>
#include <QSet>
#include <QTimer>

#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/keyring.h"
#include "services/seams.h"

namespace docbench {
namespace {

QString EntryOf(const QString& server, const QString& realm) {
    return server + u' ' + realm;
}

// User and password in one secret. A user name holds no line break.
std::optional<Credentials> Unpack(const QString& secret) {
    const qsizetype split = secret.indexOf(u'\n');
    if (split < 0)
        return std::nullopt;
    return Credentials{secret.left(split), secret.mid(split + 1)};
}

class AskingCredentials : public CredentialSource {
public:
    std::optional<Credentials> Ask(const QString& server, const QString& realm,
                                   int attempt) override {
        const QString entry = EntryOf(server, realm);
        if (attempt == 0 && gSeams.keyring) {
            if (const auto secret = gSeams.keyring->Read(entry)) {
                if (auto kept = Unpack(*secret))
                    return kept;
            }
        }
        if (attempt > 0 && gSeams.keyring)
            gSeams.keyring->Delete(entry);  // what it held was refused
        toKeep_.remove(entry);              // a tick is for the answer it was given with
        if (cancelled_.contains(entry))
            return std::nullopt;
        const auto answer = gSeams.dialogs->AskPassword(server, realm, attempt > 0);
        if (!answer) {
            RememberCancel(entry);
            return std::nullopt;
        }
        if (answer->remember)
            toKeep_.insert(entry);
        return Credentials{answer->user, answer->password};
    }

    void Accepted(const QString& server, const QString& realm,
                  const Credentials& credentials) override {
        const QString entry = EntryOf(server, realm);
        const QString secret = credentials.user + u'\n' + credentials.password;
        if (toKeep_.remove(entry) && gSeams.keyring && !gSeams.keyring->Write(entry, secret))
            gSeams.dialogs->Box(QStringLiteral("The password for %1 could not be kept in the "
                                               "keyring. You will be asked for it again.")
                                    .arg(server),
                                Dialogs::Icon::Exclamation, QString());
    }

private:
    // A tree of a hundred documents asks a hundred times; the user is asked once for what he does
    // now, and again when he does something else.
    void RememberCancel(const QString& entry) {
        cancelled_.insert(entry);
        QTimer::singleShot(0, QCoreApplication::instance(), [this] { cancelled_.clear(); });
    }

    QSet<QString> cancelled_;
    QSet<QString> toKeep_;  // the user ticked that the answer be kept, once it is right
};

}  // namespace

CredentialSource& WebCredentials() {
    static AskingCredentials credentials;
    return credentials;
}

}  // namespace docbench
