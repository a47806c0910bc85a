#include "samples/writesamples.h"

#include <QDir>
#include <QFileInfo>
#include <QTimeZone>

#include "docmodel/access.h"
#include "docmodel/builder.h"
#include "samples/gearbox.h"
#include "samples/previews.h"
#include "services/paths.h"

namespace samples {

using docbench::CustomProperty;
using docbench::DocType;
using docbench::DocTypeOf;
using docbench::DocumentError;
using docmodel::DocumentBuilder;

namespace {

// The property that tells the program's own documents from others, and its value.
const QString kMadeBy = QStringLiteral("Made By");
const QString kProgram = QStringLiteral("docbench-samples");

// What the table does not tell of a document follows from its position there.
struct Origin {
    QString number;
    QString author;
    QString owner;
    QDateTime created;
    bool released;
};

Origin OriginOf(int position, const Document& document) {
    const QStringList authors{"A. Lindqvist", "M. Keller", "J. Okafor"};
    const QStringList owners{"Drive Systems", "Castings", "Purchasing"};
    const bool drawing = DocTypeOf(document.path) == DocType::Drawing;
    const QDateTime first(QDate(2024, 1, 8), QTime(7, 30), QTimeZone::utc());
    return {QStringLiteral("GB-%1%2").arg(1000 + position * 10).arg(drawing ? "-D" : ""),
            authors[position % authors.size()], owners[position / 2 % owners.size()],
            first.addDays(position * 3).addSecs(position * 640), position % 4 != 3};
}

bool IsOwn(const QString& path) {
    const auto info = docmodel::Access().MakeDocumentInfo();
    if (!info->Open(path))
        return false;
    for (int index = 0; index < info->GetCustomCount(); ++index) {
        const CustomProperty property = info->GetCustomProperty(index);
        if (property.name == kMadeBy && property.value == kProgram)
            return true;
    }
    return false;
}

void RequireReplaceable(const QDir& folder, const QList<Document>& documents) {
    for (const Document& document : documents) {
        const QString path = folder.filePath(document.path);
        if (QFileInfo::exists(path) && !IsOwn(path))
            throw DocumentError(
                QStringLiteral("%1 can't be written: a file that is no document of the sample "
                               "library has its name. Move it away or choose another folder.")
                    .arg(path));
    }
}

void AddProperties(DocumentBuilder& builder, const Document& document, const Origin& origin) {
    builder.SetTitle(document.title);
    builder.SetAuthor(origin.author);
    builder.SetSubject(QStringLiteral("Gearbox"));
    builder.SetKeywords(QStringLiteral("sample; gearbox"));
    builder.SetCreated(origin.created);
    builder.SetLastSaved(origin.created.addDays(9), origin.author);
    builder.SetCustomProperty(QStringLiteral("Document Number"), origin.number);
    builder.SetCustomProperty(QStringLiteral("Owner"), origin.owner);
    builder.SetCustomProperty(QStringLiteral("Recorded"), origin.created);
    builder.SetCustomProperty(QStringLiteral("Released"), origin.released);
    if (!document.material.isEmpty())
        builder.SetCustomProperty(QStringLiteral("Material"), document.material);
    if (document.mass > 0)
        builder.SetCustomProperty(QStringLiteral("Mass"), document.mass);
    builder.SetCustomProperty(kMadeBy, kProgram);
}

void AddTables(DocumentBuilder& builder, const Document& document, const QDir& folder) {
    for (const Component& component : document.components)
        builder.AddComponent(folder.filePath(component.path), component.count);
    for (const External& external : document.externals)
        builder.AddExternal(folder.filePath(external.path), external.kind);
    for (const QString& address : document.hyperlinks)
        builder.AddHyperlink(address);
    for (const Configuration& configuration : document.configurations)
        builder.AddConfiguration(configuration.name, docmodel::kOrdinaryConfiguration,
                                 {{QStringLiteral("Length"), configuration.length},
                                  {QStringLiteral("Mass"), configuration.mass},
                                  {QStringLiteral("Material"), configuration.material}});
    if (document.configurations.isEmpty() && DocTypeOf(document.path) != DocType::Drawing)
        builder.AddConfiguration(QStringLiteral("Default"), docmodel::kLastingConfiguration);
}

void Write(const Document& document, int position, const QDir& folder) {
    const QString path = folder.filePath(document.path);
    const Origin origin = OriginOf(position, document);
    DocumentBuilder builder = DocumentBuilder::New(path, DocumentBuilder::IfThere::Replace);
    AddProperties(builder, document, origin);
    AddTables(builder, document, folder);
    const bool drawing = DocTypeOf(document.path) == DocType::Drawing;
    const SheetText text{document.title, origin.number, origin.owner,
                         origin.created.date().toString(Qt::ISODate)};
    builder.SetPreview(drawing ? SheetPreview(document.picture, text)
                               : PartPreview(document.picture));
    // Bigger documents for bigger things.
    constexpr qint64 kSmallest = 20 * 1024;
    builder.SetModel(kSmallest + qint64(document.mass * 4096), quint64(position) + 1);
    builder.SetReferencesLocked(document.referencesLocked);
    if (!document.lockedBy.isEmpty())
        builder.SetLockedBy(document.lockedBy);
    builder.Save();
}

}  // namespace

QString WriteSamples(const QString& folderName) {
    const QDir folder(QDir::cleanPath(QFileInfo(folderName).absoluteFilePath()));
    const QList<Document> documents = Gearbox() + FaultyAssemblies();
    RequireReplaceable(folder, documents);
    for (int position = 0; position < documents.size(); ++position) {
        const QString subfolder = QFileInfo(folder.filePath(documents[position].path)).path();
        if (!QDir().mkpath(subfolder))
            throw DocumentError(QStringLiteral("The folder %1 can't be made. Choose a folder that "
                                               "you may write to.")
                                    .arg(subfolder));
        Write(documents[position], position, folder);
    }
    return folder.filePath(QString::fromLatin1(kMainAssembly));
}

}  // namespace samples
