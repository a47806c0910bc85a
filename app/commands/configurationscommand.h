// "docbench configurations": lists a document's configurations, renames and deletes them.
#pragma once

#include "app/commands/command.h"

namespace docbench {

class ConfigurationsCommand : public Command {
public:
    QString Name() const override { return QStringLiteral("configurations"); }
    QString Summary() const override {
        return QStringLiteral("lists, renames and deletes a document's configurations");
    }
    QString Arguments() const override {
        return QStringLiteral("FILE [rename OLD NEW | delete NAME...]");
    }
    QString Help() const override;
    QList<QCommandLineOption> Options() const override;
    int MostWords() const override { return 1'000; }
    int Names() const override { return 1; }  // what follows are texts
    int Run(const QCommandLineParser& line, Console& console) const override;
};

}  // namespace docbench
