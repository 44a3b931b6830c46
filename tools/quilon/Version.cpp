#include "Commands.h"

#include "Quilon_/Library.h"
#include "Quilon_/Startup.h"

#include <cstdio>

namespace Quilon_::Tool {

int Version(const Arguments&)
{
    std::printf("Quilon_ library version %lld\n", static_cast<long long>(Library::Version()));
    std::printf("initialisation state %d\n", System::InitializationState());
    return 0;
}

} // namespace Quilon_::Tool
