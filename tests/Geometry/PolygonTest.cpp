// Polygons and multi-polygons of the reference library, reached through
// the core's factories and registered functions: areas of known figures,
// convex hulls, containment with holes, and the shape operations that move
// and stretch a polygon through its points.
#include "Quilon_/Drawing/PointFCollection.h"
#include "Quilon_/Geometry/TwoD/MultiPolygon.h"
#include "Quilon_/Math/Matrix.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace Quilon_::Tests::Polygons {

using namespace Quilon_::Geometry;
using namespace Quilon_::Geometry::TwoD;
using Drawing::IPointFCollection;
using System::Ref;
using P = Drawing::Point<float>;
using Points = std::vector<P>;

Ref<IPointFCollection> List(const Points& points)
{
    return Drawing::PointFCollection::New(points);
}

Ref<IPolygonF> Polygon(const Points& points)
{
    return PolygonF::New(List(points), Axes::aXY);
}

Ref<IMultiPolygonF> Region(const std::vector<Points>& loops)
{
    Ref<ILoops> made = Loops::New();
    for (const Points& loop : loops)
        made->AddLoop(loop);
    return MultiPolygonF::New(made, Axes::aXY);
}

const Points square = {{0, 0}, {4, 0}, {4, 4}, {0, 4}};
const Points squareClockwise = {{0, 0}, {0, 4}, {4, 4}, {4, 0}};
const Points concaveL = {{0, 0}, {4, 0}, {4, 1}, {1, 1}, {1, 4}, {0, 4}};

TEST(PolygonArea, OfKnownFiguresWhateverTheirDirection)
{
    InChildProcess([] {
        StartBasic();
        const std::vector<std::pair<Points, double>> figures = {
            {square, 16.0},          {squareClockwise, 16.0},
            {concaveL, 7.0},         {{{0, 0}, {3, 0}, {0, 2}}, 3.0},
            {{{0, 0}, {3, 3}}, 0.0}, {{}, 0.0},
        };
        for (const auto& [points, area] : figures) {
            Ref<IPolygonF> polygon = Polygon(points);
            EXPECT_DOUBLE_EQ(PolygonF::Area(polygon), area) << points.size() << " points";
            EXPECT_DOUBLE_EQ(polygon->Area(), area);
        }
        EXPECT_DOUBLE_EQ(Polygon(square)->Perimeter(), 16.0);
    });
}

TEST(PolygonConvexHull, KeepsOnlyTheCornersCounterClockwise)
{
    InChildProcess([] {
        StartBasic();
        // An inner point, a repeated corner and a point halfway along an edge.
        const Points cluttered = {{4, 4}, {2, 2}, {0, 0}, {4, 0}, {4, 0}, {2, 0}, {0, 4}};
        const std::vector<std::pair<Points, Points>> cases = {
            {cluttered, square},
            {concaveL, {{0, 0}, {4, 0}, {4, 1}, {1, 4}, {0, 4}}},
            {{{2, 2}, {0, 0}, {1, 1}}, {{0, 0}, {2, 2}}},
            {{}, {}},
        };
        for (const auto& [points, corners] : cases) {
            Ref<IPolygonF> polygon = Polygon(points);
            Ref<IPolygonF> hull = PolygonF::ConvexHull(polygon);
            EXPECT_EQ(hull->Points()->Points(), corners) << points.size() << " points";
            EXPECT_FALSE(hull == polygon);
            EXPECT_EQ(polygon->Points()->Points(), points);
        }
    });
}

