// The interface of an object that tells its listeners when it goes away.
//
// The deletion sequence calls NotifyDestroyed() just before the destructor.
// A weak reference can only point at an object that offers it.
#pragma once

#include "Quilon_/System/Interface.h"

namespace Quilon_::System {

class QUILON_API IDestructionEvents : public virtual Interface {
    QUILON_INTERFACE(IDestructionEvents)
public:
    // Tells the listeners of the Destroyed event that the object is going away.
    virtual void NotifyDestroyed() = 0;
};

} // namespace Quilon_::System
