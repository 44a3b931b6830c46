#include "Quilon_/Images/Color/ColorDistance.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Images::Color {

QUILON_DEFINE_INTERFACE_TYPE(IColorDistance, L"Quilon_::Images::Color::IColorDistance", System::Interface)

} // namespace Quilon_::Images::Color
