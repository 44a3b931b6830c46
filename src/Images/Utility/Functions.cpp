#include "Quilon_/Images/Utility/Functions.h"

#include "Quilon_/Geometry/Shape.h"
#include "Quilon_/Images/Image.h"

namespace Quilon_::Images::Utility::Functions {

Function1 Copy(L"Copy");
System::Functions::Template::Function<void (*)(Image)> Clear(L"Clear");
System::Functions::Template::Function<void (*)(Image, Image, std::int64_t)> CopyBand(L"CopyBand");
System::Functions::Template::Function<void (*)(Image, Image, std::int64_t)> ExtractBand(L"ExtractBand");

} // namespace Quilon_::Images::Utility::Functions
