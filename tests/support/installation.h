// The build installed below a temporary folder, and programs run in an environment that knows
// nothing of the build.
#pragma once

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace docbench {

struct Outcome {
    int code;  // -1: did not end by itself
    QString out;
    QString err;
};

inline Outcome RunProgram(const QString& program, const QStringList& arguments,
                          const QMap<QString, QString>& variables = {}) {
    QProcess process;
    QProcessEnvironment environment;
    for (const char* kept :
         {"PATH", "HOME", "TMPDIR", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME",
          "XDG_DATA_HOME", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"})
        environment.insert(QString::fromLatin1(kept), qEnvironmentVariable(kept));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    for (auto variable = variables.begin(); variable != variables.end(); ++variable)
        environment.insert(variable.key(), variable.value());
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(60000))
        qFatal("%s does not end", qPrintable(program));
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

// The build's programs are in its folder "bin", where the tests are as well.
inline QString BuildFolder() {
    return QFileInfo(QCoreApplication::applicationDirPath()).path();
}

class Installation {
public:
    // Installs one component; the outcome of the installing program is in `outcome`.
    explicit Installation(const QString& component = QStringLiteral("runtime")) { Add(component); }

    void Add(const QString& component) {
        outcome =
            RunProgram(QStringLiteral("cmake"),
                       {QStringLiteral("--install"), BuildFolder(), QStringLiteral("--component"),
                        component, QStringLiteral("--prefix"), Path(QStringLiteral("usr"))});
    }

    // Of a name below the temporary folder, whose folder "usr" is the prefix.
    QString Path(const QString& name) const { return folder_.filePath(name); }
    QString Data(const QString& name) const { return Path(QStringLiteral("usr/share/") + name); }

    Outcome outcome = {};

private:
    QTemporaryDir folder_;
};

}  // namespace docbench
