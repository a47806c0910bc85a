// A document library of a test that knows settings keys and no documents.
#pragma once

#include "services/docaccess.h"
#include "services/seams.h"
#include "services/settingsstore.h"

namespace docbench {

class SettingsSearcher : public FolderSearcher {
public:
    explicit SettingsSearcher(int& opened) : opened_(opened) {}
    int FindReferences(const ReferenceQuery&) override { return 0; }
    void ClearResults() override {}
    int GetResultCount() override { return 0; }
    FoundReference GetResult(int) override { return {}; }
    int GetSubfolderCount() override { return 0; }
    QString GetSubfolder(int) override { return {}; }
    SearchCounts GetSearchCounts() override { return {}; }
    int GetRegistryValueCount() override { return int(key_->ValueNames().size()); }
    std::pair<QString, QString> EnumRegistryValue(int index) override {
        const QString name = key_->ValueNames().value(index);
        return {name, GetRegistryValue(name)};
    }
    int SetRegistryValue(const QString& name, const QString& value) override {
        return key_->SetText(name, value) ? 0 : 1;
    }
    QString GetRegistryValue(const QString& name) override {
        return key_->Text(name).value_or(QString());
    }
    int DeleteRegistryValue(const QString& name) override { return key_->Delete(name) ? 1 : 0; }
    int OpenRegistryKey(const QString& keyPath) override {
        ++opened_;
        key_ = SettingsKey::Open(SettingsKey::Hive::CurrentUser, keyPath);
        return key_ ? 0 : 1;
    }

private:
    int& opened_;
    std::unique_ptr<SettingsKey> key_;
};

// The program's document library for as long as it lives.
class SettingsAccess : public DocumentAccess {
public:
    SettingsAccess() { gSeams.documents = this; }
    ~SettingsAccess() override { gSeams.documents = nullptr; }
    std::unique_ptr<DocumentFile> MakeDocumentFile() override { return nullptr; }
    std::unique_ptr<DocumentInfo> MakeDocumentInfo() override { return nullptr; }
    std::unique_ptr<FolderSearcher> MakeFolderSearcher() override {
        return std::make_unique<SettingsSearcher>(opened);
    }
    std::unique_ptr<PropertyQuery> MakePropertyQuery(const QueryWords&) override { return nullptr; }
    std::unique_ptr<PreviewExtractor> MakePreviewExtractor() override { return nullptr; }
    std::unique_ptr<LanguageSettings> MakeLanguageSettings() override { return nullptr; }

    int opened = 0;  // keys, so far
};

}  // namespace docbench
