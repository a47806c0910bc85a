// What the index knows of the folder that is being searched: spares the reading of documents that
// are known not to refer to the target, and takes in what is read.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "docmodel/documentreferences.h"
#include "docmodel/folderlisting.h"
#include "docmodel/indexentry.h"
#include "docmodel/referenceindex.h"
#include "docmodel/referencetarget.h"

namespace docmodel {

// Documents must be asked for in the order of the listing.
class FolderMemory {
public:
    // `path` is the folder's, absolute and clean. `isWhole`: the search asks for all documents of
    // the folder, so that what is known of any others is of no use any more.
    FolderMemory(ReferenceIndex& index, const FileDescriptor& folder, const QString& path,
                 bool isWhole);

    // True: the document is as it was when it was read last, and no row of it leads to the target.
    bool IsWithout(const ListedDocument& document, const ReferenceTarget& target);
    // To be called for a document that was asked for and then was read.
    void Learn(const ListedDocument& document, const DocumentReferences& references);
    void Save();  // writes what has changed, if anything

private:
    void Advance();
    std::optional<IndexEntry> Take(QByteArrayView name);  // the entry of that name, if there is one
    void Skip(const IndexEntry& entry);                   // one that was not asked for

    ReferenceIndex& index_;
    const int folder_;
    const QByteArray path_;
    const bool isWhole_;
    const std::optional<qint64> grain_;  // none: nothing is believed or learned
    const qint64 readAt_;                // before any document was read
    const QByteArray packed_;
    IndexReader reader_;
    std::optional<IndexEntry> next_;  // the first entry that was not asked for yet
    IndexPacker packer_;
    bool isKept_ = false;  // the entry of the document that was asked for last still holds
    bool isChanged_ = false;
};

}  // namespace docmodel
