// Programs on the user's session bus, each a service under its program id.
#pragma once

#include "services/outsideobjects.h"

namespace docbench {

// A program "Some.Program" owns the service of that name, with an object "/Some/Program" of the
// interface "Some.Program". The bus is looked for at the first use; without one, no program runs.
class DBusOutsideObjects : public OutsideObjects {
public:
    std::unique_ptr<OutsideObject> Attach(const QString& programId) override;
};

}  // namespace docbench
