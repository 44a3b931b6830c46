#include "Quilon_/System/Serialization/Factory.h"

#include "Quilon_/System/Raise.h"

namespace Quilon_::System::Serialization {

void Detail::CheckMinimumVersion(unsigned short minimumVersion)
{
    if (minimumVersion < OldestVersion || minimumVersion > CurrentVersion)
        QUILON_RAISE(L"Invalid minimum version value: %1% (current version is %2%)", minimumVersion,
                     CurrentVersion);
}

Factory::Factory(Pointer<Interface, 1> (*function)(), unsigned short minimumVersion)
    : minimumVersion(minimumVersion)
{
    Detail::CheckMinimumVersion(minimumVersion);
    Register(function);
}

Factory::Factory(const Operator& function, unsigned short minimumVersion)
    : Operator(function), minimumVersion(minimumVersion)
{
    Detail::CheckMinimumVersion(minimumVersion);
}

Any ToAny(const Factory& factory)
{
    return System::Detail::Box(factory);
}

} // namespace Quilon_::System::Serialization
