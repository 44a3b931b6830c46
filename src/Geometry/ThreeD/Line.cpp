#include "Quilon_/Geometry/ThreeD/Line.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(ILineF, L"Quilon_::Geometry::ThreeD::ILineF", IBoxedF, ILineFND)

} // namespace Quilon_::Geometry::ThreeD
