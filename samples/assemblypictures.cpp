#include "samples/assemblypictures.h"

#include "samples/housingpictures.h"
#include "samples/outlines.h"

namespace samples {

namespace {

// Where the middle of a step stands on the shaft's axis.
double MiddleOf(const QList<ShaftStep>& steps, int step) {
    return -LengthOf(steps) / 2 + LengthOf(steps.first(step)) + steps[step].length / 2;
}

void AddBearing(Drawing& unit, double x, const BearingMeasures& bearing) {
    unit.Place(BallBearingSide(bearing.outer, bearing.bore, bearing.width), At(x, 0));
}

void AddGear(Drawing& unit, double x, const GearMeasures& gear) {
    unit.Place(SpurGearSide(gear.teeth, gear.module, gear.width), At(x, 0));
}

void AddCaps(Drawing& front) {
    const QList<Bore> bores = HousingBores();
    for (int index = 0; index < bores.size(); ++index) {
        const Bore& bore = bores[index];
        const bool open = index != 1;  // the intermediate shaft ends inside
        front.Place(BearingCap(bore.radius, open), At(bore.centre.x(), bore.centre.y()));
        for (int bolt = 0; bolt < 6; ++bolt) {
            const QPointF out =
                QTransform().rotate(30 + bolt * 60).map(QPointF(bore.radius + 6.5, 0));
            front.Place(HexHead(4.2), At(bore.centre.x() + out.x(), bore.centre.y() + out.y()));
        }
        if (!open)
            continue;
        const double shaft = bore.radius * 0.36;
        QPainterPath key = Box({-shaft * 0.26, -shaft * 1.2, shaft * 0.52, shaft * 0.7});
        Drawing end;
        end.Round(Circle({}, shaft), Material::Steel, {}, 0);
        end.Round(Circle({}, shaft * 0.86), Material::Steel, {}, 0);
        end.Solid(key, Material::Steel, 0);
        end.Hole(Circle({}, shaft * 0.16));
        front.Place(end, At(bore.centre.x(), bore.centre.y()));
    }
}

}  // namespace

Drawing InputUnit() {
    const QList<ShaftStep> steps = InputShaftSteps();
    Drawing unit;
    unit.Place(SteppedShaft(steps), QTransform());
    AddBearing(unit, MiddleOf(steps, 1), kBearing6205);
    AddGear(unit, MiddleOf(steps, 3), kInputPinion);
    AddBearing(unit, MiddleOf(steps, 4), kBearing6205);
    unit.Place(FeatherKey(34, 6.2), At(MiddleOf(steps, 0), 0));
    return unit;
}

Drawing IntermediateUnit() {
    const QList<ShaftStep> steps = IntermediateShaftSteps();
    Drawing unit;
    unit.Place(SteppedShaft(steps), QTransform());
    AddBearing(unit, MiddleOf(steps, 0), kBearing6206);
    AddGear(unit, MiddleOf(steps, 1), kIntermediateGear);
    AddGear(unit, MiddleOf(steps, 3), kIntermediatePinion);
    AddBearing(unit, MiddleOf(steps, 4), kBearing6206);
    return unit;
}

Drawing OutputUnit() {
    const QList<ShaftStep> steps = OutputShaftSteps();
    Drawing unit;
    unit.Place(SteppedShaft(steps), QTransform());
    AddBearing(unit, MiddleOf(steps, 0), kBearing6208);
    AddGear(unit, MiddleOf(steps, 1), kOutputGear);
    AddBearing(unit, MiddleOf(steps, 4), kBearing6208);
    unit.Place(FeatherKey(48, 10), At(MiddleOf(steps, 5), 0));
    return unit;
}

Drawing BearingUnit(const BearingMeasures& bearing) {
    const double size = bearing.outer;
    Drawing unit;
    unit.Place(RetainingRing(size * 0.98), At(size * 0.95, size * 0.06));
    unit.Place(BallBearing(size, bearing.bore, bearing.width), At(0, 0));
    unit.Place(SpacerSleeve(bearing.bore * 1.35, bearing.width * 1.1),
               At(-size * 0.85, size * 0.1));
    return unit;
}

Drawing HousingUnit() {
    Drawing unit;
    Drawing left;
    left.Place(Bracket(), QTransform::fromScale(-0.8, 0.8));
    unit.Place(left, At(-kHousingWidth / 2 - 32, 44));
    unit.Place(Housing(true), QTransform());
    unit.Place(Bracket(), At(kHousingWidth / 2 + 32, 44, 0.8));
    unit.Place(SightGlass(), At(12, 52, 0.62));
    unit.Place(HexHead(14), At(-72, 66));
    return unit;
}

Drawing CoverUnit() {
    Drawing unit;
    unit.Place(CoverGasket(), At(18, -15));
    unit.Place(CoverPlate(), QTransform());
    for (const QPointF& hole : CoverHoles()) {
        unit.Place(Washer(9), At(hole.x(), hole.y()));
        unit.Place(HexHead(8), At(hole.x(), hole.y()));
    }
    for (int bolt = 0; bolt < 6; ++bolt) {
        const QPointF out = QTransform().rotate(bolt * 60).map(QPointF(32, 0));
        unit.Place(HexHead(6), At(out.x(), out.y()));
    }
    Drawing breather;  // from above
    breather.Solid(Hexagon({}, 40), Material::Steel, 6);
    breather.Round(Circle({}, 17), Material::Brass, {}, 12);
    breather.Round(Circle({}, 11), Material::Brass, {}, 0);
    unit.Place(breather, At(0, 0));
    return unit;
}

Drawing GearboxFront() {
    Drawing gearbox;
    gearbox.Place(HousingUnit(), QTransform());
    AddCaps(gearbox);
    Drawing cover;
    cover.Solid(Box({-170, -6, 340, 4}), Material::Gasket, 104);
    cover.Solid(Box({-170, -17, 340, 11}, 3), Material::Aluminium, 104);
    gearbox.Place(cover, At(0, kHousingTop + 2));
    const double top = kHousingTop - 15;
    for (const double x : {-145.0, -50.0, 50.0, 145.0}) {
        Drawing screw;
        screw.Place(HexScrew(9, 10), Tilted(90));
        gearbox.Place(screw, At(x + 8, top - 4));
    }
    Drawing breather;
    breather.Place(Breather(), Tilted(-90));
    gearbox.Place(breather, At(26, top - 30));
    return gearbox;
}

Drawing GearboxSide() {
    Drawing side;
    Drawing shaft;
    shaft.Place(SteppedShaft({{70, 36, true}, {120, 44}, {70, 24, true}}), QTransform());
    side.Place(shaft, QTransform());
    side.Place(HousingSide(), QTransform());
    side.Solid(Box({-66, kHousingTop - 12, 132, 12}, 2), Material::Aluminium, 0);
    Drawing breather;
    breather.Place(Breather(), Tilted(-90));
    side.Place(breather, At(0, kHousingTop - 18));
    return side;
}

Drawing LooseParts() {
    Drawing parts;
    parts.Place(BearingCap(34, true), At(-48, -18));
    parts.Place(SpurGear(kInputPinion.teeth, kInputPinion.module, 26, 22), At(40, -10));
    Drawing screw;
    screw.Place(HexScrew(10, 40), Tilted(-14));
    parts.Place(screw, At(-2, 48));
    return parts;
}

}  // namespace samples
