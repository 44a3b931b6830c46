#include "Quilon_/Images/Math/Functions.h"

#include "Quilon_/Images/Image.h"

namespace Quilon_::Images::Math::Functions {

System::Functions::Template::Function<void (*)(Image, Image)> Magnitude(L"Magnitude");

} // namespace Quilon_::Images::Math::Functions
