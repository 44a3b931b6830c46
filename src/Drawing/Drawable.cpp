#include "Quilon_/Drawing/Drawable.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(IDrawable, L"Quilon_::Drawing::IDrawable", Windows::IViewable)

} // namespace Quilon_::Drawing
