// Geometry helpers computed in the core from the coordinate and box
// interfaces: flat indexes of locations in a box, bounding boxes of point
// sets, homogeneous matrices, printing.
//
//   using namespace Quilon_::Geometry;
//   System::Ref<IBox> box = Box::New(0, 0, 0, 4, 3, 2, Axes::aXYZ);
//   System::Ref<ICoordinates> strides = Helper::CumulatedSize(box);       // (1, 4, 12)
//   std::int64_t index = Helper::Index(Coordinates::New(1, 1, 1, Axes::aXYZ), box, strides);   // 17
//   Helper::Location(index, box, strides);                                // (1, 1, 1)
//
//   System::Ref<Math::IMatrixD> move = Helper::TranslationMatrix(CoordinatesD::New(5.0, 7.0, Axes::aXY));
//   Helper::Bounds(box2d, move);                                          // box2d moved by (5, 7)
//
// Matrices are homogeneous and act on row vectors: a point p of n values
// maps to p' with p'[b] = sum over a < n of M(a, b) p[a] + M(n, b), without
// division by a homogeneous coordinate. M(a, b) is row a, column b.
#pragma once

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/WeightedCoordinates.h"
#include "Quilon_/Math/Matrix.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Geometry::Helper {

// Raises "Axes mismatch (%1% != %2%)", with the AxesToString of each, when
// the axes of `a` and `b` differ.
QUILON_API void AssertSameAxes(const System::Ref<ICoordinates>& a, const System::Ref<ICoordinates>& b);
QUILON_API void AssertSameAxes(const System::Ref<ICoordinatesF>& a, const System::Ref<ICoordinatesF>& b);
QUILON_API void AssertSameAxes(const System::Ref<ICoordinatesD>& a, const System::Ref<ICoordinatesD>& b);

// The strides of a box laid out first axis fastest: 1, size[0],
// size[0] * size[1], ... with the box's axes.
QUILON_API System::Ref<ICoordinates> CumulatedSize(const System::Ref<IBox>& box);
// The flat index of `location` in `box` with the strides of CumulatedSize.
// Raises "Axes mismatch (%1% != %2%)" and "Location is out of bounds".
QUILON_API std::int64_t Index(const System::Ref<ICoordinates>& location, const System::Ref<IBox>& box,
                              const System::Ref<ICoordinates>& cumulatedSize);
// The location of a flat index: the inverse of Index, without a bounds
// test. The strides must come from CumulatedSize (a zero stride divides by
// zero).
QUILON_API System::Ref<ICoordinates> Location(std::int64_t index, const System::Ref<IBox>& box,
                                              const System::Ref<ICoordinates>& cumulatedSize);

// The bounding box of the points, through the family's registered Min and
// Max. Integer boxes get the exclusive upper corner (largest + 1); float and
// double boxes end at the largest point itself. An empty collection raises
// the collection's index error.
QUILON_API System::Ref<IBox> Bounds(const System::Ref<ICoordinatesCollection>& points);
QUILON_API System::Ref<IBoxF> Bounds(const System::Ref<ICoordinatesFCollection>& points);
QUILON_API System::Ref<IBoxD> Bounds(const System::Ref<ICoordinatesDCollection>& points);
QUILON_API System::Ref<IBox> Bounds(const System::Ref<IWeightedCoordinatesCollection>& points);

// The bounds of the points mapped by `matrix`, for two or three dimensions
// (the axis count, less the band axis). The box has the axes of the first
// point. Raises "Vector of coordinates should not be empty" and "Function
// not implemented for coordinates of dimension %1%".
QUILON_API System::Ref<IBoxD> Bounds(const std::vector<System::Ref<ICoordinates>>& points,
                                     System::Ref<Math::IMatrixD> matrix);
QUILON_API System::Ref<IBoxD> Bounds(const std::vector<System::Ref<ICoordinatesD>>& points,
                                     System::Ref<Math::IMatrixD> matrix);
// The bounds of the mapped corners of `box` (4 in 2-D, 8 in 3-D). Raises
// "Dimension not supported in Quilon_::Geometry::Helper::Multiply: %1%"
// for other dimensions.
QUILON_API System::Ref<IBoxD> Bounds(System::Ref<IBoxD> box, System::Ref<Math::IMatrixD> matrix);

// (n + 1) x (n + 1) homogeneous matrices, n the axis count (or `dimension`).
QUILON_API System::Ref<Math::IMatrixD> ScaleMatrix(const System::Ref<ICoordinatesD>& factors);
QUILON_API System::Ref<Math::IMatrixD> ScaleMatrix(std::int64_t dimension, double factor);
QUILON_API System::Ref<Math::IMatrixD> TranslationMatrix(const System::Ref<ICoordinatesD>& offset);
// Maps (x, y) to (x + c[1] y, c[0] x + y); only the first two values of `c`
// are used, and it needs at least two.
QUILON_API System::Ref<Math::IMatrixD> ShearMatrix(const System::Ref<ICoordinatesD>& c);

// The values separated by ", ", without the band value when `skipBand`.
QUILON_API std::wstring ToString(const System::Ref<ICoordinates>& coordinates, bool skipBand);

} // namespace Quilon_::Geometry::Helper
