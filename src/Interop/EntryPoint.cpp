// What the loader runs when the core library is loaded and unloaded.
//
// On unload the initialisation state becomes -1 before the static
// destructors run, so that no object is destroyed by a last release while
// the code of the libraries that made it may be gone.

#include "Quilon_/Startup.h"

namespace {

__attribute__((destructor)) void OnLibraryDetach()
{
    Quilon_::System::SetInitializationState(-1);
}

} // namespace
