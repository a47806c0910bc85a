#include "tests/support/testenvironment.h"

#include <QDir>

namespace docbench {

TestEnvironment::TestEnvironment() {
    const auto privateFolder = [this](const char* variable, const QString& name) {
        QDir(home_.path()).mkpath(name);
        qputenv(variable, QFile::encodeName(home_.filePath(name)));
    };
    privateFolder("HOME", QStringLiteral("home"));
    privateFolder("XDG_CONFIG_HOME", QStringLiteral("config"));
    privateFolder("XDG_CONFIG_DIRS", QStringLiteral("systemconfig"));
    privateFolder("XDG_CACHE_HOME", QStringLiteral("cache"));
    privateFolder("TMPDIR", QStringLiteral("tmp"));
}

}  // namespace docbench
