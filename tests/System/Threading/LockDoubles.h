// Lockable objects for the threading suites, and a probe that asks from
// another thread whether a mutex is held.
//
//   auto* lockable = new Tests::Threading::CLockable;
//   EXPECT_TRUE(Tests::Threading::HeldElsewhere(lockable->GetMutex()));
#pragma once

#include "Quilon_/System/ObjectImpl.h"
#include "Quilon_/System/Threading/Lockable.h"

#include <functional>
#include <thread>

namespace Quilon_::Tests::Threading {

using System::Threading::MutexBase;
using System::Threading::MutexTypeEnum;

// Whether a thread other than the caller finds `mutex` taken. TryLock never
// waits, so the answer comes at once.
inline bool HeldElsewhere(MutexBase& mutex)
{
    bool taken = false;
    std::thread probe([&] {
        taken = !mutex.TryLock();
        if (!taken)
            mutex.Unlock();
    });
    probe.join();
    return taken;
}

// A lockable with the toolkit's recursive mutex. Its destructor runs
// `onDestroy` first, then counts itself in `destructions` when given.
class CLockable : public System::Template::ObjectImpl<CLockable, System::Threading::ILockable> {
public:
    explicit CLockable(int* destructions = nullptr) : m_destructions(destructions) {}
    ~CLockable() override
    {
        if (onDestroy)
            onDestroy(m_mutex);
        if (m_destructions)
            ++*m_destructions;
    }
    MutexBase& GetMutex() override { return m_mutex; }

    std::function<void(System::Threading::Mutex&)> onDestroy;

private:
    System::Threading::Mutex m_mutex;
    int* m_destructions;
};

// A lockable whose mutex says it is of another kind than recursive.
class COtherKindLockable : public System::Template::ObjectImpl<COtherKindLockable, System::Threading::ILockable> {
public:
    MutexBase& GetMutex() override { return m_mutex; }

private:
    class OtherMutex final : public MutexBase {
    public:
        MutexTypeEnum Type() const override { return static_cast<MutexTypeEnum>(2); }
        void Lock() override { m_inner.Lock(); }
        void Unlock() override { m_inner.Unlock(); }
        bool TryLock() override { return m_inner.TryLock(); }

    private:
        System::Threading::Mutex m_inner;
    };
    OtherMutex m_mutex;
};

} // namespace Quilon_::Tests::Threading
