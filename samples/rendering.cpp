#include "samples/rendering.h"

#include <QColor>
#include <QImage>
#include <QVector>
#include <algorithm>
#include <cmath>

namespace samples {

namespace {

QColor ColourOf(Material material) {
    switch (material) {
        case Material::Steel:
            return QColor(0xb9, 0xc2, 0xcb);
        case Material::DarkSteel:
            return QColor(0x6c, 0x74, 0x7d);
        case Material::Cast:
            return QColor(0x8f, 0x93, 0x94);
        case Material::Painted:
            return QColor(0x7b, 0x9b, 0xb5);
        case Material::Aluminium:
            return QColor(0xd3, 0xd8, 0xdc);
        case Material::Brass:
            return QColor(0xd2, 0xb1, 0x5e);
        case Material::Rubber:
            return QColor(0x45, 0x49, 0x4e);
        case Material::Gasket:
            return QColor(0x5f, 0x9c, 0x8a);
        case Material::Glass:
            return QColor(0xa9, 0xd6, 0xe3);
        case Material::Shade:
            return QColor(0x3a, 0x40, 0x47);
    }
    return QColor(Qt::gray);
}

QBrush BrushOf(const Shape& shape) {
    const QColor base = ColourOf(shape.material);
    if (shape.light == Light::Across) {
        QLinearGradient sheen(shape.from, shape.to);
        sheen.setColorAt(0, base.darker(135));
        sheen.setColorAt(0.28, base.lighter(122));
        sheen.setColorAt(0.55, base);
        sheen.setColorAt(1, base.darker(175));
        return sheen;
    }
    if (shape.light == Light::Round) {
        QConicalGradient sheen(shape.from, 20);
        for (const double at : {0.0, 0.5, 1.0})
            sheen.setColorAt(at, base.darker(112));
        for (const double at : {0.25, 0.75})
            sheen.setColorAt(at, base.lighter(114));
        return sheen;
    }
    if (shape.light == Light::Ball) {
        const double radius = QLineF(shape.from, shape.to).length();
        QRadialGradient sheen(shape.from, radius, shape.from - QPointF(radius, radius) * 0.35);
        sheen.setColorAt(0, Qt::white);
        sheen.setColorAt(0.45, base);
        sheen.setColorAt(1, base.darker(190));
        return sheen;
    }
    QLinearGradient sheen(shape.from, shape.to);
    const bool bore = shape.material == Material::Shade;
    sheen.setColorAt(0, bore ? base.darker(130) : base.lighter(112));
    sheen.setColorAt(1, bore ? base.lighter(150) : base.darker(114));
    return sheen;
}

QPen Thin(const QColor& colour, double width) {
    QPen pen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    pen.setCosmetic(true);
    return pen;
}

// The sides of a body: its face's outline, drawn from the back up to the face.
void PaintDepth(QPainter& painter, const Shape& shape, const QColor& base) {
    const double scale = std::sqrt(std::abs(painter.worldTransform().determinant()));
    const int steps = std::max(1, int(std::ceil(shape.depth * scale)));
    for (int step = steps; step > 0; --step) {
        const double back = double(step) / steps;
        painter.setPen(step == steps ? Thin(base.darker(260), 1.2)
                                     : Thin(base.darker(int(128 + 30 * back)), 1));
        painter.setBrush(base.darker(int(128 + 30 * back)));
        painter.drawPath(shape.path.translated(kBackwards * shape.depth * back));
    }
}

}  // namespace

void PaintShaded(QPainter& painter, const Drawing& drawing) {
    for (const Shape& shape : drawing.Shapes()) {
        const QColor base = ColourOf(shape.material);
        if (shape.light == Light::Axis)
            continue;
        if (shape.light == Light::Edge) {
            painter.strokePath(shape.path, Thin(QColor(0x30, 0x36, 0x3d, 150), 1));
            continue;
        }
        if (shape.depth > 0)
            PaintDepth(painter, shape, base);
        painter.setPen(Thin(base.darker(230), 1.2));
        painter.setBrush(BrushOf(shape));
        painter.drawPath(shape.path);
    }
}

void PaintLines(QPainter& painter, const Drawing& drawing) {
    for (const Shape& shape : drawing.Shapes()) {
        if (shape.light == Light::Axis) {
            QPen pen = Thin(QColor(0x8a, 0x4a, 0x4a), 0.8);
            pen.setDashPattern({10, 3, 2, 3});
            painter.strokePath(shape.path, pen);
            continue;
        }
        const bool edge = shape.light == Light::Edge;
        painter.setPen(Thin(QColor(0x1c, 0x22, 0x2a), edge ? 0.6 : 1.1));
        painter.setBrush(edge ? QBrush(Qt::NoBrush) : QBrush(Qt::white));
        painter.drawPath(shape.path);
    }
}

QTransform Fitting(const QRectF& bounds, const QRectF& frame) {
    const double scale = std::min(frame.width() / bounds.width(), frame.height() / bounds.height());
    return QTransform::fromTranslate(frame.center().x(), frame.center().y())
        .scale(scale, scale)
        .translate(-bounds.center().x(), -bounds.center().y());
}

QImage ShadowOf(const QImage& picture, int blur) {
    const int width = picture.width();
    const int height = picture.height();
    QVector<int> alpha(width * height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            alpha[y * width + x] = qAlpha(picture.pixel(x, y));
    // Three box blurs come near to a Gaussian. Each pass blurs along rows and turns the picture, so
    // that two of them blur both ways.
    const auto blurAndTurn = [blur](const QVector<int>& source, int columns, int rows) {
        QVector<int> turned(source.size());
        for (int y = 0; y < rows; ++y) {
            int sum = 0;
            for (int x = -blur; x < columns; ++x) {
                sum += x + blur < columns ? source[y * columns + x + blur] : 0;
                sum -= x - blur - 1 >= 0 ? source[y * columns + x - blur - 1] : 0;
                if (x >= 0)
                    turned[x * rows + y] = sum / (2 * blur + 1);
            }
        }
        return turned;
    };
    for (int pass = 0; pass < 3; ++pass)
        alpha = blurAndTurn(blurAndTurn(alpha, width, height), height, width);
    QImage shadow(picture.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            shadow.setPixel(x, y, qPremultiply(qRgba(20, 28, 38, alpha[y * width + x] * 2 / 5)));
    return shadow;
}

}  // namespace samples
