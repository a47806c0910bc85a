// The help window: pages of HTML in a window of their own.
#pragma once

#include <QPointer>
#include <QString>

#include "services/helpviewer.h"

class QTextBrowser;

namespace docbench {

// The window is made at its first use and again after it was closed.
class HelpWindow : public HelpViewer {
public:
    ~HelpWindow() override;

    bool Has(const QString& helpFile) const override;
    void Open(const QString& helpFile) override;
    bool IsOpen() const override;
    void Close() override;

private:
    QPointer<QTextBrowser> window_;
};

}  // namespace docbench
