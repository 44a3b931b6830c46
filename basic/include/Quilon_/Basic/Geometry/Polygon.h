// The polygons of the reference library: points, point lists, polygons and
// multi-polygons behind the core's New objects, and the registered area,
// convex hull and containment functions.
//
//   using namespace Quilon_::Geometry::TwoD;
//   auto square = PolygonF::New(Drawing::PointFCollection::New(std::vector<Drawing::Point<float>>{
//                                    {0, 0}, {4, 0}, {4, 4}, {0, 4}}),
//                                Axes::aXY);
//   PolygonF::Area(square);                                  // 16
//   MultiPolygonF::Contains(region, Drawing::Point<float>(1, 1));
//
// Polygon area (PolygonF::Area, IShape::Area of a polygon). The shoelace
// sum over the closed loop, halved, computed in double, and returned as
// its absolute value: the area does not depend on the direction in which
// the points run. A self-crossing polygon gets the absolute value of its
// signed sum, which is not its covered area (a figure eight whose two
// halves run in opposite directions gives their difference). Fewer than
// three points give 0. The signed value, positive when the loop turns from
// the x axis towards the y axis, is ILoops::SignedArea.
//
// Convex hull (PolygonF::ConvexHull). Andrew's monotone chain over the
// points sorted by x, then y. Repeated points are kept once, and points on
// a straight stretch of the hull are dropped: the result holds only the
// corners, starting from the corner of smallest x (smallest y among
// equals), with a positive signed area. Collinear or single points give
// the two end points, or the one point; an empty polygon gives an empty
// one. The result is a new polygon with the axes of the argument.
//
// Multi-polygons: loops by the even-odd rule. A multi-polygon's loops are
// taken as simple, closed and not crossing one another; they may nest. A
// point is inside when a ray from it crosses the loops an odd number of
// times, so a loop inside an outline is a hole and a loop inside a hole is
// an island again, whichever direction each loop runs in. Accordingly
// MultiPolygonF::Area adds the area of each loop nested inside an even
// number of others and subtracts the others; nesting is decided by the
// first point of each loop. Loops of fewer than three points count for
// nothing.
//
// Points on a boundary. MultiPolygonF::Contains (and IShapeND::Contains of
// the polygons here) takes the region as closed: a point exactly on any
// loop's edge or corner is contained, holes' edges included. The test is
// exact on the float coordinates, with no tolerance.
//
// Points() of a multi-polygon is its first loop; on a multi-polygon with no
// loop it first appends an empty one, so that the list handed out is live.
// Changes made through a shape's live lists reshape it without firing the
// shape's events; the shape's own operations fire Moved, Resized and
// Changed. Bounds, Center and the sizing operations need the coordinate and
// box classes of this library.
#pragma once
