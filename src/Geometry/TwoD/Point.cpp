#include "Quilon_/Geometry/TwoD/Point.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IPointF, L"Quilon_::Geometry::TwoD::IPointF", IShape, IPointFND,
                             Drawing::IDrawable, Windows::IViewable)

PointF::Factory PointF::New;

} // namespace Quilon_::Geometry::TwoD
