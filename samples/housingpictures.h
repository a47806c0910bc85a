// Cast and plate parts: the housing with what closes and carries it. Measures in millimetres, seen
// along the shafts unless told otherwise.
#pragma once

#include "samples/drawing.h"

namespace samples {

// The bores' centres on the housing's face, with their outer radii.
struct Bore {
    QPointF centre;
    double radius;
};
QList<Bore> HousingBores();
inline constexpr double kHousingWidth = 330;
inline constexpr double kHousingTop = -110;  // where the cover lies

Drawing Housing(bool machined);  // the casting has neither bores nor holes
Drawing HousingSide();
Drawing CoverPlate();      // from above
Drawing CoverPlateEdge();  // from the side, around its middle
Drawing CoverGasket();     // from above
QList<QPointF> CoverHoles();
Drawing BearingCap(double radius, bool open);
Drawing Bracket();  // the right one; the left one is its mirror
Drawing DrainPlug();
Drawing SightGlass();
Drawing Breather();

}  // namespace samples
