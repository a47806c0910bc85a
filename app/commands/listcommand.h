// "docbench list": the named folder lists.
#pragma once

#include "app/commands/command.h"

namespace docbench {

class ListCommand : public Command {
public:
    QString Name() const override { return QStringLiteral("list"); }
    QString Summary() const override {
        return QStringLiteral("shows, sets and deletes named folder lists");
    }
    QString Arguments() const override { return QStringLiteral("[NAME [FOLDER...]]"); }
    QString Help() const override;
    QList<QCommandLineOption> Options() const override;
    int FewestWords() const override { return 0; }
    int MostWords() const override { return 1'000; }
    int Run(const QCommandLineParser& line, Console& console) const override;
};

}  // namespace docbench
