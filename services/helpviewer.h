// The help window.
#pragma once

#include <QString>

namespace docbench {

class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    virtual void Open(const QString& helpFile) = 0;  // shows the window, reporting a missing file itself
    virtual bool IsOpen() const = 0;
    virtual void Close() = 0;
};

}  // namespace docbench
