// Starting other programs: by what a file is associated with, or by their own path.
#pragma once

#include <QString>
#include <QStringList>

namespace docbench {

class ShellExecute {
public:
    virtual ~ShellExecute() = default;
    // Opens `file` with the program that the desktop associates with it. `parameters` and `folder`
    // are handed on only where the file is itself a program. False when nothing could be started.
    virtual bool Execute(const QString& verb, const QString& file, const QString& parameters,
                         const QString& folder, int showCommand) = 0;
    virtual bool StartProgram(const QString& program, const QStringList& arguments) = 0;
};

}  // namespace docbench
