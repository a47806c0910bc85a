// A picture of machine parts as data: shapes from back to front, in millimetres, y downwards.
#pragma once

#include <QList>
#include <QPainterPath>
#include <QTransform>

namespace samples {

enum class Material {
    Steel,
    DarkSteel,
    Cast,
    Painted,
    Aluminium,
    Brass,
    Rubber,
    Gasket,
    Glass,
    Shade  // the dark of a bore
};

// How light falls on a shape.
enum class Light {
    Flat,    // a face towards the viewer
    Across,  // a turned body from the side: the sheen runs along its axis
    Round,   // a turned face: the sheen runs around its centre
    Ball,
    Edge,  // no face, a thin line
    Axis   // a centre line, seen on drawing sheets only
};

struct Shape {
    QPainterPath path;
    Material material = Material::Steel;
    Light light = Light::Flat;
    QPointF from;      // where the light begins: an edge, or the centre for Round and Ball
    QPointF to;        // where it ends
    double depth = 0;  // of the body behind the face
};

// Where the back of a body of depth 1 stands, seen from its face: bodies are seen from above right.
inline constexpr QPointF kBackwards(0.5, -0.4);

class Drawing {
public:
    // A plate or block, its face towards the viewer. Paths with holes are filled odd-even.
    void Solid(const QPainterPath& face, Material material, double depth);
    // A cylinder or a cone frustum whose axis lies horizontally in the middle of `outline`.
    void Turned(const QPainterPath& outline, Material material);
    // A turned body seen along its axis.
    void Round(const QPainterPath& face, Material material, QPointF centre, double depth);
    void Ball(QPointF centre, double radius, Material material);
    void Hole(const QPainterPath& outline);
    void Edge(const QPainterPath& line);
    void Axis(QPointF from, QPointF to);

    // Adds all shapes of `other`, moved, turned and scaled; they lie in front of those here.
    void Place(const Drawing& other, const QTransform& placement);

    const QList<Shape>& Shapes() const { return shapes_; }
    QRectF Bounds() const;  // of the faces and the bodies behind them
    QRectF Faces() const;   // of the faces alone: what a drawing sheet shows

private:
    QList<Shape> shapes_;
};

// Shorthands for placements.
QTransform At(double x, double y, double scale = 1);
QTransform Tilted(double degrees);

}  // namespace samples
