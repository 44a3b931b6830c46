// The geometry and bitmap part of `quilon demo`: what a user meets first
// once the reference library is loaded. Positions and boxes computed through
// the registered functions, flat indexes of a box, a polygon's area and hull,
// a structuring element, and a bitmap laid out by its storage order.
#include "Commands.h"

#include "Quilon_/Drawing/PointFCollection.h"
#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/Helper.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Geometry/TwoD/Polygon.h"
#include "Quilon_/Images/Bitmap.h"
#include "Quilon_/Images/Format.h"
#include "Quilon_/Images/StorageOrder.h"

#include <cstdio>

namespace Quilon_::Tool {

namespace {

using namespace Quilon_::Geometry;
using System::Ref;

std::wstring Text(const Ref<ICoordinates>& c)
{
    return L"(" + Helper::ToString(c, false) + L")";
}

std::wstring Text(const Ref<IBox>& box)
{
    return Text(box->Lower()) + L"-" + Text(box->Upper());
}

void ShowCoordinatesAndBoxes()
{
    Ref<ICoordinates> a = Coordinates::New(std::int64_t(2), std::int64_t(3), Axes::aXY);
    Ref<ICoordinates> b = Coordinates::New(std::int64_t(5), std::int64_t(-1), Axes::aXY);
    std::printf("\ncoordinates and boxes of the reference library:\n");
    std::printf("  Add%ls%ls = %ls\n", Text(a).c_str(), Text(b).c_str(), Text(Coordinates::Add(a, b)).c_str());
    std::printf("  Max%ls%ls = %ls\n", Text(a).c_str(), Text(b).c_str(), Text(Coordinates::Max(a, b)).c_str());

    Ref<IBox> left = Box::New(std::int64_t(0), std::int64_t(0), std::int64_t(4), std::int64_t(3), Axes::aXY);
    Ref<IBox> right = Box::New(std::int64_t(2), std::int64_t(1), std::int64_t(6), std::int64_t(5), Axes::aXY);
    Ref<IBox> touching = Box::New(std::int64_t(4), std::int64_t(0), std::int64_t(8), std::int64_t(3), Axes::aXY);
    std::printf("  Intersection%ls, %ls = %ls\n", Text(left).c_str(), Text(right).c_str(),
                Text(Box::Intersection(left, right)).c_str());
    std::printf("  Union = %ls\n", Text(Box::Union(left, right)).c_str());
    std::printf("  boxes that share a face intersect: %s\n", Box::Intersects(left, touching) ? "yes" : "no");

    Ref<IBox> volume = Box::New(std::int64_t(10), std::int64_t(20), std::int64_t(30), std::int64_t(14),
                                std::int64_t(23), std::int64_t(32), Axes::aXYZ);
    Ref<ICoordinates> strides = Helper::CumulatedSize(volume);
    Ref<ICoordinates> location = Coordinates::New(std::int64_t(11), std::int64_t(21), std::int64_t(31), Axes::aXYZ);
    const std::int64_t index = Helper::Index(location, volume, strides);
    std::printf("  in the box %ls: strides %ls, Index%ls = %lld, Location(%lld) = %ls\n", Text(volume).c_str(),
                Text(strides).c_str(), Text(location).c_str(), static_cast<long long>(index),
                static_cast<long long>(index), Text(Helper::Location(index, volume, strides)).c_str());
}

void ShowShapes()
{
    using Drawing::Point;
    Ref<Drawing::IPointFCollection> points = Drawing::PointFCollection::New(
        std::vector<Point<float>>{{0, 0}, {4, 0}, {4, 3}, {2, 1}, {0, 3}});
    Ref<TwoD::IPolygonF> polygon = TwoD::PolygonF::New(points, Axes::aXY);
    Ref<TwoD::IPolygonF> hull = TwoD::PolygonF::ConvexHull(polygon);
    std::printf("\nshapes:\n  polygon (0 0, 4 0, 4 3, 2 1, 0 3): area %g, its convex hull %g\n",
                TwoD::PolygonF::Area(polygon), TwoD::PolygonF::Area(hull));
    for (double radius : {1.0, 2.0, 3.0})
        std::printf("  disk of radius %g: %lld offsets\n", radius,
                    static_cast<long long>(StructuringElement::New(pseDisk, radius)->Points()->Count()));
}

void ShowBitmapLayout()
{
    std::printf("\nbitmaps, 4 x 3 with 3 bands, 8 bits:\n");
    for (const wchar_t* text : {L"XYB", L"BXY"}) {
        Ref<Images::IStorageOrder> order = Images::StorageOrder::New(std::wstring(text));
        Ref<Images::IBitmap> bitmap =
            Images::Bitmap::New(Coordinates::New(std::int64_t(4), std::int64_t(3), std::int64_t(3), Axes::aXYB),
                                Images::UniformFormat::New(order));
        std::wstring strides;
        for (std::int64_t stride : bitmap->Strides())
            strides += (strides.empty() ? L"" : L", ") + std::to_wstring(stride);
        std::printf("  order %-4ls strides (%ls), %lld bytes\n", order->ToString().c_str(), strides.c_str(),
                    static_cast<long long>(bitmap->Memory()->Size()));
    }
}

} // namespace

void RunGeometryWork()
{
    if (!Coordinates::AddFunction2IsImplemented()) {
        std::printf("\nthe reference library is not loaded: no geometry\n");
        return;
    }
    try {
        ShowCoordinatesAndBoxes();
        ShowShapes();
        ShowBitmapLayout();
    } catch (const System::Pointer<System::IException, 1>& failure) {
        PrintMessage(stdout, failure->Message());
    }
}

} // namespace Quilon_::Tool
