// A set of 3-D points taken as one shape: the hits of a ray, the marks in
// a volume.
//
//   Ref<Geometry::ThreeD::IPointFSet> hits = Geometry::ThreeD::Shape::Intersection(solid, ray);
//   for (std::int64_t i = 0; i < hits->PointCount(); ++i) use(hits->PointAt(i));
#pragma once

#include "Quilon_/Geometry/ThreeD/Polyhedron.h"
#include "Quilon_/Geometry/ThreeD/Shape.h"

namespace Quilon_::Geometry::ThreeD {

class QUILON_API IPointFSet : public virtual IShape, public virtual IPointFNDSet {
    QUILON_INTERFACE(IPointFSet)
public:
    virtual std::int64_t PointCount() = 0;
    virtual System::Ref<ICoordinatesF> PointAt(std::int64_t index) = 0;
    virtual void SetPointAt(std::int64_t index, System::Ref<ICoordinatesF> point) = 0;
    // Appends; the position of the new point.
    virtual std::int64_t AddPoint(System::Ref<ICoordinatesF> point) = 0;
    virtual void InsertPoint(std::int64_t index, System::Ref<ICoordinatesF> point) = 0;
    virtual bool RemovePoint(std::int64_t index) = 0;
    // The position of the point nearest to `point` within `maxDistance`, or
    // -1.
    virtual std::int64_t IndexOfNearest(System::Ref<ICoordinatesF> point, float maxDistance) = 0;
    // The mean of the points.
    virtual System::Ref<ICoordinatesF> Centroid() = 0;
    virtual System::Ref<IPolyhedronF> ConvexHull() = 0;
    // Keeps the first of points closer than `tolerance`; how many went.
    virtual std::int64_t RemoveDuplicates(float tolerance) = 0;
    virtual System::Ref<ICoordinatesFCollection> ToCollection() = 0;
    virtual void SetFromCollection(System::Ref<ICoordinatesFCollection> points) = 0;
};

} // namespace Quilon_::Geometry::ThreeD
