#include "editors/propertyrows.h"

#include <QDateTime>
#include <QLocale>
#include <algorithm>

#include "services/docaccess.h"
#include "services/errorstate.h"
#include "services/localvalues.h"
#include "services/texts.h"

namespace docbench {
namespace {

PropertyType TypeOfCode(int code) {
    return code == kDateProperty || code == kNumberProperty || code == kYesNoProperty
               ? PropertyType(code)
               : kTextProperty;
}

// A value as the list shows it; `tag` gets the stored value where the text does not say all of it.
QString ShownValue(const QVariant& value, PropertyType type, QString& tag) {
    switch (type) {
        case kDateProperty:
            tag = QString::number(value.toDateTime().toMSecsSinceEpoch());
            return DateToLocal(value.toDateTime());
        case kNumberProperty:
            tag = QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest);
            return NumberToLocal(value.toDouble());
        case kYesNoProperty:
            return value.toBool() ? Tr(Text::ValueYes) : Tr(Text::ValueNo);
        case kTextProperty:
            break;
    }
    return value.toString();
}

CellRow RowOf(const QString& name, const QString& value, PropertyType type) {
    return {.cells = {{.text = name}, {.text = value}, {.text = PropertyTypeLabels()[type]}}};
}

// What documents can hold: no control characters but tabs and line ends, no half characters.
bool IsStorable(const QString& text) {
    constexpr char16_t kFirstPrinting = 0x20;
    constexpr char16_t kNoCharacter = 0xFFFE;
    return text.isValidUtf16() && std::none_of(text.begin(), text.end(), [](QChar one) {
               return (one < kFirstPrinting && one != u'\t' && one != u'\n' && one != u'\r') ||
                      one >= kNoCharacter;
           });
}

template <typename Value>
QVariant ValueOrNothing(const std::optional<Value>& value) {
    return value ? QVariant(*value) : QVariant();
}

}  // namespace

void PreparePropertyList(CellList& list) {
    list.SetHeaders({{.text = Tr(Text::PropertyName)},
                     {.text = Tr(Text::PropertyValue)},
                     {.text = Tr(Text::Type)}});
}

QStringList PropertyTypeLabels() {
    return {Tr(Text::TypeText), Tr(Text::TypeDate), Tr(Text::TypeNumber), Tr(Text::TypeYesNo)};
}

PropertyType TypeOfLabel(const QString& label) {
    return TypeOfCode(int(PropertyTypeLabels().indexOf(label)));
}

void LoadPropertyRows(CellList& list, DocumentInfo& set) {
    std::vector<CellRow> rows;
    const int count = set.GetCustomCount();
    for (int index = 0; index < count; ++index) {
        const CustomProperty property = set.GetCustomProperty(index);
        const PropertyType type = TypeOfCode(property.type);
        QString tag;
        const QString shown = ShownValue(property.value, type, tag);
        if (property.name.isEmpty() || shown.isEmpty())
            continue;
        rows.push_back(RowOf(property.name, shown, type));
        rows.back().cells[kPropertyValue].tag = tag;
    }
    list.Clear();
    list.Append(std::move(rows));
}

QStringList PropertyNames(DocumentInfo& set) {
    QStringList names;
    const int count = set.GetCustomCount();
    for (int index = 0; index < count; ++index)
        names.append(set.GetCustomProperty(index).name);
    return names;
}

bool IsAmbiguous(const QStringList& names, const QString& name) {
    const qsizetype exact = names.count(name);
    const qsizetype same = std::count_if(names.begin(), names.end(), [&](const QString& other) {
        return other.compare(name, Qt::CaseInsensitive) == 0;
    });
    return exact > 1 || (exact == 0 && same > 1);
}

int FindProperty(const CellList& list, const QString& name) {
    int found = -1;
    for (int row = 0; row < list.Count(); ++row) {
        const QString& other = list.At(row).cells[kPropertyName].text;
        if (other == name)
            return row;
        if (found < 0 && other.compare(name, Qt::CaseInsensitive) == 0)
            found = row;
    }
    return found;
}

bool FitsType(const QString& text, PropertyType type) {
    switch (type) {
        case kDateProperty:
            return DateFromLocal(text).has_value();
        case kNumberProperty:
            return NumberFromLocal(text).has_value();
        case kYesNoProperty:
            return true;
        case kTextProperty:
            break;
    }
    return IsStorable(text);
}

void PutProperty(CellList& list, int row, const QString& name, const QString& value,
                 PropertyType type) {
    if (row < 0)
        return list.Append(RowOf(name, value, type));
    const CellRow& former = list.At(row);
    if (former.cells[kPropertyValue].text == value &&
        TypeOfLabel(former.cells[kPropertyType].text) == type)
        return;
    list.Change(row, [&](CellRow& changed) {
        changed.cells[kPropertyValue] = {.text = value};
        changed.cells[kPropertyType].text = PropertyTypeLabels()[type];
    });
}

QVariant PropertyValueOf(const CellRow& row) {
    const Cell& value = row.cells[kPropertyValue];
    switch (TypeOfLabel(row.cells[kPropertyType].text)) {
        case kDateProperty:
            return value.tag.isEmpty() ? ValueOrNothing(DateFromLocal(value.text))
                                       : QDateTime::fromMSecsSinceEpoch(value.tag.toLongLong());
        case kNumberProperty:
            return value.tag.isEmpty() ? ValueOrNothing(NumberFromLocal(value.text))
                                       : value.tag.toDouble();
        case kYesNoProperty:
            return value.text == Tr(Text::ValueYes);
        case kTextProperty:
            break;
    }
    return value.text;
}

void WriteProperties(const CellList& list, DocumentInfo& set, const QStringList& deletedNames) {
    ErrorState ignored;
    for (const QString& name : deletedNames)
        ignored.Run([&] { set.DeleteCustomProperty(name); });
    for (const CellRow& row : list.Rows()) {
        const QVariant value = PropertyValueOf(row);
        if (value.isValid())
            ignored.Run([&] { set.SetCustomProperty(row.cells[kPropertyName].text, value); });
    }
}

}  // namespace docbench
