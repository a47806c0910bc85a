#include "docmodel/referencepath.h"

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QStringList>
#include <algorithm>

#include "docmodel/webaddress.h"

namespace docmodel {
namespace {

bool HasDrive(const QString& path) {
    return path.size() > 1 && path[1] == u':' && path[0].isLetter();
}

bool IsAbsolute(const QString& path) {
    return path.startsWith(u'/') || HasDrive(path);
}

bool IsThere(const QString& path) {
    struct stat status;
    return ::stat(QFile::encodeName(path).constData(), &status) == 0;
}

// Whether the path is clean already, as nearly all stored ones are.
bool NeedsCleaning(QStringView path) {
    bool atStart = true;  // of a step
    for (qsizetype i = 0; i < path.size(); ++i) {
        const QChar c = path[i];
        if (c == u'\\' || (atStart && c == u'.') || (atStart && i > 0 && c == u'/'))
            return true;
        atStart = c == u'/';
    }
    return atStart && path.size() > 1;
}

// Takes "." and ".." and empty steps out. ".." above the top stays in a relative path and goes away
// in an absolute one.
QString Folded(const QString& path, bool absolute) {
    QList<QStringView> steps;
    for (const QStringView step : QStringView(path).split(u'/')) {
        if (step.isEmpty() || step == u".")
            continue;
        const bool isUp = step == u"..";
        if (isUp && !steps.isEmpty() && steps.last() != u"..")
            steps.removeLast();
        else if (!isUp || !absolute)
            steps.append(step);
    }
    QString folded;
    folded.reserve(path.size());
    for (const QStringView step : steps) {
        if (absolute || !folded.isEmpty())
            folded += u'/';
        folded += step;
    }
    return folded;
}

QString WithSlashes(QString path) {
    if (path.contains(u'\\') && (HasDrive(path) || !path.contains(u'/')))
        path.replace(u'\\', u'/');
    return path;
}

// The way from one absolute folder to a path. Empty if there is none, as to another system's drive.
QString RelativeTo(const QString& folder, const QString& path) {
    const QStringList from = folder.split(u'/', Qt::SkipEmptyParts);
    const QStringList to = path.split(u'/', Qt::SkipEmptyParts);
    if (to.isEmpty() || HasDrive(path))
        return {};
    const auto [fromLeft, toLeft] =
        std::mismatch(from.begin(), from.end(), to.begin(), to.end() - 1);
    QStringList steps(from.end() - fromLeft, QStringLiteral(".."));
    std::for_each(toLeft, to.end(), [&](const QString& step) { steps.append(step); });
    return steps.join(u'/');
}

// A relative row of a web document. The address of the folder is left as it is, its "//" too.
QString InWebFolder(const QString& webFolder, const QString& relative) {
    QString folder = webFolder;
    QString rest = relative;
    const qsizetype hostEnd = folder.indexOf(u'/', folder.indexOf(QLatin1String("//")) + 2);
    while (rest.startsWith(QLatin1String("../"))) {
        rest.remove(0, 3);
        const qsizetype up = folder.lastIndexOf(u'/', folder.size() - 2);
        if (up >= hostEnd && hostEnd >= 0)
            folder.truncate(up + 1);
    }
    return folder + rest;
}

// Whether `relative`, taken from the folder, is the same text as `path`. Says no when in doubt.
bool IsSameWay(QStringView path, QStringView folder, QStringView relative) {
    while (relative.startsWith(u"../") && folder.size() > 1) {
        relative = relative.sliced(3);
        folder = folder.first(folder.chopped(1).lastIndexOf(u'/') + 1);
    }
    return path.size() == folder.size() + relative.size() && path.startsWith(folder) &&
           path.endsWith(relative);
}

}  // namespace

bool IsUrl(const QString& path) {
    return path.startsWith(QLatin1String("http://"), Qt::CaseInsensitive) ||
           path.startsWith(QLatin1String("https://"), Qt::CaseInsensitive);
}

QString CleanPath(const QString& path) {
    if (!NeedsCleaning(path))
        return path;
    const QString slashed = WithSlashes(path);
    if (!HasDrive(slashed))
        return Folded(slashed, slashed.startsWith(u'/'));
    return slashed.left(2) + Folded(slashed.mid(2), true);
}

QString AbsolutePath(const QString& path) {
    const bool isAbsolute = path.isEmpty() || path.startsWith(u'/');
    return isAbsolute ? path : QDir::currentPath() + u'/' + path;
}

QString HolderFolder(const QString& path) {
    const QString absolute = AbsolutePath(path);
    const QString clean = NeedsCleaning(absolute) ? Folded(absolute, true) : absolute;
    return clean.left(clean.lastIndexOf(u'/') + 1);
}

StoredPath StoredPathFor(const QString& path, const QString& holderFolder) {
    if (IsUrl(path))
        return {WithoutUser(path), {}};  // documents go to others, and passwords with them
    const QString slashed = WithSlashes(path);
    const QString given = IsAbsolute(slashed) ? path : CleanPath(holderFolder + slashed);
    return {given, RelativeTo(holderFolder, CleanPath(given))};
}

PathChoice PossiblePaths(const StoredPath& stored, const QString& holderFolder) {
    const QString& path = stored.path;
    if (IsUrl(path))
        return {path, {}};
    const bool onlyRelative = stored.relative.isEmpty() && !IsAbsolute(path);
    const QString& relative = onlyRelative ? path : stored.relative;
    // Most documents lie where they lay when the row was written: then both ways are one.
    if (relative.isEmpty() || IsSameWay(path, holderFolder, relative))
        return {CleanPath(path), {}};
    QString beside = CleanPath(holderFolder + WithSlashes(relative));
    QString absolute = onlyRelative ? beside : CleanPath(path);
    if (absolute == beside || absolute.isEmpty())
        return {beside, {}};
    return {absolute, beside};
}

QString ChosenPath(const PathChoice& choice) {
    const bool isMoved =
        !choice.beside.isEmpty() && !IsThere(choice.usual) && IsThere(choice.beside);
    return isMoved ? choice.beside : choice.usual;
}

QString ResolvePath(const StoredPath& stored, const QString& holderFolder,
                    const QString& webFolder) {
    if (webFolder.isEmpty() || IsUrl(stored.path))
        return ChosenPath(PossiblePaths(stored, holderFolder));
    const bool onlyRelative = stored.relative.isEmpty() && !IsAbsolute(stored.path);
    const QString& relative = onlyRelative ? stored.path : stored.relative;
    return relative.isEmpty() ? CleanPath(stored.path)
                              : InWebFolder(webFolder, CleanPath(relative));
}

}  // namespace docmodel
