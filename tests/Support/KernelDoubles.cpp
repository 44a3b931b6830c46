#include "KernelDoubles.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::Tests::Kernel {

QUILON_DEFINE_INTERFACE_TYPE(IThing, L"Quilon_::Tests::Kernel::IThing", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IOther, L"Quilon_::Tests::Kernel::IOther", System::Interface)

} // namespace Quilon_::Tests::Kernel
