#include "Quilon_/System/Threading/Timer.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System::Threading {

QUILON_DEFINE_INTERFACE_TYPE(ITimer, L"Quilon_::System::Threading::ITimer", Interface)

Functions::Template::Function<Pointer<ITimer> (*)()> Timer::New(L"New");

} // namespace Quilon_::System::Threading
