#include "Quilon_/Geometry/TwoD/Text.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IText, L"Quilon_::Geometry::TwoD::IText", IShape, Drawing::IDrawable,
                             Windows::IViewable, IRotatableShape)

Text::Factory Text::New;

} // namespace Quilon_::Geometry::TwoD
