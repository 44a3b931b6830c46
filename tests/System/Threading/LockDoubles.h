// Lockable objects for the threading suites, and a probe that asks from
// another thread whether a mutex is held.
//
//   System::Pointer<System::Threading::ILockable> lockable(new Tests::Threading::CLockable);
//   EXPECT_TRUE(Tests::Threading::HeldElsewhere(lockable->GetMutex()));
#pragma once

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Threading/Lockable.h"

#include <thread>

namespace Quilon_::Tests::Threading {

using System::Threading::MutexBase;

// Whether a thread other than the caller finds `mutex` taken. TryLock never
// waits, so the answer comes at once.
inline bool HeldElsewhere(MutexBase& mutex)
{
    bool taken = false;
    std::thread([&] {
        taken = !mutex.TryLock();
        if (!taken)
            mutex.Unlock();
    }).join();
    return taken;
}

// A lockable with the toolkit's recursive mutex. When given `heldAtDeath`,
// its destructor stores there whether the mutex was still held.
class CLockable : public System::Template::ObjectImpl<CLockable, System::Threading::ILockable> {
public:
    explicit CLockable(bool* heldAtDeath = nullptr) : m_heldAtDeath(heldAtDeath) {}
    ~CLockable() override
    {
        if (m_heldAtDeath)
            *m_heldAtDeath = m_mutex.Owner() != 0;
    }
    MutexBase& GetMutex() override { return m_mutex; }

private:
    System::Threading::Mutex m_mutex;
    bool* m_heldAtDeath;
};

// A lockable whose mutex is of another kind than recursive.
class COtherKindLockable
    : public System::Template::ObjectImpl<COtherKindLockable, System::Threading::ILockable>,
      private MutexBase {
public:
    MutexBase& GetMutex() override { return *this; }

private:
    System::Threading::MutexTypeEnum Type() const override { return System::Threading::MutexTypeEnum(2); }
    void Lock() override {}
    void Unlock() override {}
    bool TryLock() override { return true; }
};

} // namespace Quilon_::Tests::Threading
