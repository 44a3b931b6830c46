// A set of 2-D points taken as one shape (detected corners, marked cells),
// reachable both as point values and as point shapes.
//
//   Ref<Geometry::TwoD::IPointFSet> marks = Geometry::TwoD::PointFSet::New(Geometry::Axes::aXY);
//   marks->AddPoint({3, 4});
//   marks->IndexOfNearest({3.2f, 4.1f}, 1.0f);   // 0
#pragma once

#include "Quilon_/Geometry/TwoD/PolyPoints.h"
#include "Quilon_/Geometry/TwoD/Polygon.h"

#include <vector>

namespace Quilon_::Geometry::TwoD {

class QUILON_API IPointFSet : public virtual IPolyPointsF, public virtual IPointFNDSet {
    QUILON_INTERFACE(IPointFSet)
public:
    virtual std::int64_t PointCount() = 0;
    virtual Drawing::Point<float> PointAt(std::int64_t index) = 0;
    virtual void SetPointAt(std::int64_t index, const Drawing::Point<float>& point) = 0;
    // Appends; the position of the new point.
    virtual std::int64_t AddPoint(const Drawing::Point<float>& point) = 0;
    virtual void InsertPoint(std::int64_t index, const Drawing::Point<float>& point) = 0;
    virtual bool RemovePoint(std::int64_t index) = 0;
    // The position of the point nearest to `point` within `maxDistance`, or
    // -1.
    virtual std::int64_t IndexOfNearest(const Drawing::Point<float>& point, float maxDistance) = 0;
    // The mean of the points.
    virtual Drawing::Point<float> Centroid() = 0;
    virtual System::Ref<IPolygonF> ConvexHull() = 0;
    // Keeps the first of points closer than `tolerance`; how many went.
    virtual std::int64_t RemoveDuplicates(float tolerance) = 0;
    virtual std::vector<Drawing::Point<float>> ToVector() = 0;
    virtual void SetFromVector(const std::vector<Drawing::Point<float>>& points) = 0;
};

namespace PointFSet {
// New(axes) is empty; New(points, axes).
using Factory =
    System::Functions::Template::Factory<System::Ref<IPointFSet>(Geometry::Axes),
                                         System::Ref<IPointFSet>(System::Ref<Drawing::IPointFCollection>,
                                                                 Geometry::Axes)>;
extern QUILON_API Factory New;
} // namespace PointFSet

} // namespace Quilon_::Geometry::TwoD
