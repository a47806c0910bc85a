// "docbench tree": prints the reference tree of a document.
#pragma once

#include "app/commands/command.h"

namespace docbench {

class TreeCommand : public Command {
public:
    QString Name() const override { return QStringLiteral("tree"); }
    QString Summary() const override {
        return QStringLiteral("prints the reference tree of a document");
    }
    QString Arguments() const override { return QStringLiteral("FILE"); }
    QString Help() const override;
    int Run(const QCommandLineParser& line, Console& console) const override;
};

}  // namespace docbench
