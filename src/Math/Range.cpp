#include "Quilon_/Math/Range.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Math {

QUILON_DEFINE_INTERFACE_TYPE(IRange, L"Quilon_::Math::IRange", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IRangeD, L"Quilon_::Math::IRangeD", System::Interface)

Range::Factory Range::New;
RangeD::Factory RangeD::New;

} // namespace Quilon_::Math
