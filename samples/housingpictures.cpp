#include "samples/housingpictures.h"

#include "samples/outlines.h"
#include "samples/partpictures.h"

namespace samples {

namespace {

constexpr double kHalf = kHousingWidth / 2;
constexpr double kFloor = 100;  // where the feet stand
constexpr QRectF kCover(-170, -85, 340, 170);

void AddRibs(Drawing& housing, Material material) {
    for (const double x : {-140.0, -82.0, -2.0, 62.0, 140.0}) {
        QPainterPath rib = Polygon({{x - 4, -88}, {x + 4, -88}, {x + 6, 84}, {x - 6, 84}});
        housing.Solid(rib, material, 0);
    }
}

void AddBoss(Drawing& housing, const Bore& bore, bool machined) {
    const Material material = machined ? Material::Painted : Material::Cast;
    housing.Solid(Circle(bore.centre, bore.radius + 16), material, 0);
    if (!machined) {
        housing.Round(Circle(bore.centre, bore.radius - 4), material, bore.centre, 0);
        return;
    }
    housing.Round(Ring(bore.centre, bore.radius + 13, bore.radius), Material::Aluminium,
                  bore.centre, 0);
    housing.Hole(Circle(bore.centre, bore.radius));
    housing.Edge(Circle(bore.centre, bore.radius * 0.86));
    housing.Hole(BoltCircle(bore.centre, bore.radius + 6.5, 6, 2.4, 30));
    const double cross = bore.radius + 22;
    housing.Axis(bore.centre - QPointF(cross, 0), bore.centre + QPointF(cross, 0));
    housing.Axis(bore.centre - QPointF(0, cross), bore.centre + QPointF(0, cross));
}

QPainterPath CoverFrame(double margin) {
    return Box(kCover.adjusted(margin, margin, -margin, -margin), 22 - margin / 2);
}

}  // namespace

QList<Bore> HousingBores() {
    return {{{-118, 0}, 24}, {{-37, 0}, 31}, {{84, 0}, 42}};
}

Drawing Housing(bool machined) {
    const Material material = machined ? Material::Painted : Material::Cast;
    Drawing housing;
    housing.Solid(Box({-kHalf - 12, kFloor - 18, kHousingWidth + 24, 18}, 4), material, 110);
    housing.Solid(Box({-kHalf + 6, -96, kHousingWidth - 12, 186}, 14), material, 104);
    AddRibs(housing, material);
    housing.Solid(Box({-kHalf - 5, kHousingTop, kHousingWidth + 10, 16}, 3),
                  machined ? Material::Aluminium : material, 104);
    for (const Bore& bore : HousingBores())
        AddBoss(housing, bore, machined);
    if (machined)
        for (const double x : {-kHalf - 2.0, kHalf - 10.0})
            housing.Hole(Box({x, kFloor - 18, 12, 18}));
    return housing;
}

Drawing HousingSide() {
    Drawing side;
    side.Solid(Box({-70, kFloor - 18, 140, 18}, 4), Material::Painted, 0);
    side.Solid(Box({-52, -96, 104, 178}, 8), Material::Painted, 0);
    side.Solid(Box({-62, kHousingTop, 124, 16}, 3), Material::Aluminium, 0);
    side.Solid(Box({-64, -34, 12, 68}, 2), Material::Aluminium, 0);
    side.Solid(Box({52, -34, 12, 68}, 2), Material::Aluminium, 0);
    for (const double x : {-20.0, 20.0})
        side.Edge(Line({x, -94}, {x, 82}));
    side.Axis({-80, 0}, {80, 0});
    return side;
}

QList<QPointF> CoverHoles() {
    QList<QPointF> holes;
    for (const double y : {-72.0, 72.0})
        for (const double x : {-145.0, -50.0, 50.0, 145.0})
            holes.append({x, y});
    return holes;
}

Drawing CoverPlate() {
    QPainterPath holes;
    for (const QPointF& hole : CoverHoles())
        holes.addPath(Circle(hole, 5));
    // The flange for the breather, with its own bolt circle.
    holes.addPath(Circle({}, 16));
    holes.addPath(BoltCircle({}, 32, 6, 4));
    Drawing plate;
    plate.Solid(Pierced(CoverFrame(0), holes), Material::Aluminium, 12);
    plate.Edge(CoverFrame(26));
    plate.Round(Pierced(Ring({}, 44, 16), BoltCircle({}, 32, 6, 4)), Material::Aluminium, {}, 0);
    plate.Axis({-182, 0}, {182, 0});
    plate.Axis({0, -96}, {0, 96});
    return plate;
}

Drawing CoverPlateEdge() {
    Drawing edge;
    edge.Solid(Box({-170, -5, 340, 10}, 3), Material::Aluminium, 0);
    edge.Solid(Box({-44, -11, 88, 6}, 1), Material::Aluminium, 0);
    return edge;
}

Drawing CoverGasket() {
    QPainterPath holes = CoverFrame(26);
    QPainterPath outer = CoverFrame(0);
    for (const QPointF& hole : CoverHoles())
        holes.addPath(Circle(hole, 5.5));
    Drawing gasket;
    gasket.Solid(Pierced(outer, holes), Material::Gasket, 4);
    gasket.Edge(CoverFrame(4));
    return gasket;
}

Drawing BearingCap(double radius, bool open) {
    const double flange = radius + 13;
    const QPainterPath bolts = BoltCircle({}, radius + 6.5, 6, 2.6, 30);
    QPainterPath holes = bolts;
    if (open)
        holes.addPath(Circle({}, radius * 0.45));
    Drawing cap;
    cap.Round(Pierced(Circle({}, flange), holes), Material::Aluminium, {}, 8);
    const QPainterPath dome =
        open ? Ring({}, radius * 0.82, radius * 0.45) : Circle({}, radius * 0.82);
    cap.Round(dome, Material::Aluminium, {}, 0);
    cap.Edge(Circle({}, radius * 0.72));
    cap.Axis({-flange - 5, 0}, {flange + 5, 0});
    cap.Axis({0, -flange - 5}, {0, flange + 5});
    return cap;
}

Drawing Bracket() {
    // An L with a gusset between its legs; the long leg is bolted to the housing.
    QPainterPath holes;
    holes.addPath(Circle({-24, -36}, 6));
    holes.addPath(Circle({-24, 4}, 6));
    QPainterPath outline =
        Polygon({{-40, -60}, {-8, -60}, {-8, 6}, {4, 36}, {60, 36}, {60, 56}, {-40, 56}});
    Drawing bracket;
    bracket.Solid(Pierced(outline, holes), Material::Painted, 46);
    bracket.Solid(Polygon({{-8, -30}, {-8, 6}, {4, 36}, {48, 36}}), Material::Painted, 10);
    bracket.Edge(Line({-40, 36}, {4, 36}));
    bracket.Axis({-24, -68}, {-24, 64});
    return bracket;
}

Drawing DrainPlug() {
    Drawing plug;
    plug.Place(HexScrew(24, 26), QTransform());
    plug.Turned(Cylinder(-5, 0, 46, 1), Material::Brass);
    return plug;
}

Drawing SightGlass() {
    Drawing glass;
    glass.Round(Ring({}, 26, 17), Material::Brass, {}, 12);
    glass.Solid(Circle({}, 17), Material::Glass, 0);
    // The oil stands at half height.
    QPainterPath oil;
    oil.moveTo(-17, 0);
    oil.arcTo({-17, -17, 34, 34}, 180, 180);
    oil.closeSubpath();
    glass.Solid(oil, Material::Brass, 0);
    glass.Round(Ring({}, 17, 15), Material::Brass, {}, 0);
    glass.Edge(Hexagon({}, 44));
    return glass;
}

Drawing Breather() {
    Drawing breather;
    breather.Turned(Cylinder(-20, 4, 14, 1), Material::Steel);
    for (double at = -18; at < -2; at += 2.2)
        breather.Edge(Line({at, -7}, {at + 1.4, 7}));
    breather.Turned(Cylinder(0, 8, 30, 1.5), Material::Steel);
    breather.Turned(Cylinder(8, 24, 24, 4), Material::Brass);
    for (const double at : {12.0, 16.0, 20.0})
        breather.Edge(Line({at, -10}, {at, 10}));
    breather.Axis({-26, 0}, {30, 0});
    return breather;
}

}  // namespace samples
