// The library's entry: makes its objects. Programs get it from the plug-in, the library's own tool
// and tests make one.
#pragma once

#include "services/docaccess.h"

namespace docmodel {

class Access : public docbench::DocumentAccess {
public:
    std::unique_ptr<docbench::DocumentFile> MakeDocumentFile() override;
    std::unique_ptr<docbench::DocumentInfo> MakeDocumentInfo() override;
    std::unique_ptr<docbench::FolderSearcher> MakeFolderSearcher() override;
    std::unique_ptr<docbench::PropertyQuery> MakePropertyQuery(
        const docbench::QueryWords& words) override;
    std::unique_ptr<docbench::PreviewExtractor> MakePreviewExtractor() override;
    std::unique_ptr<docbench::LanguageSettings> MakeLanguageSettings() override;
    std::unique_ptr<docbench::WebFolderClient> MakeWebFolderClient(
        const docbench::WebClientSettings& settings) override;
};

}  // namespace docmodel
