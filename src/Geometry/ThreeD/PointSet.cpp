#include "Quilon_/Geometry/ThreeD/PointSet.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IPointFSet, L"Quilon_::Geometry::ThreeD::IPointFSet", IShape, IPointFNDSet)

} // namespace Quilon_::Geometry::ThreeD
