#include "samples/previews.h"

#include <QBuffer>
#include <QImage>
#include <functional>

#include "samples/rendering.h"

namespace samples {

namespace {

constexpr QSize kSize(640, 480);

QImage Transparent() {
    QImage image(kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QByteArray Png(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

// The ground, the shadow of what `paint` paints, and that itself.
QByteArray OnGround(const std::function<void(QPainter&)>& paint) {
    QImage subject = Transparent();
    {
        QPainter painter(&subject);
        painter.setRenderHint(QPainter::Antialiasing);
        paint(painter);
    }
    QImage image(kSize, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient ground(0, 0, 0, kSize.height());
    ground.setColorAt(0, QColor(0xfa, 0xfb, 0xfc));
    ground.setColorAt(1, QColor(0xdf, 0xe3, 0xe8));
    painter.fillRect(image.rect(), ground);
    painter.drawImage(QPoint(8, 12), ShadowOf(subject, 8));
    painter.drawImage(QPoint(0, 0), subject);
    painter.end();
    return Png(image);
}

// Shafts and screws lie aslant, which fills the picture better.
double TiltOf(Picture picture) {
    switch (picture) {
        case Picture::InputShaft:
        case Picture::IntermediateShaft:
        case Picture::OutputShaft:
        case Picture::InputUnit:
        case Picture::ScrewM6:
        case Picture::ScrewM8:
        case Picture::DrainPlug:
        case Picture::FeatherKey:
            return -24;
        case Picture::IntermediateUnit:
        case Picture::OutputUnit:
            return -14;
        default:
            return 0;
    }
}

}  // namespace

QByteArray PartPreview(Picture picture) {
    Drawing drawing;
    drawing.Place(DrawingOf(picture), Tilted(TiltOf(picture)));
    const QRectF frame = QRectF(QPointF(), kSize).adjusted(70, 60, -70, -60);
    return OnGround([&](QPainter& painter) {
        painter.setTransform(Fitting(drawing.Bounds(), frame));
        PaintShaded(painter, drawing);
    });
}

QByteArray SheetPreview(Picture picture, const SheetText& text) {
    const QRectF sheet = QRectF(QPointF(), kSize).adjusted(20, 28, -20, -28);
    return OnGround([&](QPainter& painter) { PaintSheet(painter, sheet, picture, text); });
}

}  // namespace samples
