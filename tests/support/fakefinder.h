// A document library whose folder searches answer what a test says.
#pragma once

#include <QMap>
#include <functional>

#include "services/docaccess.h"
#include "services/seams.h"

namespace docbench {

// What the searches of a test find, by folder.
struct FakeFolders {
    QMap<QString, QList<FoundReference>> rows;
    QMap<QString, QStringList> subfolders;
    QList<ReferenceQuery> queries;  // as they came
    std::function<void(const QString& folder)> onSearch;
    int unread = 0;
};

class FakeFinder : public FolderSearcher {
public:
    FakeFinder(std::unique_ptr<FolderSearcher> real, FakeFolders& folders)
        : real_(std::move(real)), folders_(folders) {}

    int FindReferences(const ReferenceQuery& query) override {
        folders_.queries.append(query);
        folder_ = query.pattern.left(query.pattern.lastIndexOf(u'/'));
        ++counts_.documents;
        counts_.unread = folders_.unread;
        if (folders_.onSearch)
            folders_.onSearch(folder_);
        return GetResultCount();
    }
    void ClearResults() override { folder_.clear(); }
    int GetResultCount() override { return int(folders_.rows.value(folder_).size()); }
    FoundReference GetResult(int index) override { return folders_.rows[folder_][index]; }
    int GetSubfolderCount() override { return int(folders_.subfolders.value(folder_).size()); }
    QString GetSubfolder(int index) override { return folders_.subfolders[folder_][index]; }
    SearchCounts GetSearchCounts() override { return counts_; }

    int GetRegistryValueCount() override { return real_->GetRegistryValueCount(); }
    std::pair<QString, QString> EnumRegistryValue(int index) override {
        return real_->EnumRegistryValue(index);
    }
    int SetRegistryValue(const QString& name, const QString& value) override {
        return real_->SetRegistryValue(name, value);
    }
    QString GetRegistryValue(const QString& name) override { return real_->GetRegistryValue(name); }
    int DeleteRegistryValue(const QString& name) override {
        return real_->DeleteRegistryValue(name);
    }
    int OpenRegistryKey(const QString& keyPath) override { return real_->OpenRegistryKey(keyPath); }

private:
    std::unique_ptr<FolderSearcher> real_;
    FakeFolders& folders_;
    QString folder_;
    SearchCounts counts_;
};

// The program's document library for as long as it lives: the real one but for folder searches.
class FakeFinderAccess : public DocumentAccess {
public:
    FakeFinderAccess() : real_(gSeams.documents) { gSeams.documents = this; }
    ~FakeFinderAccess() override { gSeams.documents = real_; }

    std::unique_ptr<DocumentFile> MakeDocumentFile() override { return real_->MakeDocumentFile(); }
    std::unique_ptr<DocumentInfo> MakeDocumentInfo() override { return real_->MakeDocumentInfo(); }
    std::unique_ptr<FolderSearcher> MakeFolderSearcher() override {
        return std::make_unique<FakeFinder>(real_->MakeFolderSearcher(), folders);
    }
    std::unique_ptr<PropertyQuery> MakePropertyQuery(const QueryWords& words) override {
        return real_->MakePropertyQuery(words);
    }
    std::unique_ptr<PreviewExtractor> MakePreviewExtractor() override {
        return real_->MakePreviewExtractor();
    }
    std::unique_ptr<LanguageSettings> MakeLanguageSettings() override {
        return real_->MakeLanguageSettings();
    }

    FakeFolders folders;

private:
    DocumentAccess* real_;
};

}  // namespace docbench
