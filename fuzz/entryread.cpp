#include <functional>

#include "docmodel/access.h"
#include "docmodel/package.h"
#include "fuzz/checks.h"
#include "fuzz/entries.h"

namespace docmodel {

namespace {

// Every error must tell the user which file it is about.
void Allow(const QString& path, const std::function<void()>& action) {
    try {
        action();
    } catch (const DocumentError& error) {
        Demand(error.Description().contains(path));
    }
}

void ReadParts(const QString& path) {
    constexpr qint64 kLimit = 1 << 20;
    const Package package = Package::Open(path);
    Demand(package.DeadBytes() >= 0 && package.DeadBytes() <= package.FileSize());
    for (const QByteArray& name : package.PartNames()) {
        Demand(package.HasPart(name));
        Allow(path, [&] { Demand(package.ReadPart(name, kLimit).size() <= kLimit); });
    }
}

void ReadTables(const QString& path) {
    const auto file = Access().MakeDocumentFile();
    file->Open(path);
    for (int i = 0; i < file->GetComponentCount(); ++i)
        file->GetComponent(i, QString());
    for (int i = 0; i < file->GetExternalReferenceCount(); ++i)
        file->GetExternalReference(i, QStringLiteral("http://server/folder/"));
    for (int i = 0; i < file->GetConfigurationCount(); ++i) {
        file->GetConfiguration(i);
        file->GetConfigurationType(i);
        if (const auto properties = file->GetCustomProperties(i))
            properties->GetStamp(docbench::PropertyGroup::Custom);
    }
    for (int i = 0; i < file->GetHyperlinkCount(); ++i)
        file->GetHyperlink(i);
    file->GetReferencesLocked();
}

void ReadProperties(const QString& path) {
    const auto info = Access().MakeDocumentInfo();
    if (!info->Open(path))
        return;
    info->GetTitle();
    info->GetCreated();
    info->GetLastSaved();
    for (int i = 0; i < info->GetCustomCount(); ++i)
        info->GetCustomProperty(i);
    info->GetLockedBy();
}

}  // namespace

void FuzzRead(const uint8_t* bytes, size_t count) {
    const QString path = InputFile(bytes, count);
    Allow(path, [&] { ReadParts(path); });
    Allow(path, [&] { ReadTables(path); });
    Allow(path, [&] { ReadProperties(path); });
}

}  // namespace docmodel
