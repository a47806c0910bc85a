// Turned and bought parts: shafts, gears, bearings, fasteners. Measures in millimetres, each
// drawing around its middle.
#pragma once

#include "samples/drawing.h"

namespace samples {

struct ShaftStep {
    double length;
    double diameter;
    bool keyway = false;
};

// From the side, the head on the left.
Drawing HexScrew(double diameter, double length, Material material = Material::Steel);
Drawing HexHead(double diameter);  // the same screw seen on its head
Drawing Washer(double diameter);
Drawing FeatherKey(double length, double width);

Drawing SteppedShaft(const QList<ShaftStep>& steps);
double LengthOf(const QList<ShaftStep>& steps);

Drawing SpurGear(int teeth, double module, double bore, double width);
Drawing SpurGearSide(int teeth, double module, double width);

Drawing BallBearing(double outer, double bore, double width);
Drawing BallBearingSide(double outer, double bore, double width);
Drawing SpacerSleeve(double diameter, double length);
Drawing RetainingRing(double diameter);
Drawing ShaftSeal(double outer, double bore);

}  // namespace samples
