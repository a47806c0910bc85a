#include "docmodel/builder.h"

#include <cstring>
#include <optional>

#include "docmodel/documentchange.h"
#include "docmodel/packageerror.h"
#include "docmodel/picture.h"
#include "services/username.h"

namespace docmodel {

struct DocumentBuilder::Data {
    QString path;
    QString folder;  // of the document
    bool replace = false;
    std::unique_ptr<DocumentChange> change;  // of a document that is there
    std::optional<DocumentContent> fresh;    // of a new one
    QDateTime created;
    QDateTime saved;
    std::optional<QString> savedBy;
    // How many rows the tables have; counted once, so that filling a table takes linear time.
    std::optional<int> components;
    std::optional<int> externals;
    std::optional<int> hyperlinks;

    // For adding rows. Raises when the document's format is too old to have any.
    DocumentPart& Tables() {
        DocumentPart& tables = Content().Tables();
        if (!tables.IsCurrentFormat())
            throw FailedError(path, QStringLiteral("changed"),
                              QStringLiteral("its format is too old for references, "
                                             "configurations and hyperlinks"));
        return tables;
    }
    DocumentContent& Content() { return change ? change->Content() : *fresh; }
    void SetSummary(SummaryField field, const QString& text) {
        RequireXmlText(text, path, NameOf(field));
        Content().Core().SetText(field, WithXmlLineEnds(text));
    }
    StoredPath TargetFor(const QString& target) const;
    int ConfigurationAt(const QString& name);
    int NeedConfiguration(const QString& name);
    void ChangeConfiguration(int index, const QList<CustomProperty>& properties);
};

namespace {

// Numbers that look random and are the same everywhere.
class Noise {
public:
    explicit Noise(quint64 seed) : state_(seed) {}
    quint64 Next() {
        state_ += 0x9E3779B97F4A7C15u;
        quint64 mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }

private:
    quint64 state_;
};

QByteArray NoiseBytes(qint64 count, quint64 seed) {
    QByteArray bytes(count, Qt::Uninitialized);
    Noise noise(seed);
    for (qint64 at = 0; at < count; at += qint64(sizeof(quint64))) {
        const quint64 next = noise.Next();
        std::memcpy(bytes.data() + at, &next, size_t(qMin<qint64>(sizeof next, count - at)));
    }
    return bytes;
}

}  // namespace

StoredPath DocumentBuilder::Data::TargetFor(const QString& target) const {
    if (target.isEmpty())
        throw FailedError(path, QStringLiteral("changed"),
                          QStringLiteral("the path of a reference is empty. Give one"));
    RequireXmlText(target, path, QStringLiteral("path of a reference"));
    return StoredPathFor(target, folder);
}

// The index of the configuration of that name; -1 if there is none.
int DocumentBuilder::Data::ConfigurationAt(const QString& name) {
    const QList<StoredConfiguration> rows = Content().Tables().Configurations();
    for (int index = 0; index < rows.size(); ++index)
        if (SameName(rows[index].name, name))
            return index;
    return -1;
}

// The same; raises if there is none.
int DocumentBuilder::Data::NeedConfiguration(const QString& name) {
    const int index = ConfigurationAt(name);
    if (index < 0)
        throw FailedError(path, QStringLiteral("changed"),
                          QStringLiteral("it has no configuration \"%1\"").arg(name));
    return index;
}

void DocumentBuilder::Data::ChangeConfiguration(int index,
                                                const QList<CustomProperty>& properties) {
    DocumentPart& tables = Content().Tables();
    PropertySet set(tables.ConfigurationProperties(index));
    for (const CustomProperty& property : properties)
        if (!set.Set(property.name, property.value, path))
            throw FailedError(path, QStringLiteral("changed"),
                              QStringLiteral("the property \"%1\" of its configuration %2 can't be "
                                             "stored. Change its name or value")
                                  .arg(property.name, tables.Configurations()[index].name));
    tables.ChangeConfiguration(index, set);
}

DocumentBuilder DocumentBuilder::New(const QString& path, IfThere ifThere) {
    auto data = std::make_unique<Data>();
    data->path = path;
    data->folder = HolderFolder(path);
    data->replace = ifThere == IfThere::Replace;
    data->fresh.emplace(nullptr, path);
    return DocumentBuilder(std::move(data));
}

DocumentBuilder DocumentBuilder::Edit(const QString& path) {
    auto data = std::make_unique<Data>();
    data->path = path;
    data->folder = HolderFolder(path);
    data->change = std::make_unique<DocumentChange>(path);
    return DocumentBuilder(std::move(data));
}

DocumentBuilder::DocumentBuilder(std::unique_ptr<Data> data) : data_(std::move(data)) {}
DocumentBuilder::DocumentBuilder(DocumentBuilder&&) noexcept = default;
DocumentBuilder& DocumentBuilder::operator=(DocumentBuilder&&) noexcept = default;
DocumentBuilder::~DocumentBuilder() = default;

void DocumentBuilder::SetTitle(const QString& text) {
    data_->SetSummary(SummaryField::Title, text);
}

void DocumentBuilder::SetAuthor(const QString& text) {
    data_->SetSummary(SummaryField::Author, text);
}

void DocumentBuilder::SetSubject(const QString& text) {
    data_->SetSummary(SummaryField::Subject, text);
}

void DocumentBuilder::SetKeywords(const QString& text) {
    data_->SetSummary(SummaryField::Keywords, text);
}

void DocumentBuilder::SetComments(const QString& text) {
    data_->SetSummary(SummaryField::Comments, text);
}

void DocumentBuilder::SetCreated(const QDateTime& time) {
    data_->created = time;
}

void DocumentBuilder::SetLastSaved(const QDateTime& time, const QString& user) {
    RequireXmlText(user, data_->path, QStringLiteral("name of the user"));
    data_->saved = time;
    data_->savedBy = user;
}

bool DocumentBuilder::SetCustomProperty(const QString& name, const QVariant& value) {
    CustomProperties& custom = data_->Content().Custom();
    PropertySet set(custom.Properties());
    if (!set.Set(name, value, data_->path))
        return false;
    set.ApplyTo(custom);
    return true;
}

bool DocumentBuilder::DeleteCustomProperty(const QString& name) {
    CustomProperties& custom = data_->Content().Custom();
    PropertySet set(custom.Properties());
    const bool isThere = set.Delete(name, data_->path);
    set.ApplyTo(custom);
    return isThere;
}

int DocumentBuilder::AddComponent(const QString& target, int count) {
    if (count < 1)
        throw FailedError(data_->path, QStringLiteral("changed"),
                          QStringLiteral("a component can't be there %1 times").arg(count));
    DocumentPart& tables = data_->Tables();
    const StoredPath stored = data_->TargetFor(target);
    if (!data_->components)
        data_->components = int(tables.Components().size());
    tables.AddComponent({stored, count});
    return (*data_->components)++;
}

int DocumentBuilder::AddExternal(const QString& target, const QString& kind) {
    RequireXmlText(kind, data_->path, QStringLiteral("kind of a reference"));
    const StoredPath stored = data_->TargetFor(target);
    DocumentPart& tables = data_->Tables();
    if (!data_->externals)
        data_->externals = int(tables.Externals().size());
    tables.AddExternal({stored, kind});
    return (*data_->externals)++;
}

int DocumentBuilder::AddConfiguration(const QString& name, int type,
                                      const QList<CustomProperty>& properties) {
    RequireXmlText(name, data_->path, QStringLiteral("name of a configuration"));
    if (name.isEmpty() || data_->ConfigurationAt(name) >= 0)
        throw FailedError(data_->path, QStringLiteral("changed"),
                          QStringLiteral("the name \"%1\" of a configuration is empty or taken. "
                                         "Choose another one")
                              .arg(name));
    const int index = data_->Tables().AddConfiguration(name, type);
    data_->ChangeConfiguration(index, properties);
    return index;
}

bool DocumentBuilder::SetConfigurationProperty(const QString& configuration, const QString& name,
                                               const QVariant& value) {
    const int index = data_->NeedConfiguration(configuration);
    DocumentPart& tables = data_->Content().Tables();
    PropertySet set(tables.ConfigurationProperties(index));
    if (!set.Set(name, value, data_->path))
        return false;
    tables.ChangeConfiguration(index, set);
    return true;
}

bool DocumentBuilder::DeleteConfigurationProperty(const QString& configuration,
                                                  const QString& name) {
    const int index = data_->NeedConfiguration(configuration);
    DocumentPart& tables = data_->Content().Tables();
    PropertySet set(tables.ConfigurationProperties(index));
    const bool isThere = set.Delete(name, data_->path);
    tables.ChangeConfiguration(index, set);
    return isThere;
}

int DocumentBuilder::AddHyperlink(const QString& text) {
    RequireXmlText(text, data_->path, QStringLiteral("hyperlink"));
    DocumentPart& tables = data_->Tables();
    if (!data_->hyperlinks)
        data_->hyperlinks = int(tables.Hyperlinks().size());
    tables.AddHyperlink(text);
    return (*data_->hyperlinks)++;
}

void DocumentBuilder::SetReferencesLocked(bool locked) {
    data_->Content().Tables().SetReferencesLocked(locked);
}

void DocumentBuilder::SetLockedBy(const QString& user) {
    RequireXmlText(user, data_->path, QStringLiteral("name of the lock's owner"));
    data_->Content().Tables().SetLock({!user.isEmpty(), user});
}

void DocumentBuilder::SetPreview(const QByteArray& picture) {
    const PictureFormat* format = PictureFormatOf(picture);
    if (!format)
        throw FailedError(data_->path, QStringLiteral("changed"),
                          QStringLiteral("the preview is no picture that documents can hold. Give "
                                         "a PNG, JPEG or BMP file"));
    if (!IsWithinBounds(picture))
        throw FailedError(data_->path, QStringLiteral("changed"),
                          QStringLiteral("the preview is damaged, or larger than any that is "
                                         "shown. Give another picture"));
    data_->Content().Put(kThumbnailKind, format->partName, format->contentType, picture);
}

void DocumentBuilder::SetModel(qint64 bytes, quint64 seed) {
    data_->Content().Put(kModelKind, kModelKind.name, kModelKind.contentType,
                         NoiseBytes(bytes, seed));
}

void DocumentBuilder::Save() {
    Data& data = *data_;
    const QDateTime saved = data.saved.isValid() ? data.saved : QDateTime::currentDateTimeUtc();
    const QString user = data.savedBy ? *data.savedBy : docbench::CurrentUserName();
    CoreProperties& core = data.Content().Core();
    if (data.created.isValid() || data.fresh)
        core.SetCreated(data.created.isValid() ? data.created : saved);
    if (data.change) {
        data.change->Commit(saved, user);
        return;
    }
    core.SetModified(saved, user);
    const QByteArray tables = data.fresh->TablesBytes();
    DocumentContent::Parts parts = data.fresh->Changed();
    parts.append({kDocumentPart, tables});
    PackageWriter::Create(data.path, parts, data.replace);
}

}  // namespace docmodel
