// The value classes of the drawing model: their arithmetic and their trip
// through Any.
#include "Quilon_/Drawing/Color.h"
#include "Quilon_/Drawing/Rectangle.h"
#include "Quilon_/Drawing/SizeCollection.h"
#include "Quilon_/Drawing/Transform.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>

namespace Quilon_::Tests::DrawingValues {

using namespace Quilon_::Drawing;

using DrawingValuesTest = RaisingTest;

template <class T>
void ExpectRoundTrip(const T& value)
{
    const System::Any boxed = System::ToAny(value);
    EXPECT_TRUE(boxed.CastTo<T>() == value) << typeid(T).name();
    EXPECT_TRUE(boxed == System::ToAny(value)) << typeid(T).name();
}

TEST_F(DrawingValuesTest, EveryValueClassRoundTripsThroughAny)
{
    ExpectRoundTrip(Color(1, 2, 3, 4));
    ExpectRoundTrip(Size<int>(640, 480));
    ExpectRoundTrip(Size<float>(1.5f, 2.5f));
    ExpectRoundTrip(Size<double>(0.25, 4.0));
    ExpectRoundTrip(Rectangle<int>(1, 2, 3, 4));
    ExpectRoundTrip(Rectangle<float>(1.5f, 2, 3, 4));
    ExpectRoundTrip(Rectangle<double>(-1, -2, 3, 4));
    ExpectRoundTrip(Transform(1, 2, 3, 4, 5, 6));
    // Kinds differ by type: a float size is no int size.
    EXPECT_TRUE(RaisedMessage([] { System::ToAny(Size<float>(1, 2)).CastTo<Size<int>>(); }).size() > 0);
}

TEST_F(DrawingValuesTest, ColorPacksItsChannels)
{
    const Color c(0x12, 0x34, 0x56, 0x78);
    EXPECT_EQ(c.ToArgb(), 0x78123456u);
    EXPECT_EQ(Color::FromArgb(0x78123456u), c);
    EXPECT_EQ((std::array<int, 4>{c.A(), c.R(), c.G(), c.B()}), (std::array<int, 4>{0x78, 0x12, 0x34, 0x56}));
    EXPECT_EQ(Color(), Color::Black());
    EXPECT_TRUE(Color().IsOpaque());
    EXPECT_EQ(c.WithAlpha(255).ToArgb(), 0xFF123456u);
}

TEST_F(DrawingValuesTest, RectanglesExcludeTheirRightAndBottomEdges)
{
    const Rectangle<int> r(Point<int>(10, 20), Size<int>(30, 40));
    EXPECT_EQ(r, Rectangle<int>(10, 20, 40, 60));
    EXPECT_EQ(r.Extent(), Size<int>(30, 40));
    struct Case {
        Point<int> point;
        bool inside;
    };
    for (const Case& c : {Case{{10, 20}, true}, Case{{39, 59}, true}, Case{{40, 20}, false},
                          Case{{10, 60}, false}, Case{{9, 30}, false}})
        EXPECT_EQ(r.Contains(c.point), c.inside) << c.point.x << "," << c.point.y;

    EXPECT_EQ(r.Intersection(Rectangle<int>(30, 50, 100, 100)), Rectangle<int>(30, 50, 40, 60));
    // Touching rectangles share no pixel.
    EXPECT_TRUE(r.Intersection(Rectangle<int>(40, 20, 50, 30)).IsEmpty());
    EXPECT_EQ(r.Union(Rectangle<int>()), r);
    EXPECT_EQ(Rectangle<int>().Union(r), r);
    EXPECT_EQ(r.Union(Rectangle<int>(0, 0, 1, 1)), Rectangle<int>(0, 0, 40, 60));
    EXPECT_EQ(r.Offset(1, -1).Inflate(1, 1), Rectangle<int>(10, 18, 42, 60));
}

TEST_F(DrawingValuesTest, TransformsComposeInOrderAndInvert)
{
    const Transform scaleThenMove = Transform::Scaling(2, 3).Then(Transform::Translation(10, 0));
    const Point<double> p = scaleThenMove.Apply(Point<double>(1, 1));
    EXPECT_EQ(p, Point<double>(12, 3));
    // The other order moves first.
    EXPECT_EQ(Transform::Translation(10, 0).Then(Transform::Scaling(2, 3)).Apply(Point<double>(1, 1)),
              Point<double>(22, 3));
    EXPECT_EQ(scaleThenMove.ApplyToVector(Point<double>(1, 1)), Point<double>(2, 3));

    const Transform turn = Transform::Rotation(std::numbers::pi / 2).Then(scaleThenMove);
    const Point<double> back = turn.Inverted().Apply(turn.Apply(Point<double>(5, -7)));
    EXPECT_NEAR(back.x, 5, 1e-12);
    EXPECT_NEAR(back.y, -7, 1e-12);
    const Transform none = turn.Then(turn.Inverted());
    const double elements[] = {none.M11(), none.M12(), none.M21(), none.M22(), none.Dx(), none.Dy()};
    const double identity[] = {1, 0, 0, 1, 0, 0};
    for (int i = 0; i < 6; ++i)
        EXPECT_NEAR(elements[i], identity[i], 1e-12) << i;

    EXPECT_EQ(RaisedMessage([] { Transform::Scaling(0, 1).Inverted(); }), L"Transform is not invertible");
}

TEST_F(DrawingValuesTest, SizeCollectionSummarisesAndReorders)
{
    InChildProcess([] {
        StartBasic();
        using S = Size<int>;
        System::Ref<ISizeCollection> sizes = SizeCollection::New(std::vector<S>{{4, 1}, {1, 3}, {2, 2}});
        EXPECT_EQ(sizes->Minimum(), S(1, 1));
        EXPECT_EQ(sizes->Maximum(), S(4, 3));
        EXPECT_EQ(sizes->TotalArea(), 11);
        sizes->SortByArea(); // 4 and 4 keep their order
        EXPECT_EQ(sizes->Sizes(), (std::vector<S>{{1, 3}, {4, 1}, {2, 2}}));
        sizes->Scale(1.5);
        EXPECT_EQ(sizes->Item(0), S(2, 5)); // 1.5 and 4.5 round away from 0
        EXPECT_FALSE(sizes->RemoveRange(2, 2));
        EXPECT_TRUE(sizes->RemoveRange(1, 2));
        EXPECT_EQ(sizes->Count(), 1);
        EXPECT_EQ(SizeCollection::New()->Maximum(), S());
        EXPECT_FALSE(RaisedMessage([&] { sizes->Item(1); }).empty());
    });
}

} // namespace Quilon_::Tests::DrawingValues
