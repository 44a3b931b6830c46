// What the loader runs when the core library is loaded and unloaded.
//
// On unload the initialisation state becomes -1 before the static
// destructors run, so that no object is destroyed by a last release while
// the code of the libraries that made it may be gone. The companion library
// outlives the core, so it must no longer call the core's pressure counter.

#include "Interop/EntryPoint.h"

#include "Quilon_/Startup.h"
#include "Quilon_/System/MemoryManager.h"

#include <dlfcn.h>

namespace Quilon_::Interop::Detail {

std::string ModuleFileName()
{
    Dl_info info{};
    // Any address inside the core names the core's module.
    if (dladdr(reinterpret_cast<void*>(&ModuleFileName), &info) == 0 || !info.dli_fname)
        return std::string();
    return info.dli_fname;
}

} // namespace Quilon_::Interop::Detail

namespace {

__attribute__((destructor)) void OnLibraryDetach()
{
    Quilon_::System::SetInitializationState(-1);
    if (Quilon_::System::AddMemoryPressureFunction == &Quilon_::System::AddMemoryPressure)
        Quilon_::System::AddMemoryPressureFunction = nullptr;
}

} // namespace
