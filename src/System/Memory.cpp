#include "Quilon_/System/Memory.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IMemory, L"Quilon_::System::IMemory", Interface)

Memory::Factory::Factory() : Allocating(L"New"), Wrapping(L"New") {}

Memory::Factory Memory::New;

} // namespace Quilon_::System
