// Local copies of the documents of web folders: which there are, fetching and writing back.
#pragma once

#include <QHash>
#include <QString>
#include <memory>

namespace docbench {

class WebFolderClient;
class WebFolderListing;

// The process's client; null until UseWebFolders ran, and with a library that knows no web folders.
extern std::unique_ptr<WebFolderClient> gWebFolder;
// Address to local copy, for the life of the process or until a local document is browsed to.
extern QHash<QString, QString> gWebCopies;
// The listing that was asked for last.
extern std::unique_ptr<WebFolderListing> gWebListing;

// What every control runs at its start: a new client, and no copies.
void UseWebFolders();

// The text behind the last "/"; without one, the whole address.
QString UrlFileName(const QString& url);
// The text up to and including the last "/"; empty without one.
QString UrlFolder(const QString& url);

// The local file of a document at a path or an address, fetched at the first request for it. False
// when it can't be had, and `local` is empty then; files that are no documents are never fetched. A
// local path is its own copy.
bool GetLocalCopy(const QString& url, QString& local);
// The same, giving the local file or nothing.
QString LocalCopyOf(const QString& url);

// Writes a changed copy back to its address; does nothing for a local path and for an address
// without a copy. A refusal is told in a box, and leaves the copy for another try. False then.
bool UploadIfWeb(const QString& path);

// Whether a copy holds what its server has not taken yet, so that saving the document uploads it
// even if nothing was edited. `document` is an address, or a local copy that was opened itself.
bool IsUploadPending(const QString& document);
// How often changes to a document were lost because its copy was given up while they were pending.
// An editor that sees more than at its loading shows, and may have saved, what is no longer there.
int LostUploads(const QString& document);
// Raises DocumentError when there are more than `atLoad`.
void RequireNoLostUploads(const QString& document, int atLoad);

// The address whose copy a local file is.
bool FindUrlOfCopy(const QString& local, QString& url);

// The address that a changed local file is to be written back to; empty for one that is no copy.
// Raises DocumentError for the copy of a document at an address that was given up since: what is
// written there would be lost.
QString UrlToUpload(const QString& document, const QString& local);

// The addresses of all local copies, by their cleaned paths: for who has many to look up.
QHash<QString, QString> UrlsOfCopies();

// Fetches all documents of a web folder. False when it can't be listed (gWebListing is null then)
// or nothing was fetched. Counts the documents that can't be had in `unfetched`, if there is one.
bool MirrorWebFolder(const QString& url, QString& localFolder, int* unfetched = nullptr);

// Takes the copy of an address over to the address that its document was renamed to, moving the
// local file. False without a copy, or when the file can't be moved; all is as before then.
bool RenameWebCopy(const QString& oldUrl, const QString& newUrl);

}  // namespace docbench
