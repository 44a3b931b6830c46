// Handlers: the small heap objects that connect one event to one listener.
//
// A handler is built from the listener (an EventTarget) and one of its
// member functions, and handed to the event, which owns it from then on:
//
//   event += NewEventHandler(listener, &CListener::OnChanged);
//   event -= NewEventHandler(listener, &CListener::OnChanged);   // the key is consumed
//
// Both sides know a connected handler: the event keeps it in its list and
// the target in its own. A handler lives for as long as either side knows
// it; DetachFromEvent() and DetachFromTarget() are how each side lets go,
// and whichever goes last frees it.
//
// Handlers are compared for removal by target and sender only: two handlers
// of one target on one event are the same handler for removal, and the
// entry found takes over the callback of the search key.
//
// Include Event.h, which completes these classes.
#pragma once

#include "Quilon_/System/EventLock.h"
#include "Quilon_/System/EventTarget.h"
#include "Quilon_/System/Object.h"

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

namespace Quilon_::System {

class QUILON_API EventHandlerBase {
public:
    virtual EventTargetBase* Target() = 0;
    // The event lets go of the handler.
    virtual void DetachFromEvent() = 0;
    // The target lets go of the handler.
    virtual void DetachFromTarget() = 0;
    // Takes the handler out of its event, keeping it.
    virtual void Disconnect() = 0;
    virtual ~EventHandlerBase();

    // Handlers are freed by whichever library lets go last.
    static void* operator new(std::size_t size) { return Object::operator new(size); }
    static void operator delete(void* block) noexcept { Object::operator delete(block); }
};

namespace Detail {
// The listener as an object, or null when it is not one.
template <class T>
Interface* TargetInterface(T* target)
{
    if constexpr (std::is_convertible_v<T*, Interface*>)
        return target;
    else
        return dynamic_cast<Interface*>(target);
}
} // namespace Detail

namespace Template {

template <class SenderType, class HandlerType>
class EventBase;

template <class SenderType, class Args>
class QUILON_API EventHandler1Base : public EventHandlerBase {
public:
    using EventType = EventBase<SenderType, EventHandler1Base>;

    // One call of a handler, copied out of it under the lock. The firing
    // makes the call after it has left the lock, and does not touch the
    // handler again: meanwhile another thread may disconnect and free it.
    class Call {
    public:
        using Runner = void (*)(const Call& call, Args&& args);

        // Calls, then drops the reference held on the target, also when the
        // call throws.
        void Run(Args&& args) const
        {
            Release release{m_held};
            m_run(*this, std::move(args));
        }

        // `held` carries a reference for the call, or is null.
        void Set(Runner run, void* target, Interface* held, SenderType* sender) noexcept
        {
            m_run = run;
            m_target = target;
            m_held = held;
            m_sender = sender;
        }
        template <class Callback>
        void SetCallback(Callback callback) noexcept
        {
            static_assert(sizeof(Callback) <= sizeof(m_callback) && std::is_trivially_copyable_v<Callback>);
            std::memcpy(m_callback, &callback, sizeof(Callback));
        }
        void* Target() const noexcept { return m_target; }
        SenderType* Sender() const noexcept { return m_sender; }
        template <class Callback>
        Callback GetCallback() const noexcept
        {
            Callback callback;
            std::memcpy(&callback, m_callback, sizeof(Callback));
            return callback;
        }

    private:
        struct Release {
            Interface* held;
            ~Release()
            {
                if (held)
                    held->ReleaseReference();
            }
        };
        // A pointer to a member function of any class.
        using AnyCallback = void (Call::*)();

        Runner m_run = nullptr;
        void* m_target = nullptr;
        Interface* m_held = nullptr;
        SenderType* m_sender = nullptr;
        alignas(AnyCallback) unsigned char m_callback[sizeof(AnyCallback)];
    };

    virtual void Invoke(Args args) = 0;
    // Whether `other` is the same connection; see the file comment.
    virtual bool Equals(EventHandlerBase* other) = 0;
    // Fills `call` for a firing, under the lock; false when there is nothing
    // to call. This form calls Invoke on the handler itself, which must
    // then stay alive during the call; EventHandler1 binds its target
    // instead, which is what lets other threads free it meanwhile.
    virtual bool Prepare(Call& call)
    {
        call.Set(&InvokeHandler, this, nullptr, sender);
        return true;
    }

    void Disconnect() override;

    // The event's sender while connected, null otherwise.
    SenderType* sender = nullptr;
    // The owning event while connected, null otherwise.
    EventType* event = nullptr;

private:
    static void InvokeHandler(const Call& call, Args&& args)
    {
        static_cast<EventHandler1Base*>(call.Target())->Invoke(std::move(args));
    }
};

// Calls `callback` on `target`: (target->*callback)(sender, args).
template <class SenderType, class Listener, class Args>
class QUILON_API EventHandler1 : public EventHandler1Base<SenderType, Args> {
    using Base = EventHandler1Base<SenderType, Args>;

public:
    using Callback = void (Listener::*)(SenderType* sender, Args args);
    using typename Base::Call;

    EventHandler1(Listener* target, Callback callback)
        : target(target), callback(callback), m_targetInterface(System::Detail::TargetInterface(target))
    {
    }

    EventTargetBase* Target() override { return target; }

    void DetachFromEvent() override
    {
        this->sender = nullptr;
        this->event = nullptr;
        if (!target)
            delete this;
    }

    void DetachFromTarget() override
    {
        target = nullptr;
        m_targetInterface = nullptr;
        if (!this->event)
            delete this;
    }

    // Calls the callback with a reference held on the target, when the
    // target is an object, so that it cannot die in its own handler.
    void Invoke(Args args) override
    {
        Call call;
        {
            System::Detail::EventLock lock;
            if (!Prepare(call))
                return;
        }
        call.Run(std::move(args));
    }

    bool Equals(EventHandlerBase* other) override
    {
        auto* same = dynamic_cast<EventHandler1*>(other);
        if (!same || same->target != target || same->sender != this->sender)
            return false;
        same->callback = callback;
        return callback != nullptr;
    }

    // Nothing to call once the target has let go. A target that is being
    // deleted on another thread is not called either: it is already
    // disconnecting.
    bool Prepare(Call& call) override
    {
        if (!target || !callback)
            return false;
        if (m_targetInterface && !System::Detail::AddReferenceUnlessDying(m_targetInterface))
            return false;
        call.Set(&Run, target, m_targetInterface, this->sender);
        call.SetCallback(callback);
        return true;
    }

    Listener* target;
    Callback callback;

private:
    static void Run(const Call& call, Args&& args)
    {
        auto* listener = static_cast<Listener*>(call.Target());
        (listener->*call.template GetCallback<Callback>())(call.Sender(), std::move(args));
    }

    // The target as an object, resolved once: null when it is not one.
    Interface* m_targetInterface;
};

} // namespace Template

// A handler that calls `callback` on `target`.
template <class T, class Listener, class SenderType, class Args>
Template::EventHandler1<SenderType, Listener, Args>* NewEventHandler(T* target,
                                                                     void (Listener::*callback)(SenderType*, Args))
{
    return new Template::EventHandler1<SenderType, Listener, Args>(target, callback);
}

} // namespace Quilon_::System

#include "Quilon_/System/Event.h"
