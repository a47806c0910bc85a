#include "docmodel/foldermemory.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <string_view>

namespace docmodel {

namespace {

int CompareBytes(QByteArrayView one, QByteArrayView other) {
    const std::string_view bytes(one.data(), size_t(one.size()));
    return bytes.compare(std::string_view(other.data(), size_t(other.size())));
}

QByteArrayView NameOf(const ListedDocument& document) {
    return {document.name.data(), qsizetype(document.name.size())};
}

}  // namespace

FolderMemory::FolderMemory(ReferenceIndex& index, const FileDescriptor& folder, const QString& path,
                           bool isWhole)
    : index_(index),
      folder_(folder.Get()),
      path_(path.toUtf8()),
      isWhole_(isWhole),
      grain_(index.GrainFor(folder.Get())),
      readAt_(SystemClockNow()),
      packed_(grain_ ? index.Load(path_) : QByteArray()),
      reader_(packed_, path_, IndexMark::References) {
    Advance();
}

void FolderMemory::Advance() {
    IndexEntry entry;
    next_ = reader_.Next(entry) ? std::optional(entry) : std::nullopt;
}

// Both run through the names in the same order. Entries in between are of documents that are gone,
// or that the pattern leaves out.
std::optional<IndexEntry> FolderMemory::Take(QByteArrayView name) {
    for (; next_; Advance()) {
        const int order = CompareBytes(next_->name, name);
        if (order > 0)
            break;
        if (order == 0) {
            const std::optional<IndexEntry> found = next_;
            Advance();
            return found;
        }
        Skip(*next_);
    }
    return std::nullopt;
}

void FolderMemory::Skip(const IndexEntry& entry) {
    if (isWhole_)
        isChanged_ = true;
    else
        kept_.push_back(entry);
}

// A link is read at any time: what is known of disks is known of the folder's own.
FolderMemory::Knowledge FolderMemory::Ask(const ListedDocument& document,
                                          const ReferenceTarget& target) {
    if (!grain_ || document.isLink)
        return Knowledge::None;
    const std::optional<IndexEntry> entry = Take(NameOf(document));
    if (!entry)
        return Knowledge::None;
    struct stat status;
    if (fstatat(folder_, document.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0 ||
        StateOf(status) != entry->state) {
        isChanged_ = true;
        return Knowledge::None;
    }
    kept_.push_back(*entry);
    const auto& wanted = target.StemHashes();
    const bool holdsAny = std::any_of(wanted.begin(), wanted.end(),
                                      [&](quint32 hash) { return HoldsHash(entry->facts, hash); });
    return holdsAny ? Knowledge::Same : Knowledge::Without;
}

// What could be changed again without looking changed is not kept in mind: it is read each time.
void FolderMemory::Learn(const ListedDocument& document, const FileState& state,
                         std::vector<quint32> stemHashes) {
    if (!grain_ || document.isLink || !IsSettled(state, readAt_, *grain_))
        return;
    learned_.push_back({NameOf(document), state, std::move(stemHashes)});
    isChanged_ = true;
}

void FolderMemory::Save() {
    for (; next_; Advance())
        Skip(*next_);
    if (!isChanged_)
        return;
    IndexPacker packer(IndexMark::References);
    auto kept = kept_.begin();
    for (const Learned& learned : learned_) {
        for (; kept != kept_.end() && CompareBytes(kept->name, learned.name) < 0; ++kept)
            packer.Add(*kept);
        packer.Add(learned.name, learned.state, BytesOf(learned.stemHashes));
    }
    for (; kept != kept_.end(); ++kept)
        packer.Add(*kept);
    index_.Store(path_, packer.Packed(path_));
}

}  // namespace docmodel
