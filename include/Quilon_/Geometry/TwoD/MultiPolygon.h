// A 2-D region bounded by several loops: outlines and holes. Its area,
// point containment and the set operations on polygons are registered
// functions, computed by a loaded library.
//
//   Ref<Geometry::TwoD::IMultiPolygonF> region = Geometry::TwoD::MultiPolygonF::New(loops,
//   Geometry::Axes::aXY); Geometry::TwoD::MultiPolygonF::Contains(region, Drawing::Point<float>(3, 3));
//   Pointer<Geometry::TwoD::IMultiPolygonF, 0> both = Geometry::TwoD::MultiPolygonF::Intersection(a, b);
//   if (!both) ...   // no overlap
//
// Calls that mix a polygon and a multi-polygon must name the pointer types
// exactly, since a Pointer converts to either.
#pragma once

#include "Quilon_/Geometry/TwoD/BoxedF.h"
#include "Quilon_/Geometry/TwoD/Loops.h"
#include "Quilon_/Geometry/TwoD/PolyPoints.h"
#include "Quilon_/Geometry/TwoD/Polygon.h"

namespace Quilon_::Geometry::TwoD {

// Points() of a multi-polygon is its first loop.
class QUILON_API IMultiPolygonF : public virtual IBoxedF, public virtual IPolyPointsF {
    QUILON_INTERFACE(IMultiPolygonF)
public:
    // The shape's own loops, not a copy.
    virtual System::Ref<ILoops> Loops() = 0;
    virtual void SetLoops(System::Ref<ILoops> loops) = 0;
    // Appends a loop; its position.
    virtual std::int64_t AddLoop(System::Ref<Drawing::IPointFCollection> loop) = 0;
    // False when there is no loop at `index`.
    virtual bool RemoveLoop(std::int64_t index) = 0;
};

namespace MultiPolygonF {

using Polygon = System::Ref<IPolygonF>;
using MultiPolygon = System::Ref<IMultiPolygonF>;
using MaybeMultiPolygon = System::Pointer<IMultiPolygonF, 0>;

// New(axes) is empty; New(loops, axes) takes the loops as its own.
using Factory =
    System::Functions::Template::Factory<System::Ref<IMultiPolygonF>(Geometry::Axes),
                                         System::Ref<IMultiPolygonF>(System::Ref<ILoops>, Geometry::Axes)>;
extern QUILON_API Factory New;

QUILON_API double Area(MultiPolygon region);
QUILON_DECLARE_FUNCTION_SLOT(Area, 1, double (*)(MultiPolygon));

QUILON_API bool Contains(MultiPolygon region, const Drawing::Point<float>& point);
QUILON_DECLARE_FUNCTION_SLOT(Contains, 1, bool (*)(MultiPolygon, const Drawing::Point<float>&));

// The part of `a` outside `b`; null when nothing is left.
QUILON_API MaybeMultiPolygon Difference(Polygon a, Polygon b);
QUILON_DECLARE_FUNCTION_SLOT(Difference, 1, MaybeMultiPolygon (*)(Polygon, Polygon));
QUILON_API MaybeMultiPolygon Difference(MultiPolygon a, MultiPolygon b);
QUILON_DECLARE_FUNCTION_SLOT(Difference, 2, MaybeMultiPolygon (*)(MultiPolygon, MultiPolygon));

// The part common to both; null when they do not overlap.
QUILON_API MaybeMultiPolygon Intersection(Polygon a, Polygon b);
QUILON_DECLARE_FUNCTION_SLOT(Intersection, 1, MaybeMultiPolygon (*)(Polygon, Polygon));
QUILON_API MaybeMultiPolygon Intersection(MultiPolygon a, MultiPolygon b);
QUILON_DECLARE_FUNCTION_SLOT(Intersection, 2, MaybeMultiPolygon (*)(MultiPolygon, MultiPolygon));

// The region covered by either; always a result, empty for two empty
// arguments.
QUILON_API MultiPolygon Union(Polygon a, Polygon b);
QUILON_DECLARE_FUNCTION_SLOT(Union, 1, MultiPolygon (*)(Polygon, Polygon));
QUILON_API MultiPolygon Union(MultiPolygon a, Polygon b);
QUILON_DECLARE_FUNCTION_SLOT(Union, 2, MultiPolygon (*)(MultiPolygon, Polygon));
QUILON_API MultiPolygon Union(Polygon a, MultiPolygon b);
QUILON_DECLARE_FUNCTION_SLOT(Union, 3, MultiPolygon (*)(Polygon, MultiPolygon));
QUILON_API MultiPolygon Union(MultiPolygon a, MultiPolygon b);
QUILON_DECLARE_FUNCTION_SLOT(Union, 4, MultiPolygon (*)(MultiPolygon, MultiPolygon));

} // namespace MultiPolygonF

} // namespace Quilon_::Geometry::TwoD
