#include "services/webcopies.h"

#include <QDir>
#include <QFile>
#include <cstdio>

#include "services/credentials.h"
#include "services/dialogs.h"
#include "services/docaccess.h"
#include "services/paths.h"
#include "services/scratch.h"
#include "services/seams.h"

namespace docbench {

std::unique_ptr<WebFolderClient> gWebFolder;
QHash<QString, QString> gWebCopies;
std::unique_ptr<WebFolderListing> gWebListing;

namespace {

// Address to local copy of what a server has not taken yet.
QHash<QString, QString> gPendingUploads;
// By address and by local copy.
QHash<QString, int> gLostUploads;

const char* const kDocumentExtensions[] = {"PRT", "ASM", "DRW", "TFMASM", "TFMPRT", "TFMDRW"};

bool IsDocument(const QString& name) {
    const QString extension = ExtensionOf(name).toUpper();
    return std::any_of(std::begin(kDocumentExtensions), std::end(kDocumentExtensions),
                       [&](const char* known) { return extension == QLatin1String(known); });
}

QString CopyFolder() {
    return gTempFolder + QStringLiteral("tessaformadocbench/");
}

// Two addresses that end in the same name get copies of different names.
QString FreeCopyName(const QString& url) {
    const QString name = UrlFileName(url);
    QString local = CopyFolder() + name;
    QString other;
    for (int i = 1; QFile::exists(local) && FindUrlOfCopy(local, other) && other != url; ++i)
        local = CopyFolder() + QString::number(i) + name;
    return local;
}

// Moves a file over another one in one step: when it fails, both are as they were.
bool Replace(const QString& from, const QString& to) {
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

// The address to which a table of copies has a local file; empty for none.
QString AddressIn(const QHash<QString, QString>& copies, const QString& local) {
    const QString wanted = QDir::cleanPath(local);
    for (auto copy = copies.cbegin(); copy != copies.cend(); ++copy)
        if (QDir::cleanPath(*copy) == wanted)
            return copy.key();
    return {};
}

void LoseUpload(const QString& address) {
    const QString local = gPendingUploads.take(address);
    if (local.isEmpty())
        return;
    ++gLostUploads[address];
    ++gLostUploads[QDir::cleanPath(local)];
}

// Copies are given up by emptying gWebCopies, with no word to what is kept here.
void LoseGivenUp() {
    for (const QString& address : gPendingUploads.keys())
        if (!gWebCopies.contains(address))
            LoseUpload(address);
}

DocumentError CopyGivenUp(const QString& document) {
    return DocumentError(QStringLiteral("The local copy of %1 was given up since it was loaded. "
                                        "Load it again and repeat your changes.")
                             .arg(document));
}

}  // namespace

void UseWebFolders() {
    gWebListing.reset();
    gWebFolder.reset();
    if (gSeams.documents)
        gWebFolder = gSeams.documents->MakeWebFolderClient({.credentials = &WebCredentials()});
    gWebCopies.clear();
}

QString UrlFileName(const QString& url) {
    return url.mid(url.lastIndexOf(u'/') + 1);
}

QString UrlFolder(const QString& url) {
    return url.left(url.lastIndexOf(u'/') + 1);
}

bool GetLocalCopy(const QString& path, QString& local) {
    // Its own text: while the server asks for a password, the caller may get another document.
    const QString url = path;
    local = url;
    if (!IsWebPath(url))
        return true;
    const auto known = gWebCopies.constFind(url);
    if (known != gWebCopies.cend()) {
        local = *known;
        return true;
    }
    local.clear();
    if (!gWebFolder || !IsDocument(UrlFileName(url)) || !CreateFolderPath(CopyFolder()))
        return false;
    const QString copy = FreeCopyName(url);
    if (!gWebFolder->GetFile(url, copy))
        return false;
    LoseUpload(url);
    gWebCopies.insert(url, copy);
    local = copy;
    return true;
}

QString LocalCopyOf(const QString& url) {
    QString local;
    GetLocalCopy(url, local);
    return local;
}

bool UploadIfWeb(const QString& path) {
    const QString url = path;  // as in GetLocalCopy
    const QString copy = gWebCopies.value(url);
    if (!IsWebPath(url) || copy.isEmpty())
        return true;
    gPendingUploads.insert(url, copy);
    if (gWebFolder && gWebFolder->PutFile(copy, url)) {
        gPendingUploads.remove(url);
        return true;
    }
    const QString kept = QStringLiteral(
        " Your copy is %1. It is deleted when the program ends or another document is browsed to: "
        "copy it elsewhere first.");
    gSeams.dialogs->Box(QStringLiteral("File save to server failed"), Dialogs::Icon::None,
                        QString(), Dialogs::Buttons::Ok,
                        gWebFolder ? gWebFolder->LastError() + kept.arg(copy) : QString());
    return false;
}

bool IsUploadPending(const QString& document) {
    LoseGivenUp();
    return gPendingUploads.contains(document) ||
           (!IsWebPath(document) && !AddressIn(gPendingUploads, document).isEmpty());
}

int LostUploads(const QString& document) {
    LoseGivenUp();
    return gLostUploads.value(IsWebPath(document) ? document : QDir::cleanPath(document));
}

void RequireNoLostUploads(const QString& document, int atLoad) {
    if (LostUploads(document) != atLoad)
        throw CopyGivenUp(document);
}

bool FindUrlOfCopy(const QString& local, QString& url) {
    const QString address = AddressIn(gWebCopies, local);
    if (!address.isEmpty())
        url = address;
    return !address.isEmpty();
}

QString UrlToUpload(const QString& document, const QString& local) {
    QString url;
    if (!FindUrlOfCopy(local, url) && IsWebPath(document))
        throw CopyGivenUp(document);
    return url;
}

QHash<QString, QString> UrlsOfCopies() {
    QHash<QString, QString> urls;
    for (auto copy = gWebCopies.cbegin(); copy != gWebCopies.cend(); ++copy)
        urls.insert(QDir::cleanPath(*copy), copy.key());
    return urls;
}

bool MirrorWebFolder(const QString& url, QString& localFolder, int* unfetched) {
    localFolder =
        gTempFolder + QStringLiteral("/tessaformadocbench/");  // doubled: as others compare it
    if (!gWebFolder)
        return false;
    gWebListing = gWebFolder->ListFolder(url);
    if (!gWebListing || !CreateFolderPath(localFolder) || !gWebListing->Reset()) {
        gWebListing.reset();
        return false;
    }
    bool any = false;
    int missed = 0;
    QString entry;
    while (gWebListing->NextEntry(entry)) {
        QString kind;
        QString local;
        if (gWebListing->GetProperty(entry, QStringLiteral("DAV:"), QStringLiteral("resourcetype"),
                                     kind) &&
            kind == QLatin1String("File")) {
            const bool fetched = GetLocalCopy(entry, local);
            any |= fetched;
            missed += !fetched && IsDocument(UrlFileName(entry)) ? 1 : 0;
        }
    }
    if (unfetched)
        *unfetched = missed;
    return any;
}

bool RenameWebCopy(const QString& oldUrl, const QString& newUrl) {
    QString local;
    GetLocalCopy(oldUrl, local);
    const QString former = gWebCopies.take(oldUrl);
    if (former.isEmpty())
        return false;
    const QString copy = FolderOf(former) + UrlFileName(newUrl);
    if (copy != former && !Replace(former, copy)) {
        gWebCopies.insert(oldUrl, former);  // its changes may not be on the server yet
        return false;
    }
    if (gWebFolder)
        gWebFolder->LocalFileMoved(former, copy);
    QString other;
    if (FindUrlOfCopy(copy, other)) {
        gWebCopies.remove(other);
        LoseUpload(other);
    }
    const bool pending = gPendingUploads.remove(oldUrl);
    LoseUpload(newUrl);  // of the document that was overwritten
    if (pending)
        gPendingUploads.insert(newUrl, copy);
    gWebCopies.insert(newUrl, copy);
    return true;
}

}  // namespace docbench
