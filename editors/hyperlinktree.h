// The tree of a document's hyperlinks, with the rules of editing them: what is not saved yet lives
// in the texts of the nodes.
#pragma once

#include <QString>
#include <optional>

#include "cells/celltree.h"

namespace docbench {

class DocumentFile;

class HyperlinkTree {
public:
    explicit HyperlinkTree(CellTree& tree) : tree_(tree) {}

    void Clear();
    // Lists the hyperlinks in the document's order, and gives their number. Nothing is pending
    // then.
    int Load(DocumentFile& file, const QString& displayName, const QString& path);

    // The text that editing begins with; none for the root.
    std::optional<QString> TextToEdit(int node) const;
    void Edit(int node, const QString& typed);
    // What the node leads to, saved or not; none for the root.
    std::optional<QString> Target(int node) const;

    int PendingChanges() const { return pendingChanges; }
    // Sets the changed texts on an open document, and tells whether there was any. Nothing is on
    // the disk before it is saved.
    bool Write(DocumentFile& file) const;
    // The same on the file at `local` as it is now, and saves it if there was any. Raises when its
    // hyperlinks are no longer those of `loaded`; `path` is named in the error.
    bool Save(const QString& local, DocumentFile& loaded, const QString& path) const;

private:
    const CellNode& At(int node) const { return tree_.Nodes().At(node); }

    CellTree& tree_;
    int pendingChanges = 0;  // nodes with a change that is not saved
};

}  // namespace docbench
