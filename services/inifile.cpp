#include "services/inifile.h"

#include <QFileInfo>
#include <QSaveFile>
#include <QSet>
#include <QStringDecoder>
#include <algorithm>

#include "services/wholefile.h"

namespace docbench {
namespace {

constexpr qint64 kLargestFile = 16 << 20;
constexpr char kUnnamed[] = "@";            // stands for the empty name
constexpr char kRootSection[] = "General";  // section of keys without levels

bool IsPlain(QChar c) {
    return c.isLetterOrNumber() || c == u'_' || c == u'-' || c == u'.' || c.unicode() > 0x9f;
}

bool IsHexDigit(QChar c) {
    return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}

// Brings a section or key of the file to the one spelling that keys are compared by.
QString Canonical(const QString& path) {
    QStringList levels;
    for (const QString& level : path.split(QLatin1Char(IniFile::kLevelSeparator)))
        levels.append(IniFile::EncodeLevel(IniFile::DecodeLevel(level.trimmed())));
    return levels.join(QLatin1Char(IniFile::kLevelSeparator));
}

QString Joined(const QString& section, const QString& name) {
    return section.isEmpty() ? name : section + QLatin1Char(IniFile::kLevelSeparator) + name;
}

QString ControlEscape(QChar c) {
    switch (c.unicode()) {
        case u'\n':
            return QStringLiteral("\\n");
        case u'\r':
            return QStringLiteral("\\r");
        case u'\t':
            return QStringLiteral("\\t");
        default:
            return QStringLiteral("\\x%1").arg(c.unicode(), 0, 16);
    }
}

// A section that happens to be called as the root's is spelt in another way.
QByteArray SectionHeader(const QString& section) {
    if (section.isEmpty())
        return QByteArrayLiteral("[General]");
    if (section.compare(QLatin1String(kRootSection), Qt::CaseInsensitive) == 0)
        return "[%" + QByteArray::number(section.front().unicode(), 16) +
               section.sliced(1).toUtf8() + ']';
    return '[' + section.toUtf8() + ']';
}

// Plain words and numbers stand as they are; all else is quoted.
QString EscapeValue(const QString& value) {
    const auto special = [](QChar c) { return !IsPlain(c) && c != u'/' && c != u':' && c != u' '; };
    if (std::none_of(value.begin(), value.end(), special) && value == value.trimmed())
        return value;

    QString escaped = value.startsWith(u'@') ? QStringLiteral("\"@") : QStringLiteral("\"");
    bool afterHex = false;  // a digit right behind would be read as one of the escape's own
    for (const QChar c : value) {
        if (c == u'"' || c == u'\\')
            escaped += u'\\';
        const bool control = c < u' ' || c == u'\x7f';
        const bool ambiguous = afterHex && IsHexDigit(c);
        if (ambiguous)
            escaped += QStringLiteral("\\x%1").arg(c.unicode(), 0, 16);
        else
            escaped += control ? ControlEscape(c) : QString(c);
        afterHex = ambiguous || (control && c != u'\n' && c != u'\r' && c != u'\t');
    }
    return escaped + u'"';
}

// Reads the escape behind the backslash at `at`, moves `at` to its last character.
QString Unescape(const QString& text, qsizetype& at) {
    if (at + 1 >= text.size())
        return QStringLiteral("\\");
    const QChar c = text[++at];
    switch (c.unicode()) {
        case u'n':
            return QStringLiteral("\n");
        case u'r':
            return QStringLiteral("\r");
        case u't':
            return QStringLiteral("\t");
        case u'0':
            return QString(QChar(0));
        case u'x': {
            uint code = 0;
            while (at + 1 < text.size() && IsHexDigit(text[at + 1]))
                code = (code << 4 | QStringView(text).sliced(++at, 1).toUInt(nullptr, 16)) & 0xffff;
            return QString(QChar(char16_t(code)));
        }
        default:
            return QString(c);
    }
}

// Without quotes a text is taken as a person types it: commas, semicolons and single backslashes
// belong to it.
QString UnescapeValue(const QString& text) {
    QString value;
    bool quoted = false;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar c = text[at];
        const bool pair = at + 1 < text.size() && (text[at + 1] == u'\\' || text[at + 1] == u'"');
        if (c == u'\\' && (quoted || pair))
            value += Unescape(text, at);
        else if (c == u'"')
            quoted = !quoted;
        else
            value += c;
    }
    return value.startsWith(QStringLiteral("@@")) ? value.sliced(1) : value;
}

}  // namespace

