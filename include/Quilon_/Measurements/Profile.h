// Samples along a line or an axis: one value and one position per sample.
//
//   Ref<Measurements::IProfile> p = Measurements::Profile::New(100, Geometry::Axes::aXY);
//   p->Position(1)->SetX(1.0);
//   p->SetValues(samples);
//   Ref<Measurements::IProfile> green = Measurements::Profile::New(100, p, Geometry::Axes::aXY);
//
// New(length, axes) places every sample at 0. New(length, source, axes)
// takes the positions of the first `length` samples of `source` over
// `axes` (missing samples at 0), with values 0: a second band measured
// along the same path.
#pragma once

#include "Quilon_/Measurements/Position.h"
#include "Quilon_/System/GlobalVariable.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Charts {
class IChartStyle;
} // namespace Quilon_::Charts

namespace Quilon_::Measurements {

class QUILON_API IProfile : public virtual System::Interface {
    QUILON_INTERFACE(IProfile)
public:
    virtual std::int64_t Length() = 0;
    // The axes of the positions.
    virtual Geometry::Axes Axes() = 0;
    virtual std::vector<double> Values() = 0;
    // `values` must hold Length() of them.
    virtual void SetValues(const std::vector<double>& values) = 0;
    // The position of sample `index`, held by the profile: changes stick.
    virtual System::Ref<IPosition> Position(std::int64_t index) = 0;
    // The length of the path from sample 0 to sample `index`, through the
    // samples between.
    virtual double Distance(std::int64_t index) = 0;
};

namespace Profile {
using Factory =
    System::Functions::Template::Factory<System::Ref<IProfile>(std::int64_t, Geometry::Axes),
                                         System::Ref<IProfile>(std::int64_t, System::Ref<IProfile>,
                                                               Geometry::Axes)>;
extern QUILON_API Factory New;

QUILON_DECLARE_SETTING(DefaultChartStyle, SetDefaultChartStyle, ClearDefaultChartStyle,
                       System::Ref<Charts::IChartStyle>);
} // namespace Profile

} // namespace Quilon_::Measurements
