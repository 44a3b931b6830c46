// Scoped locks on one mutex and on several lockables: when they lock and
// unlock, the refusal of other mutex kinds, and deadlock avoidance.
#include "Quilon_/System/Threading/ScopedLock.h"
#include "Quilon_/Library.h"

#include "../../Support/Raised.h"
#include "LockDoubles.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace Quilon_::Tests::Threading {

using System::Pointer;
using System::Threading::ILockable;
using System::Threading::ScopedLock;
using Lockables = std::vector<Pointer<ILockable>>;

TEST(ScopedLockTest, SingleFormUnlocksOnceAndOnlyWhatItLocked)
{
    System::Threading::Mutex mutex;
    {
        ScopedLock lock(mutex, __FILE__, __LINE__);
        EXPECT_TRUE(HeldElsewhere(mutex));
        lock.Unlock();
        mutex.Lock();
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
        lock.Unlock();
        EXPECT_TRUE(HeldElsewhere(first->GetMutex()));
        EXPECT_TRUE(HeldElsewhere(second->GetMutex()));
    }
    EXPECT_FALSE(HeldElsewhere(first->GetMutex()));
    EXPECT_FALSE(HeldElsewhere(second->GetMutex()));
    ScopedLock nothing(Lockables{});
}

TEST(ScopedLockTest, VectorFormRefusesOtherMutexKindsBeforeLockingAny)
{
    Pointer<ILockable> recursive(new CLockable);
    EXPECT_EQ(RaisedMessage([&] {
                  ScopedLock lock(Lockables{recursive, new COtherKindLockable});
              }),
              L"Multiple lock can only be used with mtRecursiveMutex mutexes");
    EXPECT_FALSE(HeldElsewhere(recursive->GetMutex()));
    Library::ErrorManager()->TakeLastError();
}

// While one mutex is taken elsewhere, the multiple lock waits for it holding
// none of the others.
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
    while (!free->GetMutex().TryLock())
        std::this_thread::yield();
    EXPECT_FALSE(acquired);
    free->GetMutex().Unlock();
    busy->GetMutex().Unlock();
    locker.join();
    EXPECT_TRUE(acquired);
}

TEST(ScopedLockTest, OppositeOrdersOnSeveralThreadsDoNotDeadlock)
{
    Pointer<ILockable> a(new CLockable);
    Pointer<ILockable> b(new CLockable);
    long inside = 0;
    auto lockRepeatedly = [&](Lockables order) {
        for (int i = 0; i < 2000; ++i) {
            ScopedLock all(order);
            ++inside;
        }
    };
    std::thread forward(lockRepeatedly, Lockables{a, b});
    std::thread backward(lockRepeatedly, Lockables{b, a});
    lockRepeatedly(Lockables{b, a, b});
    forward.join();
    backward.join();
    EXPECT_EQ(inside, 3L * 2000);
}

} // namespace Quilon_::Tests::Threading
