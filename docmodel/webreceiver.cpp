#include "docmodel/webreceiver.h"

#include <QFile>
#include <cerrno>

#include "docmodel/fileops.h"
#include "docmodel/packageerror.h"

namespace docmodel {
namespace {

constexpr unsigned kNewFileMode = 0666;  // of which the user's mask takes away

DocumentError WriteError(const QString& path) {
    return SystemError(path, QStringLiteral("written"), errno);
}

}  // namespace

WebReceiver::WebReceiver(const QString& localPath)
    : localPath_(localPath),
      file_(QFile::encodeName(localPath), kNewFileMode),
      hash_(QCryptographicHash::Sha256) {
    if (!file_.IsOpen())
        throw WriteError(localPath_);
}

void WebReceiver::Start(const WebAnswer& answer) {
    version_ = VersionOf(answer);
    expected_ = version_.length;
    received_ = 0;
    hash_.reset();
}

void WebReceiver::Take(const char* bytes, size_t count) {
    if (!WriteAll(file_.Get(), bytes, count, received_))
        throw WriteError(localPath_);
    received_ += qint64(count);
    if (!version_.HasValidator())
        hash_.addData(QByteArrayView(bytes, qsizetype(count)));
}

WebVersion WebReceiver::Version() const {
    WebVersion version = version_;
    version.length = received_;
    if (!version.HasValidator())
        version.digest = hash_.result();
    return version;
}

void WebReceiver::Place() {
    if (!file_.PlaceUnsynced())
        throw WriteError(localPath_);
}

}  // namespace docmodel
