// Switching an object's events off for a while.
//
// A flag, not a count: a guard reads it, sets it, and puts back what it
// read, which is what makes nesting work:
//
//   bool previous = target->EventsDisabled();
//   target->SetEventsDisabled(true);
//   ... change the object silently ...
//   target->SetEventsDisabled(previous);
#pragma once

#include "Quilon_/System/Interface.h"

namespace Quilon_::System {

class QUILON_API IDisableEvents : public virtual Interface {
    QUILON_INTERFACE(IDisableEvents)
public:
    virtual bool EventsDisabled() = 0;
    virtual void SetEventsDisabled(bool disabled) = 0;
};

} // namespace Quilon_::System
