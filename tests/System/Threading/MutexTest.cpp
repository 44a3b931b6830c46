// The recursive mutex: ownership, recursion, and mutual exclusion between
// threads; and which thread counts as the main one.
#include "Quilon_/System/Threading/Mutex.h"
#include "Quilon_/System/Threading/ThreadId.h"

#include "LockDoubles.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace Quilon_::Tests::Threading {

using System::Threading::CurrentThreadId;
using System::Threading::Mutex;

TEST(MutexTest, OwnerMayLockAgainAndReleasesAtTheMatchingUnlock)
{
    Mutex mutex;
    mutex.Lock();
    System::Threading::Detail::Lock(mutex);
    EXPECT_TRUE(System::Threading::Detail::TryLock(mutex));
    EXPECT_EQ(mutex.Owner(), CurrentThreadId());

    mutex.Unlock();
    mutex.Unlock();
    EXPECT_TRUE(HeldElsewhere(mutex));
    mutex.Unlock();
    EXPECT_EQ(mutex.Owner(), 0u);
    EXPECT_FALSE(HeldElsewhere(mutex));
}

TEST(MutexTest, ExcludesOtherThreadsUnderContention)
{
    Mutex mutex;
    long counter = 0;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < 20000; ++i) {
                if ((i + t) % 3 == 0)
                    while (!mutex.TryLock())
                        std::this_thread::yield();
                else
                    mutex.Lock();
                mutex.Lock();
                ++counter;
                mutex.Unlock();
                mutex.Unlock();
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(counter, 4L * 20000);
}

TEST(ThreadIdTest, MainThreadIsTheThreadThatLoadedTheLibrary)
{
    // The test program links the library, so this thread loaded it.
    const std::uint32_t main = System::Threading::MainThreadId();
    EXPECT_EQ(main, CurrentThreadId());
    std::thread([main] { EXPECT_EQ(System::Threading::MainThreadId(), main); }).join();
}

} // namespace Quilon_::Tests::Threading
