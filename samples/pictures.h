// What the sample documents show.
#pragma once

#include "samples/drawing.h"

namespace samples {

enum class Picture {
    Gearbox,
    InputUnit,
    IntermediateUnit,
    OutputUnit,
    HousingUnit,
    CoverUnit,
    BearingUnit6205,
    BearingUnit6206,
    BearingUnit6208,
    LooseParts,
    InputShaft,
    IntermediateShaft,
    OutputShaft,
    InputPinion,
    IntermediateGear,
    IntermediatePinion,
    OutputGear,
    Bearing6205,
    Bearing6206,
    Bearing6208,
    SpacerSleeve,
    RetainingRing,
    SealSmall,
    SealLarge,
    Casting,
    Housing,
    BracketRight,
    BracketLeft,
    DrainPlug,
    SightGlass,
    CoverPlate,
    CoverGasket,
    Breather,
    CapClosed,
    CapOpen,
    ScrewM6,
    ScrewM8,
    Washer,
    FeatherKey
};

// The part or assembly from the side that tells most about it.
Drawing DrawingOf(Picture picture);

}  // namespace samples
