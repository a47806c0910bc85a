// The document library with a word in every operation on a document: a test counts them, or makes
// one of them fail.
#pragma once

#include <functional>
#include <utility>

#include "services/docaccess.h"
#include "services/seams.h"

namespace docbench {

// Is told the name of each operation and the path it works on before it runs; may raise.
using OperationHook = std::function<void(const char* operation, const QString& path)>;

class Hooked {
protected:
    Hooked(const OperationHook& hook, QString path) : hook_(hook), path_(std::move(path)) {}

    template <typename Statement>
    auto Run(const char* operation, Statement&& statement) {
        hook_(operation, path_);
        return statement();
    }

    const OperationHook& hook_;
    QString path_;
};

class FailingInfo : public DocumentInfo, private Hooked {
public:
    FailingInfo(std::unique_ptr<DocumentInfo> real, const OperationHook& hook, QString path = {})
        : Hooked(hook, std::move(path)), real_(std::move(real)) {}

    bool Open(const QString& path) override {
        path_ = path;
        return Run("Open", [&] { return real_->Open(path); });
    }
    QString GetTitle() override {
        return Run("GetTitle", [&] { return real_->GetTitle(); });
    }
    void SetTitle(const QString& text) override {
        Run("SetTitle", [&] { real_->SetTitle(text); });
    }
    QString GetAuthor() override {
        return Run("GetAuthor", [&] { return real_->GetAuthor(); });
    }
    void SetAuthor(const QString& text) override {
        Run("SetAuthor", [&] { real_->SetAuthor(text); });
    }
    QString GetComments() override {
        return Run("GetComments", [&] { return real_->GetComments(); });
    }
    void SetComments(const QString& text) override {
        Run("SetComments", [&] { real_->SetComments(text); });
    }
    QString GetKeywords() override {
        return Run("GetKeywords", [&] { return real_->GetKeywords(); });
    }
    void SetKeywords(const QString& text) override {
        Run("SetKeywords", [&] { real_->SetKeywords(text); });
    }
    QString GetSubject() override {
        return Run("GetSubject", [&] { return real_->GetSubject(); });
    }
    void SetSubject(const QString& text) override {
        Run("SetSubject", [&] { real_->SetSubject(text); });
    }
    QString GetCreated() override {
        return Run("GetCreated", [&] { return real_->GetCreated(); });
    }
    QString GetLastSavedBy() override {
        return Run("GetLastSavedBy", [&] { return real_->GetLastSavedBy(); });
    }
    QString GetLastSaved() override {
        return Run("GetLastSaved", [&] { return real_->GetLastSaved(); });
    }
    int GetCustomCount() override {
        return Run("GetCustomCount", [&] { return real_->GetCustomCount(); });
    }
    CustomProperty GetCustomProperty(int index) override {
        return Run("GetCustomProperty", [&] { return real_->GetCustomProperty(index); });
    }
    bool SetCustomProperty(const QString& name, const QVariant& value) override {
        return Run("SetCustomProperty", [&] { return real_->SetCustomProperty(name, value); });
    }
    bool DeleteCustomProperty(const QString& name) override {
        return Run("DeleteCustomProperty", [&] { return real_->DeleteCustomProperty(name); });
    }
    void Save() override {
        Run("Save", [&] { real_->Save(); });
    }
    bool GetLocked() override {
        return Run("GetLocked", [&] { return real_->GetLocked(); });
    }
    void SetLocked(bool locked) override {
        Run("SetLocked", [&] { real_->SetLocked(locked); });
    }
    QString GetLockedBy() override {
        return Run("GetLockedBy", [&] { return real_->GetLockedBy(); });
    }
    void SetLockedBy(const QString& user) override {
        Run("SetLockedBy", [&] { real_->SetLockedBy(user); });
    }
    QByteArray GetStamp(PropertyGroup group) override {
        return Run("GetStamp", [&] { return real_->GetStamp(group); });
    }

private:
    std::unique_ptr<DocumentInfo> real_;
};

class FailingFile : public DocumentFile, private Hooked {
public:
    FailingFile(std::unique_ptr<DocumentFile> real, const OperationHook& hook)
        : Hooked(hook, QString()), real_(std::move(real)) {}

