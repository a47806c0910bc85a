#include "docmodel/documentcontent.h"

#include <algorithm>

namespace docmodel {

namespace {

template <typename Part>
std::optional<Part> ReadPart(const PartFinder& parts, const PartKind& kind) {
    const QByteArray name = parts.Find(kind);
    if (name.isEmpty())
        return std::nullopt;
    const Package& package = parts.Where();
    return Part(package.ReadPart(name, kMaxXmlBytes), package.Path(), name);
}

bool SamePart(const QByteArray& one, const QByteArray& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

}  // namespace

std::optional<DocumentPart> ReadTables(const PartFinder& parts) {
    return ReadPart<DocumentPart>(parts, kDocumentKind);
}

std::optional<CoreProperties> ReadCore(const PartFinder& parts) {
    return ReadPart<CoreProperties>(parts, kCoreKind);
}

std::optional<CustomProperties> ReadCustom(const PartFinder& parts) {
    return ReadPart<CustomProperties>(parts, kCustomKind);
}

DocumentContent::DocumentContent(const Package* package, const QString& file)
    : package_(package), file_(file) {
    if (package)
        finder_.emplace(*package);
}

DocumentPart& DocumentContent::Tables() {
    if (!tables_ && finder_)
        tables_ = ReadTables(*finder_);
    if (!tables_)
        tables_.emplace();
    return *tables_;
}

CoreProperties& DocumentContent::Core() {
    if (!core_ && finder_)
        core_ = ReadCore(*finder_);
    if (!core_)
        core_.emplace();
    return *core_;
}

CustomProperties& DocumentContent::Custom() {
    if (!custom_ && finder_)
        custom_ = ReadCustom(*finder_);
    if (!custom_)
        custom_.emplace();
    return *custom_;
}

void DocumentContent::Put(const PartKind& kind, const QByteArray& name, const QByteArray& type,
                          const QByteArray& bytes) {
    const QByteArray former = Find(kind);
    if (!former.isEmpty() && !SamePart(former, name))
        Remove(former);
    others_.removeIf([&](const OtherPart& part) { return SamePart(part.name, name); });
    others_.append({name, bytes});
    Enter(kind, name, type);
}

DocumentContent::Parts DocumentContent::Changed() {
    const QByteArray tables = Find(kDocumentKind);
    if (tables != kDocumentPart) {
        if (!tables.isEmpty())
            Remove(tables);
        Enter(kDocumentKind, kDocumentPart, kDocumentKind.contentType);
        // What was found by its name alone is made known to others as well.
        EnterIfThere(kCoreKind);
        EnterIfThere(kCustomKind);
    }
    Parts parts;
    if (core_) {
        parts.append({NameFor(kCoreKind), Checked(NameFor(kCoreKind), core_->Bytes())});
        Enter(kCoreKind, NameFor(kCoreKind), kCoreKind.contentType);
    }
    if (custom_ && custom_->IsChanged()) {
        parts.append({NameFor(kCustomKind), Checked(NameFor(kCustomKind), custom_->Bytes())});
        Enter(kCustomKind, NameFor(kCustomKind), kCustomKind.contentType);
    }
    for (const OtherPart& part : others_)
        parts.append({part.name, part.bytes});
    if (relationships_ && relationships_->IsChanged())
        parts.prepend(
            {Relationships::kPart, Checked(Relationships::kPart, relationships_->Bytes())});
    if (types_ && types_->IsChanged())
        parts.prepend({ContentTypes::kPart, Checked(ContentTypes::kPart, types_->Bytes())});
    return parts;
}

QByteArray DocumentContent::TablesBytes() {
    return Checked(kDocumentPart, Tables().Bytes());
}

// What could not be read again must not be written.
QByteArray DocumentContent::Checked(const QByteArray& name, const QByteArray& bytes) const {
    RequireXmlLimits(bytes, file_, name);
    return bytes;
}

void DocumentContent::EnterIfThere(const PartKind& kind) {
    if (const QByteArray name = Find(kind); !name.isEmpty())
        Enter(kind, name, kind.contentType);
}

void DocumentContent::Enter(const PartKind& kind, const QByteArray& name, const QByteArray& type) {
    // A part that the package has is entered already, except where our tables are new to it.
    if (Find(kind) == name && !types_)
        return;
    if (!types_)
        types_.emplace(package_);
    if (!relationships_)
        relationships_.emplace(package_);
    types_->Set(name, type);
    relationships_->Set(kind, name);
}

void DocumentContent::Remove(const QByteArray& name) {
    removed_.append(name);
    if (!types_)
        types_.emplace(package_);
    types_->Remove(name);
}

QByteArray DocumentContent::Find(const PartKind& kind) const {
    return finder_ ? finder_->Find(kind) : QByteArray();
}

QByteArray DocumentContent::NameFor(const PartKind& kind) const {
    const QByteArray name = Find(kind);
    return name.isEmpty() ? QByteArray(kind.name) : name;
}

}  // namespace docmodel
