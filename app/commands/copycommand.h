// "docbench copy": a document with what it refers to, and with what uses it.
#pragma once

#include "app/commands/command.h"

namespace docbench {

class CopyCommand : public Command {
public:
    QString Name() const override { return QStringLiteral("copy"); }
    QString Summary() const override {
        return QStringLiteral(
            "copies a document with its references, so that copies refer to "
            "copies");
    }
    QString Arguments() const override { return QStringLiteral("FILE"); }
    QString Help() const override;
    QList<QCommandLineOption> Options() const override;
    int Run(const QCommandLineParser& line, Console& console) const override;
};

}  // namespace docbench
