#include "services/paths.h"

#include <sys/stat.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSet>
#include <algorithm>
#include <limits>

namespace docbench {
namespace {

bool IsSeparator(QChar c) {
    return c == u'/' || c == u'\\';
}

// Length of the text up to and including the last separator.
qsizetype SeparatorEnd(const QString& path) {
    const auto last = std::find_if(path.rbegin(), path.rend(), IsSeparator);
    return path.rend() - last;
}

bool IsOnDisk(const QString& path) {
    struct stat status;
    return ::stat(QFile::encodeName(path).constData(), &status) == 0;
}

bool IsFolder(const QString& path) {
    struct stat status;
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode);
}

QString WithPlatformSeparators(QString path) {
    return path.replace(u'\\', u'/');
}

// On a mismatch the last "*" takes one character more, so the time is bounded by the product of the
// lengths.
bool Matches(QStringView name, QStringView pattern) {
    qsizetype n = 0;
    qsizetype p = 0;
    qsizetype star = -1;
    qsizetype afterStar = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            star = p++;
            afterStar = n;
        } else if (p < pattern.size() && (pattern[p] == u'?' || pattern[p] == name[n])) {
            ++p;
            ++n;
        } else if (star >= 0) {
            p = star + 1;
            n = ++afterStar;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.begin() + p, pattern.end(), [](QChar c) { return c == u'*'; });
}

}  // namespace

bool MatchesPattern(QStringView name, QStringView pattern) {
    return pattern == QLatin1String("*.*") || Matches(name, pattern);
}

namespace {

bool AnyMatches(const QString& folder, const QString& pattern) {
    QDirIterator entries(folder.isEmpty() ? QStringLiteral(".") : folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        if (MatchesPattern(entries.fileName(), pattern))
            return true;
    }
    return false;
}

}  // namespace

QString ExtensionOf(const QString& path) {
    return path.mid(path.lastIndexOf(u'.') + 1);
}

QString ExtensionOrEmpty(const QString& path) {
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot < 0 ? QString() : path.mid(dot + 1);
}

QString FileNameOf(const QString& path) {
    return path.mid(SeparatorEnd(path));
}

QString FolderOf(const QString& path) {
    const qsizetype drive = path.size() > 1 && path[1] == u':' ? 2 : 0;
    return path.left(std::max(SeparatorEnd(path), drive));
}

QString FolderNoSeparator(const QString& path) {
    const QString folder = FolderOf(path);
    return !folder.isEmpty() && IsSeparator(folder.back()) ? folder.chopped(1) : folder;
}

QString BaseNameOf(const QString& path) {
    const QString name = FileNameOf(path);
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot >= 0 && DocTypeOf(path) != DocType::None ? name.left(dot) : name;
}

DocType DocTypeOf(const QString& path) {
    const QStringView extension = QStringView(path).mid(path.lastIndexOf(u'.') + 1);
    const auto is = [&](QLatin1String known) {
        return extension.compare(known, Qt::CaseInsensitive) == 0;
    };
    if (is(QLatin1String("TFMPRT")) || is(QLatin1String("PRT")))
        return DocType::Part;
    if (is(QLatin1String("TFMASM")) || is(QLatin1String("ASM")))
        return DocType::Assembly;
    return is(QLatin1String("TFMDRW")) ? DocType::Drawing : DocType::None;
}

bool IsWebPath(const QString& path) {
    return path.contains(QLatin1String("http"), Qt::CaseInsensitive);
}

bool FileExists(const QString& path) {
    if (path.isEmpty())
        return false;
    const QString name = FileNameOf(path);
    if (name.contains(u'*') || name.contains(u'?'))
        return AnyMatches(WithPlatformSeparators(FolderOf(path)), name);
    return IsOnDisk(path) || (path.contains(u'\\') && IsOnDisk(WithPlatformSeparators(path)));
}

bool CreateFolderPath(const QString& path) {
    if (path.isEmpty())
        return false;
    if (IsFolder(path))
        return true;
    const QString folder = WithPlatformSeparators(path);
    return QDir().mkpath(folder) && IsFolder(folder);
}

QString FileAttributeText(quint8 attributes) {
    QString letters;
    if (attributes & kAttributeCompressed)
        letters += u'C';
    if (attributes & kAttributeArchive)
        letters += u'A';
    if (attributes & kAttributeHidden)
        letters += u'H';
    if (attributes & kAttributeReadOnly)
        letters += u'R';
    return letters;
}

qint16 AtLeastOne(qint16 value) {
    return std::max<qint16>(value, 1);
}

qint16 ClampToInt16(qint64 value) {
    return qint16(std::clamp<qint64>(value, 0, std::numeric_limits<qint16>::max()));
}

QStringList RemoveDuplicates(QStringList& entries) {
    QSet<QString> seen;
    QStringList unique;
    for (QString& entry : entries) {
        if (entry.isEmpty())
            continue;
        if (seen.contains(entry)) {
            entry.clear();
        } else {
            seen.insert(entry);
            unique.append(entry);
        }
    }
    return unique;
}

}  // namespace docbench
