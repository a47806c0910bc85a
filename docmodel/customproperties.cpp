#include "docmodel/customproperties.h"

#include <algorithm>
#include <cstring>

#include "docmodel/packageerror.h"
#include "docmodel/stamp.h"

namespace docmodel {

namespace {

constexpr char kCustom[] =
    "http://schemas.openxmlformats.org/officeDocument/2006/custom-properties";
constexpr char kStrictCustom[] = "http://purl.oclc.org/ooxml/officeDocument/customProperties";
constexpr char kTypes[] = "http://schemas.openxmlformats.org/officeDocument/2006/docPropsVTypes";
constexpr char kStrictTypes[] = "http://purl.oclc.org/ooxml/officeDocument/docPropsVTypes";
constexpr char kFormatId[] = "{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";  // of all custom properties
constexpr int kFirstPid = 2;                                            // 0 and 1 are taken

bool IsProperty(pugi::xml_node node) {
    return IsElement(node, kCustom, "property") || IsElement(node, kStrictCustom, "property");
}

PropertyType TypeOfElement(const char* name) {
    static constexpr const char* kNumbers[] = {"i1",  "i2",  "i4",   "i8", "int", "ui1",    "ui2",
                                               "ui4", "ui8", "uint", "r4", "r8",  "decimal"};
    const auto is = [name](const char* other) { return std::strcmp(name, other) == 0; };
    if (std::any_of(std::begin(kNumbers), std::end(kNumbers), is))
        return kNumber;
    if (is("filetime") || is("date"))
        return kDate;
    return is("bool") ? kYesNo : kText;
}

const char* ElementOfType(PropertyType type) {
    switch (type) {
        case kDate:
            return "filetime";
        case kNumber:
            return "r8";
        case kYesNo:
            return "bool";
        case kText:
            break;
    }
    return "lpwstr";
}

pugi::xml_node ValueElement(pugi::xml_node property) {
    return property.find_child([](pugi::xml_node node) {
        return node.type() == pugi::node_element &&
               (std::strcmp(NamespaceOf(node), kTypes) == 0 ||
                std::strcmp(NamespaceOf(node), kStrictTypes) == 0);
    });
}

}  // namespace

bool SameName(const QString& one, const QString& other) {
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

QByteArray StampOf(const QList<CustomProperty>& properties) {
    Stamp stamp;
    for (const CustomProperty& property : properties)
        stamp.Add(property.name)
            .Add(qint64(property.type))
            .Add(ToText({property.value, PropertyType(property.type)}));
    return stamp.Result();
}

CustomProperties::CustomProperties() : xml_(XmlPart::Make("Properties", kCustom)) {
    xml_.Root().append_attribute("xmlns:vt") = kTypes;
}

CustomProperties::CustomProperties(const QByteArray& bytes, const QString& file,
                                   const QByteArray& part)
    : xml_(XmlPart::Parse(bytes, file, part)) {
    if (!IsElement(xml_.Root(), kCustom, "Properties") &&
        !IsElement(xml_.Root(), kStrictCustom, "Properties"))
        throw DamagedError(
            file, QStringLiteral("its part %1 holds no custom properties").arg(ShownName(part)));
}

QList<CustomProperty> CustomProperties::Properties() const {
    QList<CustomProperty> properties;
    for (const pugi::xml_node node : xml_.Root()) {
        if (!IsProperty(node))
            continue;
        const pugi::xml_node element = ValueElement(node);
        const PropertyValue value = FromText(TextOf(element), TypeOfElement(LocalName(element)));
        properties.append({AttributeOf(node, "name"), value.value, value.type});
    }
    return properties;
}

pugi::xml_node CustomProperties::Find(const QString& name) const {
    const pugi::xml_node root = xml_.Root();
    const auto found = FindNamed(root.begin(), root.end(), name, [](pugi::xml_node node) {
        return IsProperty(node) ? std::optional(AttributeOf(node, "name")) : std::nullopt;
    });
    return found == root.end() ? pugi::xml_node() : *found;
}

pugi::xml_node CustomProperties::Append(const QString& name) {
    int pid = kFirstPid;
    for (const pugi::xml_node node : xml_.Root())
        pid = std::max(pid, std::min(node.attribute("pid").as_int(), INT_MAX - 1) + 1);
    pugi::xml_node property =
        AppendElement(xml_.Root(), NamespaceOf(xml_.Root()), "property", "op");
    property.append_attribute("fmtid") = kFormatId;
    property.append_attribute("pid") = pid;
    SetAttribute(property, "name", name);
    return property;
}

void CustomProperties::Set(const QString& name, const PropertyValue& value) {
    pugi::xml_node property = Find(name);
    if (!property)
        property = Append(name);
    property.remove_children();
    property.remove_attribute("linkTarget");  // its value no longer follows a place in the content
    const bool isStrict = std::strcmp(NamespaceOf(xml_.Root()), kStrictCustom) == 0;
    SetText(
        AppendElement(property, isStrict ? kStrictTypes : kTypes, ElementOfType(value.type), "vt"),
        ToText(value));
    changed_ = true;
}

void CustomProperties::Delete(const QString& name) {
    if (const pugi::xml_node property = Find(name)) {
        xml_.Root().remove_child(property);
        changed_ = true;
    }
}

}  // namespace docmodel
