// The tree of a document's configurations, with the rules of renaming and deleting them: what is
// not saved yet lives in the texts and pictures of the nodes.
#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "cells/celltree.h"

namespace docbench {

class DocumentFile;

// What is to be done to one configuration, by its position in the document's table.
struct ConfigurationEdit {
    int id = 0;
    QString newName = {};  // of one that is renamed
    bool isDeleted = false;
};

class ConfigurationTree {
public:
    explicit ConfigurationTree(CellTree& tree) : tree_(tree) {}

    void Clear();
    // Lists the configurations in alphabetical order, those for internal use left out. Gives the
    // number of all. Nothing is pending then.
    int Load(DocumentFile& file, const QString& displayName, const QString& path);

    // The name that editing begins with; none when the node can't be renamed.
    std::optional<QString> NameToEdit(int node) const;
    enum class Answer { Done, Refused, NameEmpty, NameTaken, Stays };
    Answer Rename(int node, const QString& typed);
    // Marks a configuration as deleted, which drops its new name; a second time takes it back.
    Answer ToggleDeletion(int node);
    bool IsDeleted(int node) const;

    int PendingChanges() const { return pendingChanges; }
    QList<ConfigurationEdit> Edits() const;  // in the order of the tree

private:
    bool IsNameFree(const QString& name, int edited) const;
    const CellNode& At(int node) const { return tree_.Nodes().At(node); }

    CellTree& tree_;
    int pendingChanges = 0;  // nodes with a change that is not saved
};

// Carries edits out on an open document, in their order. A name is free once whoever has it is
// renamed or deleted by another of the edits, whatever the order; so two may change their names.
// Raises DocumentError when one can't be done. Nothing is on the disk before the document is saved.
void WriteConfigurations(DocumentFile& file, const QList<ConfigurationEdit>& edits);

// The same on the file at `local` as it is now, and saves it. Raises also when its configurations
// are no longer those of `loaded`, or one that is to be deleted has got other properties since;
// `path` is named in the error.
void SaveConfigurations(const QString& local, DocumentFile& loaded,
                        const QList<ConfigurationEdit>& edits, const QString& path);

}  // namespace docbench
