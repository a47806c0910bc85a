// "docbench hyperlinks": lists a document's hyperlinks, and rewrites them.
#pragma once

#include "app/commands/command.h"

namespace docbench {

class HyperlinksCommand : public Command {
public:
    QString Name() const override { return QStringLiteral("hyperlinks"); }
    QString Summary() const override {
        return QStringLiteral("lists and rewrites a document's hyperlinks");
    }
    QString Arguments() const override { return QStringLiteral("FILE [change OLD NEW]"); }
    QString Help() const override;
    QList<QCommandLineOption> Options() const override;
    int MostWords() const override { return 4; }
    int Names() const override { return 1; }  // what follows are texts
    int Run(const QCommandLineParser& line, Console& console) const override;
};

}  // namespace docbench
