// Plain computations on loops of float points, shared by the polygon
// classes and the registered polygon functions. No virtual call inside:
// the callers fetch the points once.
#pragma once

#include "Quilon_/Drawing/Point.h"

#include <vector>

namespace Quilon_::Basic::Geometry::TwoD {

using PointF = Drawing::Point<float>;
using Loop = std::vector<PointF>;

// Half the shoelace sum of the closed loop, in double; 0 below three points.
double SignedArea(const Loop& loop);
// The corners of the convex hull, see Basic/Geometry/Polygon.h.
Loop ConvexHull(Loop points);
// Whether `point` lies on an edge or a corner of the closed loop.
bool OnBoundary(const Loop& loop, PointF point);
// Whether a ray from `point` to +x crosses the loop an odd number of times.
// Points on the boundary get either answer: test OnBoundary first.
bool OddCrossings(const Loop& loop, PointF point);
// The even-odd area of nested, non-crossing loops.
double EvenOddArea(const std::vector<Loop>& loops);
// Whether the even-odd region of the loops, taken as closed, holds `point`.
bool EvenOddContains(const std::vector<Loop>& loops, PointF point);
// The length of the path through the points, closed or not.
double PathLength(const Loop& points, bool closed);

} // namespace Quilon_::Basic::Geometry::TwoD
