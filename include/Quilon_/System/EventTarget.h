// The listening side of events: an object that event handlers point at.
//
// A target keeps a list of the handlers that point at it, so that either
// side of a connection can go first: a dying target disconnects all its
// handlers from their events (ClearEventHandlers), a dying event removes its
// handlers from their targets. The deletion sequence calls
// ClearEventHandlers() before the destructor, so that no event can call into
// the object any more.
//
//   class CListener : public Template::ObjectImpl<CListener, IThing, EventTarget> {
//       void OnEventTargetReset() override {}
//       void OnChanged(Interface* sender, Pointer<IEventArgs> args);
//   };
//   source->Changed() += NewEventHandler(listener, &CListener::OnChanged);
//
// All lists are kept under the general critical section (EventLock.h).
#pragma once

#include "Quilon_/System/Collections/SafeList.h"

#include <cstdint>

namespace Quilon_::System {

class EventHandlerBase;

class QUILON_API EventTargetBase {
public:
    // Not noexcept: concrete objects derive from it beside Object, whose
    // destructor may throw (see UnsafeDeallocator).
    virtual ~EventTargetBase() noexcept(false);
    virtual void Add(EventHandlerBase* handler) = 0;
    virtual void Remove(EventHandlerBase* handler) = 0;
    virtual void ClearEventHandlers() = 0;
};

class QUILON_API EventTarget : public EventTargetBase {
public:
    EventTarget() = default;
    // Copying appends the source's handlers to this list without taking
    // them over, as copying an event does: it is meant for targets that
    // have no handlers yet.
    EventTarget(const EventTarget& other);
    EventTarget& operator=(const EventTarget& other);
    // Disconnects the handlers that are still connected.
    ~EventTarget() override;

    // Keeps `handler` in the list; null is ignored. Called by the event
    // that connects it.
    void Add(EventHandlerBase* handler) override;
    // Takes `handler` out of the list, then lets it detach from this target.
    void Remove(EventHandlerBase* handler) override;
    // Disconnects every handler of this target from its event and detaches
    // it from the target.
    void ClearEventHandlers() override;
    // Called by nobody in this library; a hook for targets that keep state
    // about their connections.
    virtual void OnEventTargetReset() = 0;

    // The handlers that point at this target, settled ones only.
    std::int64_t EventHandlerCount() const noexcept { return m_handlers.Count(); }

private:
    Collections::Template::SafeList<EventHandlerBase*> m_handlers;
};

} // namespace Quilon_::System
