#include "Quilon_/Geometry/TwoD/EditableShape.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IEditableShape, L"Quilon_::Geometry::TwoD::IEditableShape", IShape)

} // namespace Quilon_::Geometry::TwoD
