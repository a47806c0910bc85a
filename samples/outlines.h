// The outlines that the parts' pictures are made of, in millimetres.
#pragma once

#include <QPainterPath>

namespace samples {

QPainterPath Circle(QPointF centre, double radius);
QPainterPath Ring(QPointF centre, double outer, double inner);
QPainterPath Box(const QRectF& box, double radius = 0);
QPainterPath Line(QPointF from, QPointF to);
QPainterPath Polygon(const QList<QPointF>& corners);
QPainterPath Hexagon(QPointF centre, double acrossFlats);
// `count` holes of that radius around `centre`, the first `degrees` clockwise from the right.
QPainterPath BoltCircle(QPointF centre, double radius, int count, double hole, double degrees = 0);
// A spur gear around the origin: involute flanks with a pressure angle of 20 degrees.
QPainterPath GearOutline(int teeth, double module);
// A cylinder from `left` to `right` around the x axis, its ends chamfered.
QPainterPath Cylinder(double left, double right, double diameter, double chamfer = 0);

// `body` with `holes` cut out of it.
QPainterPath Pierced(QPainterPath body, const QPainterPath& holes);

}  // namespace samples
