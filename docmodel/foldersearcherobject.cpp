#include "docmodel/foldersearcherobject.h"

namespace docmodel {

using docbench::DocumentError;
using docbench::FoundReference;
using docbench::SearchCounts;
using docbench::SettingsKey;

namespace {

void RequireIndex(int index, qsizetype count, const char* what) {
    if (index < 0 || index >= count)
        throw DocumentError(QStringLiteral("The search gave %1 %2, and there is none at position "
                                           "%3. Search again.")
                                .arg(count)
                                .arg(QLatin1String(what))
                                .arg(index));
}

}  // namespace

int FolderSearcherObject::FindReferences(const docbench::ReferenceQuery& query) {
    findings_ = {};
    if (!index_)
        index_.emplace();
    try {
        findings_ = SearchFolder(query, known_, *index_);
    } catch (const DocumentError& error) {
        // Gone since it was listed, or not open to this user: the search goes on with the others.
        qWarning().noquote() << error.Description();
        findings_.counts.unread = 1;
    }
    counts_.documents += findings_.counts.documents;
    counts_.unread += findings_.counts.unread;
    return int(findings_.rows.size());
}

void FolderSearcherObject::ClearResults() {
    findings_.rows = {};
}

int FolderSearcherObject::GetResultCount() {
    return int(findings_.rows.size());
}

FoundReference FolderSearcherObject::GetResult(int index) {
    RequireIndex(index, findings_.rows.size(), "references");
    return findings_.rows[index];
}

int FolderSearcherObject::GetSubfolderCount() {
    return int(findings_.subfolders.size());
}

QString FolderSearcherObject::GetSubfolder(int index) {
    RequireIndex(index, findings_.subfolders.size(), "subfolders");
    return findings_.subfolders[index];
}

SearchCounts FolderSearcherObject::GetSearchCounts() {
    return counts_;
}

int FolderSearcherObject::GetRegistryValueCount() {
    names_ = key_ ? key_->ValueNames() : QStringList();
    return int(names_.size());
}

std::pair<QString, QString> FolderSearcherObject::EnumRegistryValue(int index) {
    if (index == 0 || names_.isEmpty())
        names_ = key_ ? key_->ValueNames() : QStringList();
    if (index < 0 || index >= names_.size())
        return {};
    return {names_[index], key_->Text(names_[index]).value_or(QString())};
}

int FolderSearcherObject::SetRegistryValue(const QString& name, const QString& value) {
    names_.clear();
    return key_ && key_->SetText(name, value) ? 0 : 1;
}

QString FolderSearcherObject::GetRegistryValue(const QString& name) {
    return key_ ? key_->Text(name).value_or(QString()) : QString();
}

// Here 0 means that it failed: the one status that is the other way round.
int FolderSearcherObject::DeleteRegistryValue(const QString& name) {
    names_.clear();
    return key_ && key_->Delete(name) ? 1 : 0;
}

int FolderSearcherObject::OpenRegistryKey(const QString& keyPath) {
    key_ = SettingsKey::Open(SettingsKey::Hive::CurrentUser, keyPath);
    names_.clear();
    return key_ ? 0 : 1;
}

}  // namespace docmodel
