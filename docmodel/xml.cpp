#include "docmodel/xml.h"

#include <QStringDecoder>
#include <algorithm>
#include <cstring>

#include "docmodel/packageerror.h"

namespace docmodel {
namespace {

constexpr int kMaxDepth = 64;

// What the parsed tree may take. Each "<" makes up to two nodes (the element and the text before
// it), each "=" up to one attribute.
constexpr qint64 kMaxTreeBytes = 192 << 20;
constexpr qint64 kBytesAnElement = 2 * 72;
constexpr qint64 kBytesAnAttribute = 40;
// Up to here the tree stays far below the bound whatever the bytes are, and counting would cost as
// much as parsing.
constexpr qint64 kUncountedBytes = 256 << 10;

// As a fragment, so that what stands outside the root element is seen.
constexpr unsigned kParseFlags = pugi::parse_default | pugi::parse_fragment | pugi::parse_comments |
                                 pugi::parse_pi | pugi::parse_doctype |
                                 pugi::parse_ws_pcdata_single;

DocumentError XmlError(const QString& file, QByteArrayView part, const QString& reason) {
    return DamagedError(file, QStringLiteral("its part %1 %2").arg(ShownName(part), reason));
}

// Brings UTF-16 to UTF-8 and takes the byte order mark off. Empty if the bytes are neither
// encoding.
QByteArray AsUtf8(QByteArray bytes) {
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) {
        QStringDecoder decoder(QStringConverter::Utf16);
        const QString text = decoder(bytes);
        return decoder.hasError() ? QByteArray() : text.toUtf8();
    }
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    return QUtf8StringView(bytes).isValidUtf8() ? bytes : QByteArray();
}

// XML's line ends are line feeds, before anything else is looked at. What is a carriage return
// behind the parser was written as a reference.
void TakeLineEnds(QByteArray& bytes) {
    if (bytes.contains('\r'))
        bytes.replace("\r\n", "\n").replace('\r', '\n');
}

bool TakesTooMuch(QByteArrayView bytes) {
    if (bytes.size() <= kUncountedBytes)
        return false;
    const auto elements = std::count(bytes.cbegin(), bytes.cend(), '<');
    const auto attributes = std::count(bytes.cbegin(), bytes.cend(), '=');
    return elements * kBytesAnElement + attributes * kBytesAnAttribute > kMaxTreeBytes;
}

// What is beyond the bounds of a part in UTF-8, read or written; empty if nothing is.
QString LimitFault(QByteArrayView bytes) {
    if (bytes.size() > kMaxXmlBytes)
        return QStringLiteral("is too big");
    return TakesTooMuch(bytes) ? QStringLiteral("has too many elements") : QString();
}

bool IsTooDeep(pugi::xml_node top) {
    int depth = 0;
    pugi::xml_node node = top.first_child();
    while (node) {
        if (node.first_child()) {
            node = node.first_child();
            if (++depth >= kMaxDepth)
                return true;
            continue;
        }
        while (node && !node.next_sibling()) {
            node = node.parent();
            --depth;
            if (node == top)
                return false;
        }
        node = node.next_sibling();
    }
    return false;
}

// The parser works in place and overlooks a last character that is text.
bool EndsInTag(QByteArrayView bytes) {
    return bytes.trimmed().endsWith('>');
}

// What is wrong outside the root element; the parser itself doesn't mind.
QString TopLevelFault(const pugi::xml_document& document) {
    int roots = 0;
    for (const pugi::xml_node node : document) {
        if (node.type() == pugi::node_doctype)
            return QStringLiteral("holds a document type declaration, which no package may have");
        if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata)
            return QStringLiteral("has text outside its root element");
        roots += node.type() == pugi::node_element ? 1 : 0;
    }
    return roots == 1 ? QString() : QStringLiteral("has not exactly one root element");
}

class ByteWriter : public pugi::xml_writer {
public:
    void write(const void* data, size_t size) override {
        bytes.append(static_cast<const char*>(data), qsizetype(size));
    }
    QByteArray bytes;
};

