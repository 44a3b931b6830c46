#include "Quilon_/Geometry/TwoD/BitmapShape.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IBitmapShape, L"Quilon_::Geometry::TwoD::IBitmapShape", IBoxedF, IBitmapShapeND)

BitmapShape::Factory BitmapShape::New;

} // namespace Quilon_::Geometry::TwoD
