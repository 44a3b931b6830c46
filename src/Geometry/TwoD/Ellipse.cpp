#include "Quilon_/Geometry/TwoD/Ellipse.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IEllipseF, L"Quilon_::Geometry::TwoD::IEllipseF", IBoxedF)

EllipseF::Factory EllipseF::New;

} // namespace Quilon_::Geometry::TwoD
