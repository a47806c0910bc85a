// What the rest of the system knows of a document: the objects of the document access library.
#pragma once

#include <QFont>
#include <QString>
#include <QVariant>
#include <QtPlugin>
#include <exception>
#include <memory>
#include <optional>
#include <utility>

namespace docbench {

// Raised by every failing operation of the library. The description is a whole sentence for the
// user: it names the file, the reason and, where there is something to do, what.
class Q_DECL_EXPORT DocumentError : public std::exception {
public:
    explicit DocumentError(QString description)
        : description_(std::move(description)), bytes_(description_.toUtf8()) {}
    const QString& Description() const { return description_; }
    const char* what() const noexcept override { return bytes_.constData(); }

private:
    QString description_;
    QByteArray bytes_;
};

// One row of the component table: a part or subassembly placed in an assembly or shown by a
// drawing.
struct ComponentRow {
    QString name;  // title: the file name of `path`, without the extension if that is a document's
    QString extension;  // of `path`, without the dot
    QString path;       // cleaned local path, or URL
    int count = 1;      // instances, at least 1
};

// One row of the external table: an in-context link, a derived or a mirrored part.
struct ExternalRow {
    QString name;
    QString extension;
    QString path;
    QString kind;  // the label that the tree shows in brackets
};

struct CustomProperty {
    QString name;
    QVariant value;  // QString, QDateTime, double or bool, as `type` says
    int type = 0;    // 0 text, 1 date, 2 number, 3 yes or no
};

// What of a DocumentInfo a stamp can be asked for.
enum class PropertyGroup { Summary, Custom };

// The tables that a stamp can be asked for.
enum class Table { Components, ExternalReferences, Configurations, Hyperlinks };

// A document's summary and custom properties and its lock record; or, as GetCustomProperties of a
// DocumentFile gives it, the custom properties of one configuration, whose summary fields stay
// empty.
class DocumentInfo {
public:
    virtual ~DocumentInfo() = default;

    // Binds the object to the file. False, never an error, when the file is not there, can't be
    // read or holds no such record; the object is then unbound and every other call raises.
    virtual bool Open(const QString& path) = 0;

    virtual QString GetTitle() = 0;
    virtual void SetTitle(const QString& text) = 0;
    virtual QString GetAuthor() = 0;
    virtual void SetAuthor(const QString& text) = 0;
    virtual QString GetComments() = 0;
    virtual void SetComments(const QString& text) = 0;
    virtual QString GetKeywords() = 0;
    virtual void SetKeywords(const QString& text) = 0;
    virtual QString GetSubject() = 0;
    virtual void SetSubject(const QString& text) = 0;
    virtual QString GetCreated() = 0;  // by the user's locale; empty when not stored
    virtual QString GetLastSavedBy() = 0;
    virtual QString GetLastSaved() = 0;  // by the user's locale

    virtual int GetCustomCount() = 0;
    virtual CustomProperty GetCustomProperty(int index) = 0;  // index from 0
    // Adds or overwrites. The stored type follows the value's: date and time, double, bool, else
    // text. False when the name is empty or can't be stored.
    virtual bool SetCustomProperty(const QString& name, const QVariant& value) = 0;
    virtual bool DeleteCustomProperty(const QString& name) = 0;  // false when there is none

    // Writes what this object changed, and only that. Raises when somebody else has changed the
    // same properties since Open, and when the file can't be written; the file is then as it was.
    virtual void Save() = 0;

    virtual bool GetLocked() = 0;
    virtual void SetLocked(bool locked) = 0;
    virtual QString GetLockedBy() = 0;
    virtual void SetLockedBy(const QString& user) = 0;

    // Digest of the summary or of the custom properties as they were at Open or when this object
    // last wrote them, leaving out dates, last saver and lock. Two equal stamps mean that nobody
    // changed them in between.
    virtual QByteArray GetStamp(PropertyGroup group) = 0;
};

// One document's references, configurations and hyperlinks. Positions count from 0 and hold until
// the object is saved.
class DocumentFile {
public:
    virtual ~DocumentFile() = default;