TEST(MultiPolygon, HolesAndIslandsFollowTheEvenOddRule)
{
    InChildProcess([] {
        StartBasic();
        const Points outline = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
        const Points hole = {{2, 2}, {4, 2}, {4, 4}, {2, 4}}; // same direction as the outline
        const Points island = {{2.5f, 2.5f}, {3.5f, 2.5f}, {3.5f, 3.5f}, {2.5f, 3.5f}};

        Ref<IMultiPolygonF> holed = Region({outline, hole});
        EXPECT_DOUBLE_EQ(MultiPolygonF::Area(holed), 96.0);
        EXPECT_DOUBLE_EQ(holed->Area(), 96.0);
        const std::vector<std::pair<P, bool>> probes = {
            {{1, 1}, true},  {{3, 3}, false}, {{2, 3}, true}, // on the hole's edge
            {{10, 5}, true}, {{0, 0}, true},  {{11, 5}, false}, {{5, -0.1f}, false},
        };
        for (const auto& [point, inside] : probes)
            EXPECT_EQ(MultiPolygonF::Contains(holed, point), inside) << point.x << ", " << point.y;

        Ref<IMultiPolygonF> islanded = Region({outline, hole, island});
        EXPECT_DOUBLE_EQ(MultiPolygonF::Area(islanded), 97.0);
        EXPECT_TRUE(MultiPolygonF::Contains(islanded, P(3, 3)));

        // A multi-polygon without loops covers nothing; Points() gives it one.
        Ref<IMultiPolygonF> empty = MultiPolygonF::New(Axes::aXY);
        EXPECT_DOUBLE_EQ(MultiPolygonF::Area(empty), 0.0);
        EXPECT_FALSE(MultiPolygonF::Contains(empty, P(0, 0)));
        empty->Points()->AddRange(square);
        EXPECT_DOUBLE_EQ(MultiPolygonF::Area(empty), 16.0);
    });
}

TEST(PolygonShape, MovesAndStretchesThroughItsLivePoints)
{
    InChildProcess([] {
        StartBasic();
        Ref<IPointFCollection> points = List(square);
        Ref<IPolygonF> polygon = PolygonF::New(points, Axes::aXY);
        polygon->Offset(1, 2);
        EXPECT_EQ(points->Item(0), P(1, 2));
        polygon->SetWidth(8);
        EXPECT_EQ(polygon->Left(), 1.0f);
        EXPECT_EQ(polygon->Width(), 8.0f);
        EXPECT_DOUBLE_EQ(polygon->Area(), 32.0);
        polygon->Scale(0.5, 0.5); // about the centre (5, 4)
        EXPECT_EQ(points->Points(), (Points{{3, 3}, {7, 3}, {7, 5}, {3, 5}}));

        // A policy-2 pointer copies the polygon, points included.
        System::Pointer<IPolygonF, 2> copy = polygon;
        copy->Offset(10, 0);
        EXPECT_EQ(polygon->Left(), 3.0f);
        EXPECT_EQ(copy->Left(), 13.0f);
        EXPECT_TRUE(polygon->Contains(CoordinatesD::New(3.0, 4.0, Axes::aXY)));
        EXPECT_FALSE(polygon->Contains(CoordinatesD::New(2.9, 4.0, Axes::aXY)));
    });
}

TEST(PointList, RefusesBadIndexesAndLeavesItselfUnchanged)
{
    InChildProcess([] {
        StartBasic();
        Ref<IPointFCollection> points = List({{1, 1}, {2, 2}, {3, 3}});
        EXPECT_EQ(RaisedMessage([&] { points->Item(3); }), L"Collection index is out of range (3)");
        EXPECT_EQ(RaisedMessage([&] { points->SetItem(-1, P()); }), L"Collection index is out of range (-1)");
        EXPECT_EQ(RaisedMessage([&] { points->Insert(4, P()); }), L"Index is out of range (4)");
        EXPECT_FALSE(points->RemoveRange(2, 2));
        EXPECT_FALSE(points->RemoveAt(3));
        EXPECT_EQ(points->Points(), (Points{{1, 1}, {2, 2}, {3, 3}}));

        points->Insert(3, P(0, 5)); // at Count: appends
        EXPECT_TRUE(points->RemoveRange(0, 1));
        EXPECT_EQ(points->Points(), (Points{{2, 2}, {3, 3}, {0, 5}}));
        EXPECT_EQ(points->Minimum(), P(0, 2));
        EXPECT_EQ(points->Maximum(), P(3, 5));
        EXPECT_DOUBLE_EQ(List(square)->Length(false), 12.0);
        EXPECT_DOUBLE_EQ(List(square)->Length(true), 16.0);
        EXPECT_EQ(List({})->Minimum(), P());

        // Row vectors: (x, y, 1) M, here a quarter turn and a shift by (10, 0).
        Ref<IPointFCollection> turned = List({{1, 0}, {0, 2}});
        turned->Transform(Math::MatrixD::New(3, 3, {0, 1, 0, -1, 0, 0, 10, 0, 1}));
        EXPECT_EQ(turned->Points(), (Points{{10, 1}, {8, 0}}));
    });
}

