#include "services/folderlists.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "cells/celllist.h"
#include "services/docaccess.h"
#include "services/errorstate.h"
#include "services/paths.h"
#include "services/seams.h"
#include "services/settingsstore.h"

namespace docbench {
namespace {

// The key of the lists; null when it can't be opened, which reads as a key without values.
std::unique_ptr<FolderSearcher> OpenLists() {
    if (!gSeams.documents)
        return nullptr;
    std::unique_ptr<FolderSearcher> key;
    bool open = false;
    ErrorState().Run([&] {
        key = gSeams.documents->MakeFolderSearcher();
        open = key && key->OpenRegistryKey(QLatin1String(kExtReferencesKey)) == 0;
    });
    return open ? std::move(key) : nullptr;
}

// Empty for a list that isn't there or can't be read.
QString FoldersOf(FolderSearcher& key, const QString& name) {
    QString folders;
    ErrorState errors;
    errors.Assign(folders, [&] { return key.GetRegistryValue(name); });
    if (folders.isEmpty())
        errors.Assign(
            folders, [&] { return key.GetRegistryValue(name + QLatin1String(kFolderListMarker)); });
    return folders;
}

std::vector<CellRow> ListRows(FolderSearcher& key) {
    const QLatin1String marker(kFolderListMarker);
    std::vector<CellRow> rows;
    const int count = key.GetRegistryValueCount();
    for (int i = 0; i < count; ++i) {
        const QString name = key.EnumRegistryValue(i).first;
        if (name.endsWith(marker))
            rows.push_back({.cells = {{.text = name.chopped(marker.size())}, {.text = marker}}});
        else if (name.contains(QLatin1String(kCadFolderList)))
            rows.push_back({.cells = {{.text = name}, {.text = QString()}}});
    }
    return rows;
}

// The text with every named list replaced. A name is replaced wherever it occurs in the text as it
// stands then, so also in what an earlier one has brought in.
QString ResolveNames(const QString& text) {
    QString resolved = text;
    std::unique_ptr<FolderSearcher> key;
    bool opened = false;
    for (const QString& entry : text.split(u';')) {
        if (!entry.startsWith(u' '))
            continue;
        if (!std::exchange(opened, true))
            key = OpenLists();
        resolved.replace(entry, key ? FoldersOf(*key, entry.mid(1)) : QString());
    }
    return resolved;
}

}  // namespace

QString ExpandFolderList(const QString& text) {
    QStringList entries = ResolveNames(text).split(u';');
    return RemoveDuplicates(entries).join(u';');
}

void RefreshFolderList(CellList& list) {
    list.Clear();
    const std::unique_ptr<FolderSearcher> key = OpenLists();
    if (!key)
        return;
    std::vector<CellRow> rows;
    ErrorState().Assign(rows, [&] { return ListRows(*key); });
    list.Append(std::move(rows));
}

QString ReadFolderList(const QString& valueName) {
    QString folders;
    if (const auto key = OpenLists())
        ErrorState().Assign(folders, [&] { return key->GetRegistryValue(valueName); });
    return folders;
}

bool WriteFolderList(const QString& valueName, const QString& folders) {
    int status = 1;
    if (const auto key = OpenLists())
        ErrorState().Assign(status, [&] { return key->SetRegistryValue(valueName, folders); });
    return status == 0;
}

bool DeleteFolderList(const QString& valueName) {
    int status = 0;  // 0 is the failure here
    if (const auto key = OpenLists())
        ErrorState().Assign(status, [&] { return key->DeleteRegistryValue(valueName); });
    return status != 0;
}

bool ListContains(const CellList& list, const QString& text) {
    return std::any_of(list.Rows().begin(), list.Rows().end(), [&](const CellRow& row) {
        return (row.cells.empty() ? QString() : row.cells.front().text) == text;
    });
}

}  // namespace docbench
