// The document library with a count of the objects that were made.
#pragma once

#include "services/docaccess.h"
#include "services/seams.h"

namespace docbench {

class CountingAccess : public DocumentAccess {
public:
    CountingAccess() : real_(gSeams.documents) { gSeams.documents = this; }
    ~CountingAccess() override { gSeams.documents = real_; }

    std::unique_ptr<DocumentFile> MakeDocumentFile() override {
        ++filesMade;
        return real_->MakeDocumentFile();
    }
    std::unique_ptr<DocumentInfo> MakeDocumentInfo() override {
        ++infosMade;
        return real_->MakeDocumentInfo();
    }
    std::unique_ptr<FolderSearcher> MakeFolderSearcher() override {
        return real_->MakeFolderSearcher();
    }
    std::unique_ptr<PropertyQuery> MakePropertyQuery(const QueryWords& words) override {
        return real_->MakePropertyQuery(words);
    }
    std::unique_ptr<PreviewExtractor> MakePreviewExtractor() override {
        return real_->MakePreviewExtractor();
    }
    std::unique_ptr<LanguageSettings> MakeLanguageSettings() override {
        ++languagesMade;
        return real_->MakeLanguageSettings();
    }

    int filesMade = 0;
    int infosMade = 0;
    int languagesMade = 0;

private:
    DocumentAccess* real_;
};

}  // namespace docbench
