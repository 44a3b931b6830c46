// Objects that can be copied, and copying through whichever of the two
// cloning interfaces an object offers.
//
//   Pointer<IThing, 0> copy;
//   if (Template::CloneVariable<IThing>(original, copy)) use(copy);
#pragma once

#include "Quilon_/System/Pointer.h"

namespace Quilon_::System {

class QUILON_API ICloneable : public virtual Interface {
    QUILON_INTERFACE(ICloneable)
public:
    virtual Pointer<ICloneable, 1> Clone() = 0;
};

namespace Collections {
// The twin of System::ICloneable for collections.
class QUILON_API ICloneable : public virtual Interface {
    QUILON_INTERFACE(ICloneable)
public:
    virtual Pointer<ICloneable, 1> Clone() = 0;
};
} // namespace Collections

namespace Detail {
// Clones through Collections::ICloneable, else System::ICloneable; null when
// the object has neither. The result carries one reference for the caller.
QUILON_API Interface* CloneVariable(Interface* source);
[[noreturn]] QUILON_API void RaiseNotCloneable(const Type& type);
} // namespace Detail

namespace Template {
// A null source gives a null target and false; otherwise the clone, cast
// back to T, and true. A source that cannot be cloned raises "Class '%1%'
// does not implement ICloneable".
template <class T>
bool CloneVariable(Pointer<T, 0> source, Pointer<T, 0>& target)
{
    if (!source) {
        target = nullptr;
        return false;
    }
    Interface* clone = System::Detail::CloneVariable(static_cast<Interface*>(source.Get()));
    if (!clone)
        System::Detail::RaiseNotCloneable(T::GetType());
    Pointer<Interface, 0> held(clone);
    clone->ReleaseReference();
    target = held;
    return true;
}
} // namespace Template

} // namespace Quilon_::System
