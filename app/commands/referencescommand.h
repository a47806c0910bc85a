// "docbench references": what one document refers to.
#pragma once

#include "app/commands/command.h"

namespace docbench {

class ReferencesCommand : public Command {
public:
    QString Name() const override { return QStringLiteral("references"); }
    QString Summary() const override {
        return QStringLiteral("lists what a document directly refers to");
    }
    QString Arguments() const override { return QStringLiteral("FILE"); }
    QString Help() const override;
    int Run(const QCommandLineParser& line, Console& console) const override;
};

}  // namespace docbench
