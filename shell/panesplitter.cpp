#include "shell/panesplitter.h"

#include <QChildEvent>
#include <QMouseEvent>
#include <QPainter>

#include "shell/twips.h"

namespace docbench {

namespace {

constexpr int kMargin = TwipsToPixels(60);  // what is left of either side at the end of a drag

}  // namespace

void PaneSplitterHandle::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        splitterGrabX = event->position().toPoint().x();
        update();
    }
    QSplitterHandle::mousePressEvent(event);
}

void PaneSplitterHandle::mouseReleaseEvent(QMouseEvent* event) {
    splitterGrabX = kNoSplitterDrag;
    update();
    QSplitterHandle::mouseReleaseEvent(event);
}

void PaneSplitterHandle::paintEvent(QPaintEvent* event) {
    if (splitterGrabX == kNoSplitterDrag)
        return QSplitterHandle::paintEvent(event);
    QPainter(this).fillRect(rect(), Qt::black);
}

PaneSplitter::PaneSplitter(QWidget* parent) : QSplitter(Qt::Horizontal, parent) {
    setChildrenCollapsible(false);
    setOpaqueResize(true);
}

QSplitterHandle* PaneSplitter::createHandle() {
    return new PaneSplitterHandle(orientation(), this);
}

void PaneSplitter::childEvent(QChildEvent* event) {
    QSplitter::childEvent(event);
    auto* child = qobject_cast<QWidget*>(event->child());
    if (event->added() && child && !qobject_cast<QSplitterHandle*>(child))
        child->setMinimumWidth(kMargin);
}

}  // namespace docbench
