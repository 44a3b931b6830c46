#include "Quilon_/Images/Color/Utility/Functions.h"

#include "Quilon_/Images/Image.h"

namespace Quilon_::Images::Color::Utility::Functions {

System::Functions::Template::Function<void (*)(Image, Image)> ExcessRGB(L"ExcessRGB");
System::Functions::Template::Function<void (*)(Image, Image)> ExpandRGB(L"ExpandRGB");
System::Functions::Template::Function<void (*)(Image, Image)> Intensity(L"Intensity");

} // namespace Quilon_::Images::Color::Utility::Functions
