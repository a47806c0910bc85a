#include "samples/gearbox.h"

namespace samples {

namespace {

QList<Document> ShaftParts() {
    return {
        {.path = "input shaft/input shaft.tfmprt",
         .title = "Input shaft",
         .picture = Picture::InputShaft,
         .mass = 0.68,
         .material = "C45E"},
        {.path = "input shaft/input pinion.tfmprt",
         .title = "Input pinion, 20 teeth, module 3",
         .picture = Picture::InputPinion,
         .mass = 0.71,
         .material = "16MnCr5",
         .hyperlinks = {"https://www.example.com/gears/module-3"}},
        {.path = "intermediate shaft/intermediate shaft.tfmprt",
         .title = "Intermediate shaft",
         .picture = Picture::IntermediateShaft,
         .mass = 1.02,
         .material = "C45E"},
        {.path = "intermediate shaft/intermediate gear.tfmprt",
         .title = "Intermediate gear, 44 teeth, module 3",
         .picture = Picture::IntermediateGear,
         .mass = 2.86,
         .material = "16MnCr5",
         .lockedBy = "m.keller"},
        {.path = "intermediate shaft/intermediate pinion.tfmprt",
         .title = "Intermediate pinion, 19 teeth, module 4",
         .picture = Picture::IntermediatePinion,
         .mass = 1.24,
         .material = "16MnCr5"},
        {.path = "output shaft/output shaft.tfmprt",
         .title = "Output shaft",
         .picture = Picture::OutputShaft,
         .mass = 1.97,
         .material = "42CrMo4"},
        {.path = "output shaft/output gear.tfmprt",
         .title = "Output gear, 46 teeth, module 4",
         .picture = Picture::OutputGear,
         .mass = 5.4,
         .material = "16MnCr5"},
    };
}

QList<Document> BearingParts() {
    return {
        {.path = "bearings/ball bearing 6205.tfmprt",
         .title = "Deep groove ball bearing 25x52x15",
         .picture = Picture::Bearing6205,
         .mass = 0.13,
         .material = "100Cr6",
         .hyperlinks = {"https://catalogue.example.com/bearings/6205"}},
        {.path = "bearings/ball bearing 6206.tfmprt",
         .title = "Deep groove ball bearing 30x62x16",
         .picture = Picture::Bearing6206,
         .mass = 0.2,
         .material = "100Cr6",
         .hyperlinks = {"https://catalogue.example.com/bearings/6206"}},
        {.path = "bearings/ball bearing 6208.tfmprt",
         .title = "Deep groove ball bearing 40x80x18",
         .picture = Picture::Bearing6208,
         .mass = 0.37,
         .material = "100Cr6",
         .hyperlinks = {"https://catalogue.example.com/bearings/6208"}},
    };
}

QList<Document> BearingAccessories() {
    return {
        {.path = "bearings/spacer sleeve.tfmprt",
         .title = "Spacer sleeve",
         .picture = Picture::SpacerSleeve,
         .mass = 0.03,
         .material = "S235JR",
         .configurations = {{"25x8", 8, 0.02, "S235JR"},
                            {"30x10", 10, 0.03, "S235JR"},
                            {"40x12", 12, 0.05, "S235JR"}}},
        {.path = "bearings/retaining ring.tfmprt",
         .title = "Retaining ring",
         .picture = Picture::RetainingRing,
         .mass = 0.01,
         .material = "C75S",
         .hyperlinks = {"https://standards.example.net/sheets/din-472.pdf"}},
        {.path = "bearings/shaft seal 25x47.tfmprt",
         .title = "Shaft seal 25x47x7",
         .picture = Picture::SealSmall,
         .mass = 0.02,
         .material = "NBR"},
        {.path = "bearings/shaft seal 40x62.tfmprt",
         .title = "Shaft seal 40x62x8",
         .picture = Picture::SealLarge,
         .mass = 0.03,
         .material = "NBR"},
    };
}

QList<Document> HousingParts() {
    return {
        {.path = "housing/housing casting.tfmprt",
         .title = "Housing, rough casting",
         .picture = Picture::Casting,
         .mass = 17.8,
         .material = "EN-GJL-250"},
        {.path = "housing/housing.tfmprt",
         .title = "Housing, machined",
         .picture = Picture::Housing,
         .mass = 14.2,
         .material = "EN-GJL-250",
         .externals = {{"housing/housing casting.tfmprt", "derived"}}},
        {.path = "housing/right bracket.tfmprt",
         .title = "Right bracket",
         .picture = Picture::BracketRight,
         .mass = 1.1,
         .material = "S355J2",
         .externals = {{"housing/housing.tfmprt", "in-context"}}},
        {.path = "housing/left bracket.tfmprt",
         .title = "Left bracket",
         .picture = Picture::BracketLeft,
         .mass = 1.1,
         .material = "S355J2",
         .externals = {{"housing/right bracket.tfmprt", "mirrored"}}},
        {.path = "housing/drain plug.tfmprt",
         .title = "Oil drain plug",
         .picture = Picture::DrainPlug,
         .mass = 0.08,
         .material = "C35"},
        {.path = "housing/sight glass.tfmprt",
         .title = "Oil sight glass",
         .picture = Picture::SightGlass,
         .mass = 0.06,
         .material = "CuZn39Pb3"},
    };
}

QList<Document> CoverParts() {
    return {
        {.path = "cover/cover plate.tfmprt",
         .title = "Cover plate",
         .picture = Picture::CoverPlate,
         .mass = 2.6,
         .material = "EN AW-6082"},
        {.path = "cover/cover gasket.tfmprt",
         .title = "Cover gasket",
         .picture = Picture::CoverGasket,
         .mass = 0.05,
         .material = "Fibre",
         .externals = {{"housing/housing unit.tfmasm", "in-context"},
                       {"cover/cover plate.tfmprt", "in-context"}}},
        {.path = "cover/breather.tfmprt",
         .title = "Breather",
         .picture = Picture::Breather,
         .mass = 0.09,
         .material = "CuZn39Pb3"},
        {.path = "cover/bearing cap.tfmprt",
         .title = "Bearing cap",
         .picture = Picture::CapClosed,
         .mass = 0.34,
         .material = "EN AW-6082"},
        {.path = "cover/open bearing cap.tfmprt",
         .title = "Bearing cap for a shaft that passes",
         .picture = Picture::CapOpen,
         .mass = 0.29,
         .material = "EN AW-6082",
         .externals = {{"cover/bearing cap.tfmprt", "derived"}}},
    };
}

QList<Document> Fasteners() {
    return {
        {.path = "fasteners/hex screw M6.tfmprt",
         .title = "Hexagon head screw M6",
         .picture = Picture::ScrewM6,
         .mass = 0.0073,
         .material = "Steel 8.8",
         .configurations = {{"M6x20", 20, 0.0073, "Steel 8.8"}, {"M6x30", 30, 0.0091, "Steel 8.8"}},
         .hyperlinks = {"https://standards.example.net/sheets/iso-4017.pdf",
                        "https://www.example.org/fasteners/m6"}},
        {.path = "fasteners/hex screw M8.tfmprt",
         .title = "Hexagon head screw M8",
         .picture = Picture::ScrewM8,
         .mass = 0.0168,
         .material = "Steel 10.9",
         .configurations = {{"M8x25", 25, 0.0168, "Steel 10.9"},
                            {"M8x40", 40, 0.0221, "Steel 10.9"}},
         .hyperlinks = {"https://standards.example.net/sheets/iso-4017.pdf"}},
        {.path = "fasteners/washer.tfmprt",
         .title = "Washer",
         .picture = Picture::Washer,
         .mass = 0.0021,
         .material = "Steel 200 HV",
         .configurations = {{"M6", 1.6, 0.001, "Steel 200 HV"},
                            {"M8", 1.6, 0.0021, "Steel 200 HV"}}},
        {.path = "fasteners/feather key.tfmprt",
         .title = "Feather key",
         .picture = Picture::FeatherKey,
         .mass = 0.012,
         .material = "C45+C",
         .configurations = {{"6x32", 32, 0.009, "C45+C"},
                            {"10x28", 28, 0.018, "C45+C"},
                            {"10x50", 50, 0.031, "C45+C"}}},
    };
}

}  // namespace

QList<Document> GearboxParts() {
    return ShaftParts() + BearingParts() + BearingAccessories() + HousingParts() + CoverParts() +
           Fasteners();
}

}  // namespace samples