    void Open(const QString& path) override {
        path_ = path;
        Run("Open", [&] { real_->Open(path); });
    }
    int GetComponentCount() override {
        return Run("GetComponentCount", [&] { return real_->GetComponentCount(); });
    }
    int GetConfigurationCount() override {
        return Run("GetConfigurationCount", [&] { return real_->GetConfigurationCount(); });
    }
    void Save() override {
        Run("Save", [&] { real_->Save(); });
    }
    QString GetConfiguration(int index) override {
        return Run("GetConfiguration", [&] { return real_->GetConfiguration(index); });
    }
    int RenameConfiguration(int id, const QString& newName) override {
        return Run("RenameConfiguration", [&] { return real_->RenameConfiguration(id, newName); });
    }
    int GetConfigurationType(int index) override {
        return Run("GetConfigurationType", [&] { return real_->GetConfigurationType(index); });
    }
    int DeleteConfiguration(int id, int mode) override {
        return Run("DeleteConfiguration", [&] { return real_->DeleteConfiguration(id, mode); });
    }
    void OpenHyperlinks(const QString& path) override {
        path_ = path;
        Run("OpenHyperlinks", [&] { real_->OpenHyperlinks(path); });
    }
    int GetHyperlinkCount() override {
        return Run("GetHyperlinkCount", [&] { return real_->GetHyperlinkCount(); });
    }
    QString GetHyperlink(int index) override {
        return Run("GetHyperlink", [&] { return real_->GetHyperlink(index); });
    }
    void SetHyperlink(int index, const QString& text) override {
        Run("SetHyperlink", [&] { real_->SetHyperlink(index, text); });
    }
    void SaveHyperlinks() override {
        Run("SaveHyperlinks", [&] { real_->SaveHyperlinks(); });
    }
    void SetComponentPath(int index, const QString& newPath) override {
        Run("SetComponentPath", [&] { real_->SetComponentPath(index, newPath); });
    }
    std::unique_ptr<DocumentInfo> GetCustomProperties(int which) override {
        auto set = Run("GetCustomProperties", [&] { return real_->GetCustomProperties(which); });
        return set ? std::make_unique<FailingInfo>(std::move(set), hook_, path_) : nullptr;
    }
    int GetExternalReferenceCount() override {
        return Run("GetExternalReferenceCount", [&] { return real_->GetExternalReferenceCount(); });
    }
    void SetExternalReferencePath(int index, const QString& newPath) override {
        Run("SetExternalReferencePath", [&] { real_->SetExternalReferencePath(index, newPath); });
    }
    bool IsCurrentFormat() override {
        return Run("IsCurrentFormat", [&] { return real_->IsCurrentFormat(); });
    }
    int GetAccessState(const QString& path) override {
        hook_("GetAccessState", path);
        return real_->GetAccessState(path);
    }
    bool GetReferencesLocked() override {
        return Run("GetReferencesLocked", [&] { return real_->GetReferencesLocked(); });
    }
    ComponentRow GetComponent(int index, const QString& webFolder) override {
        return Run("GetComponent", [&] { return real_->GetComponent(index, webFolder); });
    }
    ExternalRow GetExternalReference(int index, const QString& webFolder) override {
        return Run("GetExternalReference",
                   [&] { return real_->GetExternalReference(index, webFolder); });
    }
    QByteArray GetStamp(Table table) override {
        return Run("GetStamp", [&] { return real_->GetStamp(table); });
    }

private:
    std::unique_ptr<DocumentFile> real_;
};

// The program's document library for as long as it lives. Objects that it made must not outlive it.
class FailingAccess : public DocumentAccess {
public:
    explicit FailingAccess(OperationHook hook) : hook_(std::move(hook)), real_(gSeams.documents) {
        gSeams.documents = this;
    }
    ~FailingAccess() override { gSeams.documents = real_; }

    std::unique_ptr<DocumentFile> MakeDocumentFile() override {
        return std::make_unique<FailingFile>(real_->MakeDocumentFile(), hook_);
    }
    std::unique_ptr<DocumentInfo> MakeDocumentInfo() override {
        return std::make_unique<FailingInfo>(real_->MakeDocumentInfo(), hook_);
    }
    std::unique_ptr<FolderSearcher> MakeFolderSearcher() override {
        hook_("MakeFolderSearcher", QString());
        return real_->MakeFolderSearcher();
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

private:
    OperationHook hook_;
    DocumentAccess* real_;
};

}  // namespace docbench
