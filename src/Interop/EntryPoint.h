// What the core knows of itself as a loaded module.
#pragma once

#include <string>

namespace Quilon_::Interop::Detail {

// The file from which the core library was loaded, as the loader found it;
// empty if it cannot be told.
std::string ModuleFileName();

} // namespace Quilon_::Interop::Detail
