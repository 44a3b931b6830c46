#include "Quilon_/Geometry/TwoD/Rectangle.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IRectangleF, L"Quilon_::Geometry::TwoD::IRectangleF", IBoxedF)

RectangleF::Factory RectangleF::New;

} // namespace Quilon_::Geometry::TwoD
