#include "docmodel/webfolderclientobject.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QFile>
#include <algorithm>
#include <cerrno>

#include "docmodel/fileops.h"
#include "docmodel/packageerror.h"
#include "docmodel/weberror.h"
#include "docmodel/webfolderlistingobject.h"
#include "docmodel/webreceiver.h"
#include "docmodel/webupload.h"

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
    if (answer.status == 203)
        throw WebError(address, Downloaded(),
                       QStringLiteral("a server on the way changes it. Ask the network's "
                                      "administrator for a way round it"));
    if (answer.status != 200)
        throw WebError(address, Downloaded(), StatusReason(answer.status, answer.phrase));
    const QByteArray packing = answer.Header("content-encoding").toLower();
    if (!packing.isEmpty() && packing != "identity")
        throw WebError(address, Downloaded(),
                       QStringLiteral("the server packs it without being asked. Tell the server's "
                                      "administrator"));
    // A body that ends with its connection may have ended too early.
    if (!receiver.KnowsLength() && !answer.headers.contains("transfer-encoding"))
        receiver.Expect(VersionNow(session, answer.address).length);
    if (!receiver.IsWhole())
        throw WebError(address, Downloaded(), QStringLiteral("it was cut short. Try again"));
    receiver.Place();
    memory_.Downloaded(localPath, address, receiver.Version());
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
    WebUpload upload(SessionFor(address), address, file.Get(), status.st_size);
    memory_.Uploaded(localPath, address,
                     upload.Run(memory_.Find(localPath, address), memory_.MayOverwrite(address)));
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
    PrepareTagsForMove(from);
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
    memory_.Moved(from, to);
    AdoptMovedTags(to);
}

// Some servers make tags of the name as well. What has the same length and date after the move is
// the same file; the answer to an upload tells no date.
void WebFolderClientObject::PrepareTagsForMove(const WebAddress& from) {
    const auto isUndated = [](const WebVersion* known) {
        return known->modified < 0 && !known->tag.isEmpty();
    };
    const QList<WebVersion*> before = memory_.VersionsAt(from);
    if (std::none_of(before.begin(), before.end(), isUndated))
        return;
    const WebVersion now = VersionNow(SessionFor(from), from);
    for (WebVersion* known : memory_.VersionsAt(from)) {
        if (isUndated(known) && HaveSameTag(*known, now))
            known->modified = now.modified;
    }
}

void WebFolderClientObject::AdoptMovedTags(const WebAddress& to) {
    if (memory_.VersionsAt(to).isEmpty())
        return;
    const WebVersion now = VersionNow(SessionFor(to), to);
    for (WebVersion* known : memory_.VersionsAt(to)) {
        if (known->modified >= 0 && now.modified == known->modified &&
            now.length == known->length && !now.tag.isEmpty())
            known->tag = now.tag;
    }
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
        memory_.AllowOverwrite(*address);
}

}  // namespace docmodel
