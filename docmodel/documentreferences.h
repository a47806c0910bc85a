// The reference rows of one document, read for a search: its tables and nothing else.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <vector>

#include "docmodel/documentpart.h"
#include "docmodel/filestate.h"
#include "docmodel/referencetarget.h"
#include "services/docaccess.h"

namespace docmodel {

class DocumentReferences {
public:
    // `path` is the document's; `folder` and `file` where it stands: an open folder and its name in
    // there. `holderFolder` is as HolderFolder(path) gives it. Raises DocumentError when the
    // document can't be read.
    DocumentReferences(int folder, const char* file, const QString& path,
                       const QString& holderFolder);

    // Appends the rows that lead to the target and are of a kind in `mask`.
    void Find(const ReferenceTarget& target, int mask, QList<docbench::FoundReference>& to) const;

    // The document's file as it was when it was read.
    const FileState& State() const { return state_; }
    // Of every path that one of the rows may lead to, each once.
    std::vector<quint32> StemHashes() const;

private:
    template <typename Row>
    struct Rows {
        QList<Row> stored;
        std::vector<PathChoice> paths;  // that they may lead to, one by one
        void Set(QList<Row> rows, const QString& holderFolder);
    };
    template <typename Row, typename IsWanted>
    void FindIn(const Rows<Row>& table, bool inContext, const ReferenceTarget& target,
                IsWanted isWanted, QList<docbench::FoundReference>& to) const;

    FileState state_;
    QString path_;
    Rows<StoredComponent> components_;
    Rows<StoredExternal> externals_;
};

}  // namespace docmodel