// The attribute that declares `prefix` (with its length; 0 for the default namespace)?
bool Declares(const char* attribute, const char* prefix, size_t length) {
    constexpr size_t kXmlns = 5;
    if (std::strncmp(attribute, "xmlns", kXmlns) != 0)
        return false;
    if (length == 0)
        return attribute[kXmlns] == '\0';
    return attribute[kXmlns] == ':' && std::strlen(attribute + kXmlns + 1) == length &&
           std::memcmp(attribute + kXmlns + 1, prefix, length) == 0;
}

const char* NamespaceOfPrefix(pugi::xml_node scope, const char* prefix, size_t length) {
    for (; scope; scope = scope.parent())
        for (pugi::xml_attribute attribute = scope.first_attribute(); attribute;
             attribute = attribute.next_attribute())
            if (Declares(attribute.name(), prefix, length))
                return attribute.value();
    return "";
}

// A prefix that stands for the namespace in `scope` and is not declared anew on the way; null if
// there is none. The default namespace counts as the prefix "" unless `named` asks for a real one.
QByteArray PrefixInScope(pugi::xml_node scope, const char* namespaceUri, bool named) {
    for (pugi::xml_node node = scope; node; node = node.parent()) {
        for (const pugi::xml_attribute attribute : node.attributes()) {
            const QByteArray name(attribute.name());
            const bool isDefault = name == "xmlns";
            if ((!isDefault && !name.startsWith("xmlns:")) || (isDefault && named))
                continue;
            if (std::strcmp(attribute.value(), namespaceUri) != 0)
                continue;
            QByteArray prefix = isDefault ? QByteArray("") : name.mid(6);
            const char* nearest =
                NamespaceOfPrefix(scope, prefix.constData(), size_t(prefix.size()));
            if (std::strcmp(nearest, namespaceUri) == 0)
                return prefix;
        }
    }
    return QByteArray();
}

}  // namespace

XmlPart::XmlPart() : document_(std::make_unique<pugi::xml_document>()) {}

XmlPart XmlPart::Parse(QByteArray bytes, const QString& file, QByteArrayView part) {
    if (bytes.size() > kMaxXmlBytes)
        throw XmlError(file, part, QStringLiteral("is too big"));
    XmlPart parsed;
    parsed.bytes_ = AsUtf8(std::move(bytes));
    if (parsed.bytes_.isEmpty())
        throw XmlError(file, part, QStringLiteral("is empty or no text in UTF-8"));
    if (const QString fault = LimitFault(parsed.bytes_); !fault.isEmpty())
        throw XmlError(file, part, fault);
    TakeLineEnds(parsed.bytes_);
    if (!EndsInTag(parsed.bytes_))
        throw XmlError(file, part, QStringLiteral("does not end in a tag"));
    const pugi::xml_parse_result result = parsed.document_->load_buffer_inplace(
        parsed.bytes_.data(), size_t(parsed.bytes_.size()), kParseFlags, pugi::encoding_utf8);
    if (!result)
        throw XmlError(file, part,
                       QStringLiteral("is no XML (%1 at byte %2)")
                           .arg(QString::fromLatin1(result.description()).toLower())
                           .arg(result.offset));
    const QString fault = TopLevelFault(*parsed.document_);
    if (!fault.isEmpty())
        throw XmlError(file, part, fault);
    if (IsTooDeep(*parsed.document_))
        throw XmlError(file, part, QStringLiteral("is nested too deeply"));
    return parsed;
}

XmlPart XmlPart::Make(const char* name, const char* namespaceUri) {
    XmlPart made;
    pugi::xml_node root = made.document_->append_child(name);
    root.append_attribute("xmlns") = namespaceUri;
    return made;
}

QByteArray XmlPart::Bytes() const {
    ByteWriter writer;
    writer.bytes = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
    document_->save(writer, "", pugi::format_indent | pugi::format_no_declaration,
                    pugi::encoding_utf8);
    return writer.bytes.replace("\r", "&#13;");  // which the writer leaves as it is in texts
}

