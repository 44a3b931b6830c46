#include "Quilon_/Geometry/TwoD/BoxedF.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IBoxedF, L"Quilon_::Geometry::TwoD::IBoxedF", IShape, ISizeable)

} // namespace Quilon_::Geometry::TwoD
