// Everything outside the process, as a desktop has it.
#pragma once

#include <memory>

#include "services/seams.h"
#include "shell/export.h"

namespace docbench {

// Makes what stands behind the seams and installs it in gSeams for its own life; what was there
// before comes back afterwards. Needs the application object, and must outlive the controls.
class DOCBENCH_EXPORT DesktopSeams {
public:
    DesktopSeams();
    ~DesktopSeams();
    DesktopSeams(const DesktopSeams&) = delete;
    DesktopSeams& operator=(const DesktopSeams&) = delete;

private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
    Seams former_;
};

}  // namespace docbench
