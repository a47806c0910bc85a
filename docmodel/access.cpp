#include "docmodel/access.h"

#include "docmodel/documentfileobject.h"
#include "docmodel/documentinfoobject.h"
#include "docmodel/foldersearcherobject.h"
#include "docmodel/languagesettingsobject.h"
#include "docmodel/previewextractorobject.h"
#include "docmodel/propertyqueryobject.h"
#include "docmodel/webfolderclientobject.h"

namespace docmodel {

std::unique_ptr<docbench::DocumentFile> Access::MakeDocumentFile() {
    return std::make_unique<DocumentFileObject>();
}

std::unique_ptr<docbench::DocumentInfo> Access::MakeDocumentInfo() {
    return std::make_unique<DocumentInfoObject>();
}

std::unique_ptr<docbench::FolderSearcher> Access::MakeFolderSearcher() {
    return std::make_unique<FolderSearcherObject>();
}

std::unique_ptr<docbench::PropertyQuery> Access::MakePropertyQuery(
    const docbench::QueryWords& words) {
    return std::make_unique<PropertyQueryObject>(words);
}

std::unique_ptr<docbench::PreviewExtractor> Access::MakePreviewExtractor() {
    return std::make_unique<PreviewExtractorObject>();
}

std::unique_ptr<docbench::LanguageSettings> Access::MakeLanguageSettings() {
    return std::make_unique<LanguageSettingsObject>();
}

std::unique_ptr<docbench::WebFolderClient> Access::MakeWebFolderClient(
    const docbench::WebClientSettings& settings) {
    return std::make_unique<WebFolderClientObject>(settings);
}

}  // namespace docmodel
