// The base of every concrete class: the reference count and the deletion
// sequence.
//
// Concrete classes do not derive Object directly but through
// Template::ObjectImpl (ObjectImpl.h), which adds the proxy field and writes
// the reference-counting plumbing once:
//
//   class CThing : public System::Template::ObjectImpl<CThing, IThing> { ... };
//   System::Pointer<IThing> thing = new CThing;   // count 1; deleted at 0
//
// How the count is kept. The count is an atomic integer. A change that stays
// above 0 (1 -> 2, 5 -> 4, ...) is a single atomic operation and takes no
// lock: nobody but the holders of references can observe it, and they
// observe nothing but the value returned. The changes at the edge, 0 -> 1
// and 1 -> 0, are the only ones the proxy protocol and the deletion depend
// on, so they are made under ObjectCriticalSection(), the same lock under
// which IProxyContainerImpl::SetProxy reads the count and exchanges the
// proxy: for those two, count and proxy are still seen as one step, exactly
// as if every count were kept under the lock. The inline paths test the
// count before they change it and leave for the locked path when the change
// would cross the edge; if another thread moves the count to the edge in
// between, the atomic operation tells, and the locked path completes the
// crossing.
#pragma once

#include "Quilon_/System/Interface.h"

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace Quilon_::Interop {
class IProxy;
class IProxyContainerImpl;
}

namespace Quilon_::System {

class EventTarget;
class IDestructionEvents;

namespace Threading {
class CriticalSection;
}

namespace Detail {
class PreventDestruction;
}

// The lock of the counts' edges and of the proxy fields.
QUILON_API Threading::CriticalSection& ObjectCriticalSection();

class QUILON_API Object {
public:
    // During deletion the count is parked here, so that references taken and
    // dropped by destruction handlers never bring it back to 0.
    static constexpr std::int64_t DeletionCount = 0xFFFFFFF;

    Object() noexcept : count(0) {}
    // Copies carry the count along: they are made only of objects whose
    // count is about to be set by a Pointer.
    Object(const Object& other) noexcept : count(other.count.load(std::memory_order_relaxed)) {}
    Object& operator=(const Object& other) noexcept
    {
        count.store(other.count.load(std::memory_order_relaxed), std::memory_order_relaxed);
        return *this;
    }
    // Destructors may throw: UnsafeDeallocator::Delete catches and traces
    // what they throw, so a failing destructor costs a trace line, not the
    // process. Every concrete destructor inherits noexcept(false) from here.
    virtual ~Object() noexcept(false);

    virtual EventTarget* AsEventTarget();
    virtual IDestructionEvents* AsIDestructionEvents();

    // The bare count changes, without proxy or deletion; they return the new
    // count.
    std::int64_t AddReference_() noexcept { return count.fetch_add(1, std::memory_order_relaxed) + 1; }
    std::int64_t ReleaseReference_() noexcept { return count.fetch_sub(1, std::memory_order_acq_rel) - 1; }
    std::int64_t ReferenceCount() const noexcept { return count.load(std::memory_order_relaxed); }

    // All objects live on the library's heap.
    static void* operator new(std::size_t size);
    static void operator delete(void* block) noexcept;

protected:
    friend class UnsafeDeallocator;
    friend struct ReferenceCounting;
    friend class Detail::PreventDestruction;
    friend class Interop::IProxyContainerImpl;
    std::atomic<std::int64_t> count;
};

// Runs the deletion sequence: event connections broken, listeners of the
// destruction told, destructor run, all under the general critical section.
// Failures are traced under "Allocation" and never escape.
class QUILON_API UnsafeDeallocator {
public:
    static void Delete(Object*& object) noexcept;
};

// AddReference and ReleaseReference of every concrete class.
struct QUILON_API ReferenceCounting {
    static std::int64_t AddReference(Object& object, Interop::IProxy* const& proxy)
    {
        if (object.count.load(std::memory_order_relaxed) > 0) {
            std::int64_t old = object.count.fetch_add(1, std::memory_order_relaxed);
            if (old != 0)
                return old + 1;
            return AddAtEdge(object, proxy, true);
        }
        return AddAtEdge(object, proxy, false);
    }

    static std::int64_t ReleaseReference(Object& object, Interop::IProxy* const& proxy)
    {
        if (object.count.load(std::memory_order_relaxed) > 1) {
            std::int64_t old = object.count.fetch_sub(1, std::memory_order_acq_rel);
            if (old != 1)
                return old - 1;
            return ReleaseAtEdge(object, proxy, true);
        }
        return ReleaseAtEdge(object, proxy, false);
    }

    // The locked paths. `done` says that the atomic change already happened
    // and crossed the edge, which only a race with another thread can cause.
    static std::int64_t AddAtEdge(Object& object, Interop::IProxy* const& proxy, bool done);
    static std::int64_t ReleaseAtEdge(Object& object, Interop::IProxy* const& proxy, bool done);
};

namespace Detail {

// Takes a reference on `object` unless its deletion has begun. Lists that a
// deletion empties under the general critical section (handler lists, weak
// references) may still hold an object whose count has reached 0 on another
// thread, waiting for that section; a reference taken then would not keep
// it alive. Call under the general critical section.
inline bool AddReferenceUnlessDying(Interface* object)
{
    if (object->AddReference() <= Object::DeletionCount)
        return true;
    object->ReleaseReference();
    return false;
}

// Keeps an object from being deleted while it is alive: the count is raised
// for the guard's lifetime, and lowering it again never deletes, even at 0.
class QUILON_API PreventDestruction {
public:
    explicit PreventDestruction(Object& object);
    ~PreventDestruction();
    PreventDestruction(const PreventDestruction&) = delete;
    PreventDestruction& operator=(const PreventDestruction&) = delete;

private:
    std::atomic<std::int64_t>* m_count;
};

} // namespace Detail

} // namespace Quilon_::System
