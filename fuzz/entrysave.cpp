#include <QFile>
#include <QMap>
#include <cstdlib>

#include "docmodel/package.h"
#include "fuzz/checks.h"
#include "fuzz/entries.h"

namespace docmodel {

namespace {

using Parts = QMap<QByteArray, QByteArray>;

constexpr qint64 kLimit = 1 << 20;
constexpr char kPutPart[] = "docProps/core.xml";

// The parts that can be read, but for those that the save writes.
Parts ReadableParts(const Package& package) {
    Parts parts;
    for (const QByteArray& name : package.PartNames()) {
        const QByteArray lower = name.toLower();
        if (lower == QByteArray(kPutPart).toLower() || lower == kDocumentPart)
            continue;
        try {
            parts.insert(name, package.ReadPart(name, kLimit));
        } catch (const DocumentError&) {
            parts.insert(name, "unreadable");
        }
    }
    return parts;
}

void DemandState(const QString& path, const Parts& parts, const QByteArray& put,
                 const QByteArray& document) {
    const Package package = Package::Open(path);
    Demand(package.ReadPart(kDocumentPart, kLimit) == document);
    Demand(package.ReadPart(kPutPart, kLimit) == put);
    Demand(ReadableParts(package) == parts);
}

// The parts that were there before; none if the document was refused, and then left alone.
std::optional<Parts> Save(const QString& path, const QByteArray& put, const QByteArray& document) {
    const QByteArray before = Contents(path);
    try {
        PackageWriter writer(path);
        const Parts parts = ReadableParts(writer.Current());
        writer.Put(kPutPart, put);
        writer.Commit(document);
        return parts;
    } catch (const DocumentError& error) {
        Demand(error.Description().contains(path));
        Demand(Contents(path) == before);
        return std::nullopt;
    }
}

}  // namespace

void FuzzSave(const uint8_t* bytes, size_t count) {
    const QString path = InputFile(bytes, count);
    constexpr int kLarge = 100'000;  // synced on its own
    const QByteArray put(count % 4 == 0 ? kLarge : int(count % 1000), char('a' + count % 26));
    const QByteArray document = "<document bytes=\"" + QByteArray::number(count) + "\"/>";
    const std::optional<Parts> parts = Save(path, put, document);
    if (!parts)
        return;
    try {
        DemandState(path, *parts, put, document);
        Demand(Save(path, put + "2", document + "2").has_value());
        DemandState(path, *parts, put + "2", document + "2");
    } catch (const DocumentError&) {
        std::abort();  // what was saved must open
    }
    try {
        PackageWriter::Compact(path);
    } catch (const DocumentError&) {
        Demand(QFile::exists(path));  // a damaged part is not compacted away; it stays as it is
    }
    DemandState(path, *parts, put + "2", document + "2");
}

}  // namespace docmodel
