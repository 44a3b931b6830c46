#include "Quilon_/Geometry/ThreeD/Cylinder.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(ICylinderF, L"Quilon_::Geometry::ThreeD::ICylinderF", IBoxedF)

} // namespace Quilon_::Geometry::ThreeD
