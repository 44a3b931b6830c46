#include "Quilon_/Images/Color/ColorFormat.h"

#include "Quilon_/Images/Color/ColorSpace.h"

namespace Quilon_::Images::Color {

QUILON_DEFINE_INTERFACE_TYPE(IColorFormat, L"Quilon_::Images::Color::IColorFormat", IFormat, IFixedBandFormat)

UniformColorFormat::Factory UniformColorFormat::New;

} // namespace Quilon_::Images::Color
