#include "docmodel/webfolderclientobject.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QCryptographicHash>
#include <QFile>
#include <cerrno>

#include "docmodel/fileops.h"
#include "docmodel/packageerror.h"
#include "docmodel/weberror.h"
#include "docmodel/webfolderlistingobject.h"
#include "docmodel/webreceiver.h"

namespace docmodel {
namespace {

QString Downloaded() {
    return QStringLiteral("downloaded");
}

QString Uploaded() {
    return QStringLiteral("uploaded");
}

WebAddress Address(const QString& url, const QString& done) {
    const std::optional<WebAddress> address = WebAddress::FromUser(url);
    if (!address)
        throw NoAddressError(url, done);
    return *address;
}

void RequireSuccess(const WebAnswer& answer, const WebAddress& address, const QString& done) {
    if (!answer.IsSuccess())
        throw WebError(address, done, StatusReason(answer.status, answer.phrase));
}

QByteArray DigestOfFile(int file) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    QByteArray block(256 << 10, Qt::Uninitialized);
    ssize_t count = 0;
    for (off_t at = 0; (count = ReadUpTo(file, block.data(), size_t(block.size()), at)) > 0;
         at += count)
        hash.addData(QByteArrayView(block.constData(), count));
    return count < 0 ? QByteArray() : hash.result();
}

// The listed folder's address as it was written, ready for a name.
QString EntryPrefix(const QString& url) {
    QString prefix = WithoutUser(url);
    if (prefix.endsWith(u'\\'))
        prefix.chop(1);
    return prefix.endsWith(u'/') ? prefix : prefix + u'/';
}

}  // namespace

bool WebFolderClientObject::Run(const std::function<void()>& call) {
    try {
        call();
        return true;
    } catch (const DocumentError& error) {
        lastError_ = error.Description();
        return false;
    }
}

WebSession& WebFolderClientObject::SessionFor(const WebAddress& address) {
    std::unique_ptr<WebSession>& session = sessions_[address.Server()];
    if (!session)
        session = std::make_unique<WebSession>(address, settings_);
    return *session;
}

bool WebFolderClientObject::GetFile(const QString& url, const QString& localPath) {
    return Run([&] { Download(Address(url, Downloaded()), localPath); });
}

void WebFolderClientObject::Download(const WebAddress& address, const QString& localPath) {
    WebReceiver receiver(localPath);
    WebRequest request{.method = "GET", .done = Downloaded()};
    request.headers = {{"Accept-Encoding", "identity"}};
    request.started = [&](const WebAnswer& answer) { receiver.Start(answer); };
    request.received = [&](const char* bytes, size_t count) { receiver.Take(bytes, count); };
    WebSession& session = SessionFor(address);
    const WebAnswer answer = session.Send(address, request);
    RequireSuccess(answer, address, Downloaded());
    if (answer.status != 200 && answer.status != 203)
        throw WebError(address, Downloaded(), StatusReason(answer.status, answer.phrase));
    const QByteArray packing = answer.Header("content-encoding").toLower();
    if (!packing.isEmpty() && packing != "identity")
        throw WebError(address, Downloaded(),
                       QStringLiteral("the server packs it without being asked. Tell the server's "
                                      "administrator"));
    // A body that ends with its connection may have ended too early.
    if (!receiver.KnowsLength() && !answer.headers.contains("transfer-encoding"))
        receiver.Expect(VersionNow(answer.address).length);
    if (!receiver.IsWhole())
        throw WebError(address, Downloaded(), QStringLiteral("it was cut short. Try again"));
    receiver.Place();
    known_.insert(address.Sent(), receiver.Version());
}

bool WebFolderClientObject::PutFile(const QString& localPath, const QString& url) {
    return Run([&] { Upload(localPath, Address(url, Uploaded())); });
}

