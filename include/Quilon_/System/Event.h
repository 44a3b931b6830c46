// Events: the one notification mechanism of the toolkit.
//
// An object owns public Event<Args> members, Args always being a Pointer to
// an event-args interface; listeners connect member functions through
// handlers (EventHandler.h), and the owner fires:
//
//   Event<Pointer<IEventArgs>> Changed{this};        // sender: the owner
//   Changed += NewEventHandler(listener, &CListener::OnChanged);
//   if (Changed)                                     // has handlers: build args
//       Changed.Fire(EventArgs::Empty());
//
// Handlers fire in list order: connection order, with those connected by
// Insert first, the latest Insert first of all. A handler removed before the
// firing reaches it is not called; one added during a firing is called from
// the next firing on; one that removes itself during its call finishes
// normally. All handlers of one firing get the same args object, so a change
// made by one (a veto) is seen by the next.
//
// The lists are kept under the general critical section, which the firing
// leaves around every handler call, so that handlers on any thread may
// connect and disconnect while another thread fires. A handler that throws
// ends the firing; the exception reaches the caller of Fire unchanged.
#pragma once

#include "Quilon_/System/Collections/SafeList.h"
#include "Quilon_/System/EventHandler.h"
#include "Quilon_/System/EventLock.h"

#include <cstdint>
#include <typeinfo>
#include <utility>

namespace Quilon_::System {

namespace Detail {
// "Expected EventHandler class : <%1%>. %2% provided instead."
[[noreturn]] QUILON_API void RaiseWrongEventHandlerClass(const std::type_info& expected,
                                                          const std::type_info& provided);
} // namespace Detail

namespace Template {

template <class SenderType, class HandlerType>
class QUILON_API EventBase {
public:
    explicit EventBase(SenderType* sender = nullptr) noexcept : sender(sender) {}
    // Copying takes the sender and appends the source's settled handlers
    // without cloning them, so that two lists hold the same handlers: it is
    // meant for events without handlers. Only the event that connected a
    // handler disconnects it when it dies.
    EventBase(const EventBase& other) : sender(other.sender)
    {
        System::Detail::EventLock lock;
        handlers = other.handlers;
    }
    EventBase& operator=(const EventBase& other)
    {
        System::Detail::EventLock lock;
        sender = other.sender;
        handlers = other.handlers;
        return *this;
    }
    // Removes each connected handler from its target, then frees it.
    virtual ~EventBase()
    {
        System::Detail::EventLock lock;
        for (auto it = handlers.begin(true), end = handlers.end(); it != end; ++it) {
            HandlerType* handler = *it;
            if (handler->event != this)
                continue;
            // The target's Remove detaches the handler from the target; it
            // stays alive until it is detached from this event too.
            if (EventTargetBase* target = handler->Target())
                target->Remove(handler);
            handler->DetachFromEvent();
        }
    }

    // Connects `handler` at the back; the event owns it from now on, also
    // when it is of the wrong class and the connection fails.
    EventBase& operator+=(EventHandlerBase* handler)
    {
        Connect(handler, false);
        return *this;
    }
    // Removes the first handler that Equals the key `handler`; the key is
    // consumed.
    EventBase& operator-=(EventHandlerBase* handler)
    {
        Remove(handler, false);
        return *this;
    }
    // Connects `handler` at the front, whatever the index.
    void Insert(std::int64_t /*index*/, EventHandlerBase* handler) { Connect(handler, true); }

    // With `keepHandler` false the key is consumed, and the entry found is
    // also removed from its target; with true the key stays with the caller
    // and the entry stays known to its target.
    void Remove(EventHandlerBase* given, bool keepHandler)
    {
        if (!given)
            return;
        System::Detail::EventLock lock;
        if (handlers.Count() == 0) {
            if (!keepHandler)
                delete given;
            return;
        }
        HandlerType* key = keepHandler ? TypedHandler(given) : Adopt(given);
        key->sender = sender;
        HandlerType* found = Find(*key);
        EventTargetBase* target = nullptr;
        if (found) {
            handlers.Remove(found);
            target = key->Target();
            found->DetachFromEvent();
        }
        if (keepHandler)
            return;
        // The entry found has the key's target, so it is still alive here.
        if (target)
            target->Remove(found);
        if (key != found)
            delete key;
    }

    std::int64_t HandlerCount() const noexcept { return handlers.Count(); }
    explicit operator bool() const noexcept { return handlers.Count() != 0; }
    SenderType* Sender() const noexcept { return sender; }

