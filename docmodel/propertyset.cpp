#include "docmodel/propertyset.h"

#include <algorithm>
#include <functional>

#include "docmodel/packageerror.h"

namespace docmodel {

PropertySet::PropertySet(QList<CustomProperty> properties)
    : current_(std::move(properties)), stamp_(StampOf(current_)) {}

const CustomProperty& PropertySet::At(int index, const QString& file) const {
    if (index < 0 || index >= current_.size())
        throw docbench::DocumentError(
            QStringLiteral("The document %1 has no custom property at position %2, but %3 of them. "
                           "Open it again.")
                .arg(file)
                .arg(index)
                .arg(current_.size()));
    return current_[index];
}

namespace {

// What is stored may hold other line ends than are written.
bool IsSame(const CustomProperty& property, const PropertyValue& value) {
    const PropertyValue former{property.value, PropertyType(property.type)};
    return former == value || (former.type == kText && value.type == kText &&
                               WithXmlLineEnds(former.value.toString()) == value.value.toString());
}

}  // namespace

bool PropertySet::Holds(const QString& name, const PropertyValue& value) const {
    return std::any_of(current_.begin(), current_.end(), [&](const CustomProperty& property) {
        return property.name == name && IsSame(property, value);
    });
}

// Packages of others may have a name twice: an edit could hit the wrong one.
void PropertySet::RequireOneMeaning(const QString& name, const QString& file) const {
    const auto count = [&](auto same) {
        return std::count_if(current_.begin(), current_.end(),
                             [&](const CustomProperty& one) { return same(one.name, name); });
    };
    const qsizetype exact = count(std::equal_to<QString>());
    if (exact > 1 || (exact == 0 && count(SameName) > 1))
        throw FailedError(file, QStringLiteral("changed"),
                          QStringLiteral("it has several properties that the name \"%1\" can stand "
                                         "for, and the change could hit the wrong one. Change them "
                                         "in the program that made the document")
                              .arg(name));
}

bool PropertySet::Set(const QString& name, const QVariant& value, const QString& file) {
    const std::optional<PropertyValue> stored = PropertyValueFor(value);
    if (name.isEmpty() || !IsXmlText(name) || !stored)
        return false;
    // Of a name that is there twice, either value, given back, is no edit.
    if (Holds(name, *stored))
        return true;
    RequireOneMeaning(name, file);
    const qsizetype index = Find(name);
    if (index < 0) {
        current_.append({name, stored->value, stored->type});
    } else if (IsSame(current_[index], *stored)) {
        return true;
    } else {
        current_[index].value = stored->value;
        current_[index].type = stored->type;
    }
    edits_.append({name, stored});
    return true;
}

bool PropertySet::Delete(const QString& name, const QString& file) {
    RequireOneMeaning(name, file);
    const qsizetype index = Find(name);
    if (index < 0)
        return false;
    current_.removeAt(index);
    edits_.append({name, std::nullopt});
    return true;
}

void PropertySet::ApplyTo(PropertyTarget& target) const {
    for (const Edit& edit : edits_) {
        if (edit.value)
            target.Set(edit.name, *edit.value);
        else
            target.Delete(edit.name);
    }
}

qsizetype PropertySet::Find(const QString& name) const {
    const auto found = FindNamed(current_.begin(), current_.end(), name,
                                 [](const CustomProperty& property) { return property.name; });
    return found == current_.end() ? -1 : found - current_.begin();
}

}  // namespace docmodel
