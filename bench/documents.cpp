#include "bench/documents.h"

#include "docmodel/builder.h"

namespace docbench::bench {

using docmodel::DocumentBuilder;

QStringList MakeDocuments(const QTemporaryDir& folder, int count, int rows, qint64 modelBytes) {
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        const QString path = folder.filePath(QStringLiteral("document%1.tfmasm").arg(i));
        DocumentBuilder document = DocumentBuilder::New(path);
        for (int row = 0; row < rows; ++row)
            document.AddComponent(folder.filePath(QStringLiteral("part%1.tfmprt").arg(i + row)), 2);
        document.SetModel(modelBytes, quint64(i));
        document.Save();
        paths.append(path);
    }
    return paths;
}

QString MakeAssembly(const QTemporaryDir& folder, const QString& name, int rows, int distinct) {
    constexpr int kPartsPerGroup = 20;
    const int groups = rows / (kPartsPerGroup + 1);
    const int distinctGroups = qMin(groups, distinct / 4);
    const int parts = distinct - distinctGroups - 1;
    QStringList partPaths;
    for (int i = 0; i < parts; ++i) {
        partPaths.append(folder.filePath(QStringLiteral("%1-part%2.tfmprt").arg(name).arg(i)));
        DocumentBuilder::New(partPaths.last()).Save();
    }
    QStringList groupPaths;
    for (int i = 0; i < distinctGroups; ++i) {
        groupPaths.append(folder.filePath(QStringLiteral("%1-group%2.tfmasm").arg(name).arg(i)));
        DocumentBuilder group = DocumentBuilder::New(groupPaths.last());
        for (int k = 0; k < kPartsPerGroup; ++k)
            group.AddComponent(partPaths[(i * kPartsPerGroup + k) % parts]);
        group.Save();
    }
    const QString top = folder.filePath(name + QStringLiteral(".tfmasm"));
    DocumentBuilder assembly = DocumentBuilder::New(top);
    for (int i = 0; i < groups; ++i)
        assembly.AddComponent(groupPaths[i % distinctGroups]);
    assembly.Save();
    return top;
}

}  // namespace docbench::bench
