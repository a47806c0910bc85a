#include "samples/pictures.h"

#include "samples/assemblypictures.h"
#include "samples/housingpictures.h"
#include "samples/measures.h"
#include "samples/partpictures.h"

namespace samples {

namespace {

Drawing Turned(const Drawing& drawing, double degrees) {
    Drawing turned;
    turned.Place(drawing, Tilted(degrees));
    return turned;
}

Drawing Mirrored(const Drawing& drawing) {
    Drawing mirrored;
    mirrored.Place(drawing, QTransform::fromScale(-1, 1));
    return mirrored;
}

Drawing GearFace(const GearMeasures& gear) {
    return SpurGear(gear.teeth, gear.module, gear.bore, gear.width);
}

Drawing BearingFace(const BearingMeasures& bearing) {
    return BallBearing(bearing.outer, bearing.bore, bearing.width);
}

Drawing AssemblyOf(Picture picture) {
    switch (picture) {
        case Picture::Gearbox:
            return GearboxFront();
        case Picture::InputUnit:
            return InputUnit();
        case Picture::IntermediateUnit:
            return IntermediateUnit();
        case Picture::OutputUnit:
            return OutputUnit();
        case Picture::HousingUnit:
            return HousingUnit();
        case Picture::CoverUnit:
            return CoverUnit();
        case Picture::BearingUnit6205:
            return BearingUnit(kBearing6205);
        case Picture::BearingUnit6206:
            return BearingUnit(kBearing6206);
        case Picture::BearingUnit6208:
            return BearingUnit(kBearing6208);
        default:
            return LooseParts();
    }
}

Drawing TurnedPartOf(Picture picture) {
    switch (picture) {
        case Picture::InputShaft:
            return SteppedShaft(InputShaftSteps());
        case Picture::IntermediateShaft:
            return SteppedShaft(IntermediateShaftSteps());
        case Picture::OutputShaft:
            return SteppedShaft(OutputShaftSteps());
        case Picture::InputPinion:
            return GearFace(kInputPinion);
        case Picture::IntermediateGear:
            return GearFace(kIntermediateGear);
        case Picture::IntermediatePinion:
            return GearFace(kIntermediatePinion);
        case Picture::OutputGear:
            return GearFace(kOutputGear);
        case Picture::Bearing6205:
            return BearingFace(kBearing6205);
        case Picture::Bearing6206:
            return BearingFace(kBearing6206);
        case Picture::Bearing6208:
            return BearingFace(kBearing6208);
        case Picture::SpacerSleeve:
            return SpacerSleeve(40, 34);
        case Picture::RetainingRing:
            return RetainingRing(52);
        case Picture::SealSmall:
            return ShaftSeal(47, 25);
        default:
            return ShaftSeal(62, 40);
    }
}

Drawing CastPartOf(Picture picture) {
    switch (picture) {
        case Picture::Casting:
            return Housing(false);
        case Picture::Housing:
            return Housing(true);
        case Picture::BracketRight:
            return Bracket();
        case Picture::BracketLeft:
            return Mirrored(Bracket());
        case Picture::CoverPlate:
            return CoverPlate();
        case Picture::CoverGasket:
            return CoverGasket();
        case Picture::CapClosed:
            return BearingCap(34, false);
        default:
            return BearingCap(34, true);
    }
}

Drawing SmallPartOf(Picture picture) {
    switch (picture) {
        case Picture::DrainPlug:
            return DrainPlug();
        case Picture::SightGlass:
            return SightGlass();
        case Picture::Breather:
            return Turned(Breather(), -90);
        case Picture::ScrewM6:
            return HexScrew(6, 20);
        case Picture::ScrewM8:
            return HexScrew(8, 25, Material::DarkSteel);
        case Picture::Washer:
            return Washer(8);
        default:
            return FeatherKey(32, 8);
    }
}

}  // namespace

Drawing DrawingOf(Picture picture) {
    if (picture <= Picture::LooseParts)
        return AssemblyOf(picture);
    if (picture <= Picture::SealLarge)
        return TurnedPartOf(picture);
    if (picture == Picture::DrainPlug || picture == Picture::SightGlass ||
        picture == Picture::Breather || picture >= Picture::ScrewM6)
        return SmallPartOf(picture);
    return CastPartOf(picture);
}

}  // namespace samples
