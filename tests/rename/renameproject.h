// A part with its holders, and the list of the references to it: what a renaming starts with.
#pragma once

#include "cells/celllist.h"
#include "rename/renamelist.h"
#include "rename/renamesearch.h"
#include "rename/renametransaction.h"
#include "services/docaccess.h"
#include "services/language.h"
#include "services/paths.h"
#include "services/seams.h"
#include "tests/support/testlibrary.h"

namespace docbench {

inline constexpr int kHolders = 12;

// A part, its parent, and the other holders, one of which has two references to it.
struct Project {
    Project() {
        LoadResources();
        pin = library.Make("pin.tfmprt");
        PrepareRenameList(list);
        for (int i = 0; i < kHolders; ++i) {
            const QString name = QString("holder%1.tfmasm").arg(i, 2, 10, QChar('0'));
            holders.append(library.Make(name, {{pin, i + 1}}, {{pin, "mirrored"}}));
        }
        SearchAgain();
    }
    void SearchAgain(const UseKinds& kinds = {}, const QString& folders = {}) {
        const RenameSearch search{.document = pin,
                                  .parent = holders[0],
                                  .kinds = kinds,
                                  .status = [](const QString&) {},
                                  .yield = [] {},
                                  .cancelled = [] { return false; },
                                  .progress = [](const SearchCounts&, int) {}};
        list.Clear();
        RowBatch rows = RenameRows(list);
        SearchHolders(search, folders.isEmpty() ? library.Folder() : folders, rows);
        rows.Flush();
    }
    RenamePlan Plan() const {
        return {.oldPath = pin, .newPath = library.Path("bolt.tfmprt"), .parent = holders[0]};
    }
    RenameResult Run() {
        return RunRename(list, Plan(),
                         {.status = [](const QString&) {}, .holders = [](int, int) {}});
    }
    // What a holder refers to, its two tables joined.
    QString Holds(const QString& holder) const {
        const auto file = Documents()->MakeDocumentFile();
        file->Open(holder);
        return FileNameOf(file->GetComponent(0, QString()).path) + ' ' +
               FileNameOf(file->GetExternalReference(0, QString()).path);
    }
    static DocumentAccess* Documents() { return gSeams.documents; }

    TestLibrary library;
    QString pin;
    QStringList holders;
    CellList list;
};

}  // namespace docbench
