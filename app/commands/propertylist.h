// The properties of a document as "docbench properties" shows them.
#pragma once

#include <QJsonArray>
#include <QString>
#include <optional>

#include "services/listtable.h"

namespace docbench {

class DocumentFile;
class DocumentInfo;

struct PropertyListing {
    TextTable table;
    QJsonArray rows;  // with the values in their types
};

// Everything: the summary, the custom properties and those of each configuration.
PropertyListing ListProperties(DocumentFile& file, DocumentInfo& info);
// The properties of one configuration, by its position.
PropertyListing ListConfigurationProperties(DocumentFile& file, int configuration);

// The position of a configuration by its name. Raises DocumentError when there is none.
int ConfigurationNamed(DocumentFile& file, const QString& name, const QString& path);

// The English names of the types, by PropertyType: text, date, number, yes-no.
const QStringList& PropertyTypeNames();

}  // namespace docbench
