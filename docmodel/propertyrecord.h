// The properties of one document as searches ask for them, packed into one run of bytes.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <optional>

#include "docmodel/package.h"
#include "docmodel/propertyvalue.h"

namespace docmodel {

// Which property a rule asks for: a summary field, or a custom property by its name.
struct PropertyKey {
    enum class Field : quint8 {
        Title,
        Author,
        Comments,
        Keywords,
        Subject,
        LastSavedBy,
        LastSaved,
        Created,
        Custom
    };
    // Summary fields go by their English names. Letter case does not count.
    static PropertyKey For(const QString& name);

    Field field = Field::Custom;
    QString name = {};      // of a custom property
    QByteArray exact = {};  // the same in UTF-8
};

// Reads the properties of the package. A document without any gives a record without any. Raises
// DocumentError.
QByteArray ReadPropertyRecord(const Package& package);

// Looks into packed properties.
class PropertyRecord {
public:
    explicit PropertyRecord(QByteArrayView packed) : packed_(packed) {}  // which must outlive it
    // The value, as one of the types of a custom property; none where the document lacks it. Of
    // custom properties whose names differ in letter case alone, the one that is spelt the same
    // goes first. An empty summary field is one that the document lacks.
    std::optional<PropertyValue> Find(const PropertyKey& key) const;

private:
    QByteArrayView packed_;
};

}  // namespace docmodel
