#include "samples/gearbox.h"

namespace samples {

namespace {

QList<Document> MainAssembly() {
    return {
        {.path = kMainAssembly,
         .title = "Two-stage spur gearbox",
         .picture = Picture::Gearbox,
         .mass = 41.6,
         .components = {{"housing/housing unit.tfmasm"},
                        {"input shaft/input shaft unit.tfmasm"},
                        {"intermediate shaft/intermediate shaft unit.tfmasm"},
                        {"output shaft/output shaft unit.tfmasm"},
                        {"cover/cover unit.tfmasm"},
                        {"cover/bearing cap.tfmprt", 4},
                        {"cover/open bearing cap.tfmprt", 2},
                        {"fasteners/hex screw M6.tfmprt", 36}},
         .hyperlinks = {"https://www.example.com/gearboxes/two-stage",
                        "https://docs.example.org/assembly/gearbox.html"}},
    };
}

QList<Document> ShaftUnits() {
    return {
        {.path = "input shaft/input shaft unit.tfmasm",
         .title = "Input shaft unit",
         .picture = Picture::InputUnit,
         .mass = 2.31,
         .components = {{"input shaft/input shaft.tfmprt"},
                        {"input shaft/input pinion.tfmprt"},
                        {"bearings/bearing unit 6205.tfmasm", 2},
                        {"fasteners/feather key.tfmprt", 2},
                        {"bearings/shaft seal 25x47.tfmprt"}}},
        {.path = "intermediate shaft/intermediate shaft unit.tfmasm",
         .title = "Intermediate shaft unit",
         .picture = Picture::IntermediateUnit,
         .mass = 6.92,
         .components = {{"intermediate shaft/intermediate shaft.tfmprt"},
                        {"intermediate shaft/intermediate gear.tfmprt"},
                        {"intermediate shaft/intermediate pinion.tfmprt"},
                        {"bearings/bearing unit 6206.tfmasm", 2},
                        {"fasteners/feather key.tfmprt", 2}}},
        {.path = "output shaft/output shaft unit.tfmasm",
         .title = "Output shaft unit",
         .picture = Picture::OutputUnit,
         .mass = 11.4,
         .components = {{"output shaft/output shaft.tfmprt"},
                        {"output shaft/output gear.tfmprt"},
                        {"bearings/bearing unit 6208.tfmasm", 2},
                        {"fasteners/feather key.tfmprt", 2},
                        {"bearings/shaft seal 40x62.tfmprt"}},
         .referencesLocked = true},
    };
}

QList<Document> BearingUnits() {
    return {
        {.path = "bearings/bearing unit 6205.tfmasm",
         .title = "Bearing unit 6205",
         .picture = Picture::BearingUnit6205,
         .mass = 0.16,
         .components = {{"bearings/ball bearing 6205.tfmprt"},
                        {"bearings/retaining ring.tfmprt"},
                        {"bearings/spacer sleeve.tfmprt"}}},
        {.path = "bearings/bearing unit 6206.tfmasm",
         .title = "Bearing unit 6206",
         .picture = Picture::BearingUnit6206,
         .mass = 0.24,
         .components = {{"bearings/ball bearing 6206.tfmprt"},
                        {"bearings/retaining ring.tfmprt"},
                        {"bearings/spacer sleeve.tfmprt"}}},
        {.path = "bearings/bearing unit 6208.tfmasm",
         .title = "Bearing unit 6208",
         .picture = Picture::BearingUnit6208,
         .mass = 0.45,
         .components = {{"bearings/ball bearing 6208.tfmprt"},
                        {"bearings/retaining ring.tfmprt", 2},
                        {"bearings/spacer sleeve.tfmprt"}}},
    };
}

QList<Document> BodyUnits() {
    return {
        {.path = "housing/housing unit.tfmasm",
         .title = "Housing unit",
         .picture = Picture::HousingUnit,
         .mass = 16.9,
         .components = {{"housing/housing.tfmprt"},
                        {"housing/right bracket.tfmprt"},
                        {"housing/left bracket.tfmprt"},
                        {"housing/drain plug.tfmprt"},
                        {"housing/sight glass.tfmprt"},
                        {"fasteners/hex screw M8.tfmprt", 8},
                        {"fasteners/washer.tfmprt", 8}}},
        {.path = "cover/cover unit.tfmasm",
         .title = "Cover unit",
         .picture = Picture::CoverUnit,
         .mass = 3.05,
         .components = {{"cover/cover plate.tfmprt"},
                        {"cover/cover gasket.tfmprt"},
                        {"cover/breather.tfmprt"},
                        {"fasteners/hex screw M8.tfmprt", 8},
                        {"fasteners/hex screw M6.tfmprt", 6},
                        {"fasteners/washer.tfmprt", 8}}},
    };
}

}  // namespace

QList<Document> Gearbox() {
    return GearboxAssemblies() + GearboxParts() + GearboxDrawings();
}

QList<Document> GearboxAssemblies() {
    return MainAssembly() + ShaftUnits() + BearingUnits() + BodyUnits();
}

QList<Document> GearboxDrawings() {
    return {
        {.path = "gearbox.tfmdrw",
         .title = "Gearbox, general arrangement",
         .picture = Picture::Gearbox,
         .components = {{kMainAssembly}},
         .hyperlinks = {"https://standards.example.net/sheets/iso-128.pdf"}},
        {.path = "input shaft/input shaft.tfmdrw",
         .title = "Input shaft",
         .picture = Picture::InputShaft,
         .components = {{"input shaft/input shaft.tfmprt"}}},
        {.path = "output shaft/output shaft.tfmdrw",
         .title = "Output shaft",
         .picture = Picture::OutputShaft,
         .components = {{"output shaft/output shaft.tfmprt"}}},
        {.path = "output shaft/output gear.tfmdrw",
         .title = "Output gear",
         .picture = Picture::OutputGear,
         .components = {{"output shaft/output gear.tfmprt"}}},
        {.path = "housing/housing.tfmdrw",
         .title = "Housing",
         .picture = Picture::Housing,
         .components = {{"housing/housing.tfmprt"}}},
        {.path = "cover/cover plate.tfmdrw",
         .title = "Cover plate",
         .picture = Picture::CoverPlate,
         .components = {{"cover/cover plate.tfmprt"}}},
    };
}

QList<Document> FaultyAssemblies() {
    return {
        {.path = "missing.tfmasm",
         .title = "Assembly with a missing part",
         .components = {{"input shaft/input pinion.tfmprt"},
                        {"cover/lost bearing cap.tfmprt"},
                        {"fasteners/hex screw M6.tfmprt", 6}}},
        {.path = "circular-a.tfmasm",
         .title = "Assembly that holds itself through another, first half",
         .components = {{"circular-b.tfmasm"}, {"fasteners/hex screw M6.tfmprt", 2}}},
        {.path = "circular-b.tfmasm",
         .title = "Assembly that holds itself through another, second half",
         .components = {{"circular-a.tfmasm"}, {"fasteners/washer.tfmprt", 2}}},
    };
}

}  // namespace samples
