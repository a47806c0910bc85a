#include "app/commands/referencescommand.h"

#include <QFileInfo>
#include <QJsonArray>

#include "app/commands/console.h"
#include "app/exitcodes.h"
#include "services/paths.h"
#include "services/webcopies.h"

namespace docbench {

QString ReferencesCommand::Help() const {
    return QStringLiteral(
        "The rows of both tables, in their order. A document that is not there is marked as "
        "missing.\n\n"
        "  docbench references -0 gearbox.tfmasm | xargs -0 ls -l\n");
}

int ReferencesCommand::Run(const QCommandLineParser& line, Console& console) const {
    const QString document = DocumentPath(line.positionalArguments().first());
    const auto file = OpenDocument(document);
    const QString webFolder = IsWebPath(document) ? UrlFolder(document) : QString();
    const auto state = [](const QString& path) {
        return IsWebPath(path) || QFileInfo::exists(path) ? QString() : QStringLiteral("missing");
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
    console.PrintTable(table);
    console.PrintJson({{QStringLiteral("rows"), RowsAsJson(table)}});
    return kExitDone;
}

}  // namespace docbench
