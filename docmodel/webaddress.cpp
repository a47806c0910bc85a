#include "docmodel/webaddress.h"

#include <QStringConverter>
#include <QUrl>

namespace docmodel {
namespace {

constexpr char kSeparator[] = "://";
constexpr qsizetype kSeparatorLength = 3;

bool IsUnreserved(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '.' || c == '_' || c == '~';
}

int HexValue(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = char(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

// The byte that an escape at `at` stands for; -1 if there is none.
int EscapeAt(const QByteArray& text, qsizetype at) {
    if (text[at] != '%' || at + 2 >= text.size())
        return -1;
    const int high = HexValue(text[at + 1]);
    const int low = HexValue(text[at + 2]);
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

constexpr qsizetype kEscapeLength = 3;

// Behind `to`, where there must be room.
char* WriteEscape(char* to, char byte) {
    constexpr char kDigits[] = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    *to++ = '%';
    *to++ = kDigits[value >> 4];
    *to++ = kDigits[value & 15];
    return to;
}

QByteArray EscapedPath(const QByteArray& text) {
    QByteArray escaped(text.size() * kEscapeLength, Qt::Uninitialized);
    char* end = escaped.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int escape = EscapeAt(text, i);
        const char byte = escape < 0 ? text[i] : char(escape);
        if (IsUnreserved(byte) || (byte == '/' && escape < 0))
            *end++ = byte;
        else
            end = WriteEscape(end, byte);
        if (escape >= 0)
            i += 2;
    }
    escaped.truncate(end - escaped.constData());
    return escaped;
}

// RFC 3986, 5.2.4: "a/./b" and "a/x/../b" are "a/b".
QByteArray WithoutDotSegments(const QByteArray& path) {
    QList<QByteArray> kept;
    const QList<QByteArray> segments = path.mid(1).split('/');
    for (qsizetype i = 0; i < segments.size(); ++i) {
        const bool isUp = segments[i] == "..";
        if (!isUp && segments[i] != ".") {
            kept.append(segments[i]);
            continue;
        }
        if (isUp && !kept.isEmpty())
            kept.removeLast();
        if (i == segments.size() - 1)
            kept.append(QByteArray());
    }
    return '/' + kept.join('/');
}

unsigned DefaultPort(const QByteArray& scheme) {
    return scheme == "https" ? 443 : 80;
}

QByteArray CheckedHost(const QString& text) {
    if (text.startsWith(u'[')) {
        if (!text.endsWith(u']') || text.size() < 4)
            return {};
        for (const QChar c : text.mid(1, text.size() - 2))
            if (c.unicode() > 0x7F || (HexValue(char(c.unicode())) < 0 && c != u':' && c != u'.'))
                return {};
        return text.toLower().toLatin1();
    }
    // Not for plain names: it knows none with an underscore.
    const bool isPlain = text.toUtf8().size() == text.size();
    QByteArray ascii = (isPlain ? text.toLatin1() : QUrl::toAce(text)).toLower();
    for (const char c : std::as_const(ascii))
        if (!IsUnreserved(c))
            return {};
    return ascii;
}

// "user:password@host:port" to its members; false if it is none.
bool ReadAuthority(const QString& text, WebAddress& address) {
    const qsizetype at = text.lastIndexOf(u'@');
    if (at >= 0) {
        const QString login = text.left(at);
        const qsizetype colon = login.indexOf(u':');
        const auto decoded = [](const QString& part) {
            return QString::fromUtf8(QByteArray::fromPercentEncoding(part.toUtf8()));
        };
        address.user = decoded(colon < 0 ? login : login.left(colon));
        address.password = colon < 0 ? QString() : decoded(login.mid(colon + 1));
    }
    const QString server = text.mid(at + 1);
    const qsizetype colon = server.lastIndexOf(u':');
    const bool hasPort = colon > server.lastIndexOf(u']');
    address.host = CheckedHost(hasPort ? server.left(colon) : server);
    address.port = DefaultPort(address.scheme);
    if (hasPort && colon + 1 < server.size()) {
        bool isNumber = false;
        const ushort port = server.mid(colon + 1).toUShort(&isNumber);
        if (!isNumber || port == 0)
            return false;
        address.port = port;
    }
    return !address.host.isEmpty();
}

std::optional<WebAddress> Parsed(const QString& text) {
    const qsizetype separator = text.indexOf(QLatin1String(kSeparator));
    WebAddress address;
    address.scheme = text.left(qMax<qsizetype>(separator, 0)).toLower().toUtf8();
    if (address.scheme != "http" && address.scheme != "https")
        return std::nullopt;
    const qsizetype start = separator + kSeparatorLength;
    const qsizetype slash = text.indexOf(u'/', start);
    const qsizetype end = slash < 0 ? text.size() : slash;
    if (!ReadAuthority(text.mid(start, end - start), address))
        return std::nullopt;
    address.path = slash < 0 ? QByteArray("/") : EscapedPath(text.mid(slash).toUtf8());
    return address;
}

// Whether undoing its escape would change what FromUser makes of the text.
bool MustStayEscaped(const QByteArray& bytes, qsizetype at, bool isUtf8) {
    const auto byte = static_cast<unsigned char>(bytes[at]);
    if (byte < 0x20 || byte == 0x7F || byte == '/' || byte == '\\')
        return true;
    return byte == '%' ? EscapeAt(bytes, at) >= 0 : byte > 0x7F && !isUtf8;
}

QString UnescapedSegment(const QByteArray& escaped) {
    const QByteArray bytes = QByteArray::fromPercentEncoding(escaped);
    const bool isUtf8 = QUtf8StringView(bytes).isValidUtf8();
    QByteArray shown(bytes.size() * kEscapeLength, Qt::Uninitialized);
    char* end = shown.data();
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (MustStayEscaped(bytes, i, isUtf8))
            end = WriteEscape(end, bytes[i]);
        else
            *end++ = bytes[i];
    }
    return QString::fromUtf8(shown.constData(), end - shown.constData());
}

}  // namespace

std::optional<WebAddress> WebAddress::FromUser(const QString& text) {
    std::optional<WebAddress> address = Parsed(QString(text).replace(u'\\', u'/'));
    if (address)
        address->path = WithoutDotSegments(address->path);
    return address;
}

std::optional<WebAddress> WebAddress::FromServer(const QByteArray& text, const WebAddress& base) {
    if (!text.startsWith('/') || text.startsWith("//"))
        return Parsed(QString::fromUtf8(text));
    WebAddress address = base;
    address.path = EscapedPath(text);
    return address;
}

QString WebAddress::Server() const {
    return QString::fromLatin1(scheme + kSeparator + host + ':' + QByteArray::number(port));
}

QByteArray WebAddress::Sent() const {
    QByteArray sent = scheme + kSeparator + host;
    if (port != DefaultPort(scheme))
        sent += ':' + QByteArray::number(port);
    return sent + path;
}

QString WebAddress::Shown() const {
    const QByteArray sent = Sent();
    return QString::fromLatin1(sent.left(sent.size() - path.size())) + UnescapedForUser(path);
}

WebAddress WebAddress::AsFolder() const {
    WebAddress folder = *this;
    if (!folder.path.endsWith('/'))
        folder.path += '/';
    return folder;
}

bool WebAddress::IsOnSameServer(const WebAddress& other) const {
    return scheme == other.scheme && host == other.host && port == other.port;
}

bool WebAddress::HasDotSegments() const {
    return path.contains("/.") && WithoutDotSegments(path) != path;
}

QString UnescapedForUser(const QByteArray& escaped) {
    if (!escaped.contains('%'))
        return QString::fromUtf8(escaped);
    if (!escaped.contains('/'))
        return UnescapedSegment(escaped);
    QStringList segments;
    for (const QByteArray& segment : escaped.split('/'))
        segments.append(UnescapedSegment(segment));
    return segments.join(u'/');
}

}  // namespace docmodel