    // `handler` as this event's handler class; raises when it is not one.
    HandlerType* TypedHandler(EventHandlerBase* handler) const
    {
        auto* typed = dynamic_cast<HandlerType*>(handler);
        if (!typed && handler)
            System::Detail::RaiseWrongEventHandlerClass(typeid(HandlerType), typeid(*handler));
        return typed;
    }

protected:
    SenderType* sender;
    Collections::Template::SafeList<HandlerType*> handlers;

private:
    // TypedHandler for a handler this event owns: one of the wrong class is
    // freed before the failure is raised.
    HandlerType* Adopt(EventHandlerBase* handler)
    {
        try {
            return TypedHandler(handler);
        } catch (...) {
            delete handler;
            throw;
        }
    }

    void Connect(EventHandlerBase* given, bool atFront)
    {
        if (!given)
            return;
        System::Detail::EventLock lock;
        HandlerType* handler = Adopt(given);
        try {
            atFront ? handlers.AddFront(handler) : handlers.Add(handler);
        } catch (...) {
            delete handler;
            throw;
        }
        handler->sender = sender;
        handler->event = this;
        if (EventTargetBase* target = handler->Target()) {
            try {
                target->Add(handler);
            } catch (...) {
                // Out of memory in the target's list: undo the connection.
                handlers.Remove(handler);
                handler->DetachFromEvent();
                delete handler;
                throw;
            }
        }
    }

    // The key itself when it is listed here, as when a handler disconnects
    // itself; otherwise the first entry that it Equals. Without the first
    // look, a dying target would leave handlers behind, listed without a
    // target: one whose handlers stand in another order here than in its
    // own list takes out its other handler first, and one inserted during
    // a firing is passed over by the walk.
    HandlerType* Find(HandlerType& key)
    {
        if (handlers.Contains(&key))
            return &key;
        // Equals matches only entries of the key's target; asking Target()
        // first spares it the class test of every other entry.
        EventTargetBase* target = key.Target();
        for (auto it = handlers.begin(true), end = handlers.end(); it != end; ++it) {
            if ((*it)->Target() == target && key.Equals(*it))
                return *it;
        }
        return nullptr;
    }
};

template <class SenderType, class Args>
class QUILON_API Event1 : public EventBase<SenderType, EventHandler1Base<SenderType, Args>> {
    using Handler = EventHandler1Base<SenderType, Args>;

public:
    explicit Event1(SenderType* sender = nullptr) noexcept : EventBase<SenderType, Handler>(sender) {}
    Event1(const Event1&) = default;
    Event1& operator=(const Event1&) = default;
    ~Event1() override = default;

    // Calls every handler, holding a reference on the sender meanwhile.
    void Fire(Args args) { Fire(std::move(args), true); }

protected:
    void Fire(Args args, bool holdSender)
    {
        System::Detail::EventLock lock;
        if (this->handlers.Count() == 0)
            return;
        // Released after the walk has ended: the sender may own this event.
        SenderHold hold(holdSender ? this->sender : nullptr);
        auto end = this->handlers.end();
        for (auto it = this->handlers.begin(false); it != end; ++it) {
            typename Handler::Call call;
            if (!(*it)->Prepare(call))
                continue;
            // The last call may have the firing's own reference: nothing
            // added from now on is reached by this walk.
            const bool last = it.IsLast();
            System::Detail::EventUnlock unlocked;
            call.Run(last ? std::move(args) : Args(args));
        }
    }

private:
    class SenderHold {
    public:
        explicit SenderHold(SenderType* sender) : m_sender(sender)
        {
            if (m_sender)
                m_sender->AddReference();
        }
        ~SenderHold()
        {
            if (m_sender)
                m_sender->ReleaseReference();
        }
        SenderHold(const SenderHold&) = delete;
        SenderHold& operator=(const SenderHold&) = delete;

    private:
        SenderType* m_sender;
    };
};

template <class Args>
class QUILON_API Event : public Event1<Interface, Args> {
public:
    // The sender may be null, for process-wide events.
    explicit Event(Interface* sender = nullptr) noexcept : Event1<Interface, Args>(sender) {}
    Event(const Event&) = default;
    Event& operator=(const Event&) = default;
    ~Event() override = default;
};

template <class SenderType, class Args>
void EventHandler1Base<SenderType, Args>::Disconnect()
{
    if (event)
        event->Remove(this, true);
}

} // namespace Template

using Template::Event;

} // namespace Quilon_::System
