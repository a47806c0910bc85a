// How a reference names its document: what is stored for a path, and what a stored row points at.
#pragma once

#include <QString>

#include "services/docaccess.h"

namespace docmodel {

// Both ways of finding the document, as they stand in the row.
struct StoredPath {
    QString path;      // as it was given: a URL, or an absolute path
    QString relative;  // from the holder's folder; empty for a URL and where there is no way
    bool operator==(const StoredPath& other) const {
        return path == other.path && relative == other.relative;
    }
};

bool IsUrl(const QString& path);  // "http://" or "https://", in any case

// A local path with single separators and without "." and "..". Links are not looked at. A "\" is a
// separator in a path that has no "/" or that begins with a drive letter, else part of a name.
QString CleanPath(const QString& path);

// `path`, made absolute by the working folder of this moment; an empty one stays. Not cleaned: the
// disk may see links in it.
QString AbsolutePath(const QString& path);

// The folder of a document, absolute, clean and ending in a separator. `path` may be relative to
// the working folder.
QString HolderFolder(const QString& path);

// What a row of a document in `holderFolder` stores for `path`: a URL, an absolute path, or a path
// relative to that folder. A user and password that stand in a URL are not stored.
StoredPath StoredPathFor(const QString& path, const QString& holderFolder);

// The one or two paths that a row of a local document can point at, cleaned. Which one it is, only
// the disk knows.
struct PathChoice {
    QString usual;
    QString beside;  // beside the holder; empty where there is but one path
};
PathChoice PossiblePaths(const StoredPath& stored, const QString& holderFolder);

// Looks at the disk: the usual path if it exists; else the one beside the holder if that exists;
// else the usual one.
QString ChosenPath(const PathChoice& choice);

// What a row points at, cleaned: a stored URL as it stands; with a web folder, the relative path in
// that; else the absolute path if it exists; else the relative one if that exists; else the
// absolute one.
QString ResolvePath(const StoredPath& stored, const QString& holderFolder,
                    const QString& webFolder);

}  // namespace docmodel
