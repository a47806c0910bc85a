// "docbench where-used": the documents that use a document.
#pragma once

#include "app/commands/command.h"

namespace docbench {

class WhereUsedCommand : public Command {
public:
    QString Name() const override { return QStringLiteral("where-used"); }
    QString Summary() const override {
        return QStringLiteral("lists the documents that use a document");
    }
    QString Arguments() const override { return QStringLiteral("FILE"); }
    QString Help() const override;
    QList<QCommandLineOption> Options() const override;
    int Run(const QCommandLineParser& line, Console& console) const override;
};

}  // namespace docbench
