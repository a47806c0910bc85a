// The documents and subfolders of one folder, as its directory lists them.
#pragma once

#include <sys/types.h>

#include <QString>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "docmodel/fileops.h"

namespace docmodel {

// What makes two paths the same folder: device and inode.
using FolderIdentity = std::pair<dev_t, ino_t>;
// The folders that were searched, with the paths under which they were first.
using KnownFolders = std::map<FolderIdentity, QString>;

struct ListedDocument {
    std::string name;
    bool isLink = false;  // or might be one
};

struct FolderListing {
    std::vector<ListedDocument> documents;  // both in the order of the names' bytes
    // Links to folders come last: a walk meets a folder under its own name first, and leaves the
    // link out then.
    std::vector<std::string> subfolders;
    // Documents that fit the pattern, and folders, whose names are no text.
    int unnamable = 0;
};

// Whether every name fits the pattern.
bool IsEveryName(const QString& pattern);

// Opens a folder for listing. Raises DocumentError, which names it.
FileDescriptor OpenFolder(const QString& path);

// Lists the open folder: everything whose name fits the pattern and has a document's extension
// counts as a document unless it is a folder. A link to a folder that is among `known` is left out,
// so that a walk through linked folders ends. Raises DocumentError.
FolderListing ListFolder(const FileDescriptor& folder, const QString& path, const QString& pattern,
                         const KnownFolders& known);

}  // namespace docmodel
