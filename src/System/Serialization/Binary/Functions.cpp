#include "Quilon_/System/Serialization/Binary/Functions.h"

#include "Quilon_/System/Serialization/Factory.h"

namespace Quilon_::System::Serialization::Binary {

Functions::Functions(Write write, Read read, unsigned short minimumVersion)
    : write(write), read(read), minimumVersion(minimumVersion)
{
    Serialization::Detail::CheckMinimumVersion(minimumVersion);
}

} // namespace Quilon_::System::Serialization::Binary