void WebFolderClientObject::Upload(const QString& localPath, const WebAddress& address) {
    const FileDescriptor file(open(QFile::encodeName(localPath).constData(), O_RDONLY | O_CLOEXEC));
    struct stat status = {};
    if (!file.IsOpen() || fstat(file.Get(), &status) != 0)
        throw SystemError(localPath, QStringLiteral("read"), errno);
    if (!S_ISREG(status.st_mode))
        throw SystemError(localPath, QStringLiteral("read"), ENXIO);
    WebSession& session = SessionFor(address);
    // So that no large body is sent only to hear that a password is wanted.
    if (!session.HasAnswered())
        Knock(session, address, Uploaded());
    WebRequest request{.method = "PUT", .done = Uploaded()};
    request.headers = ConditionFor(address);
    request.file = file.Get();
    request.fileBytes = status.st_size;
    const WebAnswer answer = session.Send(address, request);
    if (!answer.IsSuccess() || answer.status == 207)
        RaiseRefusedUpload(address, answer);
    overwritable_.remove(address.Sent());
    known_.insert(address.Sent(), VersionAfterUpload(answer, file.Get(), status.st_size));
}

QList<std::pair<QByteArray, QByteArray>> WebFolderClientObject::ConditionFor(
    const WebAddress& address) {
    const QByteArray key = address.Sent();
    if (overwritable_.contains(key))
        return {};
    const auto known = known_.constFind(key);
    if (known == known_.constEnd())
        return {{"If-None-Match", "*"}};
    if (known->HasSureTag())
        return {{"If-Match", known->tag}};
    RequireUnchanged(address, *known);
    return {};
}

void WebFolderClientObject::RequireUnchanged(const WebAddress& address, const WebVersion& known) {
    WebResource resource = AskFor(SessionFor(address), address, Uploaded());
    if (!resource.isThere)
        throw WebError(address, Uploaded(),
                       QStringLiteral("it was removed from the server since it was downloaded. "
                                      "Save your copy under another name, or put it there anew"));
    if (!known.digest.isEmpty())
        resource.version.digest = DigestOnServer(address);
    switch (Compare(known, resource.version)) {
        case VersionMatch::Same:
            return;
        case VersionMatch::Changed:
            throw WebError(
                address, Uploaded(),
                QStringLiteral("it was changed on the server since it was downloaded. Your copy is "
                               "kept: look at the one on the server, then bring the changes "
                               "together"));
        case VersionMatch::Unknown:
            throw WebError(
                address, Uploaded(),
                QStringLiteral("the server does not tell whether it was changed since it was "
                               "downloaded. Your copy is kept: look at the one on the server"));
    }
}

QByteArray WebFolderClientObject::DigestOnServer(const WebAddress& address) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    WebRequest request{.method = "GET", .done = Uploaded()};
    request.started = [&](const WebAnswer&) { hash.reset(); };
    request.received = [&](const char* bytes, size_t count) {
        hash.addData(QByteArrayView(bytes, qsizetype(count)));
    };
    RequireSuccess(SessionFor(address).Send(address, request), address, Uploaded());
    return hash.result();
}

void WebFolderClientObject::RaiseRefusedUpload(const WebAddress& address, const WebAnswer& answer) {
    if (answer.status != 412)
        throw WebError(address, Uploaded(), StatusReason(answer.status, answer.phrase));
    const auto known = known_.constFind(address.Sent());
    if (known == known_.constEnd())
        throw WebError(address, Uploaded(),
                       QStringLiteral("there is such a file on the server already. Confirm that "
                                      "it is to be replaced, or choose another name"));
    RequireUnchanged(address, *known);
    throw WebError(address, Uploaded(),
                   QStringLiteral("the server does not agree that it is the file that was "
                                  "downloaded. Your copy is kept: look at the one on the server"));
}

WebVersion WebFolderClientObject::VersionNow(const WebAddress& address) {
    try {
        return AskFor(SessionFor(address), address, QStringLiteral("asked for")).version;
    } catch (const DocumentError&) {
        // What was to be done is done. That nothing is known now makes the next upload careful.
        return {};
    }
}

// What lies on the server now is ours if it is as long as what was sent.
WebVersion WebFolderClientObject::VersionAfterUpload(const WebAnswer& answer, int file,
                                                     qint64 bytes) {
    WebVersion version = VersionOf(answer);
    version.length = bytes;
    if (version.HasSureTag())
        return version;
    WebVersion asked = VersionNow(answer.address);
    if (asked.length >= 0 && asked.length != bytes)
        asked = WebVersion();
    asked.length = bytes;
    if (!asked.HasValidator())
        asked.digest = DigestOfFile(file);
    return asked;
}

