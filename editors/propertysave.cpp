#include "editors/propertysave.h"

#include "editors/propertyrows.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/webcopies.h"

namespace docbench {
namespace {

void RequireUnchanged(DocumentInfo& info, PropertyGroup group, const QByteArray& loaded,
                      const QString& path) {
    if (info.GetStamp(group) != loaded)
        throw DocumentError(QStringLiteral("The properties of %1 were changed by another program "
                                           "since they were loaded. Load them again and repeat "
                                           "your changes.")
                                .arg(path));
}

}  // namespace

std::unique_ptr<DocumentInfo> OpenConfigurationSet(const QString& path, int index,
                                                   const QString& name) {
    const auto file = Documents().MakeDocumentFile();
    file->Open(LocalCopyOf(path));
    std::unique_ptr<DocumentInfo> set = file->GetCustomProperties(index);
    if (set && file->GetConfiguration(index) != name)
        throw DocumentError(QStringLiteral("The configurations of %1 were changed since they were "
                                           "listed. Load the document again.")
                                .arg(path));
    return set;
}

void SaveConfigurationSet(DocumentInfo& set, const SetEdits& edits, const QString& path) {
    RequireUnchanged(set, PropertyGroup::Custom, edits.stamp, path);
    WriteProperties(edits.rows, set, edits.deletedNames);
    set.Save();
}

void SaveDocumentProperties(DocumentInfo& info, const DocumentEdits& edits, const QString& path) {
    if (edits.summary && HasEdits(*edits.summary))
        RequireUnchanged(info, PropertyGroup::Summary, edits.summaryStamp, path);
    if (edits.custom)
        RequireUnchanged(info, PropertyGroup::Custom, edits.custom->stamp, path);
    if (edits.summary)
        WriteSummary(info, *edits.summary);
    if (edits.custom)
        WriteProperties(edits.custom->rows, info, edits.custom->deletedNames);
    info.Save();
}

}  // namespace docbench
