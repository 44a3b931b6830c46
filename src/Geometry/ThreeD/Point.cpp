#include "Quilon_/Geometry/ThreeD/Point.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IPointF, L"Quilon_::Geometry::ThreeD::IPointF", IShape, IPointFND)

} // namespace Quilon_::Geometry::ThreeD