    // Binds the object to the file at a local path and reads it. Raises when it can't be read; the
    // object is then unbound and every other call but Open, OpenHyperlinks and GetAccessState
    // raises.
    virtual void Open(const QString& path) = 0;
    virtual int GetComponentCount() = 0;
    virtual int GetConfigurationCount() = 0;
    // Writes what was changed through this object, and only that; writes the record even if nothing
    // was. Raises when a table that it writes was changed by somebody else since Open, and when the
    // file can't be written; the file is then as it was.
    virtual void Save() = 0;
    virtual QString GetConfiguration(int index) = 0;  // the configuration's name
    // Renames in memory. Status 0: done, else: no such id, or the name is empty or taken.
    virtual int RenameConfiguration(int id, const QString& newName) = 0;
    virtual int GetConfigurationType(
        int index) = 0;  // 0 ordinary, 1 not to be deleted, other: internal
    // Deletes in memory; ids keep their meaning until Save, and deleting again succeeds. Mode is 2.
    // Status 0: done, else: no such id, or the configuration may not be deleted.
    virtual int DeleteConfiguration(int id, int mode) = 0;

    virtual void OpenHyperlinks(const QString& path) = 0;  // instead of Open, for the four below
    virtual int GetHyperlinkCount() = 0;
    virtual QString GetHyperlink(int index) = 0;
    virtual void SetHyperlink(int index, const QString& text) = 0;
    virtual void SaveHyperlinks() = 0;

    virtual void SetComponentPath(int index, const QString& newPath) = 0;
    // The property set of configuration `which`; null when there is no such configuration.
    virtual std::unique_ptr<DocumentInfo> GetCustomProperties(int which) = 0;
    virtual int GetExternalReferenceCount() = 0;
    virtual void SetExternalReferencePath(int index, const QString& newPath) = 0;
    virtual bool IsCurrentFormat() = 0;  // false: too old for the tables
    // Whether the document may be written now: 0 yes, 2 read-only, 3 in use by another process, 4
    // any other reason. Needs no Open.
    virtual int GetAccessState(const QString& path) = 0;
    virtual bool GetReferencesLocked() = 0;
    // `webFolder` is the URL of the document's folder, ending in "/", for a copy of a web document,
    // so that relative rows come back as URLs; else empty.
    virtual ComponentRow GetComponent(int index, const QString& webFolder) = 0;
    virtual ExternalRow GetExternalReference(int index, const QString& webFolder) = 0;

    // Digest of a table as it was at Open or when this object last wrote it. A position found by a
    // search is good for writing only while the stamp is the one that the search saw.
    virtual QByteArray GetStamp(Table table) = 0;
};

// What FindReferences is asked for.
struct ReferenceQuery {
    QString pattern;       // folder, separator and file name pattern; "*.*" is every document
    int fullPathFlag = 0;  // 1: a reference must lead to `fullPath`; 0: name and extension count
    QString baseName;      // of the target, without extension; letter case is ignored
    QString extension;     // of the target; "*" for any
    QString fullPath;
    int mask = 7;  // sum of 1 plain, 2 in-context, 4 mirrored references
};

// `document` holds the reference `reference` at position `referenceIndex` of one of its tables.
struct FoundReference {
    int referenceIndex = 0;
    bool inContext = false;  // in the external table, else among the components
    QString reference;       // cleaned path or URL
    QString document;        // the folder of the pattern, a separator and the file name
    QByteArray stamp;        // of the table, as the search saw it
};

// How much a search looked at.
struct SearchCounts {
    int documents = 0;  // looked at, the unread ones included
    int unread = 0;     // that could not be read
};

// Looks through a folder for documents that refer to a target, and reads and writes the values of
// one settings key.
class FolderSearcher {
public:
    virtual ~FolderSearcher() = default;

