#include "Quilon_/Geometry/ThreeD/Parallelepiped.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IParallelepipedF, L"Quilon_::Geometry::ThreeD::IParallelepipedF", IBoxedF)

} // namespace Quilon_::Geometry::ThreeD
