#include "docmodel/configurationinfo.h"

#include "docmodel/coreproperties.h"
#include "docmodel/packageerror.h"

namespace docmodel {

ConfigurationInfo::ConfigurationInfo(const BoundPath& path, StoredConfiguration configuration,
                                     QList<CustomProperty> properties)
    : path_(path), configuration_(std::move(configuration)), properties_(std::move(properties)) {}

bool ConfigurationInfo::Open(const QString&) {
    bound_ = false;
    return false;
}

PropertySet& ConfigurationInfo::Bound() {
    if (!bound_)
        throw FailedError(path_.given, QStringLiteral("read"),
                          QStringLiteral("the properties of its configuration %1 were given up. "
                                         "Open the document again")
                              .arg(configuration_.name));
    return properties_;
}

void ConfigurationInfo::RaiseNoSummary() const {
    throw FailedError(path_.given, QStringLiteral("changed"),
                      QStringLiteral("its configuration %1 has no summary and no lock of its own. "
                                     "Change those of the document")
                          .arg(configuration_.name));
}

int ConfigurationInfo::GetCustomCount() {
    return int(Bound().Properties().size());
}

CustomProperty ConfigurationInfo::GetCustomProperty(int index) {
    return Bound().At(index, path_.given);
}

bool ConfigurationInfo::SetCustomProperty(const QString& name, const QVariant& value) {
    return Bound().Set(name, value, path_.given);
}

bool ConfigurationInfo::DeleteCustomProperty(const QString& name) {
    return Bound().Delete(name, path_.given);
}

QByteArray ConfigurationInfo::GetStamp(PropertyGroup group) {
    const PropertySet& properties = Bound();
    return group == PropertyGroup::Summary ? StampOf(Summary()) : properties.StampAtOpen();
}

// By its id, which it keeps when it is renamed; rows of other writers may have none.
int ConfigurationInfo::IndexIn(const DocumentPart& tables) const {
    const bool hasId = configuration_.id != 0;
    const QList<StoredConfiguration> rows = tables.Configurations();
    for (int index = 0; index < rows.size(); ++index)
        if (rows[index].id == configuration_.id &&
            (hasId || rows[index].name == configuration_.name))
            return index;
    return -1;
}

void ConfigurationInfo::Save() {
    const PropertySet& edits = Bound();
    DocumentChange change(path_);
    DocumentPart& newest = change.Content().Tables();
    const int index = IndexIn(newest);
    if (index < 0)
        throw FailedError(path_.given, QStringLiteral("saved"),
                          QStringLiteral("its configuration %1 is gone since it was opened. "
                                         "Open it again and repeat the change")
                              .arg(configuration_.name));
    if (edits.IsChanged()) {
        change.RequireUnchanged(StampOf(newest.ConfigurationProperties(index)), edits.StampAtOpen(),
                                QStringLiteral("configuration %1").arg(configuration_.name));
        newest.ChangeConfiguration(index, edits);
    }
    QList<CustomProperty> saved = newest.ConfigurationProperties(index);
    change.Commit();
    if (edits.IsChanged())
        properties_ = PropertySet(std::move(saved));
}

}  // namespace docmodel
