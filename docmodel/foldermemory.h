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

// Documents must be asked for in the order of the listing, which must outlive the memory.
class FolderMemory {
public:
    // `path` is the folder's, absolute and clean. `isWhole`: the search asks for all documents of
    // the folder, so that what is known of any others is of no use any more.
    FolderMemory(ReferenceIndex& index, const FileDescriptor& folder, const QString& path,
                 bool isWhole);

    enum class Knowledge {
        None,     // the document must be read
        Without,  // no row of it leads to the target; it counts as read
        Same      // a row may lead to the target; what is known of it otherwise still holds
    };
    Knowledge Ask(const ListedDocument& document, const ReferenceTarget& target);

    bool CanLearn() const { return grain_.has_value(); }
    // Takes in a document that was read because there was no knowledge of it. Documents come in the
    // order of the listing here as well.
    void Learn(const ListedDocument& document, const FileState& state,
               std::vector<quint32> stemHashes);
    void Save();  // writes what has changed, if anything

private:
    struct Learned {
        QByteArrayView name;
        FileState state;
        std::vector<quint32> stemHashes;
    };
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
    std::vector<IndexEntry> kept_;
    std::vector<Learned> learned_;
    bool isChanged_ = false;
};

}  // namespace docmodel
