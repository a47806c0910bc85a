#include "docmodel/documentpart.h"

#include <charconv>
#include <cstring>
#include <limits>

#include "docmodel/packageerror.h"
#include "docmodel/stamp.h"

namespace docmodel {

namespace {

constexpr char kNamespace[] = "http://schemas.tessaforma.com/docmodel/2004/document";
constexpr char kRoot[] = "document";
constexpr int kVersion = 1;  // 0 is the format before the tables

bool IsTrue(const char* text) {
    return std::strcmp(text, "true") == 0 || std::strcmp(text, "1") == 0;
}

const char* YesNo(bool value) {
    return value ? "true" : "false";
}

// The types of a configuration's property, by PropertyType.
constexpr const char* kPropertyTypes[] = {"text", "date", "number", "boolean"};

PropertyType PropertyTypeOf(const char* name) {
    for (const PropertyType type : {kDate, kNumber, kYesNo})
        if (std::strcmp(name, kPropertyTypes[type]) == 0)
            return type;
    return kText;
}

void SetTarget(pugi::xml_node row, const StoredPath& target) {
    SetAttribute(row, "path", target.path);
    if (target.relative.isEmpty())
        row.remove_attribute("relative");
    else
        SetAttribute(row, "relative", target.relative);
}

// The properties of one configuration, for a set's edits to be carried out on.
class ConfigurationTarget : public PropertyTarget {
public:
    ConfigurationTarget(pugi::xml_node configuration, const QByteArray& prefix)
        : configuration_(configuration), element_(prefix + "property") {}
    void Set(const QString& name, const PropertyValue& value) override {
        pugi::xml_node property = Find(name);
        if (!property) {
            property = configuration_.append_child(element_.constData());
            SetAttribute(property, "name", name);
        }
        SetAttribute(property, "type", QLatin1String(kPropertyTypes[value.type]));
        SetText(property, ToText(value));
    }
    void Delete(const QString& name) override { configuration_.remove_child(Find(name)); }

private:
    pugi::xml_node Find(const QString& name) const {
        const auto found = FindNamed(
            configuration_.begin(), configuration_.end(), name, [this](pugi::xml_node node) {
                return element_ == node.name() ? std::optional(AttributeOf(node, "name"))
                                               : std::nullopt;
            });
        return found == configuration_.end() ? pugi::xml_node() : *found;
    }
    pugi::xml_node configuration_;
    QByteArray element_;
};

}  // namespace

QByteArray StampOf(const QList<StoredComponent>& rows) {
    Stamp stamp;
    for (const StoredComponent& row : rows)
        stamp.Add(row.target.path).Add(row.target.relative).Add(qint64(row.count));
    return stamp.Result();
}

QByteArray StampOf(const QList<StoredExternal>& rows) {
    Stamp stamp;
    for (const StoredExternal& row : rows)
        stamp.Add(row.target.path).Add(row.target.relative).Add(row.kind);
    return stamp.Result();
}

QByteArray StampOf(const QList<StoredConfiguration>& rows) {
    Stamp stamp;
    for (const StoredConfiguration& row : rows)
        stamp.Add(qint64(row.id)).Add(row.name).Add(qint64(row.type));
    return stamp.Result();
}

QByteArray StampOf(const QList<StoredHyperlink>& rows) {
    Stamp stamp;
    for (const StoredHyperlink& row : rows)
        stamp.Add(row.text);
    return stamp.Result();
}

DocumentPart::DocumentPart() : xml_(XmlPart::Make(kRoot, kNamespace)) {
    xml_.Root().append_attribute("version") = kVersion;
}

DocumentPart::DocumentPart(QByteArray bytes, const QString& file, const QByteArray& part)
    : xml_(XmlPart::Parse(std::move(bytes), file, part)), file_(file) {
    const pugi::xml_node root = xml_.Root();
    if (!IsElement(root, kNamespace, kRoot))
        throw DamagedError(file,
                           QStringLiteral("its part %1 holds no tables").arg(ShownName(part)));
    prefix_ = QByteArray(root.name(), LocalName(root) - root.name());
    const int version = Number(root, "version", 0, -1);
    if (version < 0)
        throw DamagedError(
            file, QStringLiteral("its part %1 tells no format version").arg(ShownName(part)));
    if (version > kVersion)
        throw FailedError(file, QStringLiteral("opened"),
                          QStringLiteral("a newer version of the program wrote it (format %1). "
                                         "Open it with that version")
                              .arg(version));
    isCurrent_ = version == kVersion;
}

bool DocumentPart::ReferencesLocked() const {
    return IsTrue(xml_.Root().attribute("referencesLocked").value());
}

LockRecord DocumentPart::Lock() const {
    const pugi::xml_node lock = TableElement("lock");
    return {IsTrue(lock.attribute("locked").value()), AttributeOf(lock, "user")};
}

// Elements of the part carry the root's prefix; others belong to somebody else.
bool DocumentPart::Is(pugi::xml_node node, const char* name) const {
    const size_t length = size_t(prefix_.size());
    return std::strncmp(node.name(), prefix_.constData(), length) == 0 &&
           std::strcmp(node.name() + length, name) == 0;
}

pugi::xml_node DocumentPart::TableElement(const char* name) const {
    for (const pugi::xml_node child : xml_.Root())
        if (Is(child, name))
            return child;
    return {};
}

template <typename Visit>
void DocumentPart::ForEachRow(const char* table, const char* row, Visit visit) const {
    if (!isCurrent_)
        return;
    int index = 0;
    pugi::xml_node next;
    for (pugi::xml_node node = TableElement(table).first_child(); node; node = next) {
        next = node.next_sibling();  // the visit may remove the row
        if (Is(node, row))
            visit(node, index++);
    }
}

StoredPath DocumentPart::TargetOf(pugi::xml_node row) const {
    return {AttributeOf(row, "path"), AttributeOf(row, "relative")};
}

// A number of at least `least`; `missing` if there is no such attribute.
int DocumentPart::Number(pugi::xml_node row, const char* attribute, int least, int missing) const {
    const pugi::xml_attribute found = row.attribute(attribute);
    if (!found)
        return missing;
    const char* text = found.value();
    const char* end = text + std::strlen(text);
    int number = 0;
    const std::from_chars_result read = std::from_chars(text, end, number);
    if (read.ec != std::errc() || read.ptr != end || number < least)
        throw DamagedError(
            file_, QStringLiteral("the %1 \"%2\" in its tables is no number that is allowed there")
                       .arg(QLatin1String(attribute), ShownName(text)));
    return number;
}

QList<StoredComponent> DocumentPart::Components() const {
    QList<StoredComponent> rows;
    ForEachRow("components", "component", [&](pugi::xml_node row, int) {
        rows.append({TargetOf(row), Number(row, "count", 1, 1)});
    });
    return rows;
}

QList<StoredExternal> DocumentPart::Externals() const {
    QList<StoredExternal> rows;
    ForEachRow("externals", "external", [&](pugi::xml_node row, int) {
        rows.append({TargetOf(row), AttributeOf(row, "kind")});
    });
    return rows;
}

QList<StoredConfiguration> DocumentPart::Configurations() const {
    QList<StoredConfiguration> rows;
    ForEachRow("configurations", "configuration",
               [&](pugi::xml_node row, int) { rows.append(ConfigurationOf(row)); });
    return rows;
}

StoredConfiguration DocumentPart::ConfigurationOf(pugi::xml_node row) const {
    return {Number(row, "id", 0, 0), AttributeOf(row, "name"), Number(row, "type", 0, 0)};
}

std::optional<StoredConfiguration> DocumentPart::Configuration(int index) const {
    const pugi::xml_node row = ConfigurationElement(index);
    return row ? std::optional(ConfigurationOf(row)) : std::nullopt;
}

QList<StoredHyperlink> DocumentPart::Hyperlinks() const {
    QList<StoredHyperlink> rows;
    ForEachRow("hyperlinks", "hyperlink",
               [&](pugi::xml_node row, int) { rows.append({AttributeOf(row, "target")}); });
    return rows;
}

pugi::xml_node DocumentPart::ConfigurationElement(int index) const {
    if (!isCurrent_ || index < 0)
        return {};
    for (const pugi::xml_node node : TableElement("configurations"))
        if (Is(node, "configuration") && index-- == 0)
            return node;
    return {};
}

QList<CustomProperty> DocumentPart::ConfigurationProperties(int index) const {
    QList<CustomProperty> properties;
    for (const pugi::xml_node node : ConfigurationElement(index)) {
        if (!Is(node, "property"))
            continue;
        const PropertyValue value =
            FromText(TextOf(node), PropertyTypeOf(node.attribute("type").value()));
        properties.append({AttributeOf(node, "name"), value.value, value.type});
    }
    return properties;
}

void DocumentPart::SetTargets(const char* table, const char* row,
                              const QMap<int, StoredPath>& targets) {
    ForEachRow(table, row, [&](pugi::xml_node node, int index) {
        if (const auto target = targets.find(index); target != targets.end())
            SetTarget(node, *target);
    });
}

void DocumentPart::SetRows(const char* table, const char* row, const char* attribute,
                           const QMap<int, QString>& values) {
    ForEachRow(table, row, [&](pugi::xml_node node, int index) {
        if (const auto value = values.find(index); value != values.end())
            SetAttribute(node, attribute, *value);
    });
}

void DocumentPart::SetComponentTargets(const QMap<int, StoredPath>& targets) {
    SetTargets("components", "component", targets);
}

void DocumentPart::SetExternalTargets(const QMap<int, StoredPath>& targets) {
    SetTargets("externals", "external", targets);
}

void DocumentPart::SetHyperlinks(const QMap<int, QString>& texts) {
    SetRows("hyperlinks", "hyperlink", "target", texts);
}

void DocumentPart::SetConfigurationNames(const QMap<int, QString>& names) {
    SetRows("configurations", "configuration", "name", names);
}

void DocumentPart::DeleteConfigurations(const QSet<int>& indices) {
    ForEachRow("configurations", "configuration", [&](pugi::xml_node node, int index) {
        if (indices.contains(index))
            node.parent().remove_child(node);
    });
}

void DocumentPart::ChangeConfiguration(int index, const PropertySet& edits) {
    ConfigurationTarget target(ConfigurationElement(index), prefix_);
    edits.ApplyTo(target);
}

void DocumentPart::SetReferencesLocked(bool locked) {
    SetAttribute(xml_.Root(), "referencesLocked", QLatin1String(YesNo(locked)));
}

void DocumentPart::SetLock(const LockRecord& lock) {
    pugi::xml_node element = TableElement("lock");
    if (!element)
        element = Append(xml_.Root(), "lock");
    SetAttribute(element, "locked", QLatin1String(YesNo(lock.locked)));
    SetAttribute(element, "user", lock.user);
}

pugi::xml_node DocumentPart::Append(pugi::xml_node parent, const char* name) {
    return parent.append_child(QByteArray(prefix_ + name).constData());
}

pugi::xml_node DocumentPart::AddTo(const char* table, const char* row) {
    pugi::xml_node element = TableElement(table);
    return Append(element ? element : Append(xml_.Root(), table), row);
}

void DocumentPart::AddComponent(const StoredComponent& row) {
    pugi::xml_node node = AddTo("components", "component");
    SetTarget(node, row.target);
    if (row.count != 1)
        node.append_attribute("count") = row.count;
}

void DocumentPart::AddExternal(const StoredExternal& row) {
    pugi::xml_node node = AddTo("externals", "external");
    SetTarget(node, row.target);
    SetAttribute(node, "kind", row.kind);
}

// The id is one more than the largest ever given, which the table remembers past a deletion.
int DocumentPart::AddConfiguration(const QString& name, int type) {
    const QList<StoredConfiguration> rows = Configurations();
    pugi::xml_node node = AddTo("configurations", "configuration");
    int id = Number(node.parent(), "lastId", 0, 0);
    for (const StoredConfiguration& row : rows)
        id = std::max(id, row.id);
    if (id == std::numeric_limits<int>::max())
        throw FailedError(file_, QStringLiteral("changed"),
                          QStringLiteral("its numbers for configurations are used up"));
    SetAttribute(node.parent(), "lastId", QString::number(id + 1));
    SetAttribute(node, "id", QString::number(id + 1));
    SetAttribute(node, "type", QString::number(type));
    SetAttribute(node, "name", name);
    return int(rows.size());
}

void DocumentPart::AddHyperlink(const QString& text) {
    SetAttribute(AddTo("hyperlinks", "hyperlink"), "target", text);
}

}  // namespace docmodel
