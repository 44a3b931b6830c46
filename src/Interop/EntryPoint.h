// What the core knows of itself as a loaded module.
#pragma once

#include <string>

namespace Quilon_::Interop::Detail {

// The full path of the file from which the core library was loaded; empty
// if it cannot be told. The loader may have found it by a relative path
// (LD_LIBRARY_PATH=lib): that path is made absolute against the working
// directory of the moment of loading, so that the files looked up beside
// the core do not depend on where the application runs later.
std::string ModuleFileName();

} // namespace Quilon_::Interop::Detail
