#include "docmodel/foldersearcherobject.h"

namespace docmodel {

using docbench::SettingsKey;

int FolderSearcherObject::GetRegistryValueCount() {
    return key_ ? int(key_->ValueNames().size()) : 0;
}

std::pair<QString, QString> FolderSearcherObject::EnumRegistryValue(int index) {
    const QStringList names = key_ ? key_->ValueNames() : QStringList();
    if (index < 0 || index >= names.size())
        return {};
    return {names[index], key_->Text(names[index]).value_or(QString())};
}

int FolderSearcherObject::SetRegistryValue(const QString& name, const QString& value) {
    return key_ && key_->SetText(name, value) ? 0 : 1;
}

QString FolderSearcherObject::GetRegistryValue(const QString& name) {
    return key_ ? key_->Text(name).value_or(QString()) : QString();
}

// Here 0 means that it failed: the one status that is the other way round.
int FolderSearcherObject::DeleteRegistryValue(const QString& name) {
    return key_ && key_->Delete(name) ? 1 : 0;
}

int FolderSearcherObject::OpenRegistryKey(const QString& keyPath) {
    key_ = SettingsKey::Open(SettingsKey::Hive::CurrentUser, keyPath);
    return key_ ? 0 : 1;
}

}  // namespace docmodel
