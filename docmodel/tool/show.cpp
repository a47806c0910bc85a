// The command that shows a document: everything the library knows of it, as text or JSON.

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "app/exitcodes.h"
#include "docmodel/access.h"
#include "docmodel/opc.h"
#include "docmodel/propertyvalue.h"
#include "docmodel/referencepath.h"
#include "docmodel/tool/command.h"

namespace docmodel::tool {

using namespace docbench;

namespace {

constexpr const char* kTypeNames[] = {"text", "date", "number", "yesno"};
constexpr const char* kConfigurationTypes[] = {"ordinary", "lasting", "internal"};

QJsonArray PropertiesOf(DocumentInfo& info) {
    QJsonArray properties;
    for (int i = 0; i < info.GetCustomCount(); ++i) {
        const CustomProperty property = info.GetCustomProperty(i);
        const bool isDate = property.type == kDate;
        properties.append(
            QJsonObject{{"name", property.name},
                        {"type", kTypeNames[property.type]},
                        {"value", isDate ? QJsonValue(DateToText(property.value.toDateTime()))
                                         : QJsonValue::fromVariant(property.value)}});
    }
    return properties;
}

bool IsMissing(const QString& path) {
    return !IsUrl(path) && !QFileInfo::exists(path);
}

QJsonArray ComponentsOf(DocumentFile& file) {
    QJsonArray rows;
    for (int i = 0; i < file.GetComponentCount(); ++i) {
        const ComponentRow row = file.GetComponent(i, QString());
        rows.append(QJsonObject{
            {"path", row.path}, {"count", row.count}, {"missing", IsMissing(row.path)}});
    }
    return rows;
}

QJsonArray ExternalsOf(DocumentFile& file) {
    QJsonArray rows;
    for (int i = 0; i < file.GetExternalReferenceCount(); ++i) {
        const ExternalRow row = file.GetExternalReference(i, QString());
        rows.append(
            QJsonObject{{"path", row.path}, {"kind", row.kind}, {"missing", IsMissing(row.path)}});
    }
    return rows;
}

QJsonArray ConfigurationsOf(DocumentFile& file) {
    QJsonArray rows;
    for (int i = 0; i < file.GetConfigurationCount(); ++i)
        rows.append(
            QJsonObject{{"name", file.GetConfiguration(i)},
                        {"type", kConfigurationTypes[qMin(file.GetConfigurationType(i), 2)]},
                        {"properties", PropertiesOf(*file.GetCustomProperties(i))}});
    return rows;
}

QJsonArray HyperlinksOf(DocumentFile& file) {
    QJsonArray rows;
    for (int i = 0; i < file.GetHyperlinkCount(); ++i)
        rows.append(file.GetHyperlink(i));
    return rows;
}

// The summary, properties and lock; nothing for a document that stores none of them.
void AddInfo(QJsonObject& document, const QString& path) {
    const std::unique_ptr<DocumentInfo> info = Access().MakeDocumentInfo();
    if (!info->Open(path))
        return;
    document["title"] = info->GetTitle();
    document["author"] = info->GetAuthor();
    document["subject"] = info->GetSubject();
    document["keywords"] = info->GetKeywords();
    document["comments"] = info->GetComments();
    document["created"] = info->GetCreated();
    document["lastSaved"] = info->GetLastSaved();
    document["lastSavedBy"] = info->GetLastSavedBy();
    document["locked"] = info->GetLocked();
    document["lockedBy"] = info->GetLockedBy();
    document["properties"] = PropertiesOf(*info);
}

QJsonObject Describe(const QString& path) {
    const std::unique_ptr<DocumentFile> file = Access().MakeDocumentFile();
    file->Open(path);
    QJsonObject document{{"path", path}};
    AddInfo(document, path);
    document["currentFormat"] = file->IsCurrentFormat();
    document["referencesLocked"] = file->GetReferencesLocked();
    document["components"] = ComponentsOf(*file);
    document["externalReferences"] = ExternalsOf(*file);
    document["configurations"] = ConfigurationsOf(*file);
    document["hyperlinks"] = HyperlinksOf(*file);
    document["preview"] = !FindPart(Package::Open(path), kThumbnailKind).isEmpty();
    return document;
}

QString YesNo(const QJsonValue& value) {
    return value.toBool() ? QStringLiteral("yes") : QStringLiteral("no");
}

QString ValueText(const QJsonValue& value) {
    if (value.isBool())
        return YesNo(value);
    return value.isDouble() ? NumberToText(value.toDouble()) : value.toString();
}

void PrintField(const char* label, const QString& text) {
    constexpr int kLabelWidth = 20;
    if (!text.isEmpty())
        Out() << QString::fromLatin1(label).leftJustified(kLabelWidth) << text << '\n';
}

// The head of a table with its number of rows; nothing for an empty one.
void PrintHead(const char* label, const QJsonArray& rows) {
    if (!rows.isEmpty())
        Out() << '\n' << label << " (" << rows.size() << ")\n";
}

void PrintProperties(const QJsonArray& rows, const QString& indent) {
    for (const QJsonValue row : rows)
        Out() << indent << row["name"].toString() << " (" << row["type"].toString()
              << "): " << ValueText(row["value"]) << '\n';
}

void PrintReferences(const QJsonObject& document) {
    const auto missing = [](const QJsonValue& row) {
        return row["missing"].toBool() ? QStringLiteral("  (missing)") : QString();
    };
    PrintHead("Components", document["components"].toArray());
    for (const QJsonValue row : document["components"].toArray())
        Out() << "  " << row["count"].toInt() << " x " << row["path"].toString() << missing(row)
              << '\n';
    PrintHead("External references", document["externalReferences"].toArray());
    for (const QJsonValue row : document["externalReferences"].toArray())
        Out() << "  " << row["path"].toString() << " (" << row["kind"].toString() << ')'
              << missing(row) << '\n';
}

void PrintText(const QJsonObject& document) {
    static constexpr std::pair<const char*, const char*> kFields[] = {
        {"Document", "path"},     {"Title", "title"},          {"Author", "author"},
        {"Subject", "subject"},   {"Keywords", "keywords"},    {"Comments", "comments"},
        {"Created", "created"},   {"Last saved", "lastSaved"}, {"Last saved by", "lastSavedBy"},
        {"Locked by", "lockedBy"}};
    for (const auto& [label, key] : kFields)
        PrintField(label, document[QLatin1String(key)].toString());
    PrintField("References locked", YesNo(document["referencesLocked"]));
    PrintField("Preview", YesNo(document["preview"]));
    if (!document["currentFormat"].toBool())
        PrintField("Format", QStringLiteral("too old for references and configurations"));
    PrintHead("Properties", document["properties"].toArray());
    PrintProperties(document["properties"].toArray(), QStringLiteral("  "));
    PrintReferences(document);
    PrintHead("Configurations", document["configurations"].toArray());
    for (const QJsonValue row : document["configurations"].toArray()) {
        Out() << "  " << row["name"].toString() << " (" << row["type"].toString() << ")\n";
        PrintProperties(row["properties"].toArray(), QStringLiteral("    "));
    }
    PrintHead("Hyperlinks", document["hyperlinks"].toArray());
    for (const QJsonValue row : document["hyperlinks"].toArray())
        Out() << "  " << row.toString() << '\n';
}

}  // namespace

int RunShow(const QStringList& arguments) {
    const QString json = QStringLiteral("json");
    Arguments given(QStringLiteral("show"),
                    QStringLiteral("Shows what a document says about itself and refers to."),
                    {{QStringLiteral("FILE"), QStringLiteral("The document.")}});
    given.Parser().addOption({json, QStringLiteral("Prints it as JSON.")});
    if (!given.Read(arguments))
        return kExitDone;
    QJsonObject document;
    try {
        document = Describe(given.At(0));
    } catch (const DocumentError& error) {
        throw OpenError(error.Description());
    }
    if (given.IsSet(json))
        Out() << QJsonDocument(document).toJson();
    else
        PrintText(document);
    return kExitDone;
}

}  // namespace docmodel::tool
