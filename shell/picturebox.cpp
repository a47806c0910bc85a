#include "shell/picturebox.h"

#include <QPainter>

namespace docbench {
namespace {

constexpr int kFrame = 2;

}  // namespace

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PictureBox::SetPicture(const QImage& picture) {
    picture_ = picture;
    scaled_ = {};
    update();
}

void PictureBox::SetFramed(bool framed) {
    framed_ = framed;
    update();
}

void PictureBox::paintEvent(QPaintEvent*) {
    const QRect inside = rect().adjusted(kFrame, kFrame, -kFrame, -kFrame);
    const QSize size = picture_.size().scaled(inside.size(), Qt::KeepAspectRatio);
    const QSize pixels = (QSizeF(size) * devicePixelRatioF()).toSize();
    if (scaled_.size() != pixels && !picture_.isNull() && !pixels.isEmpty()) {
        scaled_ = QPixmap::fromImage(
            picture_.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        scaled_.setDevicePixelRatio(devicePixelRatioF());
    }
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(framed_ ? QPalette::Highlight : QPalette::Window));
    QRect place(QPoint(), size);
    place.moveCenter(inside.center());
    painter.drawPixmap(place, scaled_);
}

}  // namespace docbench
