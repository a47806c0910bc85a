#include "docmodel/weblogin.h"

#include <neon/ne_auth.h>

#include <cstring>

namespace docmodel {
namespace {

// A user who is wrong so often doesn't know it.
constexpr int kMaxQuestions = 3;

bool Write(const QString& text, char* to, size_t size) {
    const QByteArray bytes = text.toUtf8();
    if (size_t(bytes.size()) >= size)
        return false;
    std::memcpy(to, bytes.constData(), size_t(bytes.size()) + 1);
    return true;
}

}  // namespace

void WebLogin::AttachTo(ne_session* session) {
    session_ = session;
    ne_add_auth(session, NE_AUTH_BASIC | NE_AUTH_DIGEST, &WebLogin::Provide, this);
}

void WebLogin::BeginRequest(const WebAddress& address) {
    ofAddress_ = {address.user, address.password};
    tried_ = Tried::Nothing;
    realm_.clear();
    refused_ = 0;
    cancelled_ = false;
    tooLong_ = false;
    raised_ = nullptr;
    const bool isOther =
        ofAddress_.user != current_.user || ofAddress_.password != current_.password;
    if (!ofAddress_.password.isEmpty() && isOther)
        ne_forget_auth(session_);
}

void WebLogin::EndRequest(Outcome outcome) {
    if (raised_)
        std::rethrow_exception(raised_);
    if (outcome == Outcome::Refused)
        kept_.remove(realm_);
    if (outcome != Outcome::Accepted || tried_ == Tried::Nothing)
        return;
    current_ = candidate_;
    kept_.insert(realm_, candidate_);
    if (tried_ == Tried::Asked)
        source_->Accepted(server_, realm_, candidate_);
}

QString WebLogin::Problem() const {
    if (tooLong_)
        return QStringLiteral(
            "the user name or the password is too long. Try again with shorter ones");
    if (cancelled_)
        return QStringLiteral(
            "the server wants a password, and none was given. Try again and give it");
    if (tried_ == Tried::Nothing)
        return QStringLiteral(
            "the server wants a user name and a password (401), and none are known. Ask the "
            "folder's owner for them");
    return QStringLiteral(
        "the server does not take the user name or the password (401). Try again and give the "
        "right ones");
}

// Called from C code, which no exception may pass.
int WebLogin::Provide(void* self, int, unsigned, const char* realm, char* user, char* password,
                      size_t size) {
    auto* login = static_cast<WebLogin*>(self);
    try {
        if (!login->Choose(QString::fromUtf8(realm)))
            return 1;
    } catch (...) {
        login->raised_ = std::current_exception();
        return 1;
    }
    login->tooLong_ = !Write(login->candidate_.user, user, size) ||
                      !Write(login->candidate_.password, password, size);
    return login->tooLong_ ? 1 : 0;
}

// Each call after the first means that the last choice was refused.
bool WebLogin::Choose(const QString& realm) {
    if (realm != realm_) {
        realm_ = realm;
        tried_ = Tried::Nothing;
        refused_ = 0;
    }
    if (tried_ == Tried::Nothing && !ofAddress_.password.isEmpty()) {
        candidate_ = ofAddress_;
        tried_ = Tried::Address;
        return true;
    }
    if (tried_ == Tried::Kept || tried_ == Tried::Asked)
        ++refused_;
    if ((tried_ == Tried::Nothing || tried_ == Tried::Address) && kept_.contains(realm)) {
        candidate_ = kept_.value(realm);
        tried_ = Tried::Kept;
        return true;
    }
    return Ask(realm);
}

bool WebLogin::Ask(const QString& realm) {
    if (!source_ || refused_ >= kMaxQuestions)
        return false;
    const std::optional<docbench::Credentials> answer = source_->Ask(server_, realm, refused_);
    cancelled_ = !answer.has_value();
    if (cancelled_)
        return false;
    candidate_ = *answer;
    tried_ = Tried::Asked;
    return true;
}

}  // namespace docmodel