TEST(MultiPolygonLoops, KnowTheirOrientationAndCopyOnAppend)
{
    InChildProcess([] {
        StartBasic();
        Ref<ILoops> loops = Loops::New();
        loops->AddLoop(square);
        loops->AddLoop(squareClockwise);
        loops->AddLoop({{7, 7}, {8, 8}}); // degenerate
        EXPECT_DOUBLE_EQ(loops->SignedArea(0), 16.0);
        EXPECT_DOUBLE_EQ(loops->SignedArea(1), -16.0);
        EXPECT_FALSE(loops->IsClockwise(0));
        EXPECT_TRUE(loops->IsClockwise(1));
        loops->ReverseLoop(1);
        EXPECT_FALSE(loops->IsClockwise(1));
        EXPECT_EQ(loops->PointCount(), 10);
        EXPECT_EQ(loops->Maximum(), P(8, 8));

        EXPECT_EQ(loops->RemoveDegenerate(), 1);
        loops->Append(loops); // read before appending: doubles once
        EXPECT_EQ(loops->Count(), 4);
        loops->Item(2)->Move(100, 0);
        EXPECT_EQ(loops->LoopPoints(0), square); // appended loops are copies
        EXPECT_EQ(RaisedMessage([&] { loops->LoopPoints(4); }), L"Collection index is out of range (4)");

        // A cloned multi-polygon owns copies of the loops.
        Ref<IMultiPolygonF> region = MultiPolygonF::New(loops, Axes::aXY);
        System::Pointer<IMultiPolygonF, 2> copy = region;
        copy->Loops()->Item(0)->Move(0, 50);
        EXPECT_EQ(region->Loops()->LoopPoints(0), square);
        EXPECT_TRUE(copy->RemoveLoop(3));
        EXPECT_FALSE(copy->RemoveLoop(3));
        EXPECT_EQ(region->Loops()->Count(), 4);
    });
}

// Keeps the bounds that Resized reports.
struct ResizeRecorder : System::Template::ObjectImpl<ResizeRecorder, Kernel::IThing, System::EventTarget> {
    int Value() override { return 0; }
    void OnEventTargetReset() override {}
    void OnResized(System::Interface*, Ref<IResizeEventArgs> args)
    {
        Ref<ICoordinatesD> lower = args->Bounds()->Lower(), upper = args->Bounds()->Upper();
        bounds.push_back({lower->X(), lower->Y(), upper->X(), upper->Y()});
    }
    std::vector<std::vector<double>> bounds;
};

TEST(PolygonShape, ReportsBoundsAndFitsIntoBoxes)
{
    InChildProcess([] {
        StartBasic();
        Ref<IPolygonF> polygon = Polygon(concaveL);
        Ref<IBoxD> bounds = polygon->Bounds();
        EXPECT_EQ(bounds->Upper()->X(), 4.0);
        EXPECT_EQ(bounds->Upper()->Y(), 4.0);
        EXPECT_EQ(polygon->Center()->X(), 2.0);
        EXPECT_EQ(PolygonF::New(Axes::aXY)->Bounds()->Axes(), Axes::aXY);

        auto* recorder = new ResizeRecorder;
        Ref<Kernel::IThing> held(recorder);
        polygon->Resized() += System::NewEventHandler(recorder, &ResizeRecorder::OnResized);
        polygon->FitTo(BoxD::New(10.0, 20.0, 12.0, 28.0, Axes::aXY));
        EXPECT_EQ(polygon->Points()->Item(2), P(12, 22)); // (4, 1) scaled by (0.5, 2)
        EXPECT_DOUBLE_EQ(polygon->Area(), 7.0);
        polygon->SetSize(CoordinatesD::New(4.0, 4.0, Axes::aXY)); // about the lower corner
        EXPECT_EQ(recorder->bounds, (std::vector<std::vector<double>>{{10, 20, 12, 28}, {10, 20, 14, 24}}));

        // A shape without extent on an axis lands on the new lower value.
        Ref<IPolygonF> flat = Polygon({{1, 1}, {5, 1}});
        flat->FitTo(BoxD::New(0.0, 3.0, 2.0, 9.0, Axes::aXY));
        EXPECT_EQ(flat->Points()->Points(), (Points{{0, 3}, {2, 3}}));
    });
}

} // namespace Quilon_::Tests::Polygons
