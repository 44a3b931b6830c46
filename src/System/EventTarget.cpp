#include "Quilon_/System/EventTarget.h"

#include "Quilon_/System/EventHandler.h"
#include "Quilon_/System/EventLock.h"

namespace Quilon_::System {

using Detail::EventLock;

EventTargetBase::~EventTargetBase() noexcept(false) = default;

EventTarget::EventTarget(const EventTarget& other) : EventTargetBase(other)
{
    EventLock lock;
    m_handlers = other.m_handlers;
}

EventTarget& EventTarget::operator=(const EventTarget& other)
{
    EventLock lock;
    m_handlers = other.m_handlers;
    return *this;
}

EventTarget::~EventTarget()
{
    ClearEventHandlers();
}

void EventTarget::Add(EventHandlerBase* handler)
{
    if (!handler)
        return;
    EventLock lock;
    m_handlers.Add(handler);
}

void EventTarget::Remove(EventHandlerBase* handler)
{
    EventLock lock;
    for (auto it = m_handlers.begin(true), end = m_handlers.end(); it != end; ++it) {
        if (*it == handler) {
            m_handlers.Remove(handler);
            handler->DetachFromTarget();
            return;
        }
    }
}

// Disconnect() first: a handler of an event without sender would otherwise
// be freed by DetachFromTarget() while its event still lists it. Handlers
// that a copy of this target merely lists belong to the original.
void EventTarget::ClearEventHandlers()
{
    EventLock lock;
    if (m_handlers.Count() == 0)
        return;
    for (auto it = m_handlers.begin(true), end = m_handlers.end(); it != end; ++it) {
        EventHandlerBase* handler = *it;
        if (!handler || handler->Target() != this)
            continue;
        handler->Disconnect();
        handler->DetachFromTarget();
    }
    m_handlers.RemoveAll();
}

} // namespace Quilon_::System