bool IsXmlText(const QString& text) {
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.unicode() < 0x20 && c != u'\t' && c != u'\n' && c != u'\r')
            return false;
        if (c.unicode() >= 0xFFFE || c.isLowSurrogate())
            return false;
        if (c.isHighSurrogate() && (++i == text.size() || !text[i].isLowSurrogate()))
            return false;
    }
    return true;
}

void RequireXmlText(const QString& text, const QString& file, const QString& what) {
    if (!IsXmlText(text))
        throw FailedError(file, QStringLiteral("changed"),
                          QStringLiteral("the %1 holds a character that no document can store. "
                                         "Remove the control characters from it")
                              .arg(what));
}

void RequireXmlLimits(QByteArrayView bytes, const QString& file, QByteArrayView part) {
    if (const QString fault = LimitFault(bytes); !fault.isEmpty())
        throw FailedError(file, QStringLiteral("saved"),
                          QStringLiteral("its part %1, with the change, %2 to be opened again. "
                                         "Change less, or shorten the texts")
                              .arg(ShownName(part), fault));
}

QString WithXmlLineEnds(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return text.replace(u'\r', u'\n');
}

const char* LocalName(pugi::xml_node element) {
    const char* colon = std::strchr(element.name(), ':');
    return colon ? colon + 1 : element.name();
}

const char* NamespaceOf(pugi::xml_node element) {
    const char* name = element.name();
    const char* colon = std::strchr(name, ':');
    return NamespaceOfPrefix(element, name, colon ? size_t(colon - name) : 0);
}

bool IsElement(pugi::xml_node node, const char* namespaceUri, const char* name) {
    return node.type() == pugi::node_element && std::strcmp(LocalName(node), name) == 0 &&
           std::strcmp(NamespaceOf(node), namespaceUri) == 0;
}

pugi::xml_node ChildElement(pugi::xml_node parent, const char* namespaceUri, const char* name) {
    for (const pugi::xml_node child : parent)
        if (IsElement(child, namespaceUri, name))
            return child;
    return {};
}

pugi::xml_node AppendElement(pugi::xml_node parent, const char* namespaceUri, const char* name,
                             const char* preferredPrefix) {
    QByteArray prefix = PrefixInScope(parent, namespaceUri, false);
    const bool declare = prefix.isNull();
    if (declare)
        prefix = preferredPrefix;
    pugi::xml_node element =
        parent.append_child(prefix.isEmpty() ? name : QByteArray(prefix + ':' + name).constData());
    if (declare)
        element.append_attribute(
            prefix.isEmpty() ? "xmlns" : QByteArray("xmlns:" + prefix).constData()) = namespaceUri;
    return element;
}

QByteArray PrefixFor(pugi::xml_node element, const char* namespaceUri,
                     const char* preferredPrefix) {
    QByteArray prefix = PrefixInScope(element, namespaceUri, true);
    if (prefix.isNull()) {
        prefix = preferredPrefix;
        element.append_attribute(QByteArray("xmlns:" + prefix).constData()) = namespaceUri;
    }
    return prefix;
}

QString TextOf(pugi::xml_node element) {
    QString text;
    pugi::xml_node node = element.first_child();
    while (node) {
        if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata)
            text += QString::fromUtf8(node.value());
        if (node.first_child()) {
            node = node.first_child();
            continue;
        }
        while (node && node != element && !node.next_sibling())
            node = node.parent();
        if (node == element)
            break;
        node = node.next_sibling();
    }
    return text;
}

void SetText(pugi::xml_node element, const QString& text) {
    element.remove_children();
    if (!text.isEmpty())
        element.append_child(pugi::node_pcdata).set_value(text.toUtf8().constData());
}

QString AttributeOf(pugi::xml_node element, const char* name) {
    return QString::fromUtf8(element.attribute(name).value());
}

void SetAttribute(pugi::xml_node element, const char* name, const QString& value) {
    pugi::xml_attribute attribute = element.attribute(name);
    if (!attribute)
        attribute = element.append_attribute(name);
    attribute.set_value(value.toUtf8().constData());
}

}  // namespace docmodel
