// The library's FolderSearcher: searches folders for references, and reads and writes the values of
// one settings key below the current user.
#pragma once

#include <memory>
#include <optional>

#include "docmodel/foldersearch.h"
#include "services/docaccess.h"
#include "services/settingsstore.h"

namespace docmodel {

class FolderSearcherObject : public docbench::FolderSearcher {
public:
    int FindReferences(const docbench::ReferenceQuery& query) override;
    void ClearResults() override;
    int GetResultCount() override;
    docbench::FoundReference GetResult(int index) override;
    int GetSubfolderCount() override;
    QString GetSubfolder(int index) override;
    docbench::SearchCounts GetSearchCounts() override;

    int GetRegistryValueCount() override;
    std::pair<QString, QString> EnumRegistryValue(int index) override;
    int SetRegistryValue(const QString& name, const QString& value) override;
    QString GetRegistryValue(const QString& name) override;
    int DeleteRegistryValue(const QString& name) override;
    int OpenRegistryKey(const QString& keyPath) override;

private:
    FolderFindings findings_;                     // of the last search
    KnownFolders known_;                          // the folders that were searched
    std::optional<ReferenceIndex> index_;         // opened by the first search
    docbench::SearchCounts counts_;               // of all searches
    std::unique_ptr<docbench::SettingsKey> key_;  // null: no key is open
    QStringList names_;                           // of its values, as one walk over them reads them
};

}  // namespace docmodel
