#include "Quilon_/Geometry/ThreeD/Ellipsoid.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IEllipsoidF, L"Quilon_::Geometry::ThreeD::IEllipsoidF", IBoxedF)

} // namespace Quilon_::Geometry::ThreeD
