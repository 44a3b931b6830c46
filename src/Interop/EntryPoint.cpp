// What the loader runs when the core library is loaded and unloaded.
//
// On load the core notes its own full path, for the files it looks up
// beside itself.
//
// On unload the initialisation state becomes -1 before the static
// destructors run, so that no object is destroyed by a last release while
// the code of the libraries that made it may be gone. The companion library
// outlives the core, so it must no longer call the core's pressure counter.

#include "Interop/EntryPoint.h"

#include "Quilon_/Startup.h"
#include "Quilon_/System/MemoryManager.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>

namespace Quilon_::Interop::Detail {

namespace {

std::string LoadedFileName()
{
    Dl_info info{};
    // Any address inside the core names the core's module.
    if (dladdr(reinterpret_cast<void*>(&ModuleFileName), &info) == 0 || !info.dli_fname || !*info.dli_fname)
        return std::string();
    std::error_code failed;
    std::filesystem::path path = std::filesystem::absolute(info.dli_fname, failed);
    return failed ? std::string(info.dli_fname) : path.lexically_normal().string();
}

} // namespace

std::string ModuleFileName()
{
    // Never destroyed: libraries may be loaded while the process exits.
    static const std::string* const name = new std::string(LoadedFileName());
    return *name;
}

} // namespace Quilon_::Interop::Detail

namespace {

// Fixes the module's path while the working directory is still the one
// against which the loader resolved it.
__attribute__((constructor)) void OnLibraryAttach()
{
    Quilon_::Interop::Detail::ModuleFileName();
}

__attribute__((destructor)) void OnLibraryDetach()
{
    Quilon_::System::SetInitializationState(-1);
    if (Quilon_::System::AddMemoryPressureFunction == &Quilon_::System::AddMemoryPressure)
        Quilon_::System::AddMemoryPressureFunction = nullptr;
}

} // namespace
