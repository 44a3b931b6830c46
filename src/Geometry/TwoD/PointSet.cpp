#include "Quilon_/Geometry/TwoD/PointSet.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IPointFSet, L"Quilon_::Geometry::TwoD::IPointFSet", IPolyPointsF, IPointFNDSet)

PointFSet::Factory PointFSet::New;

} // namespace Quilon_::Geometry::TwoD
