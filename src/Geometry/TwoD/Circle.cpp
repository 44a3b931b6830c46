#include "Quilon_/Geometry/TwoD/Circle.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(ICircleF, L"Quilon_::Geometry::TwoD::ICircleF", IEllipseF)

CircleF::Factory CircleF::New;

} // namespace Quilon_::Geometry::TwoD
