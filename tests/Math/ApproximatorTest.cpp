// The approximator: the tolerance on each side of every comparison, the
// asymmetric rounding, and the per-thread default.
#include "Quilon_/Math/Approximator.h"
#include "Quilon_/System/Cloneable.h"

#include <gtest/gtest.h>

#include <thread>

namespace Quilon_::Tests::Approximators {

using namespace Quilon_::Math;
using System::Pointer;

TEST(Approximator, ComparesWithinTheTolerance)
{
    Pointer<IApproximator> near = Approximator::New(0.001);
    EXPECT_EQ(near->Epsilon(), 0.001);
    EXPECT_FALSE(near->Greater(1.0005, 1.0));
    EXPECT_TRUE(near->Greater(1.002, 1.0));
    EXPECT_TRUE(near->Equal(1.0005, 1.0));
    EXPECT_FALSE(near->Equal(1.0011, 1.0));
    EXPECT_TRUE(near->GreaterOrEqual(1.0, 1.0005));
    EXPECT_FALSE(near->GreaterOrEqual(1.0, 1.002));
    EXPECT_FALSE(near->Less(1.0, 1.0005));
    EXPECT_TRUE(near->Less(1.0, 1.002));
    EXPECT_TRUE(near->LessOrEqual(1.0005, 1.0));
    EXPECT_FALSE(near->LessOrEqual(1.002, 1.0));
    EXPECT_TRUE(near->IsInteger(-2.0004));
    EXPECT_FALSE(near->IsInteger(2.5));

    near->SetEpsilon(0);
    EXPECT_FALSE(near->Equal(1.0, 1.0)) << "with no tolerance nothing is strictly within it";
    EXPECT_TRUE(near->GreaterOrEqual(1.0, 0.5));
}

TEST(Approximator, RoundsWithTheToleranceAndTiesGoDown)
{
    Pointer<IApproximator> near = Approximator::New(0.001);
    EXPECT_EQ(near->Floor(2.9995), 3);
    EXPECT_EQ(near->Floor(2.99), 2);
    EXPECT_EQ(near->Floor(-2.5), -3);
    EXPECT_EQ(near->Ceiling(3.0005), 3);
    EXPECT_EQ(near->Ceiling(3.01), 4);
    EXPECT_EQ(near->Ceiling(-2.5), -2);
    EXPECT_EQ(near->ToInteger(2.9995), 3);
    EXPECT_EQ(near->ToInteger(-2.9995), -3);
    EXPECT_EQ(near->ToInteger(-2.5), -2);
    EXPECT_EQ(near->Round(2.5), 2);
    EXPECT_EQ(near->Round(-2.5), -3);
    EXPECT_EQ(near->Round(2.6), 3);
    EXPECT_EQ(near->Round(-2.4), -2);
    EXPECT_EQ(near->PixelCenter(2.9995), 3.5);
    EXPECT_EQ(near->PixelCenter(-0.5), -0.5);

    for (double x : {2.5, -2.5, 2.9995, -7.2}) {
        EXPECT_EQ(near->Round(x, rmFloor), near->Floor(x));
        EXPECT_EQ(near->Round(x, rmToInteger), near->ToInteger(x));
        EXPECT_EQ(near->Round(x, rmCeiling), near->Ceiling(x));
        EXPECT_EQ(near->Round(x, rmRound), near->Round(x));
        EXPECT_EQ(near->Round(x, static_cast<RoundingMethodEnum>(7)), near->ToInteger(x));
    }

    double x = 5.0004;
    EXPECT_TRUE(near->Snap(x));
    EXPECT_EQ(x, 5.0);
    x = -3.0004;
    EXPECT_TRUE(near->Snap(x));
    EXPECT_EQ(x, -3.0);
    x = 4.4;
    EXPECT_FALSE(near->Snap(x));
    EXPECT_EQ(x, 4.4);
}

TEST(Approximator, CopiesKeepTheTolerance)
{
    Pointer<IApproximator> original = Approximator::New(0.25);
    Pointer<System::ICloneable> clone = Pointer<System::ICloneable>(original)->Clone();
    Pointer<IApproximator> copy(clone);
    EXPECT_EQ(copy->Epsilon(), 0.25);
    copy->SetEpsilon(0.5);
    EXPECT_EQ(original->Epsilon(), 0.25);
}

// Each thread works with its own default; only the main thread's writes
// reach the process-wide value that new threads copy.
TEST(DefaultApproximator, IsKeptPerThreadAndMainThreadWritesReachNewThreads)
{
    Approximator::SetDefaultApproximator(Approximator::New(0.01));
    EXPECT_EQ(Approximator::DefaultApproximator()->Epsilon(), 0.01);
    EXPECT_EQ(Approximator::New()->Epsilon(), 0.01) << "New() takes the thread's tolerance";

    double seenByNewThread = -1, ownOfOtherThread = -1, newInOtherThread = -1;
    std::thread([&] {
        seenByNewThread = Approximator::DefaultApproximator()->Epsilon();
        Approximator::SetDefaultApproximator(Approximator::New(0.5));
        ownOfOtherThread = Approximator::DefaultApproximator()->Epsilon();
        newInOtherThread = Approximator::New()->Epsilon();
    }).join();
    EXPECT_EQ(seenByNewThread, 0.01);
    EXPECT_EQ(ownOfOtherThread, 0.5);
    EXPECT_EQ(newInOtherThread, 0.5);
    EXPECT_EQ(Approximator::DefaultApproximator()->Epsilon(), 0.01) << "another thread's write stays its own";

    Approximator::ClearDefaultApproximator();
    EXPECT_EQ(Approximator::DefaultApproximator()->Epsilon(), 0.0);
}

} // namespace Quilon_::Tests::Approximators
