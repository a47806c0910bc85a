// Components under their program ids: plug-ins in a folder beside the program.
#pragma once

#include <QObject>
#include <QString>
#include <memory>

namespace docbench {

// Where the program's own components stand: "components" beside the program.
QString ComponentFolder();

// A new object of the plug-in of `folder` whose metadata names the id; null when there is none,
// when it can't be loaded (the log says why) or makes nothing. A plug-in with another id is never
// loaded.
std::unique_ptr<QObject> CreateComponent(const QString& folder, const QString& programId);

}  // namespace docbench
