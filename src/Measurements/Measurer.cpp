#include "Quilon_/Measurements/Measurer.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IMeasurer, L"Quilon_::Measurements::IMeasurer", System::Interface)

} // namespace Quilon_::Measurements
