// The Axes value class and the texts of the axes: computed by the core
// alone, with the quirks that callers compiled against it rely on.
#include "Quilon_/Geometry/Axes.h"
#include "Quilon_/Geometry/Coordinates.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::GeometryAxes {

using namespace Quilon_::Geometry;

using AxesTest = RaisingTest;

TEST_F(AxesTest, CountsEveryBitButShowsOnlyTheNamedAxes)
{
    struct Case {
        unsigned char mask;
        std::int64_t count;
        std::vector<AxisEnum> axes;
        const wchar_t* text;
    };
    const Case cases[] = {
        {0, 0, {}, L""},
        {0x20, 1, {}, L""},
        {Axes::aYZ, 1, {aZ}, L"Z"},
        {Axes::aXYB, 3, {aX, aY, aB}, L"XYB"},
        {Axes::aXYZTB, 5, {aX, aY, aZ, aT, aB}, L"XYZTB"},
        {0xFF, 8, {aX, aY, aZ, aT, aB}, L"XYZTB"},
    };
    for (const Case& c : cases) {
        const Axes axes(c.mask);
        EXPECT_EQ(axes.AxisCount(), c.count) << int(c.mask);
        EXPECT_EQ(Coordinates::AxisCount(axes), c.count) << int(c.mask);
        EXPECT_EQ(axes.ToVector(), c.axes) << int(c.mask);
        EXPECT_EQ(axes.ToString(), c.text) << int(c.mask);
    }
}

TEST_F(AxesTest, ConstantsKeepTheirValues)
{
    const std::pair<Axes, int> constants[] = {
        {Axes::aXY, 3},   {Axes::aXZ, 5},    {Axes::aYZ, 4},    {Axes::aXYB, 19},   {Axes::aXYZ, 7},
        {Axes::aXYT, 11}, {Axes::aXYZT, 15}, {Axes::aXYZB, 23}, {Axes::aXYZTB, 31},
    };
    for (const auto& [axes, value] : constants)
        EXPECT_EQ(static_cast<unsigned char>(axes), value);
    static_assert(sizeof(Axes) == 1);
}

TEST_F(AxesTest, AxisRefusesOnlyAnIndexBeyondTheCount)
{
    const Axes axes(aX | aY);
    EXPECT_EQ(axes.Axis(0), aX);
    EXPECT_EQ(axes.Axis(1), aY);
    EXPECT_NO_THROW(axes.Axis(2));
    EXPECT_NO_THROW(axes.Axis(-1));
    EXPECT_EQ(RaisedMessage([&] { axes.Axis(3); }), L"Axis index is out of range: '3' (maximum is '2')");
    EXPECT_EQ(RaisedMessage([] { Axes(0x20).Axis(1); }), L"Axis index is out of range: '1' (maximum is '0')");
}

TEST_F(AxesTest, ComparesTheWholeByteAndBoxesAsItself)
{
    EXPECT_EQ(Axes(aX | aY), Axes::aXY);
    EXPECT_TRUE(Axes(aX) == aX);
    EXPECT_TRUE(Axes::aXY != 3 + 0x20);
    Axes axes = Axes::aXYZ;
    axes = aB;
    EXPECT_EQ(axes, Axes(16));
    const System::Any boxed = System::ToAny(Axes::aXYB);
    EXPECT_EQ(boxed.CastTo<Axes>(), Axes::aXYB);
}

TEST_F(AxesTest, AxisNamesFallBackToTheNumber)
{
    EXPECT_EQ(System::ToString(aX), L"aX");
    EXPECT_EQ(System::ToString(aB), L"aB");
    EXPECT_EQ(System::ToString(static_cast<AxisEnum>(6)), L"6");
}

TEST_F(AxesTest, AxesToStringIsTheImplementationLibrarys)
{
    InChildProcess([] {
        EXPECT_FALSE(AxesToStringFunction1IsImplemented());
        EXPECT_EQ(RaisedMessage([] { AxesToString(3); }), L"Function has no implementation");
        StartBasic();
        EXPECT_EQ(AxesToString(Axes::aXYB), L"XYB");
    });
}

} // namespace Quilon_::Tests::GeometryAxes
