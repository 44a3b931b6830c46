// The recursive mutex: ownership, recursion, and mutual exclusion between
// threads.
#include "Quilon_/System/Threading/Mutex.h"
#include "Quilon_/System/Threading/ThreadId.h"

#include "LockDoubles.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace Quilon_::Tests::Threading {

using System::Threading::CurrentThreadId;
using System::Threading::Mutex;

TEST(MutexTest, OwnerMayLockAgainAndReleasesAtTheMatchingUnlock)
{
    Mutex mutex;
    EXPECT_EQ(mutex.Type(), System::Threading::mtRecursiveMutex);
    EXPECT_FALSE(HeldElsewhere(mutex));

    mutex.Lock();
    System::Threading::Detail::Lock(mutex);
    EXPECT_TRUE(System::Threading::Detail::TryLock(mutex));
    EXPECT_EQ(mutex.Owner(), CurrentThreadId());
    EXPECT_TRUE(HeldElsewhere(mutex));

    mutex.Unlock();
    mutex.Unlock();
    EXPECT_TRUE(HeldElsewhere(mutex));
    mutex.Unlock();
    EXPECT_EQ(mutex.Owner(), 0u);
    EXPECT_FALSE(HeldElsewhere(mutex));
}

TEST(MutexTest, WaiterGetsTheMutexOnlyAfterTheOwnersLastUnlock)
{
    Mutex mutex;
    std::atomic<bool> waiting{false};
    std::atomic<bool> released{false};
    bool releasedWhenTaken = false;

    mutex.Lock();
    mutex.Lock();
    std::thread waiter([&] {
        waiting = true;
        mutex.Lock();
        releasedWhenTaken = released;
        mutex.Unlock();
    });
    while (!waiting)
        std::this_thread::yield();
    mutex.Unlock();
    released = true;
    mutex.Unlock();
    waiter.join();

    EXPECT_TRUE(releasedWhenTaken);
    EXPECT_FALSE(HeldElsewhere(mutex));
}

TEST(MutexTest, ExcludesOtherThreadsUnderContention)
{
    Mutex mutex;
    constexpr int threadCount = 4;
    constexpr int rounds = 20000;
    long counter = 0;

    std::vector<std::thread> threads;
    for (int t = 0; t < threadCount; ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < rounds; ++i) {
                if ((i + t) % 3 == 0) {
                    while (!mutex.TryLock())
                        std::this_thread::yield();
                } else {
                    mutex.Lock();
                }
                mutex.Lock();
                ++counter;
                mutex.Unlock();
                mutex.Unlock();
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(counter, long{threadCount} * rounds);
    EXPECT_FALSE(HeldElsewhere(mutex));
}

TEST(ThreadIdTest, MainThreadIsTheThreadThatLoadedTheLibrary)
{
    // The test program links the library, so this thread loaded it.
    const std::uint32_t main = System::Threading::MainThreadId();
    EXPECT_EQ(main, CurrentThreadId());

    std::uint32_t seenElsewhere = 0;
    std::uint32_t otherThread = 0;
    std::thread([&] {
        seenElsewhere = System::Threading::MainThreadId();
        otherThread = CurrentThreadId();
    }).join();
    EXPECT_EQ(seenElsewhere, main);
    EXPECT_NE(otherThread, main);
}

} // namespace Quilon_::Tests::Threading
