// "docbench references", "configurations" and "hyperlinks": what one document holds.
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

class ContentsCommand : public Command {
public:
    enum class Lists { Configurations, Hyperlinks };
    explicit ContentsCommand(Lists lists) : lists_(lists) {}

    QString Name() const override;
    QString Summary() const override;
    QString Arguments() const override { return QStringLiteral("FILE"); }
    QString Help() const override;
    int Run(const QCommandLineParser& line, Console& console) const override;

private:
    const Lists lists_;
};

}  // namespace docbench
