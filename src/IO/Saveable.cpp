#include "Quilon_/IO/Saveable.h"

namespace Quilon_::IO {

QUILON_DEFINE_INTERFACE_TYPE(ISaveable, L"Quilon_::IO::ISaveable", System::Interface)

} // namespace Quilon_::IO