    // Fills the rows with the references of the folder's documents to the target, in the order of
    // the files' names, and the list of the folder's subfolders. Component rows count as plain
    // ones, external rows from part to part as mirrored, other external rows as in-context. A
    // document that can't be read is counted and passed over, and so is a folder that can't be
    // listed.
    virtual int FindReferences(const ReferenceQuery& query) = 0;
    virtual void ClearResults() = 0;  // frees the rows; the subfolders stay for the walk to go on
    virtual int GetResultCount() = 0;
    virtual FoundReference GetResult(int index) = 0;
    virtual int GetSubfolderCount() = 0;
    virtual QString GetSubfolder(int index) = 0;  // a whole path, without a separator at its end
    virtual SearchCounts GetSearchCounts() = 0;   // of all searches of this object

    virtual int GetRegistryValueCount() = 0;
    // Name and value of the value at `index`, in the key's order from 0; empty texts beyond the
    // end.
    virtual std::pair<QString, QString> EnumRegistryValue(int index) = 0;
    // Status 0: written. Any other: not.
    virtual int SetRegistryValue(const QString& name, const QString& value) = 0;
    virtual QString GetRegistryValue(const QString& name) = 0;  // empty when missing
    // Status 0: the value was NOT deleted. Any other: it was.
    virtual int DeleteRegistryValue(const QString& name) = 0;
    // Status 0: open. The key lies under the current user, levels separated by "\".
    virtual int OpenRegistryKey(const QString& keyPath) = 0;
};

// The user's words that the rules of a search may hold.
struct QueryWords {
    QString fileName;  // in a rule's place for the property: the rule is on the file's name
    QString yes;       // what a yes or no property is to rules on texts
    QString no;
};

// Evaluates rules on the properties of documents.
class PropertyQuery {
public:
    virtual ~PropertyQuery() = default;

    // Adds a rule behind those that are there. `connective` is "AND" or "OR" and joins it to what
    // all rules before it have given; that of the first rule is ignored. `property` is the key of a
    // summary field ("Title", "Author", "Comments", "Keywords", "Subject", "Last Saved by", "Last
    // Saved", "Created"), the word for the file's name, or the name of a custom property.
    // `operatorCode` is 0 is, 1 is not, 2 contains, 3 =, 4 not =, 5 <, 6 <=, 7 >, 8 >=, 9 is Yes,
    // 10 is No. `value` is a QString, a QDateTime (midnight, local time, stands for the whole day),
    // a double, a bool, or invalid for one that matches nothing. Raises for any other connective.
    virtual void AddCondition(const QString& connective, const QString& property, int operatorCode,
                              const QVariant& value) = 0;
    virtual void SetFileName(const QString& name) = 0;  // of the next document, for rules on it
    // Whether the document at a local path satisfies the rules. One that can't be read does not;
    // neither does any document without rules.
    virtual bool Evaluate(const QString& path) = 0;

    // Says which documents of a folder, in what order, will be evaluated next, so that they can be
    // read on all processors. It changes no answer.
    virtual void ReadAhead(const QString& folder, const QStringList& names) = 0;
    virtual SearchCounts GetSearchCounts() = 0;  // of all documents that were evaluated
};

class PreviewExtractor {
public:
    virtual ~PreviewExtractor() = default;
    // Writes the preview stored in `path` to `bitmapPath` as a bitmap, replacing what is there.
    // 0: done, -2: the document stores no preview, -1: failed.
    virtual int ExtractPreview(const QString& path, const QString& bitmapPath) = 0;
};

// Who a server is told that we are.
struct Credentials {
    QString user;
    QString password;
};

// Whoever can ask the user for the password of a server.
class CredentialSource {
public:
    virtual ~CredentialSource() = default;
    // `server` is "https://host:port". `attempt` is 0 for the first question about a realm, and
    // counts up when the last answer was refused. None: the user does not want to.
    virtual std::optional<Credentials> Ask(const QString& server, const QString& realm,
                                           int attempt) = 0;
    // An answer of Ask was right: it may be kept.
    virtual void Accepted(const QString& server, const QString& realm,
                          const Credentials& credentials) = 0;
};

struct WebClientSettings {
    CredentialSource* credentials = nullptr;  // null: servers that want a password refuse
    int timeoutSeconds = 30;                  // without a byte from the server
    QString trustFile = {};                   // certificates (PEM) trusted besides the system's
};

// A cursor over the entries of a web folder, the folder itself left out.
class WebFolderListing {
public:
    virtual ~WebFolderListing() = default;
    virtual bool Reset() = 0;                  // back to before the first entry
    virtual bool NextEntry(QString& url) = 0;  // false at the end; `url` is then empty
    // The property `name` of `nameSpace` of an entry, by its address. For "DAV:" "resourcetype" the
    // value is "File" for a file and "Folder" for a folder. False when it is not known.
    virtual bool GetProperty(const QString& url, const QString& nameSpace, const QString& name,
                             QString& value) = 0;
};

// Transfers with web folders (WebDAV, RFC 4918). Addresses are as users write them: "\" is sent as
// "/", and what can't stand in an address is escaped; an escape that is there already stays. All
// calls block; false means that nothing was done, and LastError says why.
class WebFolderClient {
public:
    enum class Presence { Absent, Present, Unknown };

