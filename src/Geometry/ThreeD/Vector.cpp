#include "Quilon_/Geometry/ThreeD/Vector.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IVectorF, L"Quilon_::Geometry::ThreeD::IVectorF", IVectorFND)

} // namespace Quilon_::Geometry::ThreeD
