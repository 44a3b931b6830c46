#include "Quilon_/Images/Color/ColorSpace.h"

namespace Quilon_::Images::Color {

QUILON_DEFINE_INTERFACE_TYPE(IColorSpace, L"Quilon_::Images::Color::IColorSpace", System::Interface)

ColorSpace::Factory ColorSpace::New;

} // namespace Quilon_::Images::Color
