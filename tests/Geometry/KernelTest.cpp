// Kernels, rotations, weighted coordinates and the texts of the predefined
// enumerations. The concrete classes come from the reference library,
// started in a child process per test.
#include "Quilon_/Geometry/Kernel.h"
#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/NgbLUT.h"
#include "Quilon_/Geometry/Rotation.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/System/Cloneable.h"
#include "Quilon_/System/Equatable.h"
#include "Quilon_/System/String.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <numbers>

namespace Quilon_::Tests::KernelTests {

using namespace Quilon_::Geometry;
using System::Ref;

TEST(PredefinedEnumerations, PrintTheirNamesOrTheNumberAndBoxAsThemselves)
{
    struct Row {
        std::wstring text, expected;
    };
    const Row rows[] = {
        {System::ToString(pkHighPass3), L"pkHighPass3"},
        {System::ToString(pkLowPass7), L"pkLowPass7"},
        {System::ToString(static_cast<PredefinedKernelEnum>(0)), L"0"},
        {System::ToString(pngHexagonal6), L"pngHexagonal6"},
        {System::ToString(static_cast<PredefinedNgbGraphEnum>(770)), L"770"},
        {System::ToString(pnlSKIZ), L"pnlSKIZ"},
        {System::ToString(pnlSkeleton1), L"pnlSkeleton1"},
        {System::ToString(static_cast<PredefinedNgbLUTEnum>(10)), L"10"},
        {System::ToString(static_cast<PredefinedStructuringElementEnum>(771)), L"pseBall"},
        {System::ToString(pseLine135), L"pseLine135"},
        {System::ToString(static_cast<PredefinedStructuringElementEnum>(520)), L"520"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.text, row.expected);

    EXPECT_EQ(System::ToAny(pngCubic26).CastTo<PredefinedNgbGraphEnum>(), pngCubic26);
    EXPECT_EQ(System::ToAny(pseOctahedron),
              System::ToAny(static_cast<PredefinedStructuringElementEnum>(770)));
    EXPECT_EQ(PredefinedDimension(pseBall), 3);
    EXPECT_EQ(IKernel::GetType().Name(), L"Quilon_::Geometry::IKernel");
    EXPECT_EQ(INgbGraph::GetType().Name(), L"Quilon_::Geometry::INgbGraph");
}

void ExpectWeights(const Ref<IKernel>& kernel, const std::vector<double>& expected)
{
    const std::vector<double> weights = kernel->Weights();
    ASSERT_EQ(weights.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_DOUBLE_EQ(weights[i], expected[i]) << "weight " << i;
}

TEST(Kernels, PredefinedKernelsHaveTheirSizesSumsAndDivisors)
{
    InChildProcess([] {
        StartBasic();
        struct Row {
            PredefinedKernelEnum value;
            Axes axes;
            std::int64_t points;
            double centre, sum, divisor;
        };
        const Row rows[] = {
            {pkLowPass3, Axes::aXY, 9, 1, 9, 9},        {pkLowPass5, Axes::aXYB, 25, 1, 25, 25},
            {pkLowPass7, Axes::aXYZ, 343, 1, 343, 343}, {pkHighPass3, Axes::aXY, 9, 8, 0, 1},
            {pkHighPass5, Axes::aXYZ, 125, 124, 0, 1},  {pkLaplacian, Axes::aXY, 9, -4, 0, 1},
            {pkLaplacian, Axes::aXYZ, 27, -6, 0, 1},    {pkLaplacian3, Axes::aXY, 9, -8, 0, 1},
            {pkLaplacian7, Axes::aXY, 49, -48, 0, 1},
        };
        for (const Row& row : rows) {
            SCOPED_TRACE(System::ToAnsi(System::ToString(row.value)));
            Ref<IKernel> kernel = Kernel::New(row.value, row.axes);
            Ref<IWeightedCoordinatesCollection> points = kernel->Points();
            ASSERT_EQ(points->Count(), row.points);
            EXPECT_EQ(kernel->Axes(), row.axes);
            EXPECT_DOUBLE_EQ(points->Item(row.points / 2)->Weight(), row.centre);
            EXPECT_EQ(points->Item(row.points / 2)->X(), 0);
            EXPECT_DOUBLE_EQ(kernel->WeightSum(), row.sum);
            EXPECT_DOUBLE_EQ(points->WeightSum(), row.sum);
            EXPECT_DOUBLE_EQ(kernel->Divisor(), row.divisor);
            Ref<IBox> bounds = kernel->Bounds();
            EXPECT_EQ(bounds->Lower()->X(), -bounds->Upper()->X() + 1);
        }
        ExpectWeights(Kernel::New(pkLaplacian, Axes::aXY), {0, 1, 0, 1, -4, 1, 0, 1, 0});
    });
}

TEST(Kernels, BoxKernelsSeparableKernelsAndTheirTransposes)
{
    InChildProcess([] {
        StartBasic();
        Ref<IKernel> mean = Kernel::New(Box::New(0, 0, 2, 3, Axes::aXY));
        EXPECT_DOUBLE_EQ(mean->Divisor(), 6);
        EXPECT_DOUBLE_EQ(mean->WeightSum(), 6);

        Ref<IKernel> dx = Kernel::New(Box::New(-1, 0, 2, 1, Axes::aXY), std::vector<double>{-1, 0, 1});
        Ref<IKernel> smooth =
            Kernel::New(Box::New(0, -1, 1, 2, Axes::aXY), std::vector<std::int64_t>{1, 2, 1}, 4.0);
        Ref<IWeightedCoordinates> last = dx->Points()->Item(2);
        EXPECT_EQ(last->X(), 1);
        EXPECT_DOUBLE_EQ(last->Weight(), 1);
        ExpectWeights(Ref<ITransposable>(dx)->Transposed(), {1, 0, -1});

        Ref<IKernel> sobel = SeparableKernel::New(dx, smooth);
        ExpectWeights(sobel, {-1, 0, 1, -2, 0, 2, -1, 0, 1});
        EXPECT_DOUBLE_EQ(sobel->Divisor(), 4);
        EXPECT_EQ(Ref<ISeparable>(sobel)->Factors().size(), 2u);
        Ref<IBox> bounds = sobel->Bounds();
        EXPECT_EQ(bounds->Lower()->Y(), -1);
        EXPECT_EQ(bounds->Upper()->Y(), 2);
        Ref<IKernel> flipped = Ref<ITransposable>(sobel)->Transposed();
        ExpectWeights(flipped, {1, 0, -1, 2, 0, -2, 1, 0, -1});
        EXPECT_EQ(Ref<ISeparable>(flipped)->Factors().size(), 2u);
    });
}

TEST(Kernels, RefuseBadInput)
{
    InChildProcess([] {
        StartBasic();
        Ref<IBox> box = Box::New(0, 0, 2, 2, Axes::aXY);
        EXPECT_EQ(RaisedMessage([] { Kernel::New(static_cast<PredefinedKernelEnum>(11), Axes::aXY); }),
                  L"Unknown predefined kernel: 11");
        EXPECT_EQ(RaisedMessage([] { Kernel::New(pkLowPass3, Axes(aX | aB)); }),
                  L"Axes 'XB' have fewer than 2 spatial axes");
        EXPECT_EQ(RaisedMessage([] { Kernel::New(pkLaplacian, Axes::aXZ); }),
                  L"Axes 'XZ' have fewer than 3 spatial axes");
        EXPECT_EQ(RaisedMessage([&] {
                      Kernel::New(box, std::vector<double>{1, 2, 3});
                  }),
                  L"A kernel over 4 points needs 4 weights, not 3");
        EXPECT_EQ(RaisedMessage([&] {
                      Kernel::New(box, std::vector<std::int64_t>{1, 1, 1, 1}, 0.0);
                  }),
                  L"The divisor of a kernel must not be 0");
        EXPECT_EQ(RaisedMessage([] { Kernel::New(Box::New(0, 0, 0, 2, Axes::aXY)); }),
                  L"A kernel needs at least one point");
        EXPECT_EQ(RaisedMessage(
                      [&] { SeparableKernel::New(Kernel::New(box), Kernel::New(pkLowPass3, Axes::aXYZ)); }),
                  L"The factors of a separable kernel have different axes: 'XY' and 'XYZ'");
        EXPECT_EQ(RaisedMessage([] { SeparableKernel::New(std::vector<Ref<IKernel>>{}); }),
                  L"A separable kernel needs at least one factor");
    });
}

std::vector<double> ValuesOf(const Ref<ICoordinatesD>& c)
{
    std::vector<double> values;
    for (std::int64_t i = 0; i < c->AxisCount(); ++i)
        values.push_back(c->Value(i));
    return values;
}

void ExpectNear(const std::vector<double>& actual, const std::vector<double>& expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_NEAR(actual[i], expected[i], 1e-12) << "value " << i;
}

TEST(Rotations, TurnPointsAboutTheirCenterBothWays)
{
    InChildProcess([] {
        StartBasic();
        const double quarter = std::numbers::pi / 2;
        Ref<IRotation> turn = Rotation::New(quarter, CoordinatesD::New(1.0, 1.0, Axes::aXY));
        ExpectNear(ValuesOf(turn->Rotate(CoordinatesD::New(2.0, 1.0, Axes::aXY))), {1, 2});
        ExpectNear(ValuesOf(turn->Inverse()->Rotate(CoordinatesD::New(1.0, 2.0, Axes::aXY))), {2, 1});
        // The homogeneous matrix maps row vectors the same way.
        Ref<Math::IMatrixD> m = turn->HomogeneousMatrix();
        const double x = 2, y = 1;
        EXPECT_NEAR(x * m->Value(0, 0) + y * m->Value(1, 0) + m->Value(2, 0), 1, 1e-12);
        EXPECT_NEAR(x * m->Value(0, 1) + y * m->Value(1, 1) + m->Value(2, 1), 2, 1e-12);

        Ref<ICoordinatesD> origin = CoordinatesD::New(0.0, 0.0, 0.0, Axes::aXYZ);
        ExpectNear(ValuesOf(Rotation::New(0.0, 0.0, quarter, origin)
                                ->Rotate(CoordinatesD::New(1.0, 0.0, 0.0, Axes::aXYZ))),
                   {0, 1, 0});
        // About X first, then Z: y goes to z, and stays there.
        ExpectNear(ValuesOf(Rotation::New(quarter, 0.0, quarter, origin)
                                ->Rotate(CoordinatesD::New(0.0, 1.0, 0.0, Axes::aXYZ))),
                   {0, 0, 1});
        Ref<IRotation> fromMatrix = Rotation::New(turn->Matrix());
        ExpectNear(ValuesOf(fromMatrix->Center()), {0, 0});

        EXPECT_EQ(RaisedMessage([] {
                      Rotation::New(Math::MatrixD::New(2, 2, {1, 0, 0, 2}));
                  }),
                  L"The matrix is not a rotation");
        EXPECT_EQ(RaisedMessage([&] { Rotation::New(1.0, origin); }),
                  L"A rotation in 2 dimensions needs a center of 2 axes, not 'XYZ'");
    });
}

TEST(WeightedCoordinates, CarryAWeightBesideTheirValues)
{
    InChildProcess([] {
        StartBasic();
        Ref<IWeightedCoordinates> p =
            WeightedCoordinates::New(std::int64_t(3), std::int64_t(4), 0.5, Axes::aXYB);
        EXPECT_EQ(p->Y(), 4);
        EXPECT_EQ(p->B(), 0);
        EXPECT_DOUBLE_EQ(p->Weight(), 0.5);
        Ref<IWeightedCoordinates> all = WeightedCoordinates::New(1, 2, 3, 4, 5, 2.0);
        EXPECT_EQ(all->Axes(), Axes::aXYZTB);
        EXPECT_EQ(all->Value(aT), 4);

        Ref<IWeightedCoordinates> copy(Ref<System::ICloneable>(p)->Clone());
        EXPECT_NE(copy.Get(), p.Get());
        EXPECT_TRUE(System::Equals(copy, p));
        copy->SetWeight(1);
        EXPECT_FALSE(System::Equals(copy, p));

        Ref<IWeightedCoordinatesCollection> points =
            WeightedCoordinatesCollection::New(std::vector<Ref<IWeightedCoordinates>>{p, copy});
        EXPECT_DOUBLE_EQ(points->WeightSum(), 1.5);
        EXPECT_EQ(points->ToVector()[1].Get(), copy.Get());
    });
}

} // namespace Quilon_::Tests::KernelTests
