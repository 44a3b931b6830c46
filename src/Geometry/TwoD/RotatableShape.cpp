#include "Quilon_/Geometry/TwoD/RotatableShape.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IRotatableShape, L"Quilon_::Geometry::TwoD::IRotatableShape", IShape)

} // namespace Quilon_::Geometry::TwoD
