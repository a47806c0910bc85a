// What the tree shows of documents, read once for each document however often it occurs in the
// tree.
#pragma once

#include <QHash>
#include <QString>
#include <optional>
#include <vector>

#include "services/docaccess.h"

namespace docbench {

// Where reading a document ended with an error; what was read before it stands.
enum class ReadStage { Opening, Components, ExternalReferences, ReferencesLocked, Complete };

// A document's own facts. Never its subtree: that depends on where the document occurs.
struct DocumentFacts {
    std::optional<bool> locked;  // none: the record can't be opened
    bool exists = false;
    std::vector<ComponentRow> components;
    std::vector<ExternalRow> externals;
    bool referencesLocked = false;
    ReadStage reached = ReadStage::Complete;  // Complete as well when the document doesn't exist
    QString error;                            // description; empty when Complete
    int identity = 0;                         // equal for paths that differ in letter case alone
};

// Lives for one load of a tree, since documents change between loads.
class FactsCache {
public:
    // The facts of the document at `path`. The reference holds until the cache goes away.
    const DocumentFacts& Of(const QString& path);
    int IdentityCount() const { return int(identities_.size()); }

private:
    QHash<QString, std::shared_ptr<DocumentFacts>> facts_;
    QHash<QString, int> identities_;
};

}  // namespace docbench
