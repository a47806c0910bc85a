// The talk with one server: one request after the other, each answered with a status or an error in
// words.
#pragma once

#include <neon/ne_request.h>

#include <QHash>
#include <QList>
#include <QObject>
#include <functional>
#include <memory>
#include <utility>

#include "docmodel/webaddress.h"
#include "docmodel/weblogin.h"
#include "docmodel/webwatch.h"

namespace docmodel {

struct WebAnswer {
    int status = 0;
    QString phrase;                         // the server's words for the status
    QHash<QByteArray, QByteArray> headers;  // by names in lower case
    WebAddress address;                     // where redirects led to

    QByteArray Header(const char* name) const { return headers.value(name); }
    bool IsSuccess() const { return status >= 200 && status < 300; }
};

struct WebRequest {
    const char* method;
    QString done;  // the participle for error texts, such as "downloaded"
    QList<std::pair<QByteArray, QByteArray>> headers = {};
    QByteArray body = {};  // unless `file` is open
    int file = -1;         // sent from its beginning
    qint64 fileBytes = 0;
    // The body of a success, block by block; `started` comes before the first one. They may raise.
    std::function<void(const WebAnswer&)> started = {};
    std::function<void(const char* bytes, size_t count)> received = {};
};

class WebSession {
public:
    WebSession(const WebAddress& server, const docbench::WebClientSettings& settings);
    WebSession(const WebSession&) = delete;
    WebSession& operator=(const WebSession&) = delete;

    // Follows redirects within the server. Any status is an answer but 401; DocumentError when
    // there is none, and when the body does not come whole. A server that could not be reached, or
    // was silent for too long, is not waited for again until the event loop turns: a tree of a
    // hundred documents would take a hundred times that long.
    WebAnswer Send(const WebAddress& address, const WebRequest& request);
    // Whether a request has been answered, so that the server has the password if it wants one.
    bool HasAnswered() const { return hasAnswered_; }

private:
    struct Destroy {
        void operator()(ne_session* session) const { ne_session_destroy(session); }
        void operator()(ne_request* request) const { ne_request_destroy(request); }
    };
    using Request = std::unique_ptr<ne_request, Destroy>;

    void SetUpTls(const WebAddress& server);
    Request Prepared(const WebAddress& address, const WebRequest& request);
    WebAnswer SendOnce(const WebAddress& address, const WebRequest& request);
    void CloseConnection();
    int Exchange(ne_request* handle, const WebRequest& request, WebAnswer& answer);
    void ReadBody(ne_request* handle, const WebRequest& request, const WebAnswer& answer);
    // The reason, in words, why there was no answer.
    QString ReasonOf(int result, const WebAddress& address) const;
    bool IsSilence(int result) const;
    void RememberSilence(const QString& reason);
    [[noreturn]] void RaiseFailure(int result, const WebAddress& address,
                                   const WebRequest& request);
    WebAddress RedirectTarget(const WebAnswer& answer, const WebRequest& request) const;
    static int RefuseCertificate(void* self, int failures, const ne_ssl_certificate*);

    const docbench::WebClientSettings settings_;
    WebLogin login_;
    WebWatch watch_;
    std::unique_ptr<ne_session, Destroy> session_;
    int certificateFailures_ = 0;  // of the last connection
    bool timedOut_ = false;
    bool hasAnswered_ = false;
    QObject occasion_;  // what the user does now
    QString silence_;   // why the server gave no answer on this occasion; empty if it did
};

}  // namespace docmodel
