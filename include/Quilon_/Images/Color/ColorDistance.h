// How far apart two colours are, for the colour operators that compare
// samples (edge detection, thresholds and region growing by colour). A
// colour is one value per band of a colour image:
//
//   Pointer<Images::Color::IColorDistance, 0> distance = ...;   // from a library
//   double d = distance->Distance({255, 0, 0}, {250, 10, 0});
//
// An operator given a null distance uses the Euclidean one.
#pragma once

#include "Quilon_/System/Interface.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Images::Color {

class QUILON_API IColorDistance : public virtual System::Interface {
    QUILON_INTERFACE(IColorDistance)
public:
    // The distance between two colours of BandCount() values each; 0 for
    // equal colours, never negative.
    virtual double Distance(const std::vector<double>& first, const std::vector<double>& second) = 0;
    // The number of values of a colour that the distance reads.
    virtual std::int64_t BandCount() = 0;
};

} // namespace Quilon_::Images::Color
