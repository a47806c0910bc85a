#include "docmodel/documentreferences.h"

#include <algorithm>

#include "docmodel/documentcontent.h"
#include "services/paths.h"

namespace docmodel {

using docbench::DocType;
using docbench::FoundReference;

namespace {

// The kinds of references, as a search's mask adds them up.
constexpr int kPlain = 1;
constexpr int kInContext = 2;
constexpr int kMirrored = 4;

bool IsPart(const QString& path) {
    return docbench::DocTypeOf(path) == DocType::Part;
}

}  // namespace

template <typename Row>
void DocumentReferences::Rows<Row>::Set(QList<Row> rows, const QString& holderFolder) {
    stored = std::move(rows);
    paths.reserve(size_t(stored.size()));
    for (const Row& row : stored)
        paths.push_back(PossiblePaths(row.target, holderFolder));
}

DocumentReferences::DocumentReferences(int folder, const char* file, const QString& path,
                                       const QString& holderFolder)
    : path_(path) {
    const Package package = Package::OpenAt(folder, file, path);
    state_ = StateOf(package.Status());
    if (const std::optional<DocumentPart> tables = ReadTables(package)) {
        components_.Set(tables->Components(), holderFolder);
        externals_.Set(tables->Externals(), holderFolder);
    }
}

std::vector<quint32> DocumentReferences::StemHashes() const {
    std::vector<quint32> hashes;
    const auto add = [&](const auto& table) {
        for (const PathChoice& choice : table.paths) {
            hashes.push_back(StemHash(choice.usual));
            if (!choice.beside.isEmpty())
                hashes.push_back(StemHash(choice.beside));
        }
    };
    add(components_);
    add(externals_);
    std::sort(hashes.begin(), hashes.end());
    hashes.erase(std::unique(hashes.begin(), hashes.end()), hashes.end());
    return hashes;
}

// Whether a row leads to the target is mostly told by its text alone; the disk is asked only when
// one of its paths would.
template <typename Row, typename IsWanted>
void DocumentReferences::FindIn(const Rows<Row>& table, bool inContext,
                                const ReferenceTarget& target, IsWanted isWanted,
                                QList<FoundReference>& to) const {
    QByteArray stamp;
    for (size_t index = 0; index < table.paths.size(); ++index) {
        const PathChoice& choice = table.paths[index];
        if (!target.Matches(choice.usual) &&
            (choice.beside.isEmpty() || !target.Matches(choice.beside)))
            continue;
        const QString reference = ChosenPath(choice);
        if (!target.Matches(reference) || !isWanted(reference))
            continue;
        if (stamp.isEmpty())
            stamp = StampOf(table.stored);
        to.append({int(index), inContext, reference, path_, stamp});
    }
}

void DocumentReferences::Find(const ReferenceTarget& target, int mask,
                              QList<FoundReference>& to) const {
    if (mask & kPlain)
        FindIn(
            components_, false, target, [](const QString&) { return true; }, to);
    if (!(mask & (kInContext | kMirrored)))
        return;
    const bool isPart = IsPart(path_);
    const auto isWanted = [&](const QString& reference) {
        return (mask & (isPart && IsPart(reference) ? kMirrored : kInContext)) != 0;
    };
    FindIn(externals_, true, target, isWanted, to);
}

}  // namespace docmodel
