// The help window.
#pragma once

#include <QString>

namespace docbench {

class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    // Whether there is anything to show for a help file.
    virtual bool Has(const QString& helpFile) const = 0;
    // Shows the window, reporting a missing file itself. `topic` is a page's name, or a word that
    // one is indexed under, and may have "#" and a section of the page behind it; with none, or an
    // unknown one, the contents are shown.
    virtual void Open(const QString& helpFile, const QString& topic = {}) = 0;
    virtual bool IsOpen() const = 0;
    virtual void Close() = 0;
};

}  // namespace docbench
