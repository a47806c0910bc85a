// Folder list texts, and the named folder lists that they may hold.
#pragma once

#include <QString>

namespace docbench {

class CellList;

// Ends the names of the values that hold the user's own lists; the name shown is without it.
inline constexpr char kFolderListMarker[] = " TDB-Key";
// What the name of a list of the CAD application holds.
inline constexpr char kCadFolderList[] = "Document Folders";

// Resolves the names in a text of folders joined by ";": an entry that begins with a blank names a
// list and is replaced by its folders, or by nothing when there is no such list. Gives the entries
// in order, without empty and repeated ones, joined by ";".
QString ExpandFolderList(const QString& text);

// Fills the list with the names of the named lists in the store's order; the first sub-item is the
// marker, or empty for a list of the CAD application.
void RefreshFolderList(CellList& list);

// The folders of the list that is stored under a value's name, joined by ";"; empty without one.
QString ReadFolderList(const QString& valueName);
// False when it can't be stored.
bool WriteFolderList(const QString& valueName, const QString& folders);
// False when there is none, or it can't be deleted.
bool DeleteFolderList(const QString& valueName);

// True if the text of a row's item, not of its sub-items, equals `text` exactly.
bool ListContains(const CellList& list, const QString& text);

}  // namespace docbench
