#include "docmodel/coreproperties.h"

#include "docmodel/packageerror.h"
#include "docmodel/stamp.h"

namespace docmodel {

namespace {

constexpr char kCore[] = "http://schemas.openxmlformats.org/package/2006/metadata/core-properties";
constexpr char kDublinCore[] = "http://purl.org/dc/elements/1.1/";
constexpr char kTerms[] = "http://purl.org/dc/terms/";
constexpr char kSchemaInstance[] = "http://www.w3.org/2001/XMLSchema-instance";

struct Element {
    const char* namespaceUri;
    const char* prefix;
    const char* name;
};

// By SummaryField.
constexpr Element kFields[kSummaryFields] = {{kDublinCore, "dc", "title"},
                                             {kDublinCore, "dc", "creator"},
                                             {kDublinCore, "dc", "description"},
                                             {kCore, "cp", "keywords"},
                                             {kDublinCore, "dc", "subject"}};
constexpr Element kLastModifiedBy = {kCore, "cp", "lastModifiedBy"};

QString Get(pugi::xml_node root, const Element& element) {
    return TextOf(ChildElement(root, element.namespaceUri, element.name));
}

void Put(pugi::xml_node root, const Element& element, const QString& text) {
    pugi::xml_node node = ChildElement(root, element.namespaceUri, element.name);
    if (text.isEmpty()) {
        root.remove_child(node);
        return;
    }
    if (!node)
        node = AppendElement(root, element.namespaceUri, element.name, element.prefix);
    docmodel::SetText(node, text);
}

}  // namespace

CoreProperties::CoreProperties() : xml_(XmlPart::Make("coreProperties", kCore)) {
    pugi::xml_node root = xml_.Root();
    root.append_attribute("xmlns:dc") = kDublinCore;
    root.append_attribute("xmlns:dcterms") = kTerms;
    root.append_attribute("xmlns:xsi") = kSchemaInstance;
}

CoreProperties::CoreProperties(const QByteArray& bytes, const QString& file, const QByteArray& part)
    : xml_(XmlPart::Parse(bytes, file, part)) {
    if (!IsElement(xml_.Root(), kCore, "coreProperties"))
        throw DamagedError(
            file, QStringLiteral("its part %1 holds no core properties").arg(ShownName(part)));
}

QString CoreProperties::Text(SummaryField field) const {
    return Get(xml_.Root(), kFields[int(field)]);
}

void CoreProperties::SetText(SummaryField field, const QString& text) {
    Put(xml_.Root(), kFields[int(field)], text);
}

Summary CoreProperties::Texts() const {
    Summary texts;
    for (int field = 0; field < kSummaryFields; ++field)
        texts[size_t(field)] = Text(SummaryField(field));
    return texts;
}

QString CoreProperties::Created() const {
    return Get(xml_.Root(), {kTerms, "dcterms", "created"}).trimmed();
}

QString CoreProperties::Modified() const {
    return Get(xml_.Root(), {kTerms, "dcterms", "modified"}).trimmed();
}

QString CoreProperties::LastSavedBy() const {
    return Get(xml_.Root(), kLastModifiedBy);
}

void CoreProperties::SetCreated(const QDateTime& time) {
    SetTime("created", time);
}

void CoreProperties::SetModified(const QDateTime& time, const QString& user) {
    SetTime("modified", time);
    Put(xml_.Root(), kLastModifiedBy, user);
}

void CoreProperties::SetTime(const char* name, const QDateTime& time) {
    pugi::xml_node root = xml_.Root();
    pugi::xml_node node = ChildElement(root, kTerms, name);
    if (!node) {
        node = AppendElement(root, kTerms, name, "dcterms");
        const QByteArray terms = PrefixFor(node, kTerms, "dcterms");
        const QByteArray instance = PrefixFor(node, kSchemaInstance, "xsi");
        node.append_attribute(QByteArray(instance + ":type").constData()) =
            QByteArray(terms + ":W3CDTF").constData();
    }
    docmodel::SetText(node, time.toUTC().toString(Qt::ISODate));
}

QString NameOf(SummaryField field) {
    switch (field) {
        case SummaryField::Title:
            return QStringLiteral("title");
        case SummaryField::Author:
            return QStringLiteral("author");
        case SummaryField::Comments:
            return QStringLiteral("comment");
        case SummaryField::Keywords:
            return QStringLiteral("list of keywords");
        case SummaryField::Subject:
            break;
    }
    return QStringLiteral("subject");
}

QByteArray StampOf(const Summary& texts) {
    Stamp stamp;
    for (const QString& text : texts)
        stamp.Add(text);
    return stamp.Result();
}

}  // namespace docmodel
