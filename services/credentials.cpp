#include "services/credentials.h"

#include <QCoreApplication>
#include <QSet>
#include <QTimer>
#include <utility>

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
        const Busy busy(*this);
        if (cancelled_.contains(entry))
            return std::nullopt;
        if (attempt == 0 && gSeams.keyring) {
            if (const auto secret = gSeams.keyring->Read(entry)) {
                if (auto kept = Unpack(*secret))
                    return kept;
            }
        }
        if (attempt > 0 && gSeams.keyring)
            gSeams.keyring->Delete(entry);  // what it held was refused
        toKeep_.remove(entry);              // a tick is for the answer it was given with
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
        const Busy busy(*this);
        const QString secret = credentials.user + u'\n' + credentials.password;
        if (toKeep_.remove(entry) && gSeams.keyring && !gSeams.keyring->Write(entry, secret))
            gSeams.dialogs->Box(QStringLiteral("The password for %1 could not be kept in the "
                                               "keyring. You will be asked for it again.")
                                    .arg(server),
                                Dialogs::Icon::Exclamation, QString());
    }

private:
    // The keyring and the dialogs run event loops of their own. What turns those is not the user
    // doing something else.
    class Busy {
    public:
        explicit Busy(AskingCredentials& source) : source_(source) { ++source_.busy_; }
        ~Busy() {
            if (--source_.busy_ == 0 && std::exchange(source_.isForgettingDue_, false))
                source_.ForgetCancelsLater();
        }
        Busy(const Busy&) = delete;
        Busy& operator=(const Busy&) = delete;

    private:
        AskingCredentials& source_;
    };

    // A tree of a hundred documents asks a hundred times; the user is asked once for what he does
    // now, and again when he does something else.
    void RememberCancel(const QString& entry) {
        cancelled_.insert(entry);
        isForgettingDue_ = true;
    }

    void ForgetCancelsLater() {
        QTimer::singleShot(0, QCoreApplication::instance(), [this] {
            if (busy_ > 0)
                isForgettingDue_ = true;
            else
                cancelled_.clear();
        });
    }

    int busy_ = 0;                  // calls under way
    bool isForgettingDue_ = false;  // once the last of them ends
    QSet<QString> cancelled_;
    QSet<QString> toKeep_;  // the user ticked that the answer be kept, once it is right
};

}  // namespace

CredentialSource& WebCredentials() {
    static AskingCredentials credentials;
    return credentials;
}

}  // namespace docbench
