#include "app/commands/referencescommand.h"

#include <QJsonArray>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "services/documentlibrary.h"
#include "services/paths.h"
#include "services/webcopies.h"
#include "services/webdocument.h"

namespace docbench {

namespace {

// The document named on the line, open; null with a message when it can't be.
std::unique_ptr<DocumentFile> OpenNamed(const QCommandLineParser& line, Console& console) {
    const QString document = DocumentPath(line.positionalArguments().first());
    gWebDocument = IsWebPath(document);
    try {
        auto file = Documents().MakeDocumentFile();
        file->Open(LocalCopyOf(document));
        return file;
    } catch (const DocumentError& error) {
        console.Warn(error.Description());
        return nullptr;
    }
}

int Print(const TextTable& table, Console& console) {
    console.PrintTable(table);
    console.PrintJson({{QStringLiteral("rows"), RowsAsJson(table)}});
    return kExitDone;
}

}  // namespace

QString ReferencesCommand::Help() const {
    return QStringLiteral(
        "The rows of both tables, in their order. A document that is not there is marked as "
        "missing.\n\n"
        "  docbench references -0 gearbox.tfmasm | xargs -0 ls -l\n");
}

int ReferencesCommand::Run(const QCommandLineParser& line, Console& console) const {
    const auto file = OpenNamed(line, console);
    if (!file)
        return kExitNoDocument;
    const QString document = DocumentPath(line.positionalArguments().first());
    const QString webFolder = IsWebPath(document) ? UrlFolder(document) : QString();
    const auto state = [](const QString& path) {
        return IsWebPath(path) || FileExists(path) ? QString() : QStringLiteral("missing");
    };
    TextTable table = {{QStringLiteral("Document"), QStringLiteral("Table"),
                        QStringLiteral("Position"), QStringLiteral("State")}};
    for (int i = 0; i < file->GetComponentCount(); ++i) {
        const QString path = file->GetComponent(i, webFolder).path;
        table.push_back({path, QStringLiteral("component"), QString::number(i + 1), state(path)});
    }
    for (int i = 0; i < file->GetExternalReferenceCount(); ++i) {
        const QString path = file->GetExternalReference(i, webFolder).path;
        table.push_back({path, QStringLiteral("external"), QString::number(i + 1), state(path)});
    }
    return Print(table, console);
}

QString ContentsCommand::Name() const {
    return lists_ == Lists::Configurations ? QStringLiteral("configurations")
                                           : QStringLiteral("hyperlinks");
}

QString ContentsCommand::Summary() const {
    return lists_ == Lists::Configurations ? QStringLiteral("lists a document's configurations")
                                           : QStringLiteral("lists a document's hyperlinks");
}

QString ContentsCommand::Help() const {
    return QStringLiteral("One line each, in the document's order.\n\n  docbench %1 bolt.tfmprt\n")
        .arg(Name());
}

int ContentsCommand::Run(const QCommandLineParser& line, Console& console) const {
    const auto file = OpenNamed(line, console);
    if (!file)
        return kExitNoDocument;
    TextTable table;
    if (lists_ == Lists::Configurations) {
        table.push_back({QStringLiteral("Configuration")});
        for (int i = 0; i < file->GetConfigurationCount(); ++i)
            table.push_back({file->GetConfiguration(i)});
    } else {
        table.push_back({QStringLiteral("Hyperlink")});
        file->OpenHyperlinks(LocalCopyOf(DocumentPath(line.positionalArguments().first())));
        for (int i = 0; i < file->GetHyperlinkCount(); ++i)
            table.push_back({file->GetHyperlink(i)});
    }
    return Print(table, console);
}

}  // namespace docbench
