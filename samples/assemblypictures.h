// Assemblies, put together from the pictures of their parts.
#pragma once

#include "samples/measures.h"

namespace samples {

Drawing GearboxFront();  // along the shafts
Drawing GearboxSide();
Drawing InputUnit();
Drawing IntermediateUnit();
Drawing OutputUnit();
Drawing HousingUnit();
Drawing CoverUnit();  // from above
Drawing BearingUnit(const BearingMeasures& bearing);
Drawing LooseParts();  // what has no assembly yet

}  // namespace samples
