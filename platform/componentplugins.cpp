#include "platform/componentplugins.h"

#include <QDebug>
#include <QDir>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

#include "services/component.h"
#include "services/programfolder.h"

namespace docbench {
namespace {

QString ProgramIdOf(const QPluginLoader& plugin) {
    const QJsonObject metadata = plugin.metaData();
    if (metadata.value(QLatin1String("IID")).toString() != QLatin1String(DocbenchComponent_iid))
        return {};
    return metadata.value(QLatin1String("MetaData"))
        .toObject()
        .value(QLatin1String("programId"))
        .toString();
}

}  // namespace

QString ComponentFolder() {
    return ProgramFolder() + QStringLiteral("/components");
}

std::unique_ptr<QObject> CreateComponent(const QString& folder, const QString& programId) {
    const QDir plugins(folder);
    for (const QString& name : plugins.entryList(QDir::Files, QDir::Name)) {
        if (!QLibrary::isLibrary(name))
            continue;
        QPluginLoader plugin(plugins.filePath(name));
        if (ProgramIdOf(plugin) != programId)
            continue;
        auto* factory = qobject_cast<ComponentFactory*>(plugin.instance());
        if (factory)
            return std::unique_ptr<QObject>(factory->Create());
        qWarning().noquote() << plugin.errorString();
    }
    return nullptr;
}

}  // namespace docbench
