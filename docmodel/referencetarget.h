// The document that a search looks for: which references lead to it.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QVarLengthArray>
#include <vector>

#include "services/docaccess.h"

namespace docmodel {

// Letter case never counts in file names; it does in the names of folders.
class ReferenceTarget {
public:
    explicit ReferenceTarget(const docbench::ReferenceQuery& query);

    // Whether a reference to `path` (cleaned, or a URL) is one to the target.
    bool Matches(const QString& path) const;

    // Every path that matches has one of these as its StemHash.
    const QVarLengthArray<quint32, 2>& StemHashes() const { return stemHashes_; }

private:
    bool NameMatches(QStringView name) const;
    void SetName(const QString& base, const QString& extension);

    bool isFullPath_;
    QString folder_;        // that the path must lie in, with its separator
    QString name_;          // that the file must have
    bool anyExtension_;     // or which it has before its extension
    bool isBareExtension_;  // the target is named by an extension alone, such as "asm"
    QVarLengthArray<quint32, 2> stemHashes_;
};

// A number for the file name of a path, without what stands behind its last dot; the same for names
// that differ only in letter case. It is the same in every version and on every machine.
quint32 StemHash(QStringView path);

// Hashes as the index keeps them, 4 bytes each.
QByteArrayView BytesOf(const std::vector<quint32>& stemHashes);
bool HoldsHash(QByteArrayView stemHashes, quint32 hash);

}  // namespace docmodel
