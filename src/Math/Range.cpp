#include "Quilon_/Math/Range.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Math {

QUILON_DEFINE_INTERFACE_TYPE(IRangeD, L"Quilon_::Math::IRangeD", System::Interface)

RangeD::Factory RangeD::New;

} // namespace Quilon_::Math
