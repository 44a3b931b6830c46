// Scoped locks on one mutex and on several lockables: when they lock and
// unlock, the refusal of other mutex kinds, and deadlock avoidance.
#include "Quilon_/Library.h"
#include "Quilon_/System/Threading/ScopedLock.h"

#include "../../Support/Raised.h"
#include "LockDoubles.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace Quilon_::Tests::Threading {

using System::Pointer;
using System::Threading::ILockable;
using System::Threading::Mutex;
using System::Threading::ScopedLock;
using Lockables = std::vector<Pointer<ILockable>>;

TEST(ScopedLockTest, SingleFormHoldsTheMutexUntilUnlockedOrDestroyed)
{
    Mutex mutex;
    {
        ScopedLock lock(mutex, __FILE__, __LINE__);
        EXPECT_TRUE(lock.IsLocked());
        EXPECT_TRUE(HeldElsewhere(mutex));

        lock.Unlock();
        lock.Unlock();
        EXPECT_FALSE(lock.IsLocked());
        EXPECT_FALSE(HeldElsewhere(mutex));

        // A second Unlock must not have released a lock taken elsewhere on
        // this thread.
        mutex.Lock();
        lock.Lock();
        lock.Lock();
        lock.Unlock();
        EXPECT_TRUE(HeldElsewhere(mutex));
        mutex.Unlock();
        lock.Lock();
    }
    EXPECT_FALSE(HeldElsewhere(mutex));
}

TEST(ScopedLockTest, VectorFormHoldsEveryMutexUntilDestroyed)
{
    Pointer<ILockable> first(new CLockable);
    Pointer<ILockable> second(new CLockable);
    {
        // The same object twice is taken twice, the mutex being recursive.
        ScopedLock lock(Lockables{first, second, first});
        EXPECT_TRUE(HeldElsewhere(first->GetMutex()));
        EXPECT_TRUE(HeldElsewhere(second->GetMutex()));

        lock.Unlock();
        EXPECT_FALSE(lock.IsLocked());
        EXPECT_TRUE(HeldElsewhere(first->GetMutex()));
        lock.Lock();
    }
    EXPECT_FALSE(HeldElsewhere(first->GetMutex()));
    EXPECT_FALSE(HeldElsewhere(second->GetMutex()));

    ScopedLock nothing(Lockables{});
    EXPECT_TRUE(nothing.IsLocked());
}

TEST(ScopedLockTest, VectorFormRefusesOtherMutexKindsBeforeLockingAny)
{
    Pointer<ILockable> recursive(new CLockable);
    Pointer<ILockable> other(new COtherKindLockable);

    EXPECT_EQ(RaisedMessage([&] { ScopedLock lock(Lockables{recursive, other}); }),
              L"Multiple lock can only be used with mtRecursiveMutex mutexes");
    EXPECT_FALSE(HeldElsewhere(recursive->GetMutex()));
    EXPECT_FALSE(HeldElsewhere(other->GetMutex()));
    Library::ErrorManager()->TakeLastError();
}

// While one of the mutexes is taken elsewhere, the multiple lock must wait
// for it holding none of the others.
TEST(ScopedLockTest, VectorFormWaitsWithoutHoldingTheOthers)
{
    Pointer<ILockable> free(new CLockable);
    Pointer<ILockable> busy(new CLockable);
    busy->GetMutex().Lock();

    std::atomic<bool> acquired{false};
    std::thread locker([&] {
        ScopedLock lock(Lockables{free, busy});
        acquired = true;
    });
    // Ends once the locker has given `free` back to wait for `busy`.
    Mutex& freeMutex = static_cast<Mutex&>(free->GetMutex());
    while (!freeMutex.TryLock())
        std::this_thread::yield();
    EXPECT_FALSE(acquired);
    freeMutex.Unlock();
    busy->GetMutex().Unlock();
    locker.join();

    EXPECT_TRUE(acquired);
    EXPECT_FALSE(HeldElsewhere(free->GetMutex()));
    EXPECT_FALSE(HeldElsewhere(busy->GetMutex()));
}

TEST(ScopedLockTest, OppositeOrdersOnTwoThreadsDoNotDeadlock)
{
    Pointer<ILockable> a(new CLockable);
    Pointer<ILockable> b(new CLockable);
    constexpr int rounds = 2000;
    long inside = 0;

    auto lockRepeatedly = [&](Lockables order) {
        for (int i = 0; i < rounds; ++i) {
            ScopedLock lock(order);
            ++inside;
        }
    };
    std::thread forward(lockRepeatedly, Lockables{a, b});
    std::thread backward(lockRepeatedly, Lockables{b, a});
    std::thread single([&] {
        for (int i = 0; i < rounds; ++i) {
            ScopedLock lock(b->GetMutex());
            ScopedLock both(Lockables{a, b});
            ++inside;
        }
    });
    forward.join();
    backward.join();
    single.join();

    EXPECT_EQ(inside, 3L * rounds);
}

} // namespace Quilon_::Tests::Threading
