// The status line of the frame: one text, which the panes set through the property "Caption".
#pragma once

#include <QStatusBar>

namespace docbench {

class StatusLine : public QStatusBar {
    Q_OBJECT
    Q_PROPERTY(QString Caption READ Caption WRITE SetCaption)

public:
    using QStatusBar::QStatusBar;

    QString Caption() const { return currentMessage(); }
    void SetCaption(const QString& text) {
        showMessage(text);
        // A long path may not fit. File names are no markup.
        setToolTip(text.isEmpty() ? QString()
                                  : QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()));
    }
};

}  // namespace docbench
