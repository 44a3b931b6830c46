#include "Quilon_/System/Object.h"

#include "Quilon_/Interop/Proxy.h"
#include "Quilon_/Library.h"
#include "Quilon_/Startup.h"
#include "Quilon_/System/Allocator.h"
#include "Quilon_/System/DestructionEvents.h"
#include "Quilon_/System/EventTarget.h"
#include "Quilon_/System/Raise.h"
#include "Quilon_/System/Threading/CriticalSection.h"

#include <new>

namespace Quilon_::System {

using Threading::CriticalSection;

// Made on first use and never destroyed: objects released by static
// destructors of any library still find it.
CriticalSection& ObjectCriticalSection()
{
    alignas(CriticalSection) static unsigned char storage[sizeof(CriticalSection)];
    static CriticalSection* const section = new (storage) CriticalSection;
    return *section;
}

Object::~Object() noexcept(false) = default;

EventTarget* Object::AsEventTarget()
{
    return nullptr;
}

IDestructionEvents* Object::AsIDestructionEvents()
{
    return nullptr;
}

void* Object::operator new(std::size_t size)
{
    return Allocator::Allocate(size);
}

void Object::operator delete(void* block) noexcept
{
    Allocator::Free(block);
}

// 0 -> 1 under the lock, so that SetProxy sees count and proxy together;
// Pin() after the lock is left.
std::int64_t ReferenceCounting::AddAtEdge(Object& object, Interop::IProxy* const& proxy, bool done)
{
    std::int64_t count;
    Interop::IProxy* pin = nullptr;
    {
        CriticalSection::Scope lock(ObjectCriticalSection());
        count = done ? 1 : object.count.fetch_add(1, std::memory_order_relaxed) + 1;
        if (count == 1)
            pin = proxy;
    }
    if (pin)
        pin->Pin();
    return count;
}

// 1 -> 0 under the lock. With a proxy the peer decides and the object
// stays; after finalisation the object stays; otherwise the count is parked
// at DeletionCount and the object deleted, after the lock is left.
std::int64_t ReferenceCounting::ReleaseAtEdge(Object& object, Interop::IProxy* const& proxy, bool done)
{
    Interop::IProxy* unpin = nullptr;
    {
        CriticalSection::Scope lock(ObjectCriticalSection());
        if (done) {
            // A peer may have taken a reference again in the meantime.
            if (object.count.load(std::memory_order_relaxed) != 0)
                return 0;
        } else {
            std::int64_t count = object.count.fetch_sub(1, std::memory_order_acq_rel) - 1;
            if (count != 0)
                return count;
        }
        if (proxy) {
            unpin = proxy;
        } else if (InitializationState() < 0) {
            return 0;
        } else {
            // The inline path of AddReference does not take this lock: code
            // that takes a reference on an object it found in a list (an
            // event's target, a weak reference's object) may bring the count
            // from 0 to 1 right now, and then the object lives on.
            std::int64_t zero = 0;
            if (!object.count.compare_exchange_strong(zero, Object::DeletionCount, std::memory_order_acq_rel))
                return 0;
        }
    }
    if (unpin) {
        unpin->Unpin();
        return 0;
    }
    Object* dying = &object;
    UnsafeDeallocator::Delete(dying);
    return 0;
}

namespace {

void TraceDeleteFailure(const std::wstring& reason)
{
    try {
        std::wstring text = Detail::Formatter(Detail::TranslateMessage(L"Delete failed (%1%)")) % reason;
        Library::TraceManager()->Trace(text, Detail::TranslateMessage(L"Allocation"));
    } catch (...) {
        // Deletion failures never escape, not even when tracing them fails.
    }
}

void TraceDeleteFailure()
{
    try {
        Library::TraceManager()->Trace(Detail::TranslateMessage(L"Delete failed (unknown exception)"),
                                       Detail::TranslateMessage(L"Allocation"));
    } catch (...) {
    }
}

} // namespace

void UnsafeDeallocator::Delete(Object*& object) noexcept
{
    if (!object)
        return;
    EnterGeneralCriticalSection();
    try {
        if (EventTarget* target = object->AsEventTarget())
            target->ClearEventHandlers();
        if (IDestructionEvents* events = object->AsIDestructionEvents())
            events->NotifyDestroyed();
        delete object;
    } catch (const Pointer<IException, 1>& failure) {
        TraceDeleteFailure(failure->Message());
    } catch (const std::exception& failure) {
        TraceDeleteFailure(Detail::ToStringLenient(failure.what()));
    } catch (...) {
        TraceDeleteFailure();
    }
    LeaveGeneralCriticalSection();
    object = nullptr;
}

Detail::PreventDestruction::PreventDestruction(Object& object) : m_count(&object.count)
{
    CriticalSection::Scope lock(ObjectCriticalSection());
    m_count->fetch_add(1, std::memory_order_relaxed);
}

Detail::PreventDestruction::~PreventDestruction()
{
    CriticalSection::Scope lock(ObjectCriticalSection());
    m_count->fetch_sub(1, std::memory_order_acq_rel);
}

} // namespace Quilon_::System
