#include "samples/drawing.h"

#include <cmath>

namespace samples {

void Drawing::Solid(const QPainterPath& face, Material material, double depth) {
    const QRectF box = face.boundingRect();
    shapes_.append({face, material, Light::Flat, box.topLeft(), box.bottomRight(), depth});
}

void Drawing::Turned(const QPainterPath& outline, Material material) {
    const QRectF box = outline.boundingRect();
    shapes_.append({outline, material, Light::Across, box.topLeft(), box.bottomLeft(), 0});
}

void Drawing::Round(const QPainterPath& face, Material material, QPointF centre, double depth) {
    const QPointF rim(face.boundingRect().right(), centre.y());
    shapes_.append({face, material, Light::Round, centre, rim, depth});
}

void Drawing::Ball(QPointF centre, double radius, Material material) {
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    shapes_.append({path, material, Light::Ball, centre, centre + QPointF(radius, 0), 0});
}

void Drawing::Hole(const QPainterPath& outline) {
    const QRectF box = outline.boundingRect();
    shapes_.append({outline, Material::Shade, Light::Flat, box.topLeft(), box.bottomRight(), 0});
}

void Drawing::Edge(const QPainterPath& line) {
    shapes_.append({line, Material::Shade, Light::Edge, {}, {}, 0});
}

void Drawing::Axis(QPointF from, QPointF to) {
    QPainterPath line(from);
    line.lineTo(to);
    shapes_.append({line, Material::Shade, Light::Axis, {}, {}, 0});
}

void Drawing::Place(const Drawing& other, const QTransform& placement) {
    const double scale = std::sqrt(std::abs(placement.determinant()));
    for (Shape shape : other.shapes_) {
        shape.path = placement.map(shape.path);
        shape.from = placement.map(shape.from);
        shape.to = placement.map(shape.to);
        shape.depth *= scale;
        shapes_.append(shape);
    }
}

QRectF Drawing::Bounds() const {
    QRectF bounds;
    for (const Shape& shape : shapes_)
        if (shape.light != Light::Axis) {
            const QRectF face = shape.path.boundingRect();
            bounds |= face | face.translated(kBackwards * shape.depth);
        }
    return bounds;
}

QRectF Drawing::Faces() const {
    QRectF bounds;
    for (const Shape& shape : shapes_)
        if (shape.light != Light::Axis)
            bounds |= shape.path.boundingRect();
    return bounds;
}

QTransform At(double x, double y, double scale) {
    return QTransform::fromTranslate(x, y).scale(scale, scale);
}

QTransform Tilted(double degrees) {
    return QTransform().rotate(degrees);
}

}  // namespace samples
