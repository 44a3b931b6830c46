// Per-thread settings: who sees which value, when objects are cloned, and
// concurrent use.
#include "Quilon_/System/GlobalVariable.h"
#include "Quilon_/Library.h"
#include "Quilon_/Startup.h"

#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>
#include <vector>

namespace Quilon_::Tests::GlobalVariableTests {

using namespace Kernel;
using System::GlobalVariable;
using System::gvsPerThread;
using System::Pointer;

// What `code` returns when run on a new thread.
template <class Code>
auto OnNewThread(Code code)
{
    return std::async(std::launch::async, code).get();
}

QUILON_DECLARE_SETTING(Sample, SetSample, ClearSample, std::int64_t);
QUILON_DEFINE_SETTING(Sample, SetSample, ClearSample, -1, gvsPerThread)

TEST(GlobalVariableTest, EachThreadSetsOnlyItsOwnValue)
{
    EXPECT_EQ(Sample(), -1);
    // A set reaches only the thread that made it, read before or not.
    EXPECT_EQ(OnNewThread([] {
                  SetSample(2);
                  return Sample();
              }),
              2);
    EXPECT_EQ(Sample(), -1);
    EXPECT_EQ(OnNewThread([] { return Sample(); }), -1);
    SetSample(4);
    EXPECT_EQ(Sample(), 4);
    EXPECT_EQ(OnNewThread([] { return Sample(); }), -1);

    ClearSample();
    EXPECT_EQ(Sample(), -1);
    EXPECT_EQ(OnNewThread([] { return Sample(); }), -1);
}

TEST(GlobalVariableTest, WithTheMainScopeTheMainThreadsWritesBecomeTheDefault)
{
    GlobalVariable<int> tolerance(1, System::gvsPerThreadFromMain);
    ASSERT_EQ(System::Threading::CurrentThreadId(), System::Threading::MainThreadId());
    OnNewThread([&] {
        tolerance.Set(2);
        return 0;
    });
    EXPECT_EQ(tolerance.Get(), 1) << "another thread's write stays its own";
    tolerance.Set(3);
    EXPECT_EQ(OnNewThread([&] { return tolerance.Get(); }), 3);
    tolerance.Clear();
    EXPECT_EQ(OnNewThread([&] { return tolerance.Get(); }), 1);
}

TEST(GlobalVariableTest, EachThreadGetsItsOwnCloneOfAnObject)
{
    int destructions = 0;
    {
        GlobalVariable<Pointer<IThing>> value(Pointer<IThing>(new CCloneableThing(7, &destructions)),
                                              gvsPerThread);
        Pointer<IThing> mine = value.Get();
        EXPECT_TRUE(value.Get() == mine);
        Pointer<IThing> theirs = OnNewThread([&] { return value.Get(); });
        EXPECT_FALSE(theirs == mine);
        EXPECT_EQ(theirs->Value(), 7);
    }
    // The default and its two clones.
    EXPECT_EQ(destructions, 3);

    GlobalVariable<Pointer<IThing>> plain(Pointer<IThing>(new CThing), gvsPerThread);
    EXPECT_EQ(RaisedMessage([&] { plain.Get(); }),
              L"Class 'Quilon_::Tests::Kernel::IThing' does not implement ICloneable");
    Library::ErrorManager()->TakeLastError();
    // An empty default needs no clone.
    EXPECT_FALSE(GlobalVariable<Pointer<IThing>>(Pointer<IThing>(), gvsPerThread).Get());
}

TEST(GlobalVariableTest, ConcurrentThreadsReadAndWriteTheirOwnEntries)
{
    GlobalVariable<Pointer<IThing>> value(Pointer<IThing>(new CCloneableThing(0)), gvsPerThread);
    std::vector<std::future<bool>> results;
    for (int t = 1; t <= 4; ++t) {
        results.push_back(std::async(std::launch::async, [&value, t] {
            bool allOwn = value.Get()->Value() == 0;
            for (int i = 0; i < 500; ++i) {
                value.Set(Pointer<IThing>(new CCloneableThing(t * 1000 + i)));
                allOwn = allOwn && value.Get()->Value() == t * 1000 + i;
            }
            return allOwn;
        }));
    }
    for (std::future<bool>& result : results)
        EXPECT_TRUE(result.get());
    EXPECT_EQ(value.Get()->Value(), 0);
}

// A process-wide value is read without the general critical section:
// another thread that holds the section does not hold up the readers, and
// values replaced while others read are never seen torn or freed.
TEST(GlobalVariableTest, ProcessWideValuesAreReadWhileAnotherThreadHoldsTheGeneralSection)
{
    GlobalVariable<bool> flag(true);
    GlobalVariable<Pointer<IThing>> object(Pointer<IThing>(new CThing(nullptr, 1)));
    std::promise<void> entered, release;
    std::thread holder([&] {
        System::EnterGeneralCriticalSection();
        entered.set_value();
        release.get_future().wait();
        System::LeaveGeneralCriticalSection();
    });
    entered.get_future().wait();
    // Replacing the object would wait: its deletion takes the section.
    auto read = std::async(std::launch::async, [&] {
        flag.Set(false);
        return !flag.Get() && object.Get()->Value() == 1;
    });
    const bool readInTime = read.wait_for(std::chrono::seconds(10)) == std::future_status::ready;
    release.set_value();
    holder.join();
    EXPECT_TRUE(readInTime) << "a reader waited for the general critical section";
    EXPECT_TRUE(read.get());

    auto writer = std::async(std::launch::async, [&] {
        for (int i = 0; i < 2000; ++i)
            object.Set(Pointer<IThing>(new CThing(nullptr, i)));
    });
    for (int i = 0; i < 2000; ++i)
        EXPECT_GE(object.Get()->Value(), 0);
    writer.get();
    object.Clear();
    EXPECT_EQ(object.Get()->Value(), 1) << "the initial value is back";
}

} // namespace Quilon_::Tests::GlobalVariableTests
