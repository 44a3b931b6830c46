#include "Quilon_/System/PropertyChangeEvents.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IPropertyChangeEvents, L"Quilon_::System::IPropertyChangeEvents", Interface)

} // namespace Quilon_::System
