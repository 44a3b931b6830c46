#include "Quilon_/System/DestructionEvents.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IDestructionEvents, L"Quilon_::System::IDestructionEvents", Interface)

} // namespace Quilon_::System
