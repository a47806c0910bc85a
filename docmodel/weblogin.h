// The passwords of one server: asked for once a realm, kept in memory.
#pragma once

#include <neon/ne_session.h>

#include <QHash>
#include <QString>
#include <exception>

#include "docmodel/webaddress.h"
#include "services/docaccess.h"

namespace docmodel {

class WebLogin {
public:
    // `source` may be null; then only what stands in addresses is known. `server` is told to it.
    WebLogin(docbench::CredentialSource* source, QString server)
        : source_(source), server_(std::move(server)) {}

    // Lets the session answer questions for Basic and Digest passwords.
    void AttachTo(ne_session* session);
    // Before each request: the user and password that stand in its address are tried first.
    void BeginRequest(const WebAddress& address);
    enum class Outcome { Accepted, Refused, Unknown };
    // After it. Accepted: the server answered without asking for a password once more. Raises what
    // the source raised meanwhile.
    void EndRequest(Outcome outcome);
    // Why the server got no password that it takes, as the reason of an error text.
    QString Problem() const;

private:
    static int Provide(void* self, int attempt, unsigned protocol, const char* realm, char* user,
                       char* password, size_t size);
    bool Choose(const QString& realm);
    bool Ask(const QString& realm);

    ne_session* session_ = nullptr;
    docbench::CredentialSource* const source_;
    const QString server_;
    QHash<QString, docbench::Credentials> kept_;  // by realm, once accepted
    docbench::Credentials ofAddress_;
    docbench::Credentials current_;  // what the session uses without asking

    // Of the request under way.
    enum class Tried { Nothing, Kept, Address, Asked };
    Tried tried_ = Tried::Nothing;
    QString realm_;
    docbench::Credentials candidate_;
    int refused_ = 0;  // answers of the source, and kept ones, that the server did not take
    bool cancelled_ = false;
    bool tooLong_ = false;
    std::exception_ptr raised_;
};

}  // namespace docmodel
