#include "Quilon_/Geometry/ThreeD/BitmapShape.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IBitmapShape, L"Quilon_::Geometry::ThreeD::IBitmapShape", IBoxedF)

} // namespace Quilon_::Geometry::ThreeD
