// Shapes as the core holds them: the enumerations and their texts, the
// polygon functions before a library fills them, the event args that the
// core makes itself, and the shapes' events reached through the reference
// library.
#include "Quilon_/Geometry/ShapeSource.h"
#include "Quilon_/Geometry/ThreeD/Line.h"
#include "Quilon_/Geometry/ThreeD/PointSet.h"
#include "Quilon_/Geometry/TwoD/Line.h"
#include "Quilon_/Geometry/TwoD/MultiPolygon.h"
#include "Quilon_/Geometry/TwoD/Point.h"
#include "Quilon_/System/Type.h"

#include "../Support/BasicLibrary.h"
#include "../Support/InChildProcess.h"
#include "../Support/KernelDoubles.h"
#include "../Support/Raised.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace Quilon_::Tests::Shapes {

using namespace Quilon_::Geometry;
using System::Ref;

TEST(ShapeEnumerations, PrintTheirNamesAndFallBackAsDocumented)
{
    const std::vector<std::pair<std::wstring, std::wstring>> texts = {
        {System::ToString(TwoD::EditingModeEnum(0)), L"emNone"},
        {System::ToString(TwoD::EditingModeEnum(3)), L"emRotate"},
        {System::ToString(TwoD::EditingModeEnum(4)), L"emFineEdit"},
        {System::ToString(TwoD::EditingModeEnum(5)), L"5"},
        {System::ToString(TwoD::EditingModeEnum(-1)), L"-1"},
        {System::ToString(TwoD::cn4Connected), L"cn4Connected"},
        {System::ToString(TwoD::ConnectivityEnum(6)), L"6"},
        {System::ToString(sseReset), L"sseReset"},
        {System::ToString(ShapeSourceEventTypeEnum(9)), L""},
    };
    for (const auto& [actual, expected] : texts)
        EXPECT_EQ(actual, expected);
}

TEST(ShapeEnumerations, ConnectivityBoxesAndItsDefaultIsProcessWide)
{
    EXPECT_EQ(System::ToAny(TwoD::cn4Connected).CastTo<TwoD::ConnectivityEnum>(), TwoD::cn4Connected);
    InChildProcess([] {
        EXPECT_EQ(TwoD::LineF::DefaultConnectivity(), TwoD::cn8Connected);
        TwoD::LineF::SetDefaultConnectivity(TwoD::cn4Connected);
        std::thread([] { EXPECT_EQ(TwoD::LineF::DefaultConnectivity(), TwoD::cn4Connected); }).join();
    });
}

TEST(ShapeFunctions, ReportMissingImplementationsUntilALibraryRegistersThem)
{
    InChildProcess([] {
        Ref<TwoD::IPolygonF> polygon;
        Ref<TwoD::IMultiPolygonF> region;
        namespace MP = TwoD::MultiPolygonF;
        const std::vector<std::function<void()>> calls = {
            [&] { TwoD::PolygonF::Area(polygon); },
            [&] { TwoD::PolygonF::ConvexHull(polygon); },
            [&] { MP::Area(region); },
            [&] { MP::Contains(region, Drawing::Point<float>(1, 1)); },
            [&] { MP::Difference(polygon, polygon); },
            [&] { MP::Difference(region, region); },
            [&] { MP::Intersection(polygon, polygon); },
            [&] { MP::Intersection(region, region); },
            [&] { MP::Union(polygon, polygon); },
            [&] { MP::Union(region, polygon); },
            [&] { MP::Union(polygon, region); },
            [&] { MP::Union(region, region); },
            [&] { ThreeD::Shape::Intersection(Ref<ThreeD::IShape>(), Ref<ThreeD::ILineF>()); },
        };
        for (std::size_t i = 0; i < calls.size(); ++i)
            EXPECT_EQ(RaisedMessage(calls[i]), L"Function has no implementation") << "call " << i;
        EXPECT_FALSE(TwoD::PolygonF::AreaFunction1IsImplemented());
        EXPECT_FALSE(MP::UnionFunction4IsImplemented());

        // The reference library fills what it computes and leaves the rest.
        StartBasic();
        EXPECT_TRUE(TwoD::PolygonF::AreaFunction1IsImplemented());
        EXPECT_TRUE(TwoD::PolygonF::ConvexHullFunction1IsImplemented());
        EXPECT_TRUE(MP::AreaFunction1IsImplemented());
        EXPECT_TRUE(MP::ContainsFunction1IsImplemented());
        EXPECT_EQ(RaisedMessage([&] { MP::Union(region, region); }), L"Function has no implementation");
    });
}