QString IniFile::EncodeLevel(const QString& text) {
    if (text.isEmpty())
        return QLatin1String(kUnnamed);
    QString encoded;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar c = text[at];
        const bool outer = at == 0 || at == text.size() - 1;
        if ((IsPlain(c) && !c.isSpace() && !c.isSurrogate()) || (c == u' ' && !outer))
            encoded += c;
        else if (c.unicode() <= 0xff)
            encoded += u'%' + QStringLiteral("%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
        else
            encoded += QStringLiteral("%U%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
    }
    return encoded;
}

QString IniFile::DecodeLevel(const QString& encoded) {
    if (encoded == QLatin1String(kUnnamed))
        return {};
    QString text;
    for (qsizetype at = 0; at < encoded.size(); ++at) {
        const bool wide = QStringView(encoded).sliced(at).startsWith(u"%U");
        const qsizetype digits = at + (wide ? 2 : 1);
        bool ok = false;
        const uint code = encoded[at] == u'%'
                              ? QStringView(encoded).mid(digits, wide ? 4 : 2).toUInt(&ok, 16)
                              : 0;
        if (ok)
            at = digits + (wide ? 4 : 2) - 1;
        text += ok ? QChar(char16_t(code)) : encoded[at];
    }
    return text;
}

std::optional<IniFile::Line> IniFile::Parse(const QByteArray& bytes, const QString& section) {
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = QString(decoder(bytes)).trimmed();
    if (decoder.hasError() || bytes.contains('\0'))
        return std::nullopt;
    if (text.isEmpty() || text.startsWith(u';') || text.startsWith(u'#'))
        return Line{Kind::Other, bytes};
    if (text.startsWith(u'[')) {
        if (!text.endsWith(u']'))
            return std::nullopt;
        const QString path = text.sliced(1, text.size() - 2).trimmed();
        const bool root = path.compare(QLatin1String(kRootSection), Qt::CaseInsensitive) == 0;
        return Line{Kind::Section, bytes, root ? QString() : Canonical(path)};
    }
    const qsizetype equals = text.indexOf(u'=');
    if (equals <= 0)
        return std::nullopt;
    return Line{Kind::Value, bytes, Joined(section, Canonical(text.first(equals).trimmed())),
                UnescapeValue(text.sliced(equals + 1).trimmed())};
}

bool IniFile::Load(const QString& path) {
    lines_.clear();
    const QFileInfo info(path);
    if (!info.exists())
        return true;
    QFile file(path);
    if (!info.isFile() || info.size() > kLargestFile || !file.open(QIODevice::ReadOnly))
        return false;

    QByteArray content = file.read(kLargestFile);
    if (file.error() != QFileDevice::NoError || content.size() < info.size())
        return false;
    if (content.endsWith('\n'))
        content.chop(1);
    if (content.isEmpty())
        return true;
    QString section;
    for (const QByteArray& bytes : content.split('\n')) {
        const std::optional<Line> line = Parse(bytes, section);
        if (!line)
            return false;
        if (line->kind == Kind::Section)
            section = line->key;
        lines_.append(*line);
    }
    return true;
}

bool IniFile::Save(const QString& path) const {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    for (const Line& line : lines_)
        file.write(line.bytes + '\n');
    return CommitWhole(file);
}

QStringList IniFile::Names(const QString& section) const {
    const QString prefix = Joined(section, QString());
    QStringList names;
    QSet<QString> known;
    for (const Line& line : lines_) {
        const QStringView name = QStringView(line.key).mid(prefix.size());
        if (line.kind == Kind::Value && line.key.startsWith(prefix) &&
            !name.contains(QLatin1Char(kLevelSeparator))) {
            const QString decoded = DecodeLevel(name.toString());
            if (!known.contains(decoded))
                names.append(decoded);
            known.insert(decoded);
        }
    }
    return names;
}

std::optional<QString> IniFile::Value(const QString& key) const {
    std::optional<QString> value;
    for (const Line& line : lines_) {
        if (line.kind == Kind::Value && line.key == key)
            value = line.value;  // the last one counts
    }
    return value;
}

void IniFile::Set(const QString& section, const QString& encodedName, const QString& value) {
    const Line fresh{Kind::Value, (encodedName + u'=' + EscapeValue(value)).toUtf8(),
                     Joined(section, encodedName), value};
    const auto former = std::find_if(lines_.rbegin(), lines_.rend(), [&](const Line& line) {
        return line.kind == Kind::Value && line.key == fresh.key;
    });
    if (former != lines_.rend()) {
        // Under the name that it has there: the section may be another one, with levels in the
        // name.
        const QByteArray name = former->bytes.first(former->bytes.indexOf('='));
        *former = fresh;
        former->bytes = name + fresh.bytes.sliced(fresh.bytes.indexOf('='));
        return;
    }
    qsizetype place = SectionEnd(section);
    if (place < 0) {
        if (!lines_.isEmpty())
            lines_.append(Line{});
        lines_.append(Line{Kind::Section, SectionHeader(section), section});
        place = lines_.size();
    }
    lines_.insert(place, fresh);
}

qsizetype IniFile::SectionEnd(const QString& section) const {
    qsizetype end = -1;
    QString current;
    for (qsizetype at = 0; at < lines_.size(); ++at) {
        if (lines_[at].kind == Kind::Section)
            current = lines_[at].key;
        if (current == section && !lines_[at].bytes.trimmed().isEmpty())
            end = at + 1;
    }
    return end;
}

bool IniFile::Remove(const QString& key) {
    return lines_.removeIf(
               [&](const Line& line) { return line.kind == Kind::Value && line.key == key; }) > 0;
}

}  // namespace docbench
