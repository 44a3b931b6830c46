#include "Quilon_/Geometry/TwoD/LineProfileMeasurer.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(ILineProfileMeasurer, L"Quilon_::Geometry::TwoD::ILineProfileMeasurer",
                             Measurements::IMeasurer)

LineProfileMeasurer::Factory LineProfileMeasurer::New;

} // namespace Quilon_::Geometry::TwoD
