#include "Quilon_/Geometry/TwoD/Chain.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IChainF, L"Quilon_::Geometry::TwoD::IChainF", IBoxedF, IPolyPointsF)

ChainF::Factory ChainF::New;

} // namespace Quilon_::Geometry::TwoD
