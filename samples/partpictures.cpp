#include "samples/partpictures.h"

#include <QtMath>
#include <cmath>

#include "samples/outlines.h"

namespace samples {

Drawing HexScrew(double diameter, double length, Material material) {
    const double head = diameter * 0.7;
    const double left = -(head + length) / 2;
    const double neck = left + head;
    const double radius = diameter / 2;
    Drawing screw;
    screw.Turned(Cylinder(neck, neck + length, diameter, diameter * 0.1), material);
    for (double at = neck + length * 0.22; at < neck + length - diameter * 0.12;
         at += diameter * 0.16)
        screw.Edge(Line({at, -radius}, {at + diameter * 0.1, radius}));
    // Three of the six flats show, each lit on its own; the chamfer cuts them off in arcs.
    const double corner = diameter * 1.7 * 1.1547;
    const double chamfer = head * 0.2;
    const QPainterPath whole = Cylinder(left, neck, corner, chamfer)
                                   .united(Box({neck - chamfer, -corner / 2, chamfer, corner}));
    for (int flat = -1; flat <= 1; ++flat) {
        const double half = corner * (flat == 0 ? 0.25 : 0.125);
        const double middle = corner * 0.375 * flat;
        const QPainterPath face = Box({left, middle - half, head, 2 * half});
        screw.Turned(face.intersected(whole), flat == 1 ? Material::DarkSteel : material);
        QPainterPath arc(QPointF(left + chamfer, middle - half));
        arc.quadTo({left - chamfer * 0.6, middle}, {left + chamfer, middle + half});
        screw.Edge(arc);
    }
    screw.Axis({left - 4, 0}, {-left + 4, 0});
    return screw;
}

Drawing HexHead(double diameter) {
    const double across = diameter * 1.7;
    Drawing head;
    head.Solid(Hexagon({}, across), Material::Steel, diameter * 0.5);
    head.Round(Circle({}, across * 0.46), Material::Steel, {}, 0);
    head.Axis({-across * 0.8, 0}, {across * 0.8, 0});
    head.Axis({0, -across * 0.8}, {0, across * 0.8});
    return head;
}

Drawing Washer(double diameter) {
    Drawing washer;
    washer.Round(Ring({}, diameter * 1.05, diameter * 0.54), Material::Steel, {}, diameter * 0.16);
    washer.Edge(Circle({}, diameter));
    washer.Axis({-diameter * 1.3, 0}, {diameter * 1.3, 0});
    return washer;
}

Drawing FeatherKey(double length, double width) {
    Drawing key;
    key.Solid(Box({-length / 2, -width / 2, length, width}, width / 2), Material::Steel,
              width * 0.9);
    key.Edge(
        Box({-length / 2 + 0.6, -width / 2 + 0.6, length - 1.2, width - 1.2}, width / 2 - 0.6));
    key.Axis({-length * 0.6, 0}, {length * 0.6, 0});
    return key;
}

double LengthOf(const QList<ShaftStep>& steps) {
    double length = 0;
    for (const ShaftStep& step : steps)
        length += step.length;
    return length;
}

Drawing SteppedShaft(const QList<ShaftStep>& steps) {
    const double end = LengthOf(steps) / 2;
    double left = -end;
    Drawing shaft;
    for (const ShaftStep& step : steps) {
        const double right = left + step.length;
        shaft.Turned(Cylinder(left, right, step.diameter, 1.2), Material::Steel);
        shaft.Edge(Line({left + 1.2, -step.diameter / 2}, {left + 1.2, step.diameter / 2}));
        shaft.Edge(Line({right - 1.2, -step.diameter / 2}, {right - 1.2, step.diameter / 2}));
        if (step.keyway) {
            const double width = step.diameter * 0.28;
            const double length = step.length * 0.76;
            shaft.Hole(Box({(left + right - length) / 2, -width / 2, length, width}, width / 2));
        }
        left = right;
    }
    shaft.Axis({-end - 8, 0}, {end + 8, 0});
    return shaft;
}

Drawing SpurGear(int teeth, double module, double bore, double width) {
    const double pitch = module * teeth / 2;
    const double rim = pitch - 3.2 * module;
    const double hub = bore * 0.95;
    // The bore with the keyway at its top.
    QPainterPath shaftHole = Circle({}, bore / 2);
    shaftHole = shaftHole.united(Box({-bore * 0.14, -bore * 0.62, bore * 0.28, bore * 0.4}));
    Drawing gear;
    QPainterPath holes = shaftHole;
    const bool webbed = rim - hub > bore * 0.4;
    if (webbed)
        holes.addPath(BoltCircle({}, (rim + hub) / 2, 6, (rim - hub) * 0.3, 30));
    gear.Round(Pierced(GearOutline(teeth, module), holes), Material::Steel, {}, width);
    if (webbed) {
        QPainterPath web =
            Pierced(Ring({}, rim, hub), BoltCircle({}, (rim + hub) / 2, 6, (rim - hub) * 0.3, 30));
        gear.Round(web, Material::DarkSteel, {}, 0);
    }
    gear.Edge(Circle({}, pitch - 1.25 * module));
    gear.Edge(Pierced(Circle({}, hub), QPainterPath()));
    const double cross = pitch + 4 * module;
    gear.Axis({-cross, 0}, {cross, 0});
    gear.Axis({0, -cross}, {0, cross});
    return gear;
}

Drawing SpurGearSide(int teeth, double module, double width) {
    const double tip = module * (teeth + 2) / 2;
    const double root = tip - 2.25 * module;
    Drawing gear;
    gear.Turned(Cylinder(-width / 2, width / 2, 2 * tip, module * 0.4), Material::Steel);
    // The flanks that face the viewer, closer together towards the rims.
    for (int tooth = 0; tooth < teeth / 2; ++tooth) {
        const double angle = -M_PI / 2 + 2 * M_PI * (tooth + 0.5) / teeth;
        const QPointF high(width / 2, tip * std::sin(angle));
        const QPointF low(width / 2, root * std::sin(angle + M_PI / teeth));
        gear.Edge(Line({-high.x(), high.y()}, high));
        gear.Edge(Line({-low.x(), low.y()}, low));
    }
    gear.Axis({-width, 0}, {width, 0});
    return gear;
}

Drawing BallBearing(double outer, double bore, double width) {
    const double radius = outer / 2;
    const double inner = bore / 2;
    const double ring = (radius - inner) * 0.27;
    const double track = (radius + inner) / 2;
    const double ball = (radius - inner) * 0.29;
    Drawing bearing;
    bearing.Round(Ring({}, radius, radius - ring), Material::Steel, {}, width * 0.7);
    bearing.Solid(Ring({}, radius - ring, inner + ring), Material::Shade, 0);
    bearing.Round(Ring({}, track + ball * 0.35, track - ball * 0.35), Material::Brass, {}, 0);
    const int balls = int(2 * M_PI * track / (ball * 2.7));
    for (int index = 0; index < balls; ++index) {
        const double angle = 2 * M_PI * index / balls;
        bearing.Ball({track * std::cos(angle), track * std::sin(angle)}, ball, Material::Steel);
    }
    bearing.Round(Ring({}, inner + ring, inner), Material::Steel, {}, 0);
    bearing.Edge(Circle({}, radius - 1));
    bearing.Edge(Circle({}, inner + 1));
    bearing.Axis({-radius * 1.15, 0}, {radius * 1.15, 0});
    bearing.Axis({0, -radius * 1.15}, {0, radius * 1.15});
    return bearing;
}

Drawing BallBearingSide(double outer, double bore, double width) {
    Drawing bearing;
    bearing.Turned(Cylinder(-width / 2, width / 2, outer, 1.5), Material::Aluminium);
    const double ring = (outer - bore) * 0.14;
    for (const double side : {-1.0, 1.0}) {
        const double seal = side * (outer / 2 - ring);
        bearing.Edge(Line({-width / 2, seal}, {width / 2, seal}));
    }
    bearing.Edge(Line({-width / 2 + 1.5, -outer / 2}, {-width / 2 + 1.5, outer / 2}));
    bearing.Edge(Line({width / 2 - 1.5, -outer / 2}, {width / 2 - 1.5, outer / 2}));
    bearing.Axis({-width, 0}, {width, 0});
    return bearing;
}

Drawing SpacerSleeve(double diameter, double length) {
    Drawing sleeve;
    QPainterPath rim;
    rim.addEllipse(QPointF(-length / 2, 0), diameter * 0.16, diameter / 2);
    QPainterPath bore;
    bore.addEllipse(QPointF(-length / 2, 0), diameter * 0.125, diameter * 0.4);
    QPainterPath body;
    body.addRect(-length / 2, -diameter / 2, length, diameter);
    QPainterPath end;
    end.addEllipse(QPointF(length / 2, 0), diameter * 0.16, diameter / 2);
    sleeve.Turned(body.united(end), Material::Steel);
    sleeve.Solid(rim, Material::Steel, 0);
    sleeve.Hole(bore);
    sleeve.Axis({-length, 0}, {length, 0});
    return sleeve;
}

Drawing RetainingRing(double diameter) {
    const double radius = diameter / 2;
    // An open ring that thins towards its ends, where the pliers' eyes are.
    QPainterPath ring =
        Circle({0, -radius * 0.06}, radius)
            .subtracted(Circle({}, radius * 0.82))
            .subtracted(Polygon({{0, 0}, {-radius, radius * 2}, {radius, radius * 2}}));
    QPainterPath eyes;
    for (const double side : {-1.0, 1.0}) {
        const QPointF eye(side * radius * 0.42, radius * 0.78);
        ring = ring.united(Circle(eye, radius * 0.15));
        eyes.addPath(Circle(eye, radius * 0.07));
    }
    Drawing drawing;
    drawing.Solid(Pierced(ring, eyes), Material::DarkSteel, radius * 0.1);
    drawing.Axis({-radius * 1.2, 0}, {radius * 1.2, 0});
    return drawing;
}

Drawing ShaftSeal(double outer, double bore) {
    const double radius = outer / 2;
    const double lip = bore / 2;
    Drawing seal;
    seal.Solid(Ring({}, radius, lip), Material::Rubber, outer * 0.1);
    seal.Round(Ring({}, radius, radius * 0.9), Material::Rubber, {}, 0);
    const double spring = lip + (radius - lip) * 0.38;
    seal.Round(Ring({}, spring, spring - (radius - lip) * 0.16), Material::Steel, {}, 0);
    seal.Edge(Circle({}, lip + (radius - lip) * 0.1));
    seal.Axis({-radius * 1.15, 0}, {radius * 1.15, 0});
    seal.Axis({0, -radius * 1.15}, {0, radius * 1.15});
    return seal;
}

}  // namespace samples
