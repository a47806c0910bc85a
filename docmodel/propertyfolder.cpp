#include "docmodel/propertyfolder.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

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
    std::vector<PropertyReadAhead::Document> documents;
    documents.reserve(size_t(names.size()));
    for (const QString& name : names) {
        const QByteArray bytes = name.toUtf8();
        const auto known = known_.constFind(bytes);
        documents.push_back(
            {bytes, known == known_.constEnd() ? std::nullopt : std::optional(known->state)});
        expected_.insert(bytes);
    }
    ahead_ = std::make_unique<PropertyReadAhead>(folder_.Get(), prefix_, std::move(documents));
}

// Believed is only what is on the disk in the state in which it was read. A link is read at any
// time: what is known of disks is known of the folder's own.
QByteArray PropertyFolder::Read(const QString& name) {
    const QByteArray bytes = name.toUtf8();
    const auto known = known_.constFind(bytes);
    if (known == known_.constEnd())
        return ReadNew(bytes);
    asked_.insert(bytes);
    struct stat status;
    if (StatusAt(folder_.Get(), bytes, AT_SYMLINK_NOFOLLOW, status) &&
        StateOf(status) == known->state)
        return known->record;
    known_.erase(known);
    isChanged_ = true;
    return ReadNew(bytes);
}

QByteArray PropertyFolder::ReadNew(const QByteArray& name) {
    const QString path = prefix_ + QString::fromUtf8(name);
    if (ahead_) {
        ahead_->Start();
        const std::optional<PropertyReadAhead::Outcome> read = ahead_->Take(name);
        struct stat status;
        if (read && !read->failure.isEmpty())
            throw DocumentError(read->failure);
        if (read && StatusAt(folder_.Get(), name, 0, status) &&
            StateOf(status) == read->properties.state) {
            Learn(name, read->properties);
            return read->properties.record;
        }
    }
    const ReadProperties read = ReadPropertiesAt(folder_.Get(), name.constData(), path);
    Learn(name, read);
    return read.record;
}

// What could be changed again without looking changed is not kept in mind: it is read each time.
void PropertyFolder::Learn(const QByteArray& name, const ReadProperties& read) {
    struct stat status;
    if (!grain_ || read.record.size() > kLargestRecord ||
        !IsSettled(read.state, readAt_, *grain_) ||
        !StatusAt(folder_.Get(), name, AT_SYMLINK_NOFOLLOW, status) || S_ISLNK(status.st_mode))
        return;
    known_.insert(name, {read.state, read.record});
    asked_.insert(name);
    isChanged_ = true;
}

// After a search of the whole folder, what it has not asked for may be of documents that are gone.
void PropertyFolder::DropVanished() {
    if (expected_.isEmpty())
        return;
    known_.removeIf([this](QHash<QByteArray, Known>::iterator entry) {
        struct stat status;
        return !asked_.contains(entry.key()) && !expected_.contains(entry.key()) &&
               !StatusAt(folder_.Get(), entry.key(), AT_SYMLINK_NOFOLLOW, status);
    });
}

void PropertyFolder::Store() {
    DropVanished();
    QList<QByteArray> names = known_.keys();
    std::sort(names.begin(), names.end());
    IndexPacker packer(IndexMark::Properties);
    for (const QByteArray& name : names) {
        const Known& known = known_[name];
        packer.Add(name, known.state, known.record);
    }
    index_.Store(path_, packer.Packed(path_));
}

}  // namespace docmodel
