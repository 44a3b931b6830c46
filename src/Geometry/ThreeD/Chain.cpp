#include "Quilon_/Geometry/ThreeD/Chain.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::ThreeD {

QUILON_DEFINE_INTERFACE_TYPE(IChainF, L"Quilon_::Geometry::ThreeD::IChainF", IBoxedF)

} // namespace Quilon_::Geometry::ThreeD
