// The startup library: the general critical section, and the allocator with
// its memory-pressure hook.
#include "Quilon_/Startup.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <thread>
#include <vector>

namespace {

using namespace Quilon_::System;

std::vector<std::size_t> reports;

void RecordPressure(std::size_t size)
{
    reports.push_back(size);
}

TEST(StartupTest, GeneralCriticalSectionIsRecursiveAndExcludesOtherThreads)
{
    EnterGeneralCriticalSection();
    EnterGeneralCriticalSection(); // must not deadlock on the same thread
    std::atomic<bool> entered{false};
    std::thread other([&] {
        EnterGeneralCriticalSection();
        entered = true;
        LeaveGeneralCriticalSection();
    });
    LeaveGeneralCriticalSection();                              // still held once
    std::this_thread::sleep_for(std::chrono::milliseconds(50)); // every chance to get in wrongly
    EXPECT_FALSE(entered);
    LeaveGeneralCriticalSection();
    other.join();
    EXPECT_TRUE(entered);
}

// Several threads nesting the section while they update a plain counter: a
// lost update means two holders at once, a hang means a lost wake-up.
TEST(StartupTest, GeneralCriticalSectionKeepsCountsExactUnderContention)
{
    constexpr int threads = 4;
    constexpr int rounds = 20000;
    long counter = 0;
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([&counter] {
            for (int i = 0; i < rounds; ++i) {
                EnterGeneralCriticalSection();
                EnterGeneralCriticalSection();
                const long seen = counter;
                LeaveGeneralCriticalSection();
                counter = seen + 1;
                LeaveGeneralCriticalSection();
            }
        });
    }
    for (std::thread& worker : workers)
        worker.join();
    EXPECT_EQ(counter, long(threads) * rounds);
}

TEST(StartupTest, MallocReportsRequestedSizesIncludingZeroToThePressureHook)
{
    void (*saved)(std::size_t) = AddMemoryPressureFunction;
    AddMemoryPressureFunction = &RecordPressure;
    reports.clear();
    void* large = Quilon_malloc(1 << 20);
    void* zero = Quilon_malloc(0);
    void* otherZero = Quilon_malloc(0);
    ASSERT_TRUE(large && zero && otherZero);
    EXPECT_NE(zero, otherZero);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(large) % 64, 0u) << "large blocks start on a cache line";
    EXPECT_EQ(reports, (std::vector<std::size_t>{1 << 20, 0, 0}));
    std::memset(large, 0xCD, 1 << 20); // the sanitizer build checks the bounds
    Quilon_free(large);
    Quilon_free(zero);
    Quilon_free(otherZero);
    Quilon_free(nullptr);
    EXPECT_EQ(reports.size(), 3u) << "freeing must not report";

    AddMemoryPressureFunction = nullptr;
    Quilon_free(Quilon_malloc(64));
    EXPECT_EQ(reports.size(), 3u);
    AddMemoryPressureFunction = saved;
}

} // namespace
