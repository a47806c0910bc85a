#include "docmodel/documentfileobject.h"

#include "docmodel/configurationinfo.h"
#include "docmodel/packageerror.h"
#include "services/paths.h"

namespace docmodel {

namespace {

// What RenameConfiguration and DeleteConfiguration answer.
enum Status { kDone = 0, kNoSuchConfiguration = 1, kRefused = 2 };

constexpr int kDeleteMode = 2;

// What GetAccessState answers, among others.
constexpr int kReadOnly = 2;
constexpr int kOtherReason = 4;

QString ExtensionOfFile(const QString& path) {
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot > path.lastIndexOf(u'/') ? path.mid(dot + 1) : QString();
}

void RequirePath(const QString& path, const QString& file) {
    if (path.isEmpty())
        throw FailedError(file, QStringLiteral("changed"),
                          QStringLiteral("the new path of a reference is empty. Give one"));
    RequireXmlText(path, file, QStringLiteral("new path of a reference"));
}

// Whether a save could read what it always reads: the tables and the summary.
bool CanBeUnderstood(const QString& path) {
    try {
        const Package package = Package::Open(path);
        const PartFinder parts(package);
        if (const std::optional<DocumentPart> tables = ReadTables(parts)) {
            tables->Components();
            tables->Externals();
            tables->Configurations();
        }
        ReadCore(parts);
        return true;
    } catch (const DocumentError&) {
        return false;  // the state has no room for the reason; opening the document tells it
    }
}

}  // namespace

DocumentFileObject::State::State(const QString& path, DocumentPart tables)
    : folder(HolderFolder(path)),
      part(std::move(tables)),
      components(part.Components()),
      externals(part.Externals()) {}

TrackedTable<StoredConfiguration>& DocumentFileObject::State::Configurations() {
    if (!configurations)
        configurations.emplace(part.Configurations());
    return *configurations;
}

TrackedTable<StoredHyperlink>& DocumentFileObject::State::Hyperlinks() {
    if (!hyperlinks)
        hyperlinks.emplace(part.Hyperlinks());
    return *hyperlinks;
}

bool DocumentFileObject::State::ConfigurationsChanged() const {
    return !deletedConfigurations.isEmpty() || (configurations && configurations->IsChanged());
}

void DocumentFileObject::Open(const QString& path) {
    state_.reset();
    path_ = path;
    std::optional<DocumentPart> tables = ReadTables(Package::Open(path));
    state_.emplace(path, tables ? std::move(*tables) : DocumentPart());
}

void DocumentFileObject::OpenHyperlinks(const QString& path) {
    Open(path);
}

DocumentFileObject::State& DocumentFileObject::Bound() {
    if (!state_)
        throw DocumentError(path_.given.isEmpty()
                                ? QStringLiteral("No document is open. Open one first.")
                                : QStringLiteral("The document %1 is not open, as it could not be "
                                                 "read. Open it again.")
                                      .arg(path_.given));
    return *state_;
}

template <typename Row>
const Row& DocumentFileObject::RowAt(const TrackedTable<Row>& table, int index,
                                     const char* what) const {
    if (index < 0 || index >= table.Rows().size())
        throw DocumentError(
            QStringLiteral("The document %1 has no %2 at position %3, but %4 of them. Open it "
                           "again.")
                .arg(path_.given, QLatin1String(what))
                .arg(index)
                .arg(table.Rows().size()));
    return table.Rows()[index];
}

int DocumentFileObject::GetComponentCount() {
    return int(Bound().components.Rows().size());
}

int DocumentFileObject::GetExternalReferenceCount() {
    return int(Bound().externals.Rows().size());
}

int DocumentFileObject::GetConfigurationCount() {
    return int(Bound().Configurations().Rows().size());
}

int DocumentFileObject::GetHyperlinkCount() {
    return int(Bound().Hyperlinks().Rows().size());
}

ComponentRow DocumentFileObject::GetComponent(int index, const QString& webFolder) {
    const State& state = Bound();
    const StoredComponent& row = RowAt(state.components, index, "component");
    const QString path = ResolvePath(row.target, state.folder, webFolder);
    return {docbench::BaseNameOf(path), ExtensionOfFile(path), path, row.count};
}

ExternalRow DocumentFileObject::GetExternalReference(int index, const QString& webFolder) {
    const State& state = Bound();
    const StoredExternal& row = RowAt(state.externals, index, "external reference");
    const QString path = ResolvePath(row.target, state.folder, webFolder);
    return {docbench::BaseNameOf(path), ExtensionOfFile(path), path, row.kind};
}

void DocumentFileObject::SetComponentPath(int index, const QString& newPath) {
    State& state = Bound();
    RowAt(state.components, index, "component");
    RequirePath(newPath, path_.given);
    state.components.Change(index).target = StoredPathFor(newPath, state.folder);
}

void DocumentFileObject::SetExternalReferencePath(int index, const QString& newPath) {
    State& state = Bound();
    RowAt(state.externals, index, "external reference");
    RequirePath(newPath, path_.given);
    state.externals.Change(index).target = StoredPathFor(newPath, state.folder);
}

QString DocumentFileObject::GetHyperlink(int index) {
    return RowAt(Bound().Hyperlinks(), index, "hyperlink").text;
}

void DocumentFileObject::SetHyperlink(int index, const QString& text) {
    State& state = Bound();
    RowAt(state.Hyperlinks(), index, "hyperlink");
    RequireXmlText(text, path_.given, QStringLiteral("hyperlink"));
    state.Hyperlinks().Change(index).text = text;
}

QString DocumentFileObject::GetConfiguration(int index) {
    return RowAt(Bound().Configurations(), index, "configuration").name;
}

int DocumentFileObject::GetConfigurationType(int index) {
    return RowAt(Bound().Configurations(), index, "configuration").type;
}

bool DocumentFileObject::IsNameFree(const QString& name, int exceptId) {
    const State& state = Bound();
    const QList<StoredConfiguration>& rows = state.configurations->Rows();
    for (int id = 0; id < rows.size(); ++id)
        if (id != exceptId && !state.deletedConfigurations.contains(id) &&
            SameName(rows[id].name, name))
            return false;
    return true;
}

int DocumentFileObject::RenameConfiguration(int id, const QString& newName) {
    State& state = Bound();
    TrackedTable<StoredConfiguration>& table = state.Configurations();
    if (id < 0 || id >= table.Rows().size() || state.deletedConfigurations.contains(id))
        return kNoSuchConfiguration;
    RequireXmlText(newName, path_.given, QStringLiteral("new name of a configuration"));
    if (newName.isEmpty() || !IsNameFree(newName, id))
        return kRefused;
    table.Change(id).name = newName;
    return kDone;
}

int DocumentFileObject::DeleteConfiguration(int id, int mode) {
    State& state = Bound();
    const QList<StoredConfiguration>& rows = state.Configurations().Rows();
    if (id < 0 || id >= rows.size())
        return kNoSuchConfiguration;
    if (mode != kDeleteMode || rows[id].type != 0)
        return kRefused;
    state.deletedConfigurations.insert(id);
    return kDone;
}

std::unique_ptr<DocumentInfo> DocumentFileObject::GetCustomProperties(int which) {
    const State& state = Bound();
    const std::optional<StoredConfiguration> row = state.part.Configuration(which);
    if (!row)
        return nullptr;
    return std::make_unique<ConfigurationInfo>(path_, *row,
                                               state.part.ConfigurationProperties(which));
}

bool DocumentFileObject::IsCurrentFormat() {
    return Bound().part.IsCurrentFormat();
}

bool DocumentFileObject::GetReferencesLocked() {
    return Bound().part.ReferencesLocked();
}

int DocumentFileObject::GetAccessState(const QString& path) {
    const int state = AccessState(path);
    return state == kReadOnly || CanBeUnderstood(path) ? state : kOtherReason;
}

QByteArray DocumentFileObject::GetStamp(Table table) {
    State& state = Bound();
    switch (table) {
        case Table::Components:
            return state.components.StampAtOpen();
        case Table::ExternalReferences:
            return state.externals.StampAtOpen();
        case Table::Configurations:
            return state.Configurations().StampAtOpen();
        case Table::Hyperlinks:
            break;
    }
    return state.Hyperlinks().StampAtOpen();
}

// The tables as this object knows them take the same edits. What it has not written stays as it was
// at Open: renewed, it would let a later save overwrite work of others that nobody has seen here.
void DocumentFileObject::Save() {
    State& state = Bound();
    DocumentChange change(path_);
    RequireReferences(change);
    RequireHyperlinks(change);
    RequireConfigurations(change);
    Apply(change.Content().Tables());
    change.Commit();
    Apply(state.part);
    DocumentPart known = std::move(state.part);
    state_.emplace(path_.absolute, std::move(known));
}

// Changes of other tables wait for Save.
void DocumentFileObject::SaveHyperlinks() {
    State& state = Bound();
    DocumentChange change(path_);
    RequireHyperlinks(change);
    ApplyHyperlinks(change.Content().Tables());
    change.Commit();
    ApplyHyperlinks(state.part);
    state.hyperlinks.reset();
}

void DocumentFileObject::RequireReferences(DocumentChange& change) {
    State& state = *state_;
    const DocumentPart& newest = change.Content().Tables();
    if (state.components.IsChanged())
        change.RequireUnchanged(StampOf(newest.Components()), state.components.StampAtOpen(),
                                QStringLiteral("list of components"));
    if (state.externals.IsChanged())
        change.RequireUnchanged(StampOf(newest.Externals()), state.externals.StampAtOpen(),
                                QStringLiteral("list of external references"));
}

void DocumentFileObject::RequireHyperlinks(DocumentChange& change) {
    State& state = *state_;
    if (state.hyperlinks && state.hyperlinks->IsChanged())
        change.RequireUnchanged(StampOf(change.Content().Tables().Hyperlinks()),
                                state.hyperlinks->StampAtOpen(),
                                QStringLiteral("list of hyperlinks"));
}

void DocumentFileObject::RequireConfigurations(DocumentChange& change) {
    State& state = *state_;
    if (!state.ConfigurationsChanged())
        return;
    const DocumentPart& newest = change.Content().Tables();
    change.RequireUnchanged(StampOf(newest.Configurations()), state.Configurations().StampAtOpen(),
                            QStringLiteral("list of configurations"));
    const QList<StoredConfiguration> rows = newest.Configurations();
    for (const int deleted : state.deletedConfigurations)
        change.RequireUnchanged(StampOf(newest.ConfigurationProperties(deleted)),
                                StampOf(state.part.ConfigurationProperties(deleted)),
                                QStringLiteral("configuration %1").arg(rows[deleted].name));
}

void DocumentFileObject::Apply(DocumentPart& tables) const {
    const State& state = *state_;
    tables.SetComponentTargets(state.components.Changes(&StoredComponent::target));
    tables.SetExternalTargets(state.externals.Changes(&StoredExternal::target));
    ApplyHyperlinks(tables);
    if (state.configurations)
        tables.SetConfigurationNames(state.configurations->Changes(&StoredConfiguration::name));
    tables.DeleteConfigurations(state.deletedConfigurations);
}

void DocumentFileObject::ApplyHyperlinks(DocumentPart& tables) const {
    if (state_->hyperlinks)
        tables.SetHyperlinks(state_->hyperlinks->Changes(&StoredHyperlink::text));
}

}  // namespace docmodel