bool WebFolderClientObject::MakeFolder(const QString& url) {
    const QString done = QStringLiteral("made");
    return Run([&] {
        const WebAddress address = Address(url, done).AsFolder();
        WebSession& session = SessionFor(address);
        const WebAnswer answer = session.Send(address, {.method = "MKCOL", .done = done});
        if (answer.status == 405) {
            const WebResource there = AskFor(session, address, done);
            if (there.isThere && there.isFolder)
                return;
            if (there.isThere)
                throw WebError(address, done,
                               QStringLiteral("there is a file of this name. Choose another one"));
        }
        RequireSuccess(answer, address, done);
    });
}

bool WebFolderClientObject::MoveResource(const QString& url, const QString& newUrl, int overwrite) {
    const QString done = QStringLiteral("moved");
    return Run([&] { Move(Address(url, done), Address(newUrl, done), overwrite != 0); });
}

void WebFolderClientObject::Move(const WebAddress& from, const WebAddress& to, bool overwrite) {
    const QString done = QStringLiteral("moved to %1").arg(to.Shown());
    if (!from.IsOnSameServer(to))
        throw WebError(from, done,
                       QStringLiteral("that is another server. Download it and upload it there"));
    WebRequest request{.method = "MOVE", .done = done};
    request.headers = {{"Destination", to.Sent()}, {"Overwrite", overwrite ? "T" : "F"}};
    const WebAnswer answer = SessionFor(from).Send(from, request);
    if (answer.status == 412)
        throw WebError(from, done,
                       QStringLiteral("there is something of that name already. Choose another "
                                      "name"));
    RequireSuccess(answer, from, done);
    if (answer.status == 207)
        throw WebError(from, done,
                       QStringLiteral("the server moved only a part of it. Look at both folders "
                                      "on the server"));
    CarryOver(from, to);
}

// A folder takes along what is known of the files in it.
void WebFolderClientObject::CarryOver(const WebAddress& from, const WebAddress& to) {
    const QByteArray fromFolder = from.AsFolder().Sent();
    const QByteArray toFolder = to.AsFolder().Sent();
    known_.removeIf([&](const auto& entry) {
        return entry.key() == to.Sent() || entry.key().startsWith(toFolder);
    });
    QHash<QByteArray, WebVersion> moved;
    for (auto entry = known_.begin(); entry != known_.end();) {
        const bool isBelow = entry.key().startsWith(fromFolder);
        if (!isBelow && entry.key() != from.Sent()) {
            ++entry;
            continue;
        }
        moved.insert(isBelow ? toFolder + entry.key().mid(fromFolder.size()) : to.Sent(), *entry);
        entry = known_.erase(entry);
    }
    known_.insert(moved);
    if (known_.contains(to.Sent()))
        AdoptMovedTag(to);
}

// Some servers make tags of the name as well. What has the same length and date is the same file.
void WebFolderClientObject::AdoptMovedTag(const WebAddress& address) {
    WebVersion& known = known_[address.Sent()];
    const WebVersion now = VersionNow(address);
    if (known.modified >= 0 && now.modified == known.modified && now.length == known.length &&
        !now.tag.isEmpty())
        known.tag = now.tag;
}

std::unique_ptr<docbench::WebFolderListing> WebFolderClientObject::ListFolder(const QString& url) {
    const QString done = QStringLiteral("listed");
    std::unique_ptr<docbench::WebFolderListing> listing;
    Run([&] {
        const WebAddress address = Address(url, done);
        listing = std::make_unique<WebFolderListingObject>(
            EntryPrefix(url), AskForFolder(SessionFor(address), address, done));
    });
    return listing;
}

WebFolderClientObject::Presence WebFolderClientObject::Exists(const QString& url) {
    const QString done = QStringLiteral("asked for");
    Presence presence = Presence::Unknown;
    Run([&] {
        const WebAddress address = Address(url, done);
        const bool isThere = AskFor(SessionFor(address), address, done).isThere;
        presence = isThere ? Presence::Present : Presence::Absent;
    });
    return presence;
}

void WebFolderClientObject::AllowOverwrite(const QString& url) {
    if (const std::optional<WebAddress> address = WebAddress::FromUser(url))
        overwritable_.insert(address->Sent());
}

}  // namespace docmodel
