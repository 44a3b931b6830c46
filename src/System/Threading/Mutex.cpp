#include "Quilon_/System/Threading/Mutex.h"

#include "Quilon_/System/Threading/ThreadId.h"

namespace Quilon_::System::Threading {

namespace Template {

void Mutex<mtRecursiveMutex>::Lock()
{
    const std::uint32_t thread = CurrentThreadId();
    if (Owner() == thread) {
        ++m_count;
        return;
    }
    Acquire();
    TakeOwnership(thread);
}

bool Mutex<mtRecursiveMutex>::TryLock()
{
    const std::uint32_t thread = CurrentThreadId();
    if (Owner() == thread) {
        ++m_count;
        return true;
    }
    if (m_state.fetch_or(LockFlag, std::memory_order_acquire) & LockFlag)
        return false;
    TakeOwnership(thread);
    return true;
}

void Mutex<mtRecursiveMutex>::Unlock()
{
    if (--m_count > 0)
        return;
    m_owner.store(0, std::memory_order_relaxed);
    // Clearing both flags at once: a woken waiter sets the wake-up flag again
    // for the waiters that remain asleep.
    if (m_state.exchange(0, std::memory_order_release) & WakeUpFlag)
        m_state.notify_one();
}

void Mutex<mtRecursiveMutex>::Acquire()
{
    if (m_state.fetch_or(LockFlag, std::memory_order_acquire) & LockFlag)
        AcquireContended();
}

// Whoever has to wait marks the word, so that the release knows to wake a
// thread; taking the mutex in the same exchange keeps the mark for the
// waiters that may still sleep.
void Mutex<mtRecursiveMutex>::AcquireContended()
{
    constexpr std::uint32_t heldWithWaiters = LockFlag | WakeUpFlag;
    while (m_state.exchange(heldWithWaiters, std::memory_order_acquire) & LockFlag)
        m_state.wait(heldWithWaiters, std::memory_order_relaxed);
}

void Mutex<mtRecursiveMutex>::TakeOwnership(std::uint32_t thread)
{
    m_owner.store(thread, std::memory_order_relaxed);
    m_count = 1;
}

} // namespace Template

void Detail::Lock(MutexBase& mutex)
{
    mutex.Lock();
}

bool Detail::TryLock(MutexBase& mutex)
{
    return mutex.TryLock();
}

} // namespace Quilon_::System::Threading
