#include "docmodel/referencetarget.h"

#include <cstring>

#include "docmodel/referencepath.h"

namespace docmodel {

namespace {

// Length of the path up to and including the last separator of either kind.
qsizetype FolderLength(QStringView path) {
    qsizetype length = path.size();
    while (length > 0 && path[length - 1] != u'/' && path[length - 1] != u'\\')
        --length;
    return length;
}

bool SameName(QStringView one, QStringView other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

// The name without what stands behind its last dot, and the dot.
QStringView StemOf(QStringView name) {
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? name : name.first(dot);
}

// The character in the case that CaseInsensitive compares in.
char32_t FoldedAt(QStringView text, qsizetype& i) {
    const QChar first = text[i++];
    if (first.unicode() < 0x80)
        return first >= u'A' && first <= u'Z' ? first.unicode() + 0x20U : first.unicode();
    if (first.isHighSurrogate() && i < text.size() && text[i].isLowSurrogate())
        return QChar::toCaseFolded(QChar::surrogateToUcs4(first, text[i++]));
    return QChar::toCaseFolded(char32_t(first.unicode()));
}

}  // namespace

quint32 StemHash(QStringView path) {
    const QStringView stem = StemOf(path.sliced(FolderLength(path)));
    quint32 hash = 2166136261U;  // FNV-1a
    for (qsizetype i = 0; i < stem.size();)
        hash = (hash ^ quint32(FoldedAt(stem, i))) * 16777619U;
    return hash;
}

ReferenceTarget::ReferenceTarget(const docbench::ReferenceQuery& query)
    : isFullPath_(query.fullPathFlag == 1) {
    if (!isFullPath_) {
        SetName(query.baseName, query.extension);
        return;
    }
    const QString path = IsUrl(query.fullPath) ? query.fullPath : CleanPath(query.fullPath);
    const qsizetype folderLength = FolderLength(path);
    folder_ = path.left(folderLength);
    const QString name = path.mid(folderLength);
    if (name.endsWith(QLatin1String(".*")))
        SetName(name.chopped(2), QStringLiteral("*"));
    else
        SetName(name, QString());
}

void ReferenceTarget::SetName(const QString& base, const QString& extension) {
    anyExtension_ = extension == QLatin1String("*");
    const bool isWhole = anyExtension_ || extension.isEmpty();
    name_ = isWhole ? base : base + u'.' + extension;
    isBareExtension_ = !isWhole && SameName(base, extension);
    stemHashes_.append(StemHash(name_));
    // A name that holds a dot may be followed by an extension, and then is the stem itself.
    const quint32 behindDot = StemHash(QString(base + u'.'));
    if (behindDot != stemHashes_[0])
        stemHashes_.append(behindDot);
}

bool ReferenceTarget::NameMatches(QStringView name) const {
    if (SameName(name, name_))
        return true;
    if (anyExtension_)
        return name.contains(u'.') && SameName(StemOf(name), name_);
    return isBareExtension_ && SameName(name, StemOf(name_));
}

bool ReferenceTarget::Matches(const QString& path) const {
    const QStringView whole(path);
    const qsizetype folderLength = FolderLength(whole);
    return NameMatches(whole.sliced(folderLength)) &&
           (!isFullPath_ || whole.first(folderLength) == folder_);
}

QByteArrayView BytesOf(const std::vector<quint32>& stemHashes) {
    return {reinterpret_cast<const char*>(stemHashes.data()),
            qsizetype(stemHashes.size() * sizeof(quint32))};
}

bool HoldsHash(QByteArrayView stemHashes, quint32 hash) {
    constexpr qsizetype kBytes = sizeof hash;
    for (qsizetype at = 0; at + kBytes <= stemHashes.size(); at += kBytes) {
        quint32 held;
        std::memcpy(&held, stemHashes.data() + at, sizeof held);
        if (held == hash)
            return true;
    }
    return false;
}

}  // namespace docmodel
