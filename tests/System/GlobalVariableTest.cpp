// Settings for the process and per thread: who sees which value, when
// objects are cloned, and the settings trio.
#include "Quilon_/Library.h"
#include "Quilon_/System/GlobalVariable.h"

#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

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

TEST(GlobalVariableTest, ProcessValueIsOneForAllThreads)
{
    GlobalVariable<int> value(5);
    OnNewThread([&] { value.Set(7); });
    EXPECT_EQ(value.Get(), 7);
    value.Clear();
    EXPECT_EQ(OnNewThread([&] { return value.Get(); }), 5);

    GlobalVariable<Pointer<IThing, 0>> object(Pointer<IThing, 0>(new CThing));
    EXPECT_TRUE(OnNewThread([&] { return object.Get(); }) == object.Get());
}

TEST(GlobalVariableTest, ThreadsKeepTheirOwnValuesOnceTheyHaveRead)
{
    GlobalVariable<int> value(1, gvsPerThread);
    EXPECT_EQ(value.Get(), 1);

    // A thread without an entry sets the default, seen by all threads that
    // have not read yet, and not by this one.
    OnNewThread([&] { value.Set(2); });
    EXPECT_EQ(value.Get(), 1);
    EXPECT_EQ(OnNewThread([&] { return value.Get(); }), 2);

    // A thread with an entry sets only its own.
    EXPECT_EQ(OnNewThread([&] {
                  value.Get();
                  value.Set(3);
                  return value.Get();
              }),
              3);
    EXPECT_EQ(OnNewThread([&] { return value.Get(); }), 2);
    value.Set(4);
    EXPECT_EQ(value.Get(), 4);

    value.Clear();
    EXPECT_EQ(value.Get(), 1);
    EXPECT_EQ(OnNewThread([&] { return value.Get(); }), 1);
}

TEST(GlobalVariableTest, EachThreadGetsItsOwnCloneOfAnObject)
{
    int destructions = 0;
    Pointer<IThing> original(new CCloneableThing(7, &destructions));
    {
        GlobalVariable<Pointer<IThing>> value(original, gvsPerThread);
        Pointer<IThing> mine = value.Get();
        EXPECT_TRUE(value.Get() == mine);
        EXPECT_FALSE(mine == original);
        EXPECT_EQ(mine->Value(), 7);

        Pointer<IThing> theirs = OnNewThread([&] { return value.Get(); });
        EXPECT_FALSE(theirs == mine);
        EXPECT_EQ(theirs->Value(), 7);

        value.Clear();
        EXPECT_EQ(destructions, 0);
    }
    // The clones go with the last references.
    EXPECT_EQ(destructions, 2);
}

TEST(GlobalVariableTest, ObjectThatCannotBeClonedIsRefusedPerThreadOnly)
{
    Pointer<IThing> plain(new CThing);
    GlobalVariable<Pointer<IThing>> perThread(plain, gvsPerThread);
    EXPECT_EQ(RaisedMessage([&] { perThread.Get(); }),
              L"Class 'Quilon_::Tests::Kernel::IThing' does not implement ICloneable");
    Library::ErrorManager()->TakeLastError();

    GlobalVariable<Pointer<IThing>> process(plain);
    EXPECT_TRUE(process.Get() == plain);

    // An empty default needs no clone; the empty entry fails only in use.
    GlobalVariable<Pointer<IThing>> empty(Pointer<IThing>(), gvsPerThread);
    Pointer<IThing> entry = empty.Get();
    EXPECT_EQ(RaisedMessage([&] { entry->Value(); }),
              L"Pointer <Quilon_::Tests::Kernel::IThing> : attempt to access a 0 pointer");
    Library::ErrorManager()->TakeLastError();
}

TEST(GlobalVariableTest, ConcurrentThreadsReadAndWriteTheirOwnEntries)
{
    GlobalVariable<Pointer<IThing>> value(Pointer<IThing>(new CCloneableThing(0)), gvsPerThread);
    GlobalVariable<Pointer<IThing>> shared(Pointer<IThing>(new CThing));
    std::vector<std::future<bool>> results;
    for (int t = 1; t <= 4; ++t) {
        results.push_back(std::async(std::launch::async, [&, t] {
            bool allOwn = value.Get()->Value() == 0;
            for (int i = 0; i < 500; ++i) {
                value.Set(Pointer<IThing>(new CCloneableThing(t * 1000 + i)));
                allOwn = allOwn && value.Get()->Value() == t * 1000 + i;
                shared.Set(shared.Get());
            }
            return allOwn;
        }));
    }
    for (std::future<bool>& result : results)
        EXPECT_TRUE(result.get());
    EXPECT_EQ(value.Get()->Value(), 0);
}

TEST(GlobalVariableTest, SettingsTrioWorksOnTheVariable)
{
    EXPECT_EQ(Sample(), -1);
    SetSample(5);
    EXPECT_EQ(Sample(), 5);
    EXPECT_EQ(OnNewThread([] { return Sample(); }), -1);
    ClearSample();
    EXPECT_EQ(Sample(), -1);
}

} // namespace Quilon_::Tests::GlobalVariableTests