TEST(ShapeTypes, AreRegisteredUnderTheirFullNames)
{
    const std::vector<std::pair<const System::Type*, std::wstring>> types = {
        {&IShapeND::GetType(), L"Quilon_::Geometry::IShapeND"},
        {&IShapeSet::GetType(), L"Quilon_::Geometry::IShapeSet"},
        {&TwoD::IPolygonF::GetType(), L"Quilon_::Geometry::TwoD::IPolygonF"},
        {&TwoD::ILoops::GetType(), L"Quilon_::Geometry::TwoD::ILoops"},
        {&ThreeD::IPointFSet::GetType(), L"Quilon_::Geometry::ThreeD::IPointFSet"},
        {&Drawing::IPointFCollection::GetType(), L"Quilon_::Drawing::IPointFCollection"},
    };
    for (const auto& [type, name] : types)
        EXPECT_EQ(type->Name(), name);
    EXPECT_TRUE(TwoD::IPointF::GetType().IsSubclassOf(Drawing::IDrawable::GetType()));
    EXPECT_TRUE(TwoD::IMultiPolygonF::GetType().IsSubclassOf(IShapeND::GetType()));
}

// Keeps what the shape events carry.
class CShapeListener
    : public System::Template::ObjectImpl<CShapeListener, Kernel::IThing, System::EventTarget> {
public:
    int Value() override { return 0; }
    void OnEventTargetReset() override {}
    void OnMoved(System::Interface*, Ref<IMoveEventArgs> args)
    {
        moves.emplace_back(args->Offset()->X(), args->Offset()->Y());
    }
    void OnChanged(System::Interface*, Ref<System::IEventArgs>) { ++changes; }

    std::vector<std::pair<double, double>> moves;
    int changes = 0;
};

TEST(ShapeEventArgs, AreMadeByTheCoreForEveryOverload)
{
    InChildProcess([] {
        StartBasic();
        Ref<IShapeND> point = TwoD::PointF::New(1.0f, 2.0f, Axes::aXY);
        Ref<System::IEventArgs> inner = System::EventArgs::Empty();

        Ref<IShapeSourceEventArgs> cleared = ShapeSourceEventArgs::New(sseCleared);
        EXPECT_EQ(cleared->EventType(), sseCleared);
        EXPECT_FALSE(cleared->Shape());
        Ref<IShapeSourceEventArgs> added = ShapeSourceEventArgs::New(sseAdded, point);
        EXPECT_TRUE(added->Shape() == point);
        EXPECT_FALSE(added->InnerEventArgs());
        Ref<IShapeSourceEventArgs> modified = ShapeSourceEventArgs::New(sseModified, inner);
        EXPECT_TRUE(modified->InnerEventArgs() == inner);

        Ref<ICoordinatesD> offset = CoordinatesD::New(3.0, 4.0, Axes::aXY);
        EXPECT_TRUE(MoveEventArgs::New(offset)->Offset() == offset);

        // A move reports the caller's offset, or one made for Offset(dx, dy).
        Ref<TwoD::IPointF> shape = point;
        auto* listener = new CShapeListener;
        Ref<Kernel::IThing> held(listener);
        shape->Moved() += System::NewEventHandler(listener, &CShapeListener::OnMoved);
        shape->Changed() += System::NewEventHandler(listener, &CShapeListener::OnChanged);
        shape->Move(offset);
        shape->Offset(-1.0, 0.5);
        EXPECT_EQ(listener->moves, (std::vector<std::pair<double, double>>{{3.0, 4.0}, {-1.0, 0.5}}));
        EXPECT_EQ(listener->changes, 2);
        EXPECT_EQ(shape->X(), 3.0f);
        EXPECT_EQ(shape->Y(), 6.5f);
    });
}

TEST(PointShape, IsPlacedPickedAndShownAsAPoint)
{
    InChildProcess([] {
        StartBasic();
        Ref<TwoD::IPointF> point = TwoD::PointF::New(Axes::aXY);
        point->SetPosition(CoordinatesF::New(3.0f, 4.0f, Axes::aXY));
        EXPECT_EQ(point->Position()->Y(), 4.0f);
        EXPECT_TRUE(point->HitTest(0.0, 0.0, 5.0));
        EXPECT_FALSE(point->HitTest(0.0, 0.0, 4.9));
        EXPECT_TRUE(point->Contains(CoordinatesD::New(3.0, 4.0, Axes::aXY)));
        EXPECT_DOUBLE_EQ(point->Area(), 0.0);
        EXPECT_EQ(point->Dimension(), 2);

        // Invalidated fires on a change of visibility only.
        auto* listener = new CShapeListener;
        Ref<Kernel::IThing> held(listener);
        point->Invalidated() += System::NewEventHandler(listener, &CShapeListener::OnChanged);
        point->SetVisible(true);
        point->SetVisible(false);
        point->SetVisible(false);
        EXPECT_EQ(listener->changes, 1);

        // The homogeneous row-vector convention: the last row translates.
        point->Transform(Math::MatrixD::New(3, 3, {2, 0, 0, 0, 1, 0, 1, -4, 1}));
        EXPECT_EQ(point->X(), 7.0f);
        EXPECT_EQ(point->Y(), 0.0f);
        System::Pointer<TwoD::IPointF, 2> copy = point;
        copy->SetX(0.0f);
        EXPECT_EQ(point->X(), 7.0f);
    });
}

} // namespace Quilon_::Tests::Shapes
