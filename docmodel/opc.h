// What makes a ZIP file a package: content types, relationships, and the parts known by them.
#pragma once

#include <QByteArray>
#include <memory>

#include "docmodel/package.h"
#include "docmodel/xml.h"

namespace docmodel {

// One kind of part, as others find it.
struct PartKind {
    const char* name;  // where we put it, and where it is looked for without a relationship
    const char* contentType;
    const char* relationship;
    const char* strictRelationship;  // the same under the names of the strict standard; may be null
};

extern const PartKind kDocumentKind;   // our tables
extern const PartKind kCoreKind;       // title, author and the like
extern const PartKind kCustomKind;     // custom properties
extern const PartKind kThumbnailKind;  // the preview; name and type depend on the picture's format
extern const PartKind kModelKind;      // the model's own data

// The part [Content_Types].xml.
class ContentTypes {
public:
    static constexpr char kPart[] = "[Content_Types].xml";
    // What `package` has; a fresh one when it has none or is null.
    explicit ContentTypes(const Package* package);
    void Set(const QByteArray& part, const QByteArray& type);
    void Remove(const QByteArray& part);
    bool IsChanged() const { return changed_; }
    QByteArray Bytes() const { return xml_.Bytes(); }

private:
    pugi::xml_node Find(const QByteArray& part) const;
    XmlPart xml_;
    bool changed_ = false;
};

// The part _rels/.rels: which part plays which role in the package.
class Relationships {
public:
    static constexpr char kPart[] = "_rels/.rels";
    explicit Relationships(const Package* package);
    // The part of that kind that the package names first; empty if none.
    QByteArray Target(const PartKind& kind) const;
    void Set(const PartKind& kind, const QByteArray& part);  // in place of the former one
    bool IsChanged() const { return changed_; }
    QByteArray Bytes() const { return xml_.Bytes(); }

private:
    pugi::xml_node Find(const PartKind& kind) const;
    QByteArray FreeId() const;
    XmlPart xml_;
    bool changed_ = false;
};

// Finds the parts of a package by what they are. Reads the relationships once, and not for our own
// tables, whose name no other part may have: reading them is what is done a thousand times over.
class PartFinder {
public:
    PartFinder(const Package& package) : package_(&package) {}  // which must outlive the finder
    const Package& Where() const { return *package_; }
    // The name of the part: the one that the package names, else that of the usual name; empty if
    // it has none. Raises DocumentError when the relationships are damaged.
    QByteArray Find(const PartKind& kind) const;

private:
    struct Targets;
    QByteArray Named(const PartKind& kind) const;
    const Package* package_;
    mutable std::shared_ptr<Targets> targets_;  // null: not looked at yet
};

QByteArray FindPart(const Package& package, const PartKind& kind);

}  // namespace docmodel
