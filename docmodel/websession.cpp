#include "docmodel/websession.h"

#include <neon/ne_auth.h>
#include <neon/ne_socket.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>
#include <array>
#include <cstring>

#include "docmodel/weberror.h"

namespace docmodel {
namespace {

constexpr int kMaxRedirects = 5;

// Big enough that the library below reads into it directly.
constexpr size_t kBlockBytes = 256 << 10;

// What is read of the page that goes with an error.
constexpr qint64 kMaxErrorPageBytes = 1 << 20;

// A broken connection while a body is read; which kind is told by the session.
struct BodyFailed {};

bool InitLibrary() {
    static const bool isReady = ne_sock_init() == 0;
    return isReady;
}

QStringList CertificateBlocks(const QByteArray& pem) {
    QStringList blocks;
    constexpr char kBegin[] = "-----BEGIN CERTIFICATE-----";
    constexpr char kEnd[] = "-----END CERTIFICATE-----";
    qsizetype at = 0;
    while ((at = pem.indexOf(kBegin, at)) >= 0) {
        at += qsizetype(std::strlen(kBegin));
        const qsizetype end = pem.indexOf(kEnd, at);
        if (end < 0)
            break;
        blocks.append(QString::fromLatin1(pem.mid(at, end - at)).simplified().remove(u' '));
        at = end;
    }
    return blocks;
}

bool IsRedirect(int status) {
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

bool ChangesTheServer(const WebRequest& request) {
    return qstrcmp(request.method, "PUT") == 0 || qstrcmp(request.method, "MOVE") == 0 ||
           qstrcmp(request.method, "MKCOL") == 0;
}

QString CertificateReason(int failures) {
    QString reason = QStringLiteral(
        "the server's certificate is not issued by anybody that this "
        "computer trusts");
    if (failures & NE_SSL_REVOKED)
        reason = QStringLiteral("the server's certificate was revoked");
    else if (failures & NE_SSL_IDMISMATCH)
        reason = QStringLiteral("the server's certificate belongs to another server");
    else if (failures & NE_SSL_EXPIRED)
        reason = QStringLiteral("the server's certificate has expired");
    else if (failures & NE_SSL_NOTYETVALID)
        reason = QStringLiteral("the server's certificate is not valid yet");
    return reason + QStringLiteral(
                        ", so it may be an impostor, and nothing was sent to it. Tell the server's "
                        "administrator");
}

void ReadHead(ne_request* handle, const WebAddress& address, WebAnswer& answer) {
    const ne_status* status = ne_get_status(handle);
    answer = WebAnswer();
    answer.status = status->code;
    answer.phrase = QString::fromUtf8(status->reason_phrase);
    answer.address = address;
    const char* name = nullptr;
    const char* value = nullptr;
    void* cursor = nullptr;
    while ((cursor = ne_response_header_iterate(handle, cursor, &name, &value)))
        answer.headers.insert(name, value);
}

}  // namespace

WebSession::WebSession(const WebAddress& server, const docbench::WebClientSettings& settings)
    : settings_(settings),
      login_(settings.credentials, server.Server()),
      watch_(settings.timeoutSeconds, server.port) {
    if (!InitLibrary())
        throw WebError(server, QStringLiteral("reached"),
                       QStringLiteral("the network can't be used. Restart the program"));
    session_.reset(
        ne_session_create(server.scheme.constData(), server.host.constData(), server.port));
    ne_set_useragent(session_.get(), "Docbench");
    ne_set_connect_timeout(session_.get(), settings.timeoutSeconds);
    ne_set_read_timeout(session_.get(), settings.timeoutSeconds);
    login_.AttachTo(session_.get());
    watch_.AttachTo(session_.get());
    if (server.scheme == "https")
        SetUpTls(server);
}

void WebSession::SetUpTls(const WebAddress& server) {
    ne_ssl_set_verify(session_.get(), &WebSession::RefuseCertificate, this);
    ne_ssl_trust_default_ca(session_.get());
    if (settings_.trustFile.isEmpty())
        return;
    QFile file(settings_.trustFile);
    const QStringList blocks =
        file.open(QIODevice::ReadOnly) ? CertificateBlocks(file.readAll()) : QStringList();
    if (blocks.isEmpty())
        throw WebError(server, QStringLiteral("reached"),
                       QStringLiteral("the file %1 holds no certificates. Correct the settings")
                           .arg(settings_.trustFile));
    for (const QString& block : blocks) {
        ne_ssl_certificate* certificate = ne_ssl_cert_import(block.toLatin1().constData());
        if (!certificate)
            continue;
        ne_ssl_trust_cert(session_.get(), certificate);
        ne_ssl_cert_free(certificate);
    }
}

// Never accepts; it is here only to learn the reason.
int WebSession::RefuseCertificate(void* self, int failures, const ne_ssl_certificate*) {
    static_cast<WebSession*>(self)->certificateFailures_ = failures;
    return 1;
}

WebAnswer WebSession::Send(const WebAddress& address, const WebRequest& request) {
    WebAddress target = address;
    for (int redirects = 0; redirects <= kMaxRedirects; ++redirects) {
        WebAnswer answer = SendOnce(target, request);
        if (!IsRedirect(answer.status))
            return answer;
        target = RedirectTarget(answer, request);
    }
    throw WebError(address, request.done,
                   QStringLiteral("the server passes the request on without end. Tell its "
                                  "administrator"));
}

WebAddress WebSession::RedirectTarget(const WebAnswer& answer, const WebRequest& request) const {
    const QByteArray location = answer.Header("location");
    const std::optional<WebAddress> target = WebAddress::FromServer(location, answer.address);
    if (!target)
        throw WebError(answer.address, request.done, StatusReason(answer.status, answer.phrase));
    if (!target->IsOnSameServer(answer.address))
        throw WebError(answer.address, request.done,
                       QStringLiteral("the server refers to another one, %1. Use that address if "
                                      "you trust it")
                           .arg(target->Shown()));
    WebAddress next = answer.address;
    next.path = target->path;
    return next;
}

WebSession::Request WebSession::Prepared(const WebAddress& address, const WebRequest& request) {
    Request handle(ne_request_create(session_.get(), request.method, address.path.constData()));
    for (const auto& [name, value] : request.headers)
        ne_add_request_header(handle.get(), name.constData(), value.constData());
    if (request.file >= 0)
        ne_set_request_body_fd(handle.get(), request.file, 0, request.fileBytes);
    else if (!request.body.isEmpty())
        ne_set_request_body_buffer(handle.get(), request.body.constData(),
                                   size_t(request.body.size()));
    // Sent again over a new connection, they could be refused because of their own first success.
    if (ChangesTheServer(request))
        ne_set_request_flag(handle.get(), NE_REQFLAG_IDEMPOTENT, 0);
    return handle;
}

WebAnswer WebSession::SendOnce(const WebAddress& address, const WebRequest& request) {
    if (!silence_.isEmpty())
        throw WebError(address, request.done, silence_);
    const Request handle = Prepared(address, request);
    certificateFailures_ = 0;
    timedOut_ = false;
    login_.BeginRequest(address);
    WebAnswer answer;
    answer.address = address;
    int result = NE_ERROR;
    try {
        result = Exchange(handle.get(), request, answer);
    } catch (const BodyFailed&) {
        result = NE_ERROR;
    } catch (...) {
        CloseConnection();  // the rest of the body is still to come
        throw;
    }
    watch_.Pause();
    const bool isRefused = result == NE_AUTH || (result == NE_OK && answer.status == 401);
    const auto otherwise =
        result == NE_OK ? WebLogin::Outcome::Accepted : WebLogin::Outcome::Unknown;
    login_.EndRequest(isRefused ? WebLogin::Outcome::Refused : otherwise);
    if (result != NE_OK) {
        CloseConnection();
        RaiseFailure(result, address, request);
    }
    if (answer.status == 401)
        throw WebError(address, request.done, login_.Problem());
    hasAnswered_ = true;
    return answer;
}

void WebSession::CloseConnection() {
    watch_.Pause();
    ne_close_connection(session_.get());
    watch_.Forget();
}

int WebSession::Exchange(ne_request* handle, const WebRequest& request, WebAnswer& answer) {
    const WebAddress address = answer.address;
    int result = NE_OK;
    do {
        watch_.Begin();
        result = ne_begin_request(handle);
        if (result != NE_OK)
            continue;
        ReadHead(handle, address, answer);
        ReadBody(handle, request, answer);
        watch_.Pause();
        result = ne_end_request(handle);  // may ask the user for a password
    } while (result == NE_RETRY);
    return result;
}

void WebSession::ReadBody(ne_request* handle, const WebRequest& request, const WebAnswer& answer) {
    if (answer.IsSuccess() && request.started)
        request.started(answer);
    const bool isWanted = answer.IsSuccess() && request.received;
    static thread_local std::array<char, kBlockBytes> block;
    qint64 unwanted = 0;
    QElapsedTimer silence;
    silence.start();
    ssize_t count = 0;
    while ((count = ne_read_response_block(handle, block.data(), block.size())) > 0) {
        if (isWanted)
            request.received(block.data(), size_t(count));
        else if ((unwanted += count) > kMaxErrorPageBytes)
            throw WebError(answer.address, request.done,
                           StatusReason(answer.status, answer.phrase));
        watch_.SawSign();
        silence.restart();
    }
    if (count < 0) {
        timedOut_ = silence.elapsed() >= qint64(settings_.timeoutSeconds) * 1000;
        throw BodyFailed();
    }
}

QString WebSession::ReasonOf(int result, const WebAddress& address) const {
    if (certificateFailures_ != 0)
        return CertificateReason(certificateFailures_);
    if (IsSilence(result))
        return QStringLiteral("the server has been silent for %1 seconds. Try again later")
            .arg(settings_.timeoutSeconds);
    if (result == NE_LOOKUP)
        return QStringLiteral(
                   "no server of the name %1 is known. Check the address and the network")
            .arg(QString::fromLatin1(address.host));
    if (result == NE_CONNECT)
        return QStringLiteral("no server answers at %1. Check the address and the network")
            .arg(address.Server());
    if (result == NE_AUTH)
        return login_.Problem();
    return QStringLiteral("the connection broke off (%1). Try again")
        .arg(QString::fromLocal8Bit(ne_get_error(session_.get())));
}

bool WebSession::IsSilence(int result) const {
    return result == NE_TIMEOUT || timedOut_ || watch_.HasBrokenOff();
}

void WebSession::RememberSilence(const QString& reason) {
    silence_ = reason;
    QTimer::singleShot(0, &occasion_, [this] { silence_.clear(); });
}

void WebSession::RaiseFailure(int result, const WebAddress& address, const WebRequest& request) {
    const QString reason = ReasonOf(result, address);
    const bool isUnreached = result == NE_CONNECT || result == NE_LOOKUP || IsSilence(result);
    if (isUnreached && certificateFailures_ == 0)
        RememberSilence(reason);
    throw WebError(address, request.done, reason);
}

}  // namespace docmodel
