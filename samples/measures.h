// The gearbox's measures that several pictures share, in millimetres.
#pragma once

#include "samples/partpictures.h"

namespace samples {

struct GearMeasures {
    int teeth;
    double module;
    double bore;
    double width;
};

struct BearingMeasures {
    double outer;
    double bore;
    double width;
};

inline constexpr GearMeasures kInputPinion{20, 3, 30, 40};
inline constexpr GearMeasures kIntermediateGear{44, 3, 36, 30};
inline constexpr GearMeasures kIntermediatePinion{19, 4, 36, 44};
inline constexpr GearMeasures kOutputGear{46, 4, 46, 28};

inline constexpr BearingMeasures kBearing6205{52, 25, 15};
inline constexpr BearingMeasures kBearing6206{62, 30, 16};
inline constexpr BearingMeasures kBearing6208{80, 40, 18};

// From left to right. The seats of bearings and gears are told by the assemblies.
inline QList<ShaftStep> InputShaftSteps() {
    return {{45, 22, true}, {15, 25}, {12, 34}, {46, 30, true}, {15, 25}, {5, 22}};
}
inline QList<ShaftStep> IntermediateShaftSteps() {
    return {{16, 30}, {34, 36, true}, {10, 48}, {50, 36, true}, {16, 30}};
}
inline QList<ShaftStep> OutputShaftSteps() {
    return {{18, 40}, {32, 46, true}, {14, 60}, {40, 46}, {18, 40}, {64, 36, true}};
}

}  // namespace samples
