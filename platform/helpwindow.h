// The help window: the shipped pages with their contents and a search.
#pragma once

#include <QPointer>
#include <QString>

#include "services/helpviewer.h"

namespace docbench {

class HelpBrowser;

// The window is made at its first use and again after it was closed.
class HelpWindow : public HelpViewer {
public:
    ~HelpWindow() override;

    // A help file known by the name of its compiled form ("TFDocbench.chm") stands for the pages in
    // the folder "help" beside it; any other is a page itself.
    bool Has(const QString& helpFile) const override;
    void Open(const QString& helpFile, const QString& topic = {}) override;
    bool IsOpen() const override;
    void Close() override;

private:
    QPointer<HelpBrowser> window_;
};

}  // namespace docbench
