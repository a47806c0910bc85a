// Writes manual pages and completion scripts of programs, made from what their --help tells:
// docbench-manual VERSION FOLDER PROGRAM...

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <stdexcept>

#include "manual/completion.h"
#include "manual/manpage.h"

namespace {

using namespace manual;

void Write(const QString& path, const QString& text) {
    QFile file(path);
    if (!QDir().mkpath(path.left(path.lastIndexOf(u'/'))) || !file.open(QIODevice::WriteOnly) ||
        file.write(text.toUtf8()) < 0)
        throw std::runtime_error(
            QStringLiteral("%1 can't be written: %2").arg(path, file.errorString()).toStdString());
}

void WriteAll(const QString& version, const QString& folder, const QStringList& programs) {
    QList<HelpText> all;
    for (const QString& program : programs) {
        const QList<HelpText> help = HelpOfProgram(program);
        const QString& name = help.first().program;
        Write(folder + QStringLiteral("/bash/") + name, BashCompletion(help));
        Write(folder + QStringLiteral("/zsh/_") + name, ZshCompletion(help));
        all += help;
    }
    for (const HelpText& help : all)
        Write(QStringLiteral("%1/man/%2.1").arg(folder, PageName(help)),
              ManPage(help, OtherPages(help, all), version));
}

}  // namespace

int main(int argc, char* argv[]) {
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 4) {
        QTextStream(stderr) << "usage: docbench-manual VERSION FOLDER PROGRAM...\n";
        return 2;
    }
    try {
        WriteAll(words[1], words[2], words.mid(3));
        return 0;
    } catch (const std::runtime_error& error) {
        QTextStream(stderr) << error.what() << '\n';
        return 1;
    }
}
