// The names of copies. All of it is about texts: the disk is not looked at, and no name is
// reserved.
#pragma once

#include <QString>
#include <QStringList>

namespace docbench {

class CellList;

// What is put around the name of every copy.
struct Affixes {
    QString prefix;
    QString suffix;
};

// "new_" and "a.tfmprt" give "new_a.tfmprt". A name without "." gets no extension.
QString CopyName(const Affixes& affixes, const QString& fileName);

// The file `name` in a target folder or web folder. A separator at the folder's end is not
// dropped; it is told from the one that follows by nobody.
QString TargetIn(const QString& folder, const QString& name);

// What follows `base` in the folder of `path`, with a separator at its end: "" for a document
// elsewhere. `base` ends in a separator; letter case is ignored.
QString RelativeFolder(const QString& base, const QString& path);

// Gives all ticked rows of both lists their targets anew; of the parents, only those that are
// copied. `rowFolders` holds the relative folders: of the source document, then of each row of
// `copies`.
struct TargetRule {
    QString folder;
    Affixes affixes;
    // Shows whole paths. Otherwise a column in short form gets bare names, in its tags as well,
    // until the folder is set the next time.
    bool forceLong = false;
};
void RecomputeTargets(const TargetRule& rule, const QStringList& rowFolders, CellList& copies,
                      CellList& parents);

}  // namespace docbench
