#include "app/commands/propertychange.h"

#include <algorithm>

#include "app/commands/command.h"
#include "app/commands/propertylist.h"
#include "services/docaccess.h"
#include "services/texts.h"

namespace docbench {

namespace {

bool IsOneOf(const QString& text, const QString& one, const QString& other) {
    return text.compare(one, Qt::CaseInsensitive) == 0 ||
           text.compare(other, Qt::CaseInsensitive) == 0;
}

// As the list shows it: a yes or a no may also be given in English.
QString ShownValue(const QString& text, PropertyType type) {
    if (type == kYesNoProperty) {
        if (IsOneOf(text, QStringLiteral("yes"), Tr(Text::ValueYes)))
            return Tr(Text::ValueYes);
        if (IsOneOf(text, QStringLiteral("no"), Tr(Text::ValueNo)))
            return Tr(Text::ValueNo);
    } else if (FitsType(text, type)) {
        return text;
    }
    throw UsageError(QStringLiteral("\"%1\" can't be the value of a property of the type %2.")
                         .arg(text, PropertyTypeNames()[type]));
}

bool HasControlCharacter(const QString& name) {
    constexpr char16_t kFirstPrinting = 0x20;
    return std::any_of(name.begin(), name.end(), [](QChar one) { return one < kFirstPrinting; });
}

}  // namespace

PropertyChange::PropertyChange(DocumentInfo& set, const QString& document)
    : document_(document),
      stored_(PropertyNames(set)),
      stamp_(set.GetStamp(PropertyGroup::Custom)) {
    PreparePropertyList(rows_);
    LoadPropertyRows(rows_, set);
}

void PropertyChange::RequireUnambiguous(const QString& name) const {
    if (IsAmbiguous(stored_, name))
        throw DocumentError(AmbiguityReason(document_, name));
}

void PropertyChange::Set(const QString& assignment, std::optional<PropertyType> type) {
    const qsizetype equals = assignment.indexOf(u'=');
    if (equals < 1)
        throw UsageError(QStringLiteral("\"%1\" does not read like NAME=VALUE.").arg(assignment));
    const QString name = assignment.left(equals);
    if (equals + 1 == assignment.size())
        throw UsageError(
            QStringLiteral("The property \"%1\" needs a value; --delete takes it away.").arg(name));
    if (HasControlCharacter(name) || !FitsType(name, kTextProperty))
        throw UsageError(QStringLiteral("\"%1\" can't be the name of a property.").arg(name));
    if (given_.contains(name, Qt::CaseInsensitive))
        throw UsageError(
            QStringLiteral("--set may be given once for the property \"%1\".").arg(name));
    given_.append(name);
    RequireUnambiguous(name);
    const int row = FindProperty(rows_, name);
    const PropertyType wanted = type.value_or(
        row < 0 ? kTextProperty : TypeOfLabel(rows_.At(row).cells[kPropertyType].text));
    const QString value = ShownValue(assignment.mid(equals + 1), wanted);
    const QVariant before = row < 0 ? QVariant() : PropertyValueOf(rows_.At(row));
    PutProperty(rows_, row, name, value, wanted);
    const QVariant after = PropertyValueOf(rows_.At(row < 0 ? rows_.Count() - 1 : row));
    if (before.typeId() == after.typeId() && before == after)
        return;
    set_.append(name);
    changes_.append({QStringLiteral("set ") + name, value});
}

void PropertyChange::Delete(const QString& name) {
    RequireUnambiguous(name);
    const int row = FindProperty(rows_, name);
    if (row < 0)
        throw DocumentError(
            QStringLiteral("There is no property \"%1\" in %2.").arg(name, document_));
    const QString stored = rows_.At(row).cells[kPropertyName].text;
    rows_.Remove(row);
    deleted_.append(stored);
    changes_.append({QStringLiteral("delete ") + stored, QString()});
}

QStringList PropertyChange::NotIn(DocumentInfo& set) const {
    CellList stored;
    LoadPropertyRows(stored, set);
    QStringList missing;
    for (const QString& name : set_) {
        const int row = FindProperty(stored, name);
        if (row < 0 || stored.At(row).cells[kPropertyValue].text.isEmpty())
            missing.append(name);
    }
    for (const QString& name : deleted_) {
        if (FindProperty(rows_, name) < 0 && FindProperty(stored, name) >= 0)
            missing.append(name);
    }
    return missing;
}

PropertyType PropertyTypeNamed(const QString& name) {
    const qsizetype type = PropertyTypeNames().indexOf(name);
    if (type < 0)
        throw UsageError(QStringLiteral("There is no type \"%1\": take one of %2.")
                             .arg(name, PropertyTypeNames().join(QStringLiteral(", "))));
    return PropertyType(type);
}

}  // namespace docbench
