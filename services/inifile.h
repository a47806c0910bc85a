// An INI file of named texts, in the dialect that QSettings reads, edited line by line.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace docbench {

// The file as it was at Load. What is not changed keeps its bytes, comments included. QSettings
// itself is not used: it keeps a refused write and tries it again later, forgets after the first
// reading that a file is broken, and misses another program's change of the same size in the same
// clock tick.
class IniFile {
public:
    // Separates the levels of a section or key, each of them encoded by EncodeLevel.
    static constexpr char kLevelSeparator = '\\';

    // Makes any text fit to stand in a section or key; the empty one becomes "@".
    static QString EncodeLevel(const QString& text);
    static QString DecodeLevel(const QString& encoded);

    // False when the file can't be read or is no INI file. A missing file is an empty one.
    bool Load(const QString& path);
    // Replaces the file whole. False when it can't be written; the file is then as it was.
    bool Save(const QString& path) const;

    // `section` is a path of encoded levels. Names are those directly in it, decoded, in file
    // order.
    QStringList Names(const QString& section) const;
    // `key` is a section, a separator and an encoded name. None when there is no such line.
    std::optional<QString> Value(const QString& key) const;
    void Set(const QString& section, const QString& encodedName, const QString& value);
    bool Remove(const QString& key);  // false when there was none

private:
    enum class Kind { Other, Section, Value };
    struct Line {
        Kind kind = Kind::Other;
        QByteArray bytes = {};  // as in the file, without the line's end
        QString key = {};       // of a section its path, of a value the whole key
        QString value = {};
    };
    static std::optional<Line> Parse(const QByteArray& bytes, const QString& section);
    // Where a line of the section goes: behind its last one. -1 when there is no such section.
    qsizetype SectionEnd(const QString& section) const;

    QList<Line> lines_;
};

}  // namespace docbench
