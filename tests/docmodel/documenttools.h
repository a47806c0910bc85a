// What the tests of documents share: opening objects, and packages with tables written by hand.
#pragma once

#include <QTest>
#include <memory>

#include "docmodel/access.h"
#include "docmodel/builder.h"
#include "docmodel/opc.h"
#include "docmodel/package.h"
#include "tests/docmodel/packagetools.h"

namespace docmodel {

using docbench::DocumentFile;
using docbench::DocumentInfo;

inline std::unique_ptr<DocumentFile> OpenFile(const QString& path) {
    auto file = Access().MakeDocumentFile();
    file->Open(path);
    return file;
}

// Fails the test when there is no record.
inline std::unique_ptr<DocumentInfo> OpenInfo(const QString& path) {
    auto info = Access().MakeDocumentInfo();
    if (!info->Open(path))
        QTest::qFail(qPrintable("no record in " + path), __FILE__, __LINE__);
    return info;
}

// The text of a tables part with `content` in its root element.
inline QByteArray Tables(const QByteArray& content, const QByteArray& version = "1") {
    return "<document xmlns=\"http://schemas.tessaforma.com/docmodel/2004/document\" version=\"" +
           version + "\">" + content + "</document>";
}

// A package with this as its only part but for the content types.
inline void WriteTables(const QString& path, const QByteArray& part) {
    PackageWriter::Create(
        path, {{ContentTypes::kPart, ContentTypes(nullptr).Bytes()}, {kDocumentPart, part}}, true);
}

inline QByteArray PartOf(const QString& path, const QByteArray& part) {
    return Package::Open(path).ReadPart(part, 1 << 20);
}

inline QStringList ComponentPaths(DocumentFile& file, const QString& webFolder = {}) {
    QStringList paths;
    for (int i = 0; i < file.GetComponentCount(); ++i)
        paths.append(file.GetComponent(i, webFolder).path);
    return paths;
}

inline QStringList ConfigurationNames(DocumentFile& file) {
    QStringList names;
    for (int i = 0; i < file.GetConfigurationCount(); ++i)
        names.append(file.GetConfiguration(i));
    return names;
}

}  // namespace docmodel
