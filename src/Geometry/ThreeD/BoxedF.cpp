#include "Quilon_/Geometry/ThreeD/BoxedF.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IBoxedF, L"Quilon_::Geometry::ThreeD::IBoxedF", IShape, ISizeableND)

} // namespace Quilon_::Geometry::ThreeD
