// The help window.
#pragma once

#include <QString>

namespace docbench {

class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    // Whether there is anything to show for a help file.
    virtual bool Has(const QString& helpFile) const = 0;
    virtual void Open(
        const QString& helpFile) = 0;  // shows the window, reporting a missing file itself
    virtual bool IsOpen() const = 0;
    virtual void Close() = 0;
};

}  // namespace docbench
