#include "docmodel/opc.h"

#include <QHash>
#include <cstring>

namespace docmodel {

namespace {

constexpr char kTypesNamespace[] = "http://schemas.openxmlformats.org/package/2006/content-types";
constexpr char kRelationshipsNamespace[] =
    "http://schemas.openxmlformats.org/package/2006/relationships";

bool SameText(const char* one, const QByteArray& other) {
    return qstricmp(one, other.constData()) == 0;
}

XmlPart PartOrNew(const Package* package, const char* part, const char* root,
                  const char* namespaceUri) {
    return package && package->HasPart(part)
               ? XmlPart::Parse(package->ReadPart(part, kMaxXmlBytes), package->Path(), part)
               : XmlPart::Make(root, namespaceUri);
}

// A target is relative to the package's root, "/" or not.
QByteArray PartNameOf(const char* target) {
    QList<QByteArray> steps;
    for (const QByteArray& step : QByteArray(target).split('/')) {
        if (step.isEmpty() || step == ".")
            continue;
        if (step != "..")
            steps.append(step);
        else if (!steps.isEmpty())
            steps.removeLast();
    }
    return steps.join('/');
}

}  // namespace

const PartKind kDocumentKind = {
    kDocumentPart, "application/vnd.tessaforma.docmodel+xml",
    "http://schemas.tessaforma.com/docmodel/2004/relationships/document", nullptr};
const PartKind kCoreKind = {
    "docProps/core.xml", "application/vnd.openxmlformats-package.core-properties+xml",
    "http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties",
    "http://schemas.openxmlformats.org/officedocument/2006/relationships/metadata/core-properties"};
const PartKind kCustomKind = {
    "docProps/custom.xml", "application/vnd.openxmlformats-officedocument.custom-properties+xml",
    "http://schemas.openxmlformats.org/officeDocument/2006/relationships/custom-properties",
    "http://purl.oclc.org/ooxml/officeDocument/relationships/customProperties"};
const PartKind kThumbnailKind = {
    "docProps/thumbnail.png", "image/png",
    "http://schemas.openxmlformats.org/package/2006/relationships/metadata/thumbnail",
    "http://purl.oclc.org/ooxml/officeDocument/relationships/metadata/thumbnail"};
const PartKind kModelKind = {kModelPart, "application/octet-stream",
                             "http://schemas.tessaforma.com/docmodel/2004/relationships/model",
                             nullptr};

ContentTypes::ContentTypes(const Package* package)
    : xml_(PartOrNew(package, kPart, "Types", kTypesNamespace)) {
    const auto addDefault = [this](const char* extension, const char* type) {
        for (const pugi::xml_node child : xml_.Root())
            if (IsElement(child, kTypesNamespace, "Default") &&
                SameText(child.attribute("Extension").value(), extension))
                return;
        pugi::xml_node added = AppendElement(xml_.Root(), kTypesNamespace, "Default", "");
        added.append_attribute("Extension") = extension;
        added.append_attribute("ContentType") = type;
        changed_ = true;
    };
    addDefault("rels", "application/vnd.openxmlformats-package.relationships+xml");
    addDefault("xml", "application/xml");
}

pugi::xml_node ContentTypes::Find(const QByteArray& part) const {
    for (const pugi::xml_node child : xml_.Root())
        if (IsElement(child, kTypesNamespace, "Override") &&
            SameText(child.attribute("PartName").value(), '/' + part))
            return child;
    return {};
}

void ContentTypes::Set(const QByteArray& part, const QByteArray& type) {
    pugi::xml_node entry = Find(part);
    if (entry && SameText(entry.attribute("ContentType").value(), type))
        return;
    if (!entry) {
        entry = AppendElement(xml_.Root(), kTypesNamespace, "Override", "");
        entry.append_attribute("PartName") = QByteArray('/' + part).constData();
    }
    entry.remove_attribute("ContentType");
    entry.append_attribute("ContentType") = type.constData();
    changed_ = true;
}

void ContentTypes::Remove(const QByteArray& part) {
    if (const pugi::xml_node entry = Find(part)) {
        xml_.Root().remove_child(entry);
        changed_ = true;
    }
}

Relationships::Relationships(const Package* package)
    : xml_(PartOrNew(package, kPart, "Relationships", kRelationshipsNamespace)) {}

pugi::xml_node Relationships::Find(const PartKind& kind) const {
    for (const pugi::xml_node child : xml_.Root()) {
        if (!IsElement(child, kRelationshipsNamespace, "Relationship") ||
            std::strcmp(child.attribute("TargetMode").value(), "External") == 0)
            continue;
        const char* type = child.attribute("Type").value();
        if (std::strcmp(type, kind.relationship) == 0 ||
            (kind.strictRelationship && std::strcmp(type, kind.strictRelationship) == 0))
            return child;
    }
    return {};
}

QByteArray Relationships::Target(const PartKind& kind) const {
    return PartNameOf(Find(kind).attribute("Target").value());
}

QByteArray Relationships::FreeId() const {
    for (int number = 1;; ++number) {
        QByteArray id = "rId" + QByteArray::number(number);
        if (!xml_.Root().find_child_by_attribute("Id", id.constData()))
            return id;
    }
}

void Relationships::Set(const PartKind& kind, const QByteArray& part) {
    pugi::xml_node entry = Find(kind);
    if (entry && SameText(PartNameOf(entry.attribute("Target").value()).constData(), part))
        return;
    if (!entry) {
        entry = AppendElement(xml_.Root(), kRelationshipsNamespace, "Relationship", "");
        entry.append_attribute("Id") = FreeId().constData();
        entry.append_attribute("Type") = kind.relationship;
    }
    entry.remove_attribute("Target");
    entry.append_attribute("Target") = part.constData();
    changed_ = true;
}

// The relationships of a package, and what was found in them.
struct PartFinder::Targets {
    QByteArray image;  // of the part that holds them
    Relationships relationships;
    QHash<const PartKind*, QByteArray> found = {};
};

// Packages of one maker have the same relationships, byte for byte, and understanding them anew
// takes a fifth of the time of a search through properties. So each thread keeps those that it saw
// last.
QByteArray PartFinder::Named(const PartKind& kind) const {
    thread_local std::shared_ptr<Targets> last;
    if (!targets_) {
        if (!package_->HasPart(Relationships::kPart))
            return QByteArray();
        const QByteArray image = package_->PartImage(Relationships::kPart);
        if (!last || image.isEmpty() || image != last->image)
            last = std::make_shared<Targets>(Targets{image, Relationships(package_)});
        targets_ = last;
    }
    const auto found = targets_->found.constFind(&kind);
    if (found != targets_->found.constEnd())
        return *found;
    return *targets_->found.insert(&kind, targets_->relationships.Target(kind));
}

// Another part may have the usual name, so the relationship goes first.
QByteArray PartFinder::Find(const PartKind& kind) const {
    const bool isAtUsualName = package_->HasPart(kind.name);
    if (isAtUsualName && &kind == &kDocumentKind)
        return kind.name;
    if (QByteArray named = Named(kind); !named.isEmpty() && package_->HasPart(named))
        return named;
    return isAtUsualName ? QByteArray(kind.name) : QByteArray();
}

QByteArray FindPart(const Package& package, const PartKind& kind) {
    return PartFinder(package).Find(kind);
}

}  // namespace docmodel
