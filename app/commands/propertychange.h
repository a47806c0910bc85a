// What "docbench properties" was told to change, checked and laid onto what a document holds.
#pragma once

#include <QStringList>
#include <optional>

#include "cells/celllist.h"
#include "editors/propertyrows.h"
#include "editors/summaryfields.h"

namespace docbench {

class DocumentInfo;

// The rows of one property set and the edits of them, as the editor of the pane holds them.
class PropertyChange {
public:
    // Loads the set of a document. Nothing is changed yet.
    PropertyChange(DocumentInfo& set, const QString& document);

    // All raise UsageError or DocumentError for what the editor refuses, and tell what they do in
    // Changes(); what is so already is no change. Without `type` a property keeps its own, and a
    // new one is a text.
    void Set(const QString& assignment, std::optional<PropertyType> type);  // NAME=VALUE
    void Delete(const QString& name);

    struct Change {
        QString what;   // "set Mass"
        QString value;  // empty for a deletion
    };
    const QList<Change>& Changes() const { return changes_; }

    const CellList& Rows() const { return rows_; }
    const QStringList& DeletedNames() const { return deleted_; }
    const QByteArray& Stamp() const { return stamp_; }
    // The names of those whose change the set does not hold, once it was written.
    QStringList NotIn(DocumentInfo& set) const;

private:
    void RequireUnambiguous(const QString& name) const;

    const QString document_;    // for messages
    const QStringList stored_;  // the names of all properties
    CellList rows_;
    QStringList deleted_;
    QStringList given_;  // names that were to be set
    QStringList set_;
    QByteArray stamp_;
    QList<Change> changes_;
};

// The type of that name. Raises UsageError.
PropertyType PropertyTypeNamed(const QString& name);

}  // namespace docbench
