// Documents for benchmarks, in a temporary folder.
#pragma once

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace docbench::bench {

// `count` parts with a model of `modelBytes` bytes and `rows` references each.
QStringList MakeDocuments(const QTemporaryDir& folder, int count, int rows, qint64 modelBytes);

// An assembly of three levels whose tree has about `rows` rows over `distinct` documents. Gives its
// path.
QString MakeAssembly(const QTemporaryDir& folder, const QString& name, int rows, int distinct);

}  // namespace docbench::bench
