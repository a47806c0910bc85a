// Shows the wait cursor while it lives. The cursor is one value and no stack: the first of several
// to end brings the normal one back.
#pragma once

#include <QGuiApplication>

namespace docbench {

class WaitCursor {
public:
    WaitCursor() {
        if (!QGuiApplication::overrideCursor())
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

}  // namespace docbench
