// How an object is made when its class name is read from a file.
//
// A Factory is an operator without arguments that makes an empty instance
// of one class, with the oldest file version from which that class can be
// read. Libraries register one per class in Factories() (FactoryDictionary.h):
//
//   Serialization::Factories()->Add(L"Quilon_::Basic::CPolygon",
//                                   Serialization::Factory(&NewEmptyPolygon, 4000));
//   Pointer<Interface, 1> made = Serialization::Factories()->Item(name)();
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/Functions/Function.h"

namespace Quilon_::System::Serialization {

// The version of the archives this library writes, and the oldest it reads.
inline constexpr unsigned short CurrentVersion = 4401;
inline constexpr unsigned short OldestVersion = 4000;

namespace Detail {
// Refuses a version outside [4000, 4401], the versions this library reads.
QUILON_API void CheckMinimumVersion(unsigned short minimumVersion);
} // namespace Detail

class QUILON_API Factory : public Functions::Template::Function0<Pointer<Interface, 1>> {
public:
    using Operator = Functions::Template::Function0<Pointer<Interface, 1>>;

    Factory(Pointer<Interface, 1> (*function)(), unsigned short minimumVersion);
    Factory(const Operator& function, unsigned short minimumVersion);

    unsigned short minimumVersion;
};

// Boxes a factory for the dictionary's events.
QUILON_API Any ToAny(const Factory& factory);

} // namespace Quilon_::System::Serialization
