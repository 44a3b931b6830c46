#include "Quilon_/Geometry/ThreeD/Polyhedron.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IPolyhedronF, L"Quilon_::Geometry::ThreeD::IPolyhedronF", IBoxedF)

} // namespace Quilon_::Geometry::ThreeD
