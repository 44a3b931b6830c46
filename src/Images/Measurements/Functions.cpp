#include "Quilon_/Images/Measurements/Functions.h"

#include "Quilon_/Images/Image.h"
#include "Quilon_/Math/Range.h"

namespace Quilon_::Images::Measurements::Functions {

Function1 Range(L"Range");

} // namespace Quilon_::Images::Measurements::Functions
