#include "docmodel/webupload.h"

#include <QCryptographicHash>

#include "docmodel/fileops.h"
#include "docmodel/weberror.h"

namespace docmodel {
namespace {

// Here a document has its directory, which holds a checksum of every part.
constexpr qint64 kEndingBytes = 64 << 10;

QString Uploaded() {
    return QStringLiteral("uploaded");
}

// Of the contents from `at` to the end; empty when they can't be read.
QByteArray DigestOfFile(int file, off_t at) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray block(256 << 10, Qt::Uninitialized);
    ssize_t count = 0;
    for (; (count = ReadUpTo(file, block.data(), size_t(block.size()), at)) > 0; at += count)
        hash.addData(QByteArrayView(block.constData(), count));
    return count < 0 ? QByteArray() : hash.result();
}

}  // namespace

WebVersion WebUpload::Run(const std::optional<WebVersion>& known, bool mayOverwrite) {
    // So that no large body is sent only to hear that a password is wanted.
    if (!session_.HasAnswered())
        Knock(session_, address_, Uploaded());
    const std::optional<Headers> condition = mayOverwrite ? Headers() : Condition(known);
    const WebAnswer answer = condition ? Put(*condition) : WebAnswer();
    if (!condition || answer.status == 412) {
        // The answer to an earlier try may have been lost on its way, after the file arrived.
        if (const std::optional<WebVersion> sent = VersionIfSent())
            return *sent;
        RaiseConflict(known);
    }
    if (!answer.IsSuccess() || answer.status == 207)
        Raise(StatusReason(answer.status, answer.phrase));
    return VersionAfter(answer);
}

std::optional<WebUpload::Headers> WebUpload::Condition(const std::optional<WebVersion>& known) {
    if (!known)
        return Headers{{"If-None-Match", "*"}};
    if (known->HasSureTag())
        return EndsAs(*known) ? std::optional(Headers{{"If-Match", known->tag}}) : std::nullopt;
    WebVersion now;
    const VersionMatch match = MatchNow(*known, now);
    if (match == VersionMatch::Unknown)
        Raise(
            QStringLiteral("the server does not tell whether it was changed since it was "
                           "downloaded. Your copy is kept: look at the one on the server"));
    if (match == VersionMatch::Changed)
        return std::nullopt;
    return now.HasSureTag() ? Headers{{"If-Match", now.tag}} : Headers();
}

WebAnswer WebUpload::Put(const Headers& condition) {
    WebRequest request{.method = "PUT", .done = Uploaded()};
    request.headers = condition;
    request.file = file_;
    request.fileBytes = bytes_;
    return session_.Send(address_, request);
}

VersionMatch WebUpload::MatchNow(const WebVersion& known, WebVersion& now) {
    const WebResource resource = AskFor(session_, address_, Uploaded());
    if (!resource.isThere)
        Raise(
            QStringLiteral("it was removed from the server since it was downloaded. Save your "
                           "copy under another name, or put it there anew"));
    now = resource.version;
    if (!known.digest.isEmpty())
        now.digest = DigestOnServer();
    return EndsAs(known) ? Compare(known, now) : VersionMatch::Changed;
}

// Whether the server's file ends as the one that was sent. True when that is not in question.
bool WebUpload::EndsAs(const WebVersion& known) {
    if (known.ending.isEmpty())
        return true;
    WebRequest request{.method = "GET", .done = Uploaded()};
    request.headers = {{"Accept-Encoding", "identity"},
                       {"Range", "bytes=-" + QByteArray::number(kEndingBytes)}};
    QByteArray ending;
    request.received = [&](const char* bytes, size_t count) {
        ending.append(bytes, qsizetype(count));  // all of it from servers that know no ranges
        if (ending.size() > 2 * kEndingBytes)
            ending = ending.last(kEndingBytes);
    };
    if (!session_.Send(address_, request).IsSuccess())
        return false;
    ending = ending.last(qMin<qsizetype>(ending.size(), kEndingBytes));
    return QCryptographicHash::hash(ending, QCryptographicHash::Sha256) == known.ending;
}

QByteArray WebUpload::DigestOnServer() {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    WebRequest request{.method = "GET", .done = Uploaded()};
    request.headers = {{"Accept-Encoding", "identity"}};
    request.started = [&](const WebAnswer&) { hash.reset(); };
    request.received = [&](const char* bytes, size_t count) {
        hash.addData(QByteArrayView(bytes, qsizetype(count)));
    };
    const WebAnswer answer = session_.Send(address_, request);
    if (!answer.IsSuccess())
        Raise(StatusReason(answer.status, answer.phrase));
    return hash.result();
}

// The version is asked for before the contents: a change in between makes the next upload fail, and
// is never taken for ours.
std::optional<WebVersion> WebUpload::VersionIfSent() {
    const QByteArray ours = DigestOfFile(file_, 0);
    try {
        WebResource resource = AskFor(session_, address_, Uploaded());
        WebVersion& version = resource.version;
        const bool mayBeOurs = resource.isThere && (version.length < 0 || version.length == bytes_);
        if (!mayBeOurs || ours.isEmpty() || DigestOnServer() != ours)
            return std::nullopt;
        version.length = bytes_;
        if (!version.HasValidator())
            version.digest = ours;
        return version;
    } catch (const DocumentError&) {
        return std::nullopt;  // the refusal stands, and is what is told
    }
}

WebVersion WebUpload::VersionAfter(const WebAnswer& answer) {
    WebVersion version = VersionOf(answer);
    version.length = bytes_;
    if (version.HasSureTag())
        return version;
    // What lies there now may be somebody else's already, even if it is as long as ours.
    version = VersionNow(session_, answer.address);
    if (version.length >= 0 && version.length != bytes_)
        version = WebVersion();
    version.length = bytes_;
    if (!version.HasValidator())
        version.digest = DigestOfFile(file_, 0);
    else if (bytes_ > 0)
        version.ending = DigestOfFile(file_, off_t(qMax<qint64>(0, bytes_ - kEndingBytes)));
    return version;
}

void WebUpload::RaiseConflict(const std::optional<WebVersion>& known) {
    if (!known)
        Raise(
            QStringLiteral("there is such a file on the server already. Confirm that it is to be "
                           "replaced, or choose another name"));
    WebVersion now;
    if (MatchNow(*known, now) == VersionMatch::Changed)
        Raise(
            QStringLiteral("it was changed on the server since it was downloaded. Your copy is "
                           "kept: look at the one on the server, then bring the changes "
                           "together"));
    Raise(
        QStringLiteral("the server does not agree that it is the file that was downloaded. Your "
                       "copy is kept: look at the one on the server"));
}

void WebUpload::Raise(const QString& reason) {
    throw WebError(address_, Uploaded(), reason);
}

}  // namespace docmodel
