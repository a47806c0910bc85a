#include "shell/pane.h"

namespace docbench {

void Pane::SetStatusText(const QString& text) {
    ShowStatus(statusBarControl_, text);
}

void ShowStatus(QObject* statusLine, const QString& text) {
    if (statusLine)
        statusLine->setProperty("Caption", text);
}

}  // namespace docbench
