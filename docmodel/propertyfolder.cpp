#include "docmodel/propertyfolder.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <utility>

#include "docmodel/folderlisting.h"
#include "docmodel/packageerror.h"
#include "docmodel/referencepath.h"

namespace docmodel {

namespace {

// Documents with longer texts are read each time, so that a few can't fill the index.
constexpr qsizetype kLargestRecord = 64 << 10;

bool StatusAt(int folder, const QByteArray& name, int flags, struct stat& status) {
    return fstatat(folder, name.constData(), &status, flags) == 0;
}

}  // namespace

PropertyFolder::PropertyFolder(ReferenceIndex& index, const QString& prefix)
    : index_(index),
      prefix_(prefix),
      folder_(OpenFolder(prefix.isEmpty() ? QStringLiteral(".") : prefix)),
      path_(HolderFolder(prefix + QLatin1String("document")).toUtf8()),
      grain_(index.GrainFor(folder_.Get())),
      readAt_(SystemClockNow()),
      packed_(grain_ ? index.Load(path_) : QByteArray()) {
    LoadKnown();
}

void PropertyFolder::LoadKnown() {
    IndexReader reader(packed_, path_, IndexMark::Properties);
    for (IndexEntry entry; reader.Next(entry);)
        known_.insert(
            entry.name.toByteArray(),
            {entry.state, QByteArray::fromRawData(entry.facts.data(), entry.facts.size())});
}

PropertyFolder::~PropertyFolder() {
    ahead_.reset();
    if (isChanged_)
        Store();
}

void PropertyFolder::ReadAhead(const QStringList& names) {
    ahead_.reset();
    expected_ = names;
}

void PropertyFolder::StartReadingAhead() {
    std::vector<PropertyReadAhead::Document> documents;
    documents.reserve(size_t(expected_.size()));
    for (const QString& name : std::as_const(expected_)) {
        const QByteArray bytes = name.toUtf8();
        const auto known = known_.constFind(bytes);
        documents.push_back(
            {bytes, known == known_.constEnd() ? std::nullopt : std::optional(known->state)});
    }
    ahead_ = std::make_unique<PropertyReadAhead>(folder_.Get(), prefix_, std::move(documents));
    ahead_->Start();
}

// Believed is only what is on the disk in the state in which it was read. A link is read at any
// time: what is known of disks is known of the folder's own.
QByteArray PropertyFolder::Read(const QString& name) {
    const QByteArray bytes = name.toUtf8();
    const auto known = known_.find(bytes);
    if (known == known_.end())
        return ReadNew(bytes);
    struct stat status;
    if (StatusAt(folder_.Get(), bytes, AT_SYMLINK_NOFOLLOW, status) &&
        StateOf(status) == known->state) {
        known->isAsked = true;
        return known->record;
    }
    known_.erase(known);
    isChanged_ = true;
    return ReadNew(bytes);
}

QByteArray PropertyFolder::ReadNew(const QByteArray& name) {
    std::optional<PropertyReadAhead::Outcome> ahead;
    if (!expected_.isEmpty()) {
        if (!ahead_)
            StartReadingAhead();
        ahead = ahead_->Take(name);
    }
    if (ahead && !ahead->failure.isEmpty())
        throw DocumentError(ahead->failure);
    if (ahead && Learn(name, ahead->properties))
        return ahead->properties.record;
    const ReadProperties read =
        ReadPropertiesAt(folder_.Get(), name.constData(), prefix_ + QString::fromUtf8(name));
    Learn(name, read);
    return read.record;
}

// False when the document is no longer as it was read. What could be changed again without looking
// changed is not kept in mind: it is read each time.
bool PropertyFolder::Learn(const QByteArray& name, const ReadProperties& read) {
    struct stat status;
    if (!StatusAt(folder_.Get(), name, AT_SYMLINK_NOFOLLOW, status))
        return false;
    if (S_ISLNK(status.st_mode))
        return StatusAt(folder_.Get(), name, 0, status) && StateOf(status) == read.state;
    if (StateOf(status) != read.state)
        return false;
    if (grain_ && read.record.size() <= kLargestRecord && IsSettled(read.state, readAt_, *grain_)) {
        known_.insert(name, {.state = read.state, .record = read.record, .isAsked = true});
        isChanged_ = true;
    }
    return true;
}

// What a search of the whole folder has not asked for may be of a document that is gone.
bool PropertyFolder::IsVanished(const QByteArray& name, const Known& known) const {
    struct stat status;
    return !known.isAsked && !StatusAt(folder_.Get(), name, AT_SYMLINK_NOFOLLOW, status);
}

void PropertyFolder::Store() {
    for (const QString& name : std::as_const(expected_))
        if (const auto known = known_.find(name.toUtf8()); known != known_.end())
            known->isAsked = true;  // or would have been, had nobody stopped the search
    QList<QByteArray> names = known_.keys();
    std::sort(names.begin(), names.end());
    IndexPacker packer(IndexMark::Properties);
    for (const QByteArray& name : names) {
        const Known& known = known_[name];
        if (expected_.isEmpty() || !IsVanished(name, known))
            packer.Add(name, known.state, known.record);
    }
    index_.Store(path_, packer.Packed(path_));
}

}  // namespace docmodel
