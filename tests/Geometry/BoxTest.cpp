// The box predicates and combinators computed in the core, on the
// reference library's boxes.
#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Basic/Tolerance.h"
#include "Quilon_/System/Equatable.h"

#include "../Support/BasicLibrary.h"
#include "../Support/CoordinateValues.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::GeometryBox {

using namespace Quilon_::Geometry;
using System::Ref;
using Int = std::int64_t;

TEST(Box, PredicatesHonourTheToleranceAtTheBoundary)
{
    InChildProcess([] {
        StartBasic();
        const double eps = Basic::DefaultTolerance;
        const Ref<IBoxD> a = BoxD::New(0.0, 0.0, 10.0, 10.0, Axes::aXY);
        struct Case {
            const char* name;
            Ref<IBoxD> b;
            bool contained;
            bool intersects;
        };
        const Case cases[] = {
            {"itself", a, true, true},
            {"inner", BoxD::New(2.0, 2.0, 3.0, 3.0, Axes::aXY), true, true},
            {"exceeds by less than eps", BoxD::New(-eps / 2, 0.0, 10.0 + eps / 2, 10.0, Axes::aXY), true,
             true},
            {"exceeds by more than eps", BoxD::New(0.0, 0.0, 10.0, 10.0 + 2 * eps, Axes::aXY), false, true},
            {"touches", BoxD::New(10.0, 0.0, 20.0, 10.0, Axes::aXY), false, false},
            {"overlaps by less than eps", BoxD::New(10.0 - eps / 2, 0.0, 20.0, 10.0, Axes::aXY), false,
             false},
            {"overlaps by more than eps", BoxD::New(10.0 - 2 * eps, 0.0, 20.0, 10.0, Axes::aXY), false, true},
            {"apart on the second axis", BoxD::New(0.0, 11.0, 10.0, 12.0, Axes::aXY), false, false},
        };
        for (const Case& c : cases) {
            EXPECT_EQ(BoxD::Contains(a, c.b), c.contained) << c.name;
            EXPECT_EQ(BoxD::Intersects(a, c.b), c.intersects) << c.name;
            EXPECT_EQ(BoxD::Intersects(c.b, a), c.intersects) << c.name;
        }

        // The tolerance is the calling thread's, integer boxes included.
        const Ref<IBox> unit = Box::New(0, 0, 1, 1, Axes::aXY);
        const Ref<IBox> larger = Box::New(0, 0, 2, 1, Axes::aXY);
        EXPECT_FALSE(Box::Contains(unit, larger));
        Math::Approximator::SetDefaultApproximator(Math::Approximator::New(1.5));
        EXPECT_TRUE(Box::Contains(unit, larger));
    });
}

TEST(Box, TouchingIntegerBoxesHaveAnEmptyIntersection)
{
    InChildProcess([] {
        StartBasic();
        const Ref<IBox> a = Box::New(0, 0, 4, 3, Axes::aXY);
        const Ref<IBox> touching = Box::New(4, 1, 8, 5, Axes::aXY);
        const Ref<IBox> empty = Box::Intersection(a, touching);
        EXPECT_EQ(empty->Axes(), Axes::aXY);
        EXPECT_EQ(ValuesOf(empty->Lower()), (std::vector<Int>{0, 0}));
        EXPECT_EQ(ValuesOf(empty->Upper()), (std::vector<Int>{0, 0}));

        const Ref<IBox> overlapping = Box::New(2, 1, 8, 5, Axes::aXY);
        const Ref<IBox> common = Box::Intersection(a, overlapping);
        EXPECT_EQ(ValuesOf(common->Lower()), (std::vector<Int>{2, 1}));
        EXPECT_EQ(ValuesOf(common->Upper()), (std::vector<Int>{4, 3}));
        EXPECT_TRUE(System::Equals(Box::Intersection(a, a), a));
        EXPECT_TRUE(Box::Contains(a, common) && Box::Contains(overlapping, common));
    });
}

