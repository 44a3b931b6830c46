#include "Quilon_/Measurements/Resolution.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IResolution, L"Quilon_::Measurements::IResolution", System::Interface)

Resolution::Factory Resolution::New;

} // namespace Quilon_::Measurements
