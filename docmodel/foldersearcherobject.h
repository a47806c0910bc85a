// The library's FolderSearcher: the values of one settings key below the current user.
#pragma once

#include <memory>

#include "services/docaccess.h"
#include "services/settingsstore.h"

namespace docmodel {

class FolderSearcherObject : public docbench::FolderSearcher {
public:
    int GetRegistryValueCount() override;
    std::pair<QString, QString> EnumRegistryValue(int index) override;
    int SetRegistryValue(const QString& name, const QString& value) override;
    QString GetRegistryValue(const QString& name) override;
    int DeleteRegistryValue(const QString& name) override;
    int OpenRegistryKey(const QString& keyPath) override;

private:
    std::unique_ptr<docbench::SettingsKey> key_;  // null: no key is open
};

}  // namespace docmodel
