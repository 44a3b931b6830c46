#include "Quilon_/Math/Interval.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Math {

QUILON_DEFINE_INTERFACE_TYPE(IIntervalD, L"Quilon_::Math::IIntervalD", System::Interface)

IntervalD::Factory IntervalD::New;

} // namespace Quilon_::Math