    virtual ~WebFolderClient() = default;

    // Downloads into a sibling of `localPath` that takes its name when it is whole.
    virtual bool GetFile(const QString& url, const QString& localPath) = 0;
    // Uploads, unless that would overwrite somebody else's work: the address that `localPath` was
    // downloaded from or uploaded to must still have what it had then; any other must not exist
    // unless AllowOverwrite was called for it.
    virtual bool PutFile(const QString& localPath, const QString& url) = 0;
    virtual bool MakeFolder(const QString& url) = 0;
    // Renames on the server, taking what is known of the one address to the other. `overwrite` 0
    // refuses to replace.
    virtual bool MoveResource(const QString& url, const QString& newUrl, int overwrite) = 0;
    // The entries of a folder with the property "resourcetype"; null when it can't be listed.
    virtual std::unique_ptr<WebFolderListing> ListFolder(const QString& url) = 0;

    // Whether there is anything at an address, as its server says now.
    virtual Presence Exists(const QString& url) = 0;
    // The user has agreed that whatever is at an address is replaced by the next upload. A download
    // from there or a move before it ends that.
    virtual void AllowOverwrite(const QString& url) = 0;
    // A downloaded file was renamed on this disk: what it was downloaded as stays known of it.
    virtual void LocalFileMoved(const QString& /*from*/, const QString& /*to*/) {}
    // A whole sentence for the user about the last call that failed: the address, the reason and
    // what to do.
    virtual QString LastError() const = 0;
};

class LanguageSettings {
public:
    virtual ~LanguageSettings() = default;
    // Folder of the user's language below the program's folder, with a leading separator, or empty.
    virtual QString GetLanguageFolder() = 0;
    // Makes a font fit the user's locale; leaves it alone for most.
    virtual void ApplyLocaleFont(QFont& font) = 0;
};

// Makes the library's objects, one at each call.
class DocumentAccess {
public:
    virtual ~DocumentAccess() = default;
    virtual std::unique_ptr<DocumentFile> MakeDocumentFile() = 0;
    virtual std::unique_ptr<DocumentInfo> MakeDocumentInfo() = 0;
    virtual std::unique_ptr<FolderSearcher> MakeFolderSearcher() = 0;
    virtual std::unique_ptr<PropertyQuery> MakePropertyQuery(const QueryWords& words) = 0;
    virtual std::unique_ptr<PreviewExtractor> MakePreviewExtractor() = 0;
    virtual std::unique_ptr<LanguageSettings> MakeLanguageSettings() = 0;
    // Null from a library that knows no web folders.
    virtual std::unique_ptr<WebFolderClient> MakeWebFolderClient(const WebClientSettings&) {
        return nullptr;
    }
};

}  // namespace docbench

#define DocbenchDocumentAccess_iid "com.tessaforma.docbench.DocumentAccess/1"
Q_DECLARE_INTERFACE(docbench::DocumentAccess, DocbenchDocumentAccess_iid)
