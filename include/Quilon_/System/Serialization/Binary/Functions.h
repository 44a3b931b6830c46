// The record of how one class is written to and read from a binary stream,
// with the oldest file version from which it can be read:
//
//   Serialization::Binary::Functions polygon{&WritePolygon, &ReadPolygon, 4000};
#pragma once

#include "Quilon_/System/Pointer.h"

namespace Quilon_::System::Serialization::Binary {

class IWriter;
class IReader;

struct QUILON_API Functions {
    using Write = void (*)(Pointer<IWriter, 1>, Pointer<Interface, 1>);
    using Read = void (*)(Pointer<IReader, 1>, Pointer<Interface, 1>);

    // Refuses a version outside [4000, 4401].
    Functions(Write write, Read read, unsigned short minimumVersion);

    Write write;
    Read read;
    unsigned short minimumVersion;
};

} // namespace Quilon_::System::Serialization::Binary
