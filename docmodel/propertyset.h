// A set of custom properties as one object sees it: the state at Open and the edits since then.
#pragma once

#include <QList>
#include <QString>
#include <optional>

#include "docmodel/customproperties.h"

namespace docmodel {

class PropertySet {
public:
    PropertySet() = default;
    explicit PropertySet(QList<CustomProperty> properties);

    const QList<CustomProperty>& Properties() const { return current_; }
    // Raises DocumentError when there is none at `index`; `file` stands in its text.
    const CustomProperty& At(int index, const QString& file) const;
    // Adds or overwrites; false when the name is empty or no document can store it. Giving a
    // property the value that it has is no edit: it stays as it is stored. Raises DocumentError
    // when several properties answer to the name equally well; `file` stands in its text.
    bool Set(const QString& name, const QVariant& value, const QString& file);
    bool Delete(const QString& name, const QString& file);  // false when there is none; raises too

    bool IsChanged() const { return !edits_.isEmpty(); }
    const QByteArray& StampAtOpen() const { return stamp_; }
    void ApplyTo(PropertyTarget& target) const;  // the edits, in their order

private:
    struct Edit {
        QString name;
        std::optional<PropertyValue> value;  // none: deleted
    };
    bool Holds(const QString& name, const PropertyValue& value) const;
    void RequireOneMeaning(const QString& name, const QString& file) const;
    qsizetype Find(const QString& name) const;  // -1 if there is none
    QList<CustomProperty> current_;
    QList<Edit> edits_;
    QByteArray stamp_ = StampOf(QList<CustomProperty>());
};

}  // namespace docmodel
