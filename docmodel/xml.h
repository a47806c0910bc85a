// The XML parts of a package: bounded parsing, lookups that know namespaces, and writing.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <pugixml.hpp>

#include "services/docaccess.h"

namespace docmodel {

// The largest XML part that is read. Real ones have some kilobytes, those of huge assemblies a few
// MiB.
inline constexpr qint64 kMaxXmlBytes = 32 << 20;

// One parsed part, or a new one. The nodes point into it and live as long as it does.
class XmlPart {
public:
    XmlPart();
    // `file` and `part` stand in the error texts. Raises DocumentError when the bytes are no
    // well-formed XML in UTF-8 or UTF-16, hold a document type declaration, are nested too deeply
    // or would take too much memory.
    static XmlPart Parse(QByteArray bytes, const QString& file, QByteArrayView part);
    // A root element `name` with `namespaceUri` as its default namespace.
    static XmlPart Make(const char* name, const char* namespaceUri);

    pugi::xml_node Root() const { return document_->document_element(); }
    QByteArray Bytes() const;  // as UTF-8 with its declaration, one element a line

private:
    QByteArray bytes_;  // parsed in place
    std::unique_ptr<pugi::xml_document> document_;
};

// Whether XML can hold the text: no control characters, no unpaired surrogates.
bool IsXmlText(const QString& text);
// Raises DocumentError when it can't. `what` names the text in the sentence, such as "title".
void RequireXmlText(const QString& text, const QString& file, const QString& what);
// Raises DocumentError when the bytes, which are to be written as a part, are more than Parse
// takes.
void RequireXmlLimits(QByteArrayView bytes, const QString& file, QByteArrayView part);
// XML reads every line end as a line feed; texts are brought to that before they are stored, so
// that they compare equal when they are read again.
QString WithXmlLineEnds(QString text);

// The name behind the prefix.
const char* LocalName(pugi::xml_node element);
// What the element's prefix, or its absence, stands for at that place; empty if for nothing.
const char* NamespaceOf(pugi::xml_node element);
bool IsElement(pugi::xml_node node, const char* namespaceUri, const char* name);
pugi::xml_node ChildElement(pugi::xml_node parent, const char* namespaceUri, const char* name);

// Appends an element, with the prefix that stands for its namespace there, or else with
// `preferredPrefix` (may be empty), declared on the element.
pugi::xml_node AppendElement(pugi::xml_node parent, const char* namespaceUri, const char* name,
                             const char* preferredPrefix);
// The prefix for `namespaceUri` in an attribute's name or value; declares `preferredPrefix` on the
// element if there is none.
QByteArray PrefixFor(pugi::xml_node element, const char* namespaceUri, const char* preferredPrefix);

QString TextOf(pugi::xml_node element);  // of the element and all below it
void SetText(pugi::xml_node element, const QString& text);
QString AttributeOf(pugi::xml_node element, const char* name);  // empty if missing
void SetAttribute(pugi::xml_node element, const char* name, const QString& value);

}  // namespace docmodel
