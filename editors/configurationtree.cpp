#include "editors/configurationtree.h"

#include <QSet>
#include <algorithm>

#include "editors/pendingtext.h"
#include "services/docaccess.h"
#include "services/documentlibrary.h"
#include "services/paths.h"
#include "services/texts.h"

namespace docbench {
namespace {

const QString kOrdinary = QStringLiteral("picConfigAct");
const QString kLasting = QStringLiteral("picConfigMRR");  // can't be deleted
const QString kDeleted = QStringLiteral("picConfigDel");

// The picture of a kind; none for the kinds that are not shown.
std::optional<QString> PictureOfKind(int kind) {
    if (kind == 0)
        return kOrdinary;
    if (kind == 1)
        return kLasting;
    return std::nullopt;
}

QString PictureOfDocument(const QString& path) {
    return DocTypeOf(path) == DocType::Assembly ? QStringLiteral("picAsm")
                                                : QStringLiteral("picPart");
}

}  // namespace

void ConfigurationTree::Clear() {
    tree_.Clear();
    pendingChanges = 0;
}

int ConfigurationTree::Load(DocumentFile& file, const QString& displayName, const QString& path) {
    Clear();
    const int count = file.GetConfigurationCount();
    std::vector<CellNode> shown;
    for (int index = 0; index < count; ++index) {
        const std::optional<QString> picture = PictureOfKind(file.GetConfigurationType(index));
        const QString name = file.GetConfiguration(index);
        if (picture)
            shown.push_back(StoredNode(name, index, *picture));
    }
    std::stable_sort(shown.begin(), shown.end(), [](const CellNode& one, const CellNode& other) {
        return one.text.compare(other.text, Qt::CaseInsensitive) < 0;
    });
    CellNodes nodes;
    if (count > 0)
        nodes.Add(
            0, DocumentNode(Format(Text::ConfigurationsOf, displayName), PictureOfDocument(path)));
    for (CellNode& node : shown)
        nodes.Add(kDocumentNode, std::move(node));
    tree_.Assign(std::move(nodes));
    return count;
}

bool ConfigurationTree::IsDeleted(int node) const {
    return At(node).image == kDeleted;
}

std::optional<QString> ConfigurationTree::NameToEdit(int node) const {
    if (node <= kDocumentNode || IsDeleted(node))
        return std::nullopt;
    return StoredText(At(node));
}

// By the names that the others stand for: a new name that is not saved yet counts, and a deleted
// configuration's doesn't.
bool ConfigurationTree::IsNameFree(const QString& name, int edited) const {
    if (name.isEmpty())
        return false;
    for (int node = kDocumentNode + 1; node <= tree_.Count(); ++node)
        if (node != edited && !IsDeleted(node) && IsSameText(CurrentText(At(node)), name))
            return false;
    return true;
}

ConfigurationTree::Answer ConfigurationTree::Rename(int node, const QString& typed) {
    if (!NameToEdit(node))
        return Answer::Refused;
    if (!IsNameFree(typed, node))
        return typed.isEmpty() ? Answer::NameEmpty : Answer::NameTaken;
    const QString stored = StoredText(At(node));
    const bool wasPending = !IsSameText(At(node).text, stored);
    const bool isPending = !IsSameText(typed, stored);
    pendingChanges += int(isPending) - int(wasPending);
    tree_.SetText(node, isPending ? PendingText(stored, typed) : stored);
    return Answer::Done;
}

ConfigurationTree::Answer ConfigurationTree::ToggleDeletion(int node) {
    if (node <= kDocumentNode)
        return Answer::Refused;
    if (At(node).image == kLasting)
        return Answer::Stays;
    const QString stored = StoredText(At(node));
    if (IsDeleted(node)) {
        if (!IsNameFree(CurrentText(At(node)), node))
            return Answer::NameTaken;
        tree_.SetImage(node, kOrdinary);
        --pendingChanges;
    } else {
        tree_.SetImage(node, kDeleted);
        if (At(node).text == stored)  // else its new name counts already
            ++pendingChanges;
    }
    tree_.SetText(node, stored);
    return Answer::Done;
}

QList<ConfigurationEdit> ConfigurationTree::Edits() const {
    QList<ConfigurationEdit> edits;
    for (int node = kDocumentNode + 1; node <= tree_.Count(); ++node) {
        const int id = StoredPosition(At(node));
        const QString current = CurrentText(At(node));
        if (IsDeleted(node))
            edits.append({.id = id, .isDeleted = true});
        else if (current != At(node).text)
            edits.append({.id = id, .newName = current});
    }
    return edits;
}

namespace {

constexpr int kDeleteMode = 2;

QByteArray PropertiesStamp(DocumentFile& file, int id) {
    const auto set = file.GetCustomProperties(id);
    return set ? set->GetStamp(PropertyGroup::Custom) : QByteArray();
}

// Raises when the configurations are no longer those that were loaded, or when one that is to be
// deleted has got other properties since.
void RequireUnchanged(DocumentFile& newest, DocumentFile& loaded,
                      const QList<ConfigurationEdit>& edits, const QString& path) {
    bool changed = newest.GetStamp(Table::Configurations) != loaded.GetStamp(Table::Configurations);
    for (const ConfigurationEdit& edit : edits)
        changed = changed || (edit.isDeleted &&
                              PropertiesStamp(newest, edit.id) != PropertiesStamp(loaded, edit.id));
    if (changed)
        throw DocumentError(QStringLiteral("The configurations of %1 were changed by another "
                                           "program since they were loaded. Load them again and "
                                           "repeat your changes.")
                                .arg(path));
}

void Delete(DocumentFile& file, int id) {
    if (file.DeleteConfiguration(id, kDeleteMode) != 0)
        throw DocumentError(QStringLiteral("The configuration %1 can't be deleted: the document "
                                           "needs it.")
                                .arg(file.GetConfiguration(id)));
}

// Gives a configuration a name that nobody has and nobody wants, so that its own becomes free.
bool StepAside(DocumentFile& file, const ConfigurationEdit& edit) {
    constexpr int kTries = 100;
    for (int attempt = 1; attempt <= kTries; ++attempt)
        if (file.RenameConfiguration(edit.id,
                                     QStringLiteral("%1~%2").arg(edit.newName).arg(attempt)) == 0)
            return true;
    return false;
}

}  // namespace

void WriteConfigurations(DocumentFile& file, const QList<ConfigurationEdit>& edits) {
    QList<ConfigurationEdit> waiting;  // for a name that another one still has
    for (const ConfigurationEdit& edit : edits) {
        if (edit.isDeleted)
            Delete(file, edit.id);
        else if (file.RenameConfiguration(edit.id, edit.newName) != 0)
            waiting.append(edit);
    }
    QSet<int> aside;
    while (!waiting.isEmpty()) {
        // From the last: renumbering upwards, each waits for the one behind it.
        const qsizetype before = waiting.size();
        for (qsizetype i = before - 1; i >= 0; --i) {
            if (file.RenameConfiguration(waiting[i].id, waiting[i].newName) == 0)
                waiting.removeAt(i);
        }
        if (waiting.size() < before)
            continue;
        const auto next =
            std::find_if(waiting.begin(), waiting.end(),
                         [&](const ConfigurationEdit& edit) { return !aside.contains(edit.id); });
        if (next == waiting.end() || !StepAside(file, *next))
            throw DocumentError(
                QStringLiteral("No configuration can be given the name %1: the document has "
                               "another one of that name, perhaps for internal use. Choose a "
                               "different name.")
                    .arg(waiting.first().newName));
        aside.insert(next->id);
    }
}

void SaveConfigurations(const QString& local, DocumentFile& loaded,
                        const QList<ConfigurationEdit>& edits, const QString& path) {
    const auto newest = Documents().MakeDocumentFile();
    newest->Open(local);
    RequireUnchanged(*newest, loaded, edits, path);
    WriteConfigurations(*newest, edits);
    newest->Save();
}

}  // namespace docbench
