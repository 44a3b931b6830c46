// The toolkit's mutex: recursive, owned by a thread, reachable from any
// object through ILockable (Lockable.h).
//
//   Threading::Mutex mutex;
//   mutex.Lock();
//   mutex.Lock();            // the owner may lock again ...
//   mutex.Unlock();
//   mutex.Unlock();          // ... and releases it at the matching Unlock
//   if (mutex.TryLock()) { ...; mutex.Unlock(); }   // never blocks
//
// Most code does not call these directly but holds a ScopedLock
// (ScopedLock.h) or, across calls of an interface, an ILock (Lock.h).
#pragma once

#include "Quilon_/Config.h"

#include <atomic>
#include <cstdint>

namespace Quilon_::System::Threading {

// The kind of a mutex, as MutexBase::Type() gives it.
enum MutexTypeEnumTag : std::int32_t {
    mtRecursiveMutex = 1,
};
using MutexTypeEnum = MutexTypeEnumTag;

// The interface of every mutex of the toolkit. Its slots are part of the
// binary interface towards other libraries: keep their order.
class QUILON_API MutexBase {
public:
    MutexBase(const MutexBase&) = delete;
    MutexBase& operator=(const MutexBase&) = delete;

    virtual MutexTypeEnum Type() const = 0;
    virtual void Lock() = 0;
    virtual void Unlock() = 0;
    // Takes the mutex if that is possible without waiting.
    virtual bool TryLock() = 0;

protected:
    constexpr MutexBase() = default;
    // Mutexes are owned by value, never deleted through this base.
    ~MutexBase() = default;
};

namespace Template {

template <MutexTypeEnum Kind>
class Mutex;

// The recursive mutex. The thread that holds it may lock it again and
// releases it when it has unlocked as often as it locked. Unlocking a mutex
// that one does not hold is a programming error that is not detected.
template <>
class QUILON_API Mutex<mtRecursiveMutex> final : public MutexBase {
public:
    constexpr Mutex() = default;
    ~Mutex() = default;

    MutexTypeEnum Type() const override { return mtRecursiveMutex; }
    void Lock() override;
    void Unlock() override;
    bool TryLock() override;

    // The thread that holds the mutex, 0 when it is free. Only meaningful
    // to the calling thread, as a test of whether it holds the mutex.
    std::uint32_t Owner() const noexcept { return m_owner.load(std::memory_order_relaxed); }

private:
    // Bits of m_state: 31 says the mutex is held, 30 that a thread may be
    // asleep waiting for it and must be woken by the next release.
    static constexpr std::uint32_t LockFlag = 1u << 31;
    static constexpr std::uint32_t WakeUpFlag = 1u << 30;

    void Acquire();
    void AcquireContended();
    void TakeOwnership(std::uint32_t thread);

    // Recursion depth; read and written by the owner only.
    std::int64_t m_count = 0;
    std::atomic<std::uint32_t> m_owner{0};
    std::atomic<std::uint32_t> m_state{0};
};

} // namespace Template

using Mutex = Template::Mutex<mtRecursiveMutex>;

namespace Detail {
// Lock and TryLock as free functions, for code that passes them around.
QUILON_API void Lock(MutexBase& mutex);
QUILON_API bool TryLock(MutexBase& mutex);
} // namespace Detail

} // namespace Quilon_::System::Threading
