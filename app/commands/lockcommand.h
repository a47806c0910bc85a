// "docbench lock" and "docbench unlock": reserve a document, or give it free.
#pragma once

#include "app/commands/command.h"

namespace docbench {

class LockCommand : public Command {
public:
    enum class Does { Lock, Unlock };
    explicit LockCommand(Does does) : does_(does) {}

    QString Name() const override;
    QString Summary() const override;
    QString Arguments() const override { return QStringLiteral("FILE"); }
    QString Help() const override;
    QList<QCommandLineOption> Options() const override;
    int Run(const QCommandLineParser& line, Console& console) const override;

private:
    const Does does_;
};

}  // namespace docbench
