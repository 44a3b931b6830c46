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

// Other suites in the same process may have set the state or installed the
// core's pressure hook; each test leaves both as it found them.
class StartupTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_savedState = InitializationState();
        m_savedHook = AddMemoryPressureFunction;
        s_reports.clear();
    }
    void TearDown() override
    {
        AddMemoryPressureFunction = m_savedHook;
        SetInitializationState(m_savedState);
    }

    static void RecordPressure(std::size_t size) { s_reports.push_back(size); }

    static std::vector<std::size_t> s_reports;

private:
    int m_savedState = 0;
    void (*m_savedHook)(std::size_t) = nullptr;
};

std::vector<std::size_t> StartupTest::s_reports;

TEST_F(StartupTest, StateKeepsWhatWasStoredIncludingNegative)
{
    for (int state : {0, 3, 2, -1, -7, 0}) {
        SetInitializationState(state);
        EXPECT_EQ(InitializationState(), state);
    }
}

TEST_F(StartupTest, GeneralCriticalSectionIsRecursiveAndExcludesOtherThreads)
{
    EnterGeneralCriticalSection();
    EnterGeneralCriticalSection(); // must not deadlock on the same thread

    std::atomic<bool> entered{false};
    std::thread other([&] {
        EnterGeneralCriticalSection();
        entered = true;
        LeaveGeneralCriticalSection();
    });

    // Give the other thread every chance to get in wrongly; a correct lock
    // never lets it, however the threads are scheduled.
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(entered);
    LeaveGeneralCriticalSection(); // still held once
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(entered);
    LeaveGeneralCriticalSection();

    other.join();
    EXPECT_TRUE(entered);
}

TEST_F(StartupTest, GeneralCriticalSectionSerialisesUnsynchronisedUpdates)
{
    constexpr int threads = 4;
    constexpr int rounds = 20000;
    std::int64_t counter = 0; // deliberately not atomic: only the lock guards it
    std::vector<std::thread> workers;
    for (int t = 0; t < threads; ++t) {
        workers.emplace_back([&] {
            for (int i = 0; i < rounds; ++i) {
                EnterGeneralCriticalSection();
                EnterGeneralCriticalSection();
                ++counter;
                LeaveGeneralCriticalSection();
                LeaveGeneralCriticalSection();
            }
        });
    }
    for (auto& worker : workers)
        worker.join();
    EXPECT_EQ(counter, std::int64_t{threads} * rounds);
}

TEST_F(StartupTest, MallocReportsRequestedSizeToPressureHook)
{
    AddMemoryPressureFunction = &RecordPressure;

    void* small = Quilon_malloc(123);
    void* large = Quilon_malloc(1 << 20);
    ASSERT_NE(small, nullptr);
    ASSERT_NE(large, nullptr);
    EXPECT_EQ(s_reports, (std::vector<std::size_t>{123, 1 << 20}));

    // The whole block is usable (the sanitizer build checks the bounds) and
    // suitably aligned for any fundamental type.
    std::memset(small, 0xAB, 123);
    std::memset(large, 0xCD, 1 << 20);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(large) % alignof(std::max_align_t), 0u);

    Quilon_free(small);
    Quilon_free(large);
    Quilon_free(nullptr);
    EXPECT_EQ(s_reports.size(), 2u) << "freeing must not report";
}

TEST_F(StartupTest, MallocWithoutHookReportsNothing)
{
    AddMemoryPressureFunction = nullptr;
    void* block = Quilon_malloc(64);
    ASSERT_NE(block, nullptr);
    Quilon_free(block);
    EXPECT_TRUE(s_reports.empty());
}

TEST_F(StartupTest, MallocOfZeroGivesDistinctNonNullBlocks)
{
    AddMemoryPressureFunction = &RecordPressure;

    void* first = Quilon_malloc(0);
    void* second = Quilon_malloc(0);
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);
    EXPECT_EQ(s_reports, (std::vector<std::size_t>{0, 0}));

    Quilon_free(first);
    Quilon_free(second);
}

} // namespace