TEST(Box, UnionIsANewBoxAndLeavesItsArgumentsAlone)
{
    InChildProcess([] {
        StartBasic();
        const Ref<IBox> a = Box::New(0, 0, 0, 4, 3, 2, Axes::aXYZ);
        const Ref<IBox> self = Box::Union(a, a);
        EXPECT_FALSE(self == a);
        EXPECT_TRUE(System::Equals(self, a));

        const Ref<IBox> b = Box::New(-1, 2, 1, 2, 5, 3, Axes::aXYZ);
        const Ref<IBox> both = Box::Union(a, b);
        EXPECT_EQ(ValuesOf(both->Lower()), (std::vector<Int>{-1, 0, 0}));
        EXPECT_EQ(ValuesOf(both->Upper()), (std::vector<Int>{4, 5, 3}));
        EXPECT_TRUE(System::Equals(Box::Union(b, a), both));
        EXPECT_EQ(ValuesOf(a->Upper()), (std::vector<Int>{4, 3, 2}));
        EXPECT_EQ(ValuesOf(b->Lower()), (std::vector<Int>{-1, 2, 1}));

        // No test for emptiness: an empty box's zero corners take part.
        const Ref<IBoxF> far = BoxF::New(5, 5, 6, 6, Axes::aXY);
        const Ref<IBoxF> grown = BoxF::Union(far, BoxF::New(Axes::aXY));
        EXPECT_EQ(ValuesOf(grown->Lower()), (std::vector<float>{0, 0}));
    });
}

TEST(Box, CornersAreLiveAndNormalizeWorksOnAClone)
{
    InChildProcess([] {
        StartBasic();
        const Ref<IBoxD> box = BoxD::New(4.0, 0.0, 1.0, 3.0, Axes::aXY);
        box->Upper()->SetValue(aY, 5.0);
        EXPECT_EQ(box->Upper()->Y(), 5.0);
        EXPECT_EQ(ValuesOf(box->Size()), (std::vector<double>{-3, 5}));

        const Ref<IBoxD> normalized = BoxD::Normalize(box);
        EXPECT_EQ(ValuesOf(normalized->Lower()), (std::vector<double>{1, 0}));
        EXPECT_EQ(ValuesOf(normalized->Upper()), (std::vector<double>{4, 5}));
        EXPECT_EQ(box->Lower()->X(), 4.0) << "the argument stays as it was";

        // A box keeps copies of the corners it is given.
        const Ref<ICoordinatesD> corner = CoordinatesD::New(9.0, 9.0, Axes::aXY);
        box->SetUpper(corner);
        corner->SetX(0);
        EXPECT_EQ(box->Upper()->X(), 9.0);
        EXPECT_EQ(RaisedMessage([&] { box->SetLower(CoordinatesD::New(Axes::aXYZ)); }),
                  L"Axes mismatch (XY != XYZ)");
    });
}

TEST(Box, RoundAppliesTheMethodToBothCorners)
{
    InChildProcess([] {
        StartBasic();
        const Ref<IBoxD> box = BoxD::New(0.5, 1.5, 2.5, 3.5, Axes::aXY);
        const std::tuple<Math::RoundingMethodEnum, std::vector<Int>, std::vector<Int>> cases[] = {
            {Math::rmFloor, {0, 1}, {2, 3}},
            {Math::rmCeiling, {1, 2}, {3, 4}},
            {Math::rmRound, {0, 1}, {2, 3}},
        };
        for (const auto& [method, lower, upper] : cases) {
            const Ref<IBox> rounded = BoxD::Round(box, method);
            EXPECT_EQ(ValuesOf(rounded->Lower()), lower) << method;
            EXPECT_EQ(ValuesOf(rounded->Upper()), upper) << method;
            EXPECT_EQ(ValuesOf(BoxF::Round(BoxF::New(0.5f, 1.5f, 2.5f, 3.5f, Axes::aXY), method)->Upper()),
                      upper);
        }
    });
}

} // namespace Quilon_::Tests::GeometryBox
