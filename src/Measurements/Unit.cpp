#include "Quilon_/Measurements/Unit.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IUnit, L"Quilon_::Measurements::IUnit", System::Interface)

Unit::Factory Unit::New;

} // namespace Quilon_::Measurements
