// The listening side of events: an object that event handlers point at.
//
// The deletion sequence breaks every connection of a dying object through
// ClearEventHandlers() before its destructor runs, so that no event can call
// into it any more.
#pragma once

#include "Quilon_/Config.h"

namespace Quilon_::System {

class EventHandlerBase;

class QUILON_API EventTargetBase {
public:
    virtual ~EventTargetBase();
    virtual void Add(EventHandlerBase* handler) = 0;
    virtual void Remove(EventHandlerBase* handler) = 0;
    virtual void ClearEventHandlers() = 0;
};

class QUILON_API EventTarget : public EventTargetBase {
public:
    ~EventTarget() override;
    // Called by nobody in this library; a hook for targets that keep state
    // about their connections.
    virtual void OnEventTargetReset() = 0;
};

} // namespace Quilon_::System
