// Coordinates of the three kinds as the reference library makes them, and
// the registered functions that compute with them.
#include "Quilon_/Basic/Geometry/Coordinates.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/Helper.h"
#include "Quilon_/System/Equatable.h"

#include "../Support/BasicLibrary.h"
#include "../Support/CoordinateValues.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <functional>

namespace Quilon_::Tests::GeometryCoordinates {

using namespace Quilon_::Geometry;
using System::Ref;
using Int = std::int64_t;

TEST(Coordinates, FunctionsFailUntilALibraryRegistersThem)
{
    InChildProcess([] {
        EXPECT_FALSE(Coordinates::AddFunction2IsImplemented());
        EXPECT_EQ(RaisedMessage([] { Coordinates::New(Axes::aXY); }).empty(), false);
        StartBasic();
        const Ref<ICoordinates> a = Coordinates::New(1, 2, Axes::aXY);
        EXPECT_EQ(ValuesOf(Coordinates::Add(a, a)), (std::vector<Int>{2, 4}));
        const bool implemented[] = {
            Coordinates::ToCoordinatesDFunction1IsImplemented(),
            Coordinates::MultiplyFunction2IsImplemented(),
            CoordinatesF::MultiplyFunction3IsImplemented(),
            CoordinatesF::ToCoordinatesFunction1IsImplemented(),
            CoordinatesD::NormalizeFunction1IsImplemented(),
            CoordinatesD::MultiplyFunction2IsImplemented(),
        };
        for (bool registered : implemented)
            EXPECT_TRUE(registered);
    });
}

TEST(Coordinates, ValuesByPositionAndByAxis)
{
    InChildProcess([] {
        StartBasic();
        const Ref<ICoordinates> c = Coordinates::New(1, 2, 3, Axes::aXYB);
        EXPECT_EQ(c->Axes(), Axes::aXYB);
        EXPECT_EQ(c->AxisCount(), 3);
        EXPECT_EQ(c->B(), 3);
        EXPECT_EQ(c->Value(aY), 2);
        EXPECT_EQ(c->IndexOfAxis(aB), 2);
        EXPECT_LT(c->IndexOfAxis(aZ), 0);
        c->SetValue(aB, 7);
        EXPECT_EQ(c->Value(Int(2)), 7);
        EXPECT_EQ(RaisedMessage([&] { c->Z(); }), L"Coordinates of axes 'XYB' have no axis aZ");
        EXPECT_EQ(RaisedMessage([&] { c->Value(Int(3)); }),
                  L"Coordinate index is out of range: '3' (axis count is '3')");
        EXPECT_EQ(RaisedMessage([] { Coordinates::New(1, 2, 3, Axes::aXY); }),
                  L"3 values given for the axes 'XY'");

        // Changing the axes keeps the values of those that stay.
        c->SetAxes(Axes::aXYZ);
        EXPECT_EQ(ValuesOf(c), (std::vector<Int>{1, 2, 0}));
        EXPECT_EQ(ValuesOf(Coordinates::New(1, 2, 3, 4, 5)), (std::vector<Int>{1, 2, 3, 4, 5}));
        EXPECT_EQ(Coordinates::New(1, 2, 3, 4, 5)->Axes(), Axes::aXYZTB);
        EXPECT_EQ(ValuesOf(CoordinatesD::New(0.5, Axes::aXY)), (std::vector<double>{0.5, 0}));
    });
}

TEST(Coordinates, ClonesAreEqualAndIndependent)
{
    InChildProcess([] {
        StartBasic();
        const Ref<ICoordinatesF> original = CoordinatesF::New(1.5f, 2.5f, Axes::aXY);
        const System::Pointer<ICoordinatesF, 2> copy = original;
        EXPECT_FALSE(copy == original);
        EXPECT_TRUE(System::Equals(copy, original));
        copy->SetX(9);
        EXPECT_EQ(original->X(), 1.5f);
        EXPECT_FALSE(System::Equals(copy, original));
        EXPECT_FALSE(System::Equals(original, CoordinatesD::New(1.5, 2.5, Axes::aXY))) << "another kind";
        EXPECT_FALSE(System::Equals(Coordinates::New(0, Axes(aX)), Coordinates::New(0, Axes(aY))));
    });
}

TEST(Coordinates, IntegerFunctionsWorkElementByElement)
{
    InChildProcess([] {
        StartBasic();
        using C = Ref<ICoordinates>;
        const C a = Coordinates::New(6, -4, 3, Axes::aXYZ);
        const C b = Coordinates::New(2, 5, -3, Axes::aXYZ);
        struct Case {
            const char* name;
            std::function<C()> call;
            std::vector<Int> expected;
        };
        const Case cases[] = {
            {"Add", [&] { return Coordinates::Add(a, b); }, {8, 1, 0}},
            {"Add scalar", [&] { return Coordinates::Add(a, 1); }, {7, -3, 4}},
            {"Subtract", [&] { return Coordinates::Subtract(a, b); }, {4, -9, 6}},
            {"Subtract scalar", [&] { return Coordinates::Subtract(a, 2); }, {4, -6, 1}},
            {"Multiply", [&] { return Coordinates::Multiply(a, b); }, {12, -20, -9}},
            {"Multiply by a double rounds ties down",
             [&] { return Coordinates::Multiply(a, 0.5); },
             {3, -2, 1}},
            {"Divide truncates", [&] { return Coordinates::Divide(a, b); }, {3, 0, -1}},
            {"Min", [&] { return Coordinates::Min(a, b); }, {2, -4, -3}},
            {"Max", [&] { return Coordinates::Max(a, b); }, {6, 5, 3}},
            {"Abs", [&] { return Coordinates::Abs(a); }, {6, 4, 3}},
            {"Minus", [&] { return Coordinates::Minus(a); }, {-6, 4, -3}},
            {"CrossProduct", [&] { return Coordinates::CrossProduct(a, b); }, {-3, 24, 38}},
            {"Copy drops and adds axes", [&] { return Coordinates::Copy(a, aX | aZ | aB); }, {6, 3, 0}},
        };
        for (const Case& c : cases)
            EXPECT_EQ(ValuesOf(c.call()), c.expected) << c.name;
        EXPECT_EQ(ValuesOf(a), (std::vector<Int>{6, -4, 3})) << "arguments stay as they were";
        EXPECT_EQ(Coordinates::Copy(a, aX | aZ | aB)->Axes(), Axes(aX | aZ | aB));
        EXPECT_EQ(Coordinates::Product(a), -72);
        EXPECT_EQ(Coordinates::DotProduct(a, b), -17);
        EXPECT_FALSE(Coordinates::IsNull(a));
        Coordinates::Set(a, 0);
        EXPECT_TRUE(Coordinates::IsNull(a));
        EXPECT_EQ(ValuesOf(Coordinates::ToCoordinatesD(b)), (std::vector<double>{2, 5, -3}));
    });
}

TEST(Coordinates, MismatchedArgumentsAreRefused)
{
    InChildProcess([] {
        StartBasic();
        const Ref<ICoordinates> xy = Coordinates::New(1, 2, Axes::aXY);
        const Ref<ICoordinates> xyz = Coordinates::New(1, 2, 3, Axes::aXYZ);
        EXPECT_EQ(RaisedMessage([&] { Coordinates::Add(xy, xyz); }), L"Axes mismatch (XY != XYZ)");
        EXPECT_EQ(RaisedMessage([&] { Coordinates::Min(xyz, xy); }), L"Axes mismatch (XYZ != XY)");
        EXPECT_EQ(RaisedMessage([&] { Coordinates::CrossProduct(xy, xy); }),
                  L"Cross product needs coordinates of three axes, not 2");
        EXPECT_EQ(RaisedMessage([&] { Coordinates::Divide(xy, Coordinates::New(Axes::aXY)); }),
                  L"Division by zero");
        EXPECT_EQ(RaisedMessage([&] { Helper::AssertSameAxes(xy, xyz); }), L"Axes mismatch (XY != XYZ)");
        EXPECT_NO_THROW(Helper::AssertSameAxes(xy, Coordinates::New(Axes::aXY)));
    });
}

TEST(Coordinates, RealFunctionsNormRoundAndMap)
{
    InChildProcess([] {
        StartBasic();
        const Ref<ICoordinatesD> v = CoordinatesD::New(3.0, 4.0, Axes::aXY);
        EXPECT_DOUBLE_EQ(CoordinatesD::Norm(v), 5.0);
        EXPECT_EQ(ValuesOf(CoordinatesD::Normalize(v)), (std::vector<double>{0.6, 0.8}));
        EXPECT_EQ(ValuesOf(CoordinatesD::Normalize(CoordinatesD::New(Axes::aXY))),
                  (std::vector<double>{0, 0}));
        EXPECT_FLOAT_EQ(CoordinatesF::Norm(CoordinatesF::New(3, 4, Axes::aXY)), 5.0f);

        const Ref<ICoordinatesD> half = CoordinatesD::New(2.5, -2.5, Axes::aXY);
        const std::pair<Math::RoundingMethodEnum, std::vector<Int>> roundings[] = {
            {Math::rmFloor, {2, -3}},
            {Math::rmCeiling, {3, -2}},
            {Math::rmRound, {2, -3}},
            {Math::rmToInteger, {2, -2}}};
        for (const auto& [method, expected] : roundings) {
            EXPECT_EQ(ValuesOf(CoordinatesD::ToCoordinates(half, method)), expected) << method;
            EXPECT_EQ(
                ValuesOf(CoordinatesF::ToCoordinates(CoordinatesF::New(2.5f, -2.5f, Axes::aXY), method)),
                expected)
                << method;
        }

        // A row vector through a homogeneous matrix, as the helpers map.
        const Ref<ICoordinatesD> p = CoordinatesD::New(1.0, 2.0, Axes::aXY);
        const Ref<ICoordinatesD> mapped =
            CoordinatesD::Multiply(Helper::ShearMatrix(CoordinatesD::New(3.0, 5.0, Axes::aXY)), p);
        EXPECT_EQ(ValuesOf(mapped), (std::vector<double>{7, 7}));
        EXPECT_EQ(
            ValuesOf(CoordinatesF::Multiply(Helper::TranslationMatrix(CoordinatesD::New(5.0, 7.0, Axes::aXY)),
                                            CoordinatesF::New(1, 1, Axes::aXY))),
            (std::vector<float>{6, 8}));
        EXPECT_EQ(RaisedMessage([&] { CoordinatesD::Multiply(Math::MatrixD::New(Int(2), Int(2)), p); }),
                  L"A 2 x 2 matrix cannot map coordinates of 2 axes");
    });
}

TEST(Coordinates, CollectionsHoldTheGivenObjects)
{
    InChildProcess([] {
        StartBasic();
        const Ref<ICoordinatesD> a = CoordinatesD::New(1.0, Axes(aX));
        const Ref<ICoordinatesD> b = CoordinatesD::New(2.0, Axes(aX));
        const Ref<ICoordinatesDCollection> points = CoordinatesDCollection::New(std::vector{a, b});
        ASSERT_EQ(points->Count(), 2);
        EXPECT_TRUE(points->Item(1) == b);
        const std::vector<Ref<ICoordinatesD>> items = points->ToVector();
        ASSERT_EQ(items.size(), 2u);
        EXPECT_TRUE(items[0] == a);
        EXPECT_TRUE(System::ToAny(items).CastTo<std::vector<Ref<ICoordinatesD>>>() == items);
        const std::vector<std::pair<Ref<ICoordinatesD>, Ref<ICoordinatesD>>> segments{{a, b}};
        EXPECT_TRUE(System::ToAny(segments) == System::ToAny(segments));
        const Ref<ICoordinatesCollection> empty = CoordinatesCollection::New();
        empty->Add(Coordinates::New(Axes::aXY));
        EXPECT_EQ(empty->Count(), 1);
    });
}

} // namespace Quilon_::Tests::GeometryCoordinates
