#include "app/commands/propertylist.h"

#include <QDateTime>
#include <QJsonObject>

#include "editors/propertyrows.h"
#include "editors/summaryfields.h"
#include "services/docaccess.h"
#include "services/localvalues.h"

namespace docbench {

namespace {

const QString kSummaryGroup = QStringLiteral("summary");
const QString kCustomGroup = QStringLiteral("custom");
const QString kConfigurationGroup = QStringLiteral("configuration");

QJsonValue JsonOf(const QVariant& value) {
    if (value.typeId() == QMetaType::QDateTime)
        return value.toDateTime().toString(Qt::ISODate);
    return QJsonValue::fromVariant(value);
}

class Listing {
public:
    void AddSummary(DocumentInfo& info) {
        AddText(QStringLiteral("Title"), ReadSummaryField(info, SummaryField::Title));
        AddText(QStringLiteral("Author"), ReadSummaryField(info, SummaryField::Author));
        AddText(QStringLiteral("Subject"), ReadSummaryField(info, SummaryField::Subject));
        AddText(QStringLiteral("Keywords"), ReadSummaryField(info, SummaryField::Keywords));
        AddText(QStringLiteral("Comments"), ReadSummaryField(info, SummaryField::Comments));
        AddDate(QStringLiteral("Created"), info.GetCreated());
        AddDate(QStringLiteral("Last Saved"), info.GetLastSaved());
        AddText(QStringLiteral("Last Saved by"), info.GetLastSavedBy());
        if (info.GetLocked())
            AddText(QStringLiteral("Locked by"), info.GetLockedBy());
    }

    void AddSet(DocumentInfo& set, const QString& group, const QString& configuration) {
        CellList rows;
        LoadPropertyRows(rows, set);
        for (const CellRow& row : rows.Rows())
            Add({row.cells[kPropertyName].text, row.cells[kPropertyValue].text,
                 PropertyTypeNames()[TypeOfLabel(row.cells[kPropertyType].text)], group,
                 configuration},
                JsonOf(PropertyValueOf(row)));
    }

    PropertyListing Take() { return std::move(listing_); }

private:
    void Add(const std::vector<QString>& cells, const QJsonValue& value) {
        listing_.table.push_back(cells);
        QJsonObject row;
        for (size_t i = 0; i < cells.size(); ++i)
            row.insert(listing_.table.front()[i].toLower(), cells[i]);
        row.insert(QStringLiteral("value"), value);
        listing_.rows.append(row);
    }

    void AddText(const QString& name, const QString& text) {
        if (!text.isEmpty())
            Add({name, text, PropertyTypeNames()[kTextProperty], kSummaryGroup, QString()}, text);
    }

    // The library gives them by the user's locale.
    void AddDate(const QString& name, const QString& text) {
        const std::optional<QDateTime> date = DateFromLocal(text);
        if (!text.isEmpty())
            Add({name, text, PropertyTypeNames()[kDateProperty], kSummaryGroup, QString()},
                date ? JsonOf(*date) : QJsonValue(text));
    }

    PropertyListing listing_{
        .table = {{QStringLiteral("Property"), QStringLiteral("Value"), QStringLiteral("Type"),
                   QStringLiteral("Group"), QStringLiteral("Configuration")}},
        .rows = {}};
};

void AddConfiguration(Listing& listing, DocumentFile& file, int configuration) {
    if (const auto set = file.GetCustomProperties(configuration))
        listing.AddSet(*set, kConfigurationGroup, file.GetConfiguration(configuration));
}

}  // namespace

PropertyListing ListProperties(DocumentFile& file, DocumentInfo& info) {
    Listing listing;
    listing.AddSummary(info);
    listing.AddSet(info, kCustomGroup, QString());
    for (int i = 0; i < file.GetConfigurationCount(); ++i)
        AddConfiguration(listing, file, i);
    return listing.Take();
}

PropertyListing ListConfigurationProperties(DocumentFile& file, int configuration) {
    Listing listing;
    AddConfiguration(listing, file, configuration);
    return listing.Take();
}

int ConfigurationNamed(DocumentFile& file, const QString& name, const QString& path) {
    int found = -1;
    for (int i = 0; i < file.GetConfigurationCount(); ++i) {
        const QString other = file.GetConfiguration(i);
        if (other == name)
            return i;
        if (found < 0 && other.compare(name, Qt::CaseInsensitive) == 0)
            found = i;
    }
    if (found < 0)
        throw DocumentError(
            QStringLiteral("There is no configuration \"%1\" in %2.").arg(name, path));
    return found;
}

const QStringList& PropertyTypeNames() {
    static const QStringList names{QStringLiteral("text"), QStringLiteral("date"),
                                   QStringLiteral("number"), QStringLiteral("yes-no")};
    return names;
}

}  // namespace docbench
