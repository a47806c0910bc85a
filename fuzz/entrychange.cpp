#include <QStringList>
#include <functional>

#include "docmodel/access.h"
#include "docmodel/package.h"
#include "fuzz/checks.h"
#include "fuzz/entries.h"

namespace docmodel {

namespace {

using docbench::ComponentRow;
using docbench::ExternalRow;

const QString kTarget = QStringLiteral("/new/target.tfmprt");
const QString kText = QStringLiteral("http://server/new <&\">");

// All rows of a document, one a text.
QStringList RowsOf(docbench::DocumentFile& file) {
    QStringList rows;
    for (int i = 0; i < file.GetComponentCount(); ++i) {
        const ComponentRow row = file.GetComponent(i, QString());
        rows.append(QStringLiteral("component %1 %2").arg(row.path).arg(row.count));
    }
    for (int i = 0; i < file.GetExternalReferenceCount(); ++i) {
        const ExternalRow row = file.GetExternalReference(i, QString());
        rows.append(QStringLiteral("external %1 %2").arg(row.path, row.kind));
    }
    for (int i = 0; i < file.GetConfigurationCount(); ++i)
        rows.append(QStringLiteral("configuration ") + file.GetConfiguration(i));
    for (int i = 0; i < file.GetHyperlinkCount(); ++i)
        rows.append(QStringLiteral("hyperlink ") + file.GetHyperlink(i));
    return rows;
}

// Runs a change. False if the document was refused, which then is as it was.
bool Changed(const QString& path, const std::function<void()>& change) {
    const QByteArray before = Contents(path);
    try {
        change();
        return true;
    } catch (const DocumentError&) {
        Demand(Contents(path) == before);
        return false;
    }
}

void ChangeRows(const QString& path) {
    QStringList expected;
    const bool done = Changed(path, [&] {
        const auto file = Access().MakeDocumentFile();
        file->Open(path);
        if (file->GetComponentCount() > 0)
            file->SetComponentPath(0, kTarget);
        if (file->GetExternalReferenceCount() > 0)
            file->SetExternalReferencePath(file->GetExternalReferenceCount() - 1, kTarget);
        if (file->GetHyperlinkCount() > 0)
            file->SetHyperlink(0, kText);
        expected = RowsOf(*file);
        file->Save();
    });
    if (!done)
        return;
    const auto file = Access().MakeDocumentFile();
    file->Open(path);
    Demand(RowsOf(*file) == expected);
}

void ChangeProperties(const QString& path) {
    const auto info = Access().MakeDocumentInfo();
    if (!info->Open(path))
        return;
    int count = 0;
    const bool done = Changed(path, [&] {
        info->SetTitle(kText);
        Demand(info->SetCustomProperty(QStringLiteral("Fuzz"), 1.5));
        count = info->GetCustomCount();
        info->Save();
    });
    if (!done)
        return;
    Demand(info->Open(path));
    Demand(info->GetTitle() == kText);
    Demand(info->GetCustomCount() == count);
    for (int i = 0; i < count; ++i)
        if (info->GetCustomProperty(i).name.compare(u"Fuzz", Qt::CaseInsensitive) == 0)
            return Demand(info->GetCustomProperty(i).value == QVariant(1.5));
    Demand(false);
}

}  // namespace

void FuzzChange(const uint8_t* bytes, size_t count) {
    const QString path = InputFile(bytes, count);
    try {
        ChangeRows(path);
        ChangeProperties(path);
    } catch (const DocumentError&) {
        Demand(false);  // what was saved must open
    }
}

}  // namespace docmodel
