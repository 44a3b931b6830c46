#include "Quilon_/Geometry/TwoD/Shape.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IShape, L"Quilon_::Geometry::TwoD::IShape", IShapeND)
QUILON_DEFINE_INTERFACE_TYPE(ISizeable, L"Quilon_::Geometry::TwoD::ISizeable", ISizeableND)

} // namespace Quilon_::Geometry::TwoD
