// Holding one mutex, or several lockable objects at once, for a scope.
//
//   {
//       Threading::ScopedLock lock(m_mutex, __FILE__, __LINE__);
//       ...                      // m_mutex held
//       lock.Unlock();           // released early; the destructor then does nothing
//   }
//   {
//       Threading::ScopedLock both(std::vector<Pointer<Threading::ILockable>>{source, target});
//       ...                      // both held, taken without risk of deadlock
//   }
//
// The vector form takes all the mutexes through one multiple lock, which
// never waits on one mutex while it holds another: two threads that lock the
// same objects in different orders cannot deadlock. The mutexes must be
// recursive. Lock() and Unlock() of the vector form change nothing but the
// flag: the mutexes stay held until the ScopedLock is destroyed.
#pragma once

#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Threading/Lockable.h"
#include "Quilon_/System/Threading/Mutex.h"

#include <vector>

namespace Quilon_::System::Threading {

class QUILON_API ScopedLock {
public:
    // Takes `mutex`. The file and line name the place of the lock for
    // diagnostic builds; this build ignores them.
    explicit ScopedLock(MutexBase& mutex, [[maybe_unused]] const char* file = nullptr,
                        [[maybe_unused]] int line = 0)
        : m_mutex(&mutex), m_locked(false)
    {
        Lock();
    }
    // Takes the mutexes of all `lockables`; an empty list takes nothing.
    // Raises "Multiple lock can only be used with mtRecursiveMutex mutexes",
    // before taking any, when one of them is not recursive.
    explicit ScopedLock(const std::vector<Pointer<ILockable>>& lockables);

    ScopedLock(const ScopedLock&) = delete;
    ScopedLock& operator=(const ScopedLock&) = delete;

    // Unlocks; then the multiple lock, if any, releases its mutexes as it goes.
    ~ScopedLock() { Unlock(); }

    void Lock()
    {
        if (m_locked)
            return;
        m_mutex->Lock();
        m_locked = true;
    }
    void Unlock()
    {
        if (!m_locked)
            return;
        m_locked = false;
        m_mutex->Unlock();
    }
    bool IsLocked() const noexcept { return m_locked; }

private:
    // The vector form points here at a shared mutex that does nothing, so
    // that Lock and Unlock need not ask which form they serve.
    MutexBase* m_mutex;
    Pointer<Interface, 0> m_multipleLock;
    bool m_locked;
};

} // namespace Quilon_::System::Threading
