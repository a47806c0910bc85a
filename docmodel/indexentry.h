// What the index remembers of one folder's documents, packed into one run of bytes.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtGlobal>

#include "docmodel/filestate.h"

namespace docmodel {

// One document. The views are into the bytes that it was read from.
struct IndexEntry {
    QByteArrayView name;
    FileState state;
    QByteArrayView facts;   // what the documents are remembered for, as its owner packs it
    QByteArrayView record;  // the whole entry as it is packed
};

// What kind of facts entries hold, and in which version of their layout. The bytes never leave the
// machine, so they are as it keeps them in memory; what another kind of machine wrote into a shared
// home has another mark.
enum class IndexMark : quint32 {
    References = 0x31584952,  // "RIX1": the hashes of StemHash, 4 bytes each
    Properties = 0x32584950,  // "PIX2": a PropertyRecord
};

// Walks through packed entries, which are in the order of their names' bytes. Bytes that are
// damaged, have another mark or belong to another folder have no entries.
class IndexReader {
public:
    // `packed` must outlive the reader.
    IndexReader(const QByteArray& packed, const QByteArray& folder, IndexMark mark);
    bool Next(IndexEntry& entry);  // false at the end

private:
    const char* at_ = nullptr;
    const char* end_ = nullptr;
};

// Packs entries, which must come in the order of their names' bytes.
class IndexPacker {
public:
    explicit IndexPacker(IndexMark mark);
    void Add(QByteArrayView name, const FileState& state, QByteArrayView facts);
    void Add(const IndexEntry& entry) { packed_.append(entry.record); }
    QByteArray Packed(const QByteArray& folder);

private:
    const IndexMark mark_;
    QByteArray packed_;
};

}  // namespace docmodel
