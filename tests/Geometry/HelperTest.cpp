// The geometry helpers: flat indexes and locations, bounds of point sets
// and of mapped boxes, homogeneous matrices, printing.
#include "Quilon_/Geometry/Helper.h"

#include "../Support/BasicLibrary.h"
#include "../Support/CoordinateValues.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

namespace Quilon_::Tests::GeometryHelper {

using namespace Quilon_::Geometry;
using System::Ref;
using Int = std::int64_t;

template <class B>
void ExpectBox(const Ref<B>& box, const std::vector<double>& lower, const std::vector<double>& upper)
{
    const auto actualLower = ValuesOf(box->Lower());
    const auto actualUpper = ValuesOf(box->Upper());
    ASSERT_EQ(actualLower.size(), lower.size());
    ASSERT_EQ(actualUpper.size(), upper.size());
    for (std::size_t i = 0; i < lower.size(); ++i) {
        EXPECT_NEAR(actualLower[i], lower[i], 1e-12) << "lower " << i;
        EXPECT_NEAR(actualUpper[i], upper[i], 1e-12) << "upper " << i;
    }
}

TEST(GeometryHelper, IndexAndLocationRoundTripFirstAxisFastest)
{
    InChildProcess([] {
        StartBasic();
        struct Case {
            Ref<IBox> box;
            std::vector<Int> strides;
            Int count;
        };
        const Case cases[] = {
            {Box::New(0, 0, 0, 4, 3, 2, Axes::aXYZ), {1, 4, 12}, 24},
            {Box::New(1, -2, 3, 4, 1, 5, Axes::aXYZ), {1, 3, 9}, 18},
            {Box::New(2, -1, 6, 2, Axes::aXY), {1, 4}, 12},
            {Box::New(Coordinates::New(5, 1, Axes(aX | aB)), Coordinates::New(8, 4, Axes(aX | aB))),
             {1, 3},
             9},
        };
        for (const Case& c : cases) {
            const Ref<ICoordinates> strides = Helper::CumulatedSize(c.box);
            EXPECT_EQ(ValuesOf(strides), c.strides);
            EXPECT_EQ(strides->Axes(), c.box->Axes());
            for (Int index = 0; index < c.count; ++index) {
                const Ref<ICoordinates> location = Helper::Location(index, c.box, strides);
                ASSERT_TRUE(Box::Contains(c.box, Box::New(location, Coordinates::Add(location, 1)))) << index;
                ASSERT_EQ(Helper::Index(location, c.box, strides), index);
            }
        }

        const Ref<IBox> box = cases[0].box;
        const Ref<ICoordinates> strides = Helper::CumulatedSize(box);
        EXPECT_EQ(Helper::Index(Coordinates::New(1, 1, 1, Axes::aXYZ), box, strides), 17);
        EXPECT_EQ(ValuesOf(Helper::Location(17, cases[1].box, Helper::CumulatedSize(cases[1].box))),
                  (std::vector<Int>{3, 0, 4}))
            << "the lower corner is added in";
    });
}

TEST(GeometryHelper, IndexRefusesLocationsOutsideTheBox)
{
    InChildProcess([] {
        StartBasic();
        const Ref<IBox> box = Box::New(1, 2, 4, 5, Axes::aXY);
        const Ref<ICoordinates> strides = Helper::CumulatedSize(box);
        const std::pair<Ref<ICoordinates>, bool> cases[] = {
            {Coordinates::New(1, 2, Axes::aXY), true},  {Coordinates::New(3, 4, Axes::aXY), true},
            {Coordinates::New(4, 2, Axes::aXY), false}, {Coordinates::New(1, 5, Axes::aXY), false},
            {Coordinates::New(0, 2, Axes::aXY), false}, {Coordinates::New(1, 1, Axes::aXY), false},
        };
        for (const auto& [location, inside] : cases) {
            const std::wstring message = inside ? std::wstring() : L"Location is out of bounds";
            std::wstring raised;
            try {
                Helper::Index(location, box, strides);
            } catch (const System::Pointer<System::IException, 1>& failure) {
                raised = failure->Message();
            }
            EXPECT_EQ(raised, message) << System::ToAnsi(Helper::ToString(location, false));
        }
        EXPECT_EQ(RaisedMessage([&] { Helper::Index(Coordinates::New(1, 2, 0, Axes::aXYB), box, strides); }),
                  L"Axes mismatch (XYB != XY)");
    });
}

TEST(GeometryHelper, BoundsOfPointSets)
{
    InChildProcess([] {
        StartBasic();
        // Integer bounds end one past the largest point.
        ExpectBox(Helper::Bounds(CoordinatesCollection::New(std::vector{Coordinates::New(2, 3, Axes::aXY)})),
                  {2, 3}, {3, 4});
        ExpectBox(Helper::Bounds(CoordinatesCollection::New(std::vector{Coordinates::New(2, 3, Axes::aXY),
                                                                        Coordinates::New(-1, 7, Axes::aXY),
                                                                        Coordinates::New(0, 5, Axes::aXY)})),
                  {-1, 3}, {3, 8});
        // Real bounds end at the largest point.
        ExpectBox(
            Helper::Bounds(CoordinatesDCollection::New(std::vector{CoordinatesD::New(2.0, 3.0, Axes::aXY)})),
            {2, 3}, {2, 3});
        ExpectBox(Helper::Bounds(CoordinatesFCollection::New(std::vector{
                      CoordinatesF::New(1.5f, 0, Axes::aXY), CoordinatesF::New(-1, 2, Axes::aXY)})),
                  {-1, 0}, {1.5, 2});
        const Ref<IWeightedCoordinatesCollection> kernel = WeightedCoordinatesCollection::New();
        kernel->Add(WeightedCoordinates::New(Int(-1), Int(0), 0.5, Axes::aXY));
        kernel->Add(WeightedCoordinates::New(Int(1), Int(-2), 0.5, Axes::aXY));
        ExpectBox(Helper::Bounds(kernel), {-1, -2}, {2, 1});

        const Ref<ICoordinatesCollection> empty = CoordinatesCollection::New();
        EXPECT_FALSE(RaisedMessage([&] { Helper::Bounds(empty); }).empty());
    });
}

TEST(GeometryHelper, MatricesMapRowVectorsHomogeneously)
{
    InChildProcess([] {
        StartBasic();
        const std::vector<Ref<ICoordinatesD>> unit{CoordinatesD::New(1.0, 1.0, Axes::aXY)};
        ExpectBox(Helper::Bounds(unit, Helper::TranslationMatrix(CoordinatesD::New(5.0, 7.0, Axes::aXY))),
                  {6, 8}, {6, 8});
        const std::vector<Ref<ICoordinatesD>> point{CoordinatesD::New(2.0, 3.0, Axes::aXY)};
        ExpectBox(Helper::Bounds(point, Helper::ShearMatrix(CoordinatesD::New(0.5, 2.0, Axes::aXY))),
                  {3.5, 7}, {3.5, 7});
        ExpectBox(Helper::Bounds(point, Helper::ScaleMatrix(CoordinatesD::New(2.0, -1.0, Axes::aXY))),
                  {4, -3}, {4, -3});

        const Ref<Math::IMatrixD> uniform = Helper::ScaleMatrix(3, 2.0);
        EXPECT_EQ(uniform->Values(), (std::vector<double>{2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 1}));
        EXPECT_EQ(Helper::TranslationMatrix(CoordinatesD::New(5.0, 7.0, Axes::aXY))->Values(),
                  (std::vector<double>{1, 0, 0, 0, 1, 0, 5, 7, 1}));

        // Integer points are mapped as doubles; a band value is dropped.
        const std::vector<Ref<ICoordinates>> pixels{Coordinates::New(1, 2, 9, Axes::aXYB),
                                                    Coordinates::New(-3, 4, 0, Axes::aXYB)};
        const Ref<IBoxD> mapped = Helper::Bounds(pixels, Helper::ScaleMatrix(2, 0.5));
        EXPECT_EQ(mapped->Axes(), Axes::aXYB);
        ExpectBox(mapped, {-1.5, 1, 0}, {0.5, 2, 0});
    });
}

TEST(GeometryHelper, BoundsOfMappedBoxes)
{
    InChildProcess([] {
        StartBasic();
        // Whatever the band extent, the identity keeps x and y.
        const Ref<IBoxD> bands = BoxD::New(CoordinatesD::New(1.0, 2.0, 0.0, Axes::aXYB),
                                           CoordinatesD::New(4.0, 6.0, 3.0, Axes::aXYB));
        ExpectBox(Helper::Bounds(bands, Math::MatrixD::Identity(3)), {1, 2, 0}, {4, 6, 0});

        // A quarter turn in the plane: (x, y) -> (-y, x) in row-vector form.
        const Ref<Math::IMatrixD> turn = Math::MatrixD::New(Int(3), Int(3), {0, 1, 0, -1, 0, 0, 0, 0, 1});
        ExpectBox(Helper::Bounds(BoxD::New(1.0, 2.0, 4.0, 6.0, Axes::aXY), turn), {-6, 1}, {-2, 4});

        // In 3-D all eight corners count: a shear in x by z.
        const Ref<Math::IMatrixD> shear = Math::MatrixD::Identity(4);
        shear->SetValue(2, 0, 1.0);
        ExpectBox(Helper::Bounds(BoxD::New(0.0, 0.0, 0.0, 1.0, 1.0, 2.0, Axes::aXYZ), shear), {0, 0, 0},
                  {3, 1, 2});
    });
}

TEST(GeometryHelper, UnsupportedInputIsReportedWithItsMessage)
{
    InChildProcess([] {
        StartBasic();
        const Ref<Math::IMatrixD> identity = Math::MatrixD::Identity(3);
        EXPECT_EQ(RaisedMessage([&] { Helper::Bounds(std::vector<Ref<ICoordinatesD>>{}, identity); }),
                  L"Vector of coordinates should not be empty");
        EXPECT_EQ(RaisedMessage([&] {
                      Helper::Bounds(std::vector<Ref<ICoordinates>>{Coordinates::New(1, 2, Axes(aX | aB))},
                                     identity);
                  }),
                  L"Function not implemented for coordinates of dimension 1");
        EXPECT_EQ(RaisedMessage([&] { Helper::Bounds(BoxD::New(Axes::aXYZT), Math::MatrixD::Identity(5)); }),
                  L"Dimension not supported in Quilon_::Geometry::Helper::Multiply: 4");
        EXPECT_FALSE(RaisedMessage([] { Helper::ShearMatrix(CoordinatesD::New(1.0, Axes(aX))); }).empty());
    });
}

TEST(GeometryHelper, ToStringSkipsTheBandOnRequest)
{
    InChildProcess([] {
        StartBasic();
        const Ref<ICoordinates> c = Coordinates::New(1, 2, 3, Axes::aXYB);
        EXPECT_EQ(Helper::ToString(c, true), L"1, 2");
        EXPECT_EQ(Helper::ToString(c, false), L"1, 2, 3");
        EXPECT_EQ(Helper::ToString(Coordinates::New(-4, Axes(aB)), true), L"");
        EXPECT_EQ(Helper::ToString(Coordinates::New(Axes(0)), false), L"");
    });
}

} // namespace Quilon_::Tests::GeometryHelper
