// A program that writes down how it was started.
#pragma once

#include <QFile>
#include <QTest>

namespace docbench {

// Writes the script to `path`. Run, it leaves its arguments, one a line, and then its folder in a
// file of the same name with ".args" behind.
inline void WriteArgumentScript(const QString& path) {
    QFile script(path);
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write(
        "#!/bin/sh\n"
        "for argument; do printf '%s\\n' \"$argument\"; done >\"$0.new\"\n"
        "pwd >>\"$0.new\"\n"
        "mv \"$0.new\" \"$0.args\"\n");
    script.close();
    QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

// The lines that the script has left; waits until they are there.
inline QStringList ArgumentsOf(const QString& script) {
    QFile file(script + ".args");
    if (!QTest::qWaitFor([&] { return file.exists(); }) || !file.open(QIODevice::ReadOnly))
        return {"the program was not started"};
    return QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
}

}  // namespace docbench
