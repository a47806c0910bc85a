// "docbench rename" and "docbench replace": the references to a document are written anew.
#pragma once

#include "app/commands/command.h"

namespace docbench {

class RenameCommand : public Command {
public:
    enum class Does { Rename, Replace };
    explicit RenameCommand(Does does) : does_(does) {}

    QString Name() const override;
    QString Summary() const override;
    QString Arguments() const override;
    QString Help() const override;
    QList<QCommandLineOption> Options() const override;
    int FewestWords() const override { return 2; }
    int MostWords() const override { return 2; }
    int Run(const QCommandLineParser& line, Console& console) const override;

private:
    bool Replaces() const { return does_ == Does::Replace; }

    const Does does_;
};

}  // namespace docbench
