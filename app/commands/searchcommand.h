// "docbench search": documents by rules on their properties and file names.
#pragma once

#include "app/commands/command.h"

namespace docbench {

class SearchCommand : public Command {
public:
    QString Name() const override { return QStringLiteral("search"); }
    QString Summary() const override {
        return QStringLiteral("lists the documents that satisfy rules");
    }
    QString Arguments() const override { return {}; }
    QString Help() const override;
    QList<QCommandLineOption> Options() const override;
    int FewestWords() const override { return 0; }
    int MostWords() const override { return 0; }
    int Run(const QCommandLineParser& line, Console& console) const override;
};

}  // namespace docbench
