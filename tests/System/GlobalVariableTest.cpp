// Per-thread settings: who sees which value, when objects are cloned, and
// concurrent use.
#include "Quilon_/System/GlobalVariable.h"
#include "Quilon_/Library.h"

#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <future>
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

} // namespace Quilon_::Tests::GlobalVariableTests
