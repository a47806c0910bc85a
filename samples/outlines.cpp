#include "samples/outlines.h"

#include <QPolygonF>
#include <QtMath>
#include <algorithm>
#include <cmath>

namespace samples {

namespace {

QPointF Polar(double radius, double angle) {
    return {radius * std::cos(angle), radius * std::sin(angle)};
}

}  // namespace

QPainterPath Circle(QPointF centre, double radius) {
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

QPainterPath Ring(QPointF centre, double outer, double inner) {
    return Pierced(Circle(centre, outer), Circle(centre, inner));
}

QPainterPath Box(const QRectF& box, double radius) {
    QPainterPath path;
    path.addRoundedRect(box, radius, radius);
    return path;
}

QPainterPath Line(QPointF from, QPointF to) {
    QPainterPath path(from);
    path.lineTo(to);
    return path;
}

QPainterPath Polygon(const QList<QPointF>& corners) {
    QPainterPath path;
    path.addPolygon(QPolygonF(corners));
    path.closeSubpath();
    return path;
}

QPainterPath Hexagon(QPointF centre, double acrossFlats) {
    QList<QPointF> corners;
    for (int corner = 0; corner < 6; ++corner)
        corners.append(centre + Polar(acrossFlats / std::sqrt(3.0), corner * M_PI / 3));
    return Polygon(corners);
}

QPainterPath BoltCircle(QPointF centre, double radius, int count, double hole, double degrees) {
    QPainterPath holes;
    for (int bolt = 0; bolt < count; ++bolt)
        holes.addPath(Circle(
            centre + Polar(radius, qDegreesToRadians(degrees) + 2 * M_PI * bolt / count), hole));
    return holes;
}

QPainterPath GearOutline(int teeth, double module) {
    const double pitch = module * teeth / 2;
    const double tip = pitch + module;
    const double root = pitch - 1.25 * module;
    const double pressure = qDegreesToRadians(20.0);
    const double base = pitch * std::cos(pressure);
    // Half the angle that a tooth fills at a radius: half a pitch at the pitch circle, less
    // outwards as the involute closes in; below the base circle the flank is straight.
    const auto halfAngle = [&](double radius) {
        const double angle = std::acos(std::min(1.0, base / radius));
        return M_PI / (2 * teeth) + (std::tan(pressure) - pressure) - (std::tan(angle) - angle);
    };
    constexpr int kPoints = 7;
    QList<QPointF> corners;
    for (int tooth = 0; tooth < teeth; ++tooth) {
        const double middle = 2 * M_PI * tooth / teeth;
        for (int point = 0; point < 2 * kPoints; ++point) {
            const bool rising = point < kPoints;
            const int up = rising ? point : 2 * kPoints - 1 - point;
            const double radius = root + (tip - root) * up / (kPoints - 1);
            const double half = halfAngle(radius);
            corners.append(Polar(radius, middle + (rising ? -half : half)));
        }
    }
    return Polygon(corners);
}

QPainterPath Cylinder(double left, double right, double diameter, double chamfer) {
    const double radius = diameter / 2;
    return Polygon({{left, -radius + chamfer},
                    {left + chamfer, -radius},
                    {right - chamfer, -radius},
                    {right, -radius + chamfer},
                    {right, radius - chamfer},
                    {right - chamfer, radius},
                    {left + chamfer, radius},
                    {left, radius - chamfer}});
}

QPainterPath Pierced(QPainterPath body, const QPainterPath& holes) {
    body.setFillRule(Qt::OddEvenFill);
    body.addPath(holes);
    return body;
}

}  // namespace samples
