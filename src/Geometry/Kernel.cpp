#include "Quilon_/Geometry/Kernel.h"

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(IKernel, L"Quilon_::Geometry::IKernel", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(ISeparable, L"Quilon_::Geometry::ISeparable", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(ITransposable, L"Quilon_::Geometry::ITransposable", System::Interface)

Kernel::Factory Kernel::New;
SeparableKernel::Factory SeparableKernel::New;

} // namespace Quilon_::Geometry
