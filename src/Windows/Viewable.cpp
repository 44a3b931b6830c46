#include "Quilon_/Windows/Viewable.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Windows {

QUILON_DEFINE_INTERFACE_TYPE(IViewable, L"Quilon_::Windows::IViewable", System::Interface)

} // namespace Quilon_::Windows
