// Things outside the process as a desktop has them: programs on the session bus, components as
// plug-ins.
#pragma once

#include "services/outsideobjects.h"

namespace docbench {

// A program "Some.Program" owns the service of that name, with an object "/Some/Program" of the
// interface "Some.Program". The bus is looked for at the first use; without one, no program runs.
class DesktopOutsideObjects : public OutsideObjects {
public:
    std::unique_ptr<OutsideObject> Attach(const QString& programId) override;
    std::unique_ptr<OutsideObject> Start(const QString& programId) override;
    std::unique_ptr<QObject> Create(const QString& programId) override;
};

}  // namespace docbench
