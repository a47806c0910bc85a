#include "fuzz/checks.h"

#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdlib>

#include "docmodel/package.h"

namespace docmodel {

void Demand(bool condition) {
    if (!condition)
        std::abort();
}

namespace {

QByteArray PartFor(const QByteArray& xml) {
    const QByteArray head = xml.first(std::min<qsizetype>(xml.size(), 400));
    if (head.contains("coreProperties"))
        return QByteArrayLiteral("docProps/core.xml");
    if (head.contains("custom-properties"))
        return QByteArrayLiteral("docProps/custom.xml");
    return kDocumentPart;
}

void MakePackage(const QString& path, const QByteArray& xml) {
    QList<std::pair<QByteArray, QByteArray>> parts = {{PartFor(xml), xml}};
    if (parts.first().first != kDocumentPart)
        parts.emplaceBack(kDocumentPart,
                          "<document xmlns=\"http://schemas.tessaforma.com/docmodel/2004/document\""
                          " version=\"1\"/>");
    PackageWriter::Create(path, parts, QFile::exists(path));
}

}  // namespace

QString InputFile(const uint8_t* bytes, size_t count) {
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/docbench-fuzz-XXXXXX"));
    const QString path = folder.filePath(QStringLiteral("fuzz.tfmprt"));
    if (count > 0 && bytes[0] == '<') {
        MakePackage(path, QByteArray(reinterpret_cast<const char*>(bytes), qsizetype(count)));
        return path;
    }
    QFile file(path);
    Demand(file.open(QIODevice::WriteOnly));
    Demand(file.write(reinterpret_cast<const char*>(bytes), qint64(count)) == qint64(count));
    return path;
}

QByteArray Contents(const QString& path) {
    QFile file(path);
    Demand(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

}  // namespace docmodel
