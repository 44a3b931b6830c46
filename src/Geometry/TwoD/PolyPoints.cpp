#include "Quilon_/Geometry/TwoD/PolyPoints.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IPolyPointsF, L"Quilon_::Geometry::TwoD::IPolyPointsF", IShape)

} // namespace Quilon_::Geometry::TwoD
