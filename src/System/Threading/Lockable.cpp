#include "Quilon_/System/Threading/Lockable.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System::Threading {

QUILON_DEFINE_INTERFACE_TYPE(ILockable, L"Quilon_::System::Threading::ILockable", Interface)

} // namespace Quilon_::System::Threading
