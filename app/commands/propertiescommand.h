// "docbench properties": what a document says about itself.
#pragma once

#include "app/commands/command.h"

namespace docbench {

class PropertiesCommand : public Command {
public:
    QString Name() const override { return QStringLiteral("properties"); }
    QString Summary() const override {
        return QStringLiteral("shows and sets a document's properties");
    }
    QString Arguments() const override { return QStringLiteral("FILE"); }
    QString Help() const override;
    QList<QCommandLineOption> Options() const override;
    int Run(const QCommandLineParser& line, Console& console) const override;
};

}  // namespace docbench
