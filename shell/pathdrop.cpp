#include "shell/pathdrop.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace docbench {

PathDrop::PathDrop(QWidget* target, Takes takes) : QObject(target), takes_(takes) {
    target->setAcceptDrops(true);
    target->installEventFilter(this);
}

bool PathDrop::eventFilter(QObject* watched, QEvent* event) {
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove)
        return QObject::eventFilter(watched, event);
    auto& drop = static_cast<QDropEvent&>(*event);
    const QString path = PathIn(*drop.mimeData());
    // A box that waits for its answer does not keep drops away.
    if (path.isEmpty() || QApplication::activeModalWidget()) {
        drop.ignore();
        return true;
    }
    drop.acceptProposedAction();
    if (isDrop)
        Q_EMIT Dropped(path);
    return true;
}

QString PathDrop::PathIn(const QMimeData& data) const {
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            return url.toLocalFile();
    }
    return takes_ == Takes::FilesOrText ? data.text().trimmed() : QString();
}

}  // namespace docbench
