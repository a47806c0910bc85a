// The custom properties of a document (the part docProps/custom.xml), and what all property sets
// share.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <algorithm>
#include <functional>
#include <optional>

#include "docmodel/propertyvalue.h"
#include "docmodel/xml.h"
#include "services/docaccess.h"

namespace docmodel {

using docbench::CustomProperty;

// Names of properties are the same in any case of letters.
bool SameName(const QString& one, const QString& other);

// The one of that name in [begin, end); `end` if there is none. `nameOf` tells the name of each,
// and none for what is no property. Packages of others may have names that differ in case alone, so
// an exact one goes first.
template <typename Iterator, typename NameOf>
Iterator FindNamed(Iterator begin, Iterator end, const QString& name, NameOf nameOf) {
    const auto find = [&](auto same) {
        return std::find_if(begin, end, [&](const auto& one) {
            const std::optional<QString> found = nameOf(one);
            return found && same(*found, name);
        });
    };
    const Iterator exact = find(std::equal_to<QString>());
    return exact != end ? exact : find(SameName);
}

QByteArray StampOf(const QList<CustomProperty>& properties);

// What a change of a property set is carried out on.
class PropertyTarget {
public:
    virtual ~PropertyTarget() = default;
    virtual void Set(const QString& name, const PropertyValue& value) = 0;  // adds or overwrites
    virtual void Delete(const QString& name) = 0;  // nothing happens if there is none
};

class CustomProperties : public PropertyTarget {
public:
    CustomProperties();  // with nothing in it
    // `part` is its name, for error texts. Raises DocumentError when it can't be understood.
    CustomProperties(const QByteArray& bytes, const QString& file, const QByteArray& part);

    // A value of a type that has no place in CustomProperty comes as its text.
    QList<CustomProperty> Properties() const;
    void Set(const QString& name, const PropertyValue& value) override;
    void Delete(const QString& name) override;

    bool IsChanged() const { return changed_; }
    QByteArray Bytes() const { return xml_.Bytes(); }

private:
    pugi::xml_node Find(const QString& name) const;
    pugi::xml_node Append(const QString& name);
    XmlPart xml_;
    bool changed_ = false;
};

}  // namespace docmodel
