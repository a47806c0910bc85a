#include "docmodel/folderlisting.h"

#include <dirent.h>
#include <fcntl.h>
#include <strings.h>
#include <sys/stat.h>

#include <QUtf8StringView>
#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>
#include <string_view>

#include "docmodel/packagedata.h"
#include "docmodel/packageerror.h"
#include "services/paths.h"

namespace docmodel {

namespace {

constexpr std::array<std::string_view, 6> kDocumentExtensions = {"asm",    "prt",    "drw",
                                                                 "tfmasm", "tfmprt", "tfmdrw"};

QString Searched() {
    return QStringLiteral("searched");
}

bool HasDocumentExtension(std::string_view name) {
    const size_t dot = name.rfind('.');
    if (dot == std::string_view::npos)
        return false;
    const std::string_view extension = name.substr(dot + 1);
    return std::any_of(kDocumentExtensions.begin(), kDocumentExtensions.end(),
                       [&](std::string_view known) {
                           return known.size() == extension.size() &&
                                  strncasecmp(known.data(), extension.data(), known.size()) == 0;
                       });
}

// What an entry of a folder is, asking the disk only where the listing does not tell.
struct EntryKind {
    bool isFolder = false;
    bool isLink = false;
    FolderIdentity identity;  // of what a link leads to
};

EntryKind KindOf(int folder, const dirent& entry) {
    EntryKind kind;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) {
        kind.isFolder = entry.d_type == DT_DIR;
        return kind;
    }
    struct stat status;
    kind.isLink =
        fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) != 0 || S_ISLNK(status.st_mode);
    if (fstatat(folder, entry.d_name, &status, 0) == 0) {
        kind.isFolder = S_ISDIR(status.st_mode);
        kind.identity = {status.st_dev, status.st_ino};
    }
    return kind;
}

// Sorts the entries of one folder into documents and subfolders.
class Lister {
public:
    Lister(int folder, const QString& pattern, const KnownFolders& known)
        : folder_(folder), pattern_(pattern), takesEvery_(IsEveryName(pattern)), known_(known) {}

    void Take(const dirent& entry) {
        const std::string_view name(entry.d_name);
        if (name == "." || name == "..")
            return;
        const bool isCandidate = HasDocumentExtension(name) && Fits(name);
        if (!isCandidate && entry.d_type == DT_REG)
            return;
        const EntryKind kind = KindOf(folder_, entry);
        if (!kind.isFolder && !isCandidate)
            return;
        if (kind.isFolder && kind.isLink && known_.contains(kind.identity))
            return;
        if (!QUtf8StringView(name.data(), qsizetype(name.size())).isValidUtf8())
            ++listing_.unnamable;
        else if (kind.isFolder)
            (kind.isLink ? links_ : listing_.subfolders).emplace_back(name);
        else
            listing_.documents.push_back({std::string(name), kind.isLink});
    }

    FolderListing Sorted() {
        std::sort(listing_.subfolders.begin(), listing_.subfolders.end());
        std::sort(links_.begin(), links_.end());
        listing_.subfolders.insert(listing_.subfolders.end(), links_.begin(), links_.end());
        std::sort(listing_.documents.begin(), listing_.documents.end(),
                  [](const ListedDocument& a, const ListedDocument& b) { return a.name < b.name; });
        return std::move(listing_);
    }

private:
    bool Fits(std::string_view name) const {
        return takesEvery_ || docbench::MatchesPattern(
                                  QString::fromUtf8(name.data(), qsizetype(name.size())), pattern_);
    }

    const int folder_;
    const QString& pattern_;
    const bool takesEvery_;
    const KnownFolders& known_;
    FolderListing listing_;
    std::vector<std::string> links_;  // to folders
};

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

}  // namespace

// What the empty name fits can only be made of what stands for any text.
bool IsEveryName(const QString& pattern) {
    return !pattern.isEmpty() && docbench::MatchesPattern(QStringView(), pattern);
}

FileDescriptor OpenFolder(const QString& path) {
    FileDescriptor folder(
        open(SystemPath(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK));
    if (!folder.IsOpen())
        throw FolderError(path, Searched(), errno);
    return folder;
}

FolderListing ListFolder(const FileDescriptor& folder, const QString& path, const QString& pattern,
                         const KnownFolders& known) {
    FileDescriptor own(fcntl(folder.Get(), F_DUPFD_CLOEXEC, 0));
    const std::unique_ptr<DIR, CloseFolder> entries(own.IsOpen() ? fdopendir(own.Get()) : nullptr);
    if (!entries)
        throw FolderError(path, Searched(), errno);
    own.Release();  // the stream closes it
    Lister lister(folder.Get(), pattern, known);
    for (;;) {
        errno = 0;
        const dirent* entry = readdir(entries.get());
        if (!entry && errno != 0)
            throw FolderError(path, Searched(), errno);
        if (!entry)
            return lister.Sorted();
        lister.Take(*entry);
    }
}

}  // namespace docmodel
