#include "Quilon_/Geometry/TwoD/Vector.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IVectorF, L"Quilon_::Geometry::TwoD::IVectorF", IVectorFND, Drawing::IDrawable,
                             Windows::IViewable)

VectorF::Factory VectorF::New;

} // namespace Quilon_::Geometry::TwoD
