// What the reference index remembers of one folder's documents, packed into one run of bytes.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtGlobal>
#include <vector>

#include "docmodel/filestate.h"

namespace docmodel {

// One document. The views are into the bytes that it was read from.
struct IndexEntry {
    QByteArrayView name;
    FileState state;
    QByteArrayView stemHashes;  // of all that its references may lead to, 4 bytes each
    QByteArrayView record;      // the whole entry as it is packed

    template <typename Hashes>
    bool HoldsAny(const Hashes& wanted) const {
        for (const quint32 hash : wanted)
            if (Holds(hash))
                return true;
        return false;
    }

private:
    bool Holds(quint32 hash) const;
};

// Walks through packed entries, which are in the order of their names' bytes. Bytes that are
// damaged, come from another version or belong to another folder have no entries.
class IndexReader {
public:
    // `packed` must outlive the reader.
    IndexReader(const QByteArray& packed, const QByteArray& folder);
    bool Next(IndexEntry& entry);  // false at the end

private:
    const char* at_ = nullptr;
    const char* end_ = nullptr;
};

// Packs entries, which must come in the order of their names' bytes.
class IndexPacker {
public:
    IndexPacker();
    void Add(QByteArrayView name, const FileState& state, const std::vector<quint32>& stemHashes);
    void Add(const IndexEntry& entry) { packed_.append(entry.record); }
    QByteArray Packed(const QByteArray& folder);

private:
    QByteArray packed_;
};

}  // namespace docmodel
