// Telling listeners that an object goes away.
//
// The deletion sequence calls NotifyDestroyed() just before the destructor,
// which fires the object's Destroyed event. A weak reference can only point
// at an object that offers it. Concrete classes get it by naming the mixin
// among their interfaces:
//
//   class CNode : public Template::ObjectImpl<CNode, INode, Template::IDestructionEventsImpl> {};
//   node->Destroyed() += NewEventHandler(listener, &CListener::OnNodeGone);
#pragma once

#include "Quilon_/System/Event.h"
#include "Quilon_/System/EventArgs.h"

namespace Quilon_::System {

// Fired by the deletion sequence, without a reference on the sender: the
// sender is being deleted.
class QUILON_API DestroyedEvent : public Event<Pointer<IEventArgs, 1>> {
public:
    explicit DestroyedEvent(Interface* sender = nullptr) noexcept : Event(sender) {}
    ~DestroyedEvent() override;

    void Fire(Pointer<IEventArgs, 1> args) { Event1::Fire(std::move(args), false); }
};

class QUILON_API IDestructionEvents : public virtual Interface {
    QUILON_INTERFACE(IDestructionEvents)
public:
    // Tells the listeners of the Destroyed event that the object is going away.
    virtual void NotifyDestroyed() = 0;
    virtual DestroyedEvent& Destroyed() = 0;
};

namespace Template {

// IDestructionEvents with its event; the sender is the object itself.
class QUILON_API IDestructionEventsImpl : public IDestructionEvents {
public:
    IDestructionEventsImpl() noexcept : m_destroyed(this) {}
    // A copy is another object, with listeners of its own.
    IDestructionEventsImpl(const IDestructionEventsImpl&) noexcept : IDestructionEvents(), m_destroyed(this) {}
    IDestructionEventsImpl& operator=(const IDestructionEventsImpl&) noexcept { return *this; }

    void NotifyDestroyed() override { m_destroyed.Fire(EventArgs::Empty()); }
    DestroyedEvent& Destroyed() override { return m_destroyed; }

private:
    DestroyedEvent m_destroyed;
};

} // namespace Template

} // namespace Quilon_::System
