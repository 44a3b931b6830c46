#include "Quilon_/System/DisableEvents.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IDisableEvents, L"Quilon_::System::IDisableEvents", Interface)

} // namespace Quilon_::System
