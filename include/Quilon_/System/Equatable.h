// Equality of objects beyond identity.
//
//   System::Equals(a, b);   // same object, or both IEquatable and both agree
#pragma once

#include "Quilon_/System/Pointer.h"

namespace Quilon_::System {

class QUILON_API IEquatable : public virtual Interface {
    QUILON_INTERFACE(IEquatable)
public:
    virtual bool Equals(Pointer<Interface, 1> other) = 0;
};

// The same object (null with null included) is equal without any call.
// Otherwise both must implement IEquatable and both directions must say
// true; the second is not asked when the first says false.
QUILON_API bool Equals(Pointer<Interface, 0> a, Pointer<Interface, 0> b);

} // namespace Quilon_::System
