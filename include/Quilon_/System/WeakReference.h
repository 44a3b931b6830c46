// A reference that does not keep its object alive, and reads null once the
// object is gone.
//
// The object must offer IDestructionEvents: the weak reference listens to
// its Destroyed event and lets go when it fires.
//
//   WeakReference<INode> weak(node.Get());
//   if (Pointer<INode, 0> alive = weak.Target())   // a counted reference, or null
//       alive->Visit();
//
// Reading and resetting are safe from any thread; the object may die on
// another thread meanwhile.
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/DestructionEvents.h"
#include "Quilon_/System/Event.h"
#include "Quilon_/System/EventLock.h"
#include "Quilon_/System/EventTarget.h"

#include <vector>

namespace Quilon_::System {

namespace Detail {
// "WeakReference<> requisite: %1% should implement IDestructionEvents".
[[noreturn]] QUILON_API void RaiseWeakReferenceRequisite(const Type& type);
} // namespace Detail

namespace Template {

template <class T>
class WeakReference : public EventTarget {
    using DestroyedHandler = EventHandler1<Interface, WeakReference, Pointer<IEventArgs, 1>>;

public:
    WeakReference() noexcept = default;
    WeakReference(T* target) { SetTarget(target); }
    // A copy listens to the same object on its own.
    WeakReference(const WeakReference& other) : EventTarget() { SetTarget(other.Raw()); }
    WeakReference& operator=(const WeakReference& other)
    {
        if (this != &other)
            SetTarget(other.Raw());
        return *this;
    }
    // The target goes first, then the handler, in one step: the object may
    // fire Destroyed on another thread meanwhile. A value, not an object:
    // its destructor does not throw, so it may be boxed and kept in
    // containers.
    ~WeakReference() noexcept override
    {
        System::Detail::EventLock lock;
        m_target = nullptr;
        ClearEventHandlers();
    }

    // Stops listening to the current object and starts listening to
    // `target`. An object without IDestructionEvents raises, and leaves
    // this reference holding nothing.
    void SetTarget(T* target)
    {
        System::Detail::EventLock lock;
        if (target == m_target)
            return;
        if (m_target) {
            if (auto* events = DestructionEvents(m_target))
                events->Destroyed() -= new DestroyedHandler(this, &WeakReference::OnTargetDestroyed);
        }
        m_target = nullptr;
        if (!target)
            return;
        auto* events = DestructionEvents(target);
        if (!events)
            System::Detail::RaiseWeakReferenceRequisite(T::GetType());
        events->Destroyed() += new DestroyedHandler(this, &WeakReference::OnTargetDestroyed);
        m_target = target;
    }

    // A counted reference to the object, or null once it is gone or going.
    // Two weak references are equal when they refer to the same object.
    friend bool operator==(const WeakReference& a, const WeakReference& b) noexcept { return a.Raw() == b.Raw(); }

    Pointer<T, 0> Target() const
    {
        System::Detail::EventLock lock;
        if (!m_target || !System::Detail::AddReferenceUnlessDying(m_target))
            return nullptr;
        Pointer<T, 0> alive(m_target);
        m_target->ReleaseReference();
        return alive;
    }

    void OnEventTargetReset() override {}

private:
    T* Raw() const
    {
        System::Detail::EventLock lock;
        return m_target;
    }

    static IDestructionEvents* DestructionEvents(T* target)
    {
        return System::Detail::InterfaceCast<IDestructionEvents>(static_cast<Interface*>(target));
    }

    void OnTargetDestroyed(Interface*, Pointer<IEventArgs, 1>) { SetTarget(nullptr); }

    T* m_target = nullptr;
};

} // namespace Template

using Template::WeakReference;

// Boxed by their own type: the Any keeps a weak reference of its own, which
// reads null once the object is gone.
QUILON_API Any ToAny(const WeakReference<Interface>& value);
QUILON_API Any ToAny(const std::vector<WeakReference<Interface>>& value);

} // namespace Quilon_::System
