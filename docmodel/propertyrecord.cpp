#include "docmodel/propertyrecord.h"

#include <array>
#include <cstring>

#include "docmodel/documentcontent.h"

namespace docmodel {

namespace {

using Field = PropertyKey::Field;

// By Field.
constexpr std::array<const char*, 8> kKeys = {"Title",   "Author",        "Comments",   "Keywords",
                                              "Subject", "Last Saved by", "Last Saved", "Created"};

// Before the name in UTF-8 and the value: a number as such, else in UTF-8 as XML stores one of its
// type.
struct ItemHead {
    Field field;
    quint8 type;
    quint16 reserved = 0;
    quint32 nameLength;
    quint32 valueLength;
};

struct Item {
    ItemHead head;
    QByteArrayView name;
    QByteArrayView value;
};

void Append(QByteArray& packed, Field field, PropertyType type, const QByteArray& name,
            const QByteArray& value) {
    const ItemHead head = {.field = field,
                           .type = quint8(type),
                           .nameLength = quint32(name.size()),
                           .valueLength = quint32(value.size())};
    packed.append(reinterpret_cast<const char*>(&head), sizeof head);
    packed.append(name);
    packed.append(value);
}

void AppendField(QByteArray& packed, Field field, PropertyType type, const QString& text) {
    if (!text.isEmpty())
        Append(packed, field, type, {}, text.toUtf8());
}

void AppendSummary(QByteArray& packed, const CoreProperties& core) {
    const Summary texts = core.Texts();
    for (size_t field = 0; field < texts.size(); ++field)
        AppendField(packed, Field(field), kText, texts[field]);
    AppendField(packed, Field::LastSavedBy, kText, core.LastSavedBy());
    AppendField(packed, Field::LastSaved, kDate, core.Modified());
    AppendField(packed, Field::Created, kDate, core.Created());
}

// Takes the next item off the rest; false at the end, and where the bytes are none of ours.
bool Next(QByteArrayView& rest, Item& item) {
    if (size_t(rest.size()) < sizeof item.head)
        return false;
    std::memcpy(&item.head, rest.data(), sizeof item.head);
    rest = rest.sliced(sizeof item.head);
    const quint64 length = quint64(item.head.nameLength) + item.head.valueLength;
    if (quint64(rest.size()) < length)
        return false;
    item.name = rest.first(qsizetype(item.head.nameLength));
    item.value = rest.sliced(item.name.size(), qsizetype(item.head.valueLength));
    rest = rest.sliced(qsizetype(length));
    return true;
}

QByteArray BytesOf(const PropertyValue& value) {
    if (value.type != kNumber)
        return ToText(value).toUtf8();
    const double number = value.value.toDouble();
    return QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
}

PropertyValue ValueOf(const Item& item) {
    double number = 0;
    if (item.head.type == kNumber && size_t(item.value.size()) == sizeof number) {
        std::memcpy(&number, item.value.data(), sizeof number);
        return {number, kNumber};
    }
    return FromText(QString::fromUtf8(item.value), PropertyType(item.head.type));
}

}  // namespace

PropertyKey PropertyKey::For(const QString& name) {
    for (size_t field = 0; field < kKeys.size(); ++field)
        if (SameName(name, QLatin1String(kKeys[field])))
            return {Field(field)};
    return {Field::Custom, name, name.toUtf8()};
}

QByteArray ReadPropertyRecord(const Package& package) {
    const PartFinder parts(package);
    QByteArray packed;
    if (const std::optional<CoreProperties> core = ReadCore(parts))
        AppendSummary(packed, *core);
    if (const std::optional<CustomProperties> custom = ReadCustom(parts)) {
        const QList<CustomProperty> properties = custom->Properties();
        for (const CustomProperty& property : properties) {
            const PropertyValue value{property.value, PropertyType(property.type)};
            Append(packed, Field::Custom, value.type, property.name.toUtf8(), BytesOf(value));
        }
    }
    return packed;
}

std::optional<PropertyValue> PropertyRecord::Find(const PropertyKey& key) const {
    std::optional<Item> similar;
    QByteArrayView rest = packed_;
    for (Item item; Next(rest, item);) {
        if (item.head.field != key.field)
            continue;
        if (item.name == key.exact)
            return ValueOf(item);
        if (!similar && SameName(QString::fromUtf8(item.name), key.name))
            similar = item;
    }
    return similar ? std::optional(ValueOf(*similar)) : std::nullopt;
}

}  // namespace docmodel
