// Starts programs and opens files as the desktop associates them.
#pragma once

#include "services/shellexecute.h"

namespace docbench {

class DesktopShellExecute : public ShellExecute {
public:
    // The show command has no meaning here: a program decides on its window.
    bool Execute(const QString& verb, const QString& file, const QString& parameters,
                 const QString& folder, int showCommand) override;
    bool StartProgram(const QString& program, const QStringList& arguments) override;
};

}  // namespace docbench
