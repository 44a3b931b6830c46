// What the reference library's coordinates, boxes and coordinate functions
// do where the core leaves the choice to the library that implements them.
//
//   Library::Initialize();                     // loads libQuilon_.Basic.so
//   auto a = Geometry::Coordinates::New(1, 2, Geometry::Axes::aXY);
//   auto b = Geometry::Coordinates::New(1, 2, Geometry::Axes::aXYZ);
//   Geometry::Coordinates::Add(a, b);          // raises "Axes mismatch (XY != XYZ)"
//
// Coordinates
// - One value per set bit of the axes, in ascending bit order, bits above
//   aB included (so Axes(0x20) holds one value that no named axis reaches).
// - New(values..., axes) fills the first axes in bit order and leaves the
//   others 0; more values than axes raise "%1% values given for the axes
//   '%2%'". New(x, y, z, t, b) has all five axes.
// - Value and SetValue by position raise "Coordinate index is out of range:
//   '%1%' (axis count is '%2%')"; by axis, for an axis the object lacks,
//   "Coordinates of axes '%2%' have no axis %1%".
// - SetAxes keeps the values of the axes that stay; new axes start at 0.
// - Every object is cloneable (System::ICloneable) and equatable by value
//   (System::IEquatable): same kind, same axes, exactly the same values.
//
// Registered functions (all three kinds)
// - Functions of two coordinates (Min, Max, Add, Subtract, Multiply,
//   Divide, DotProduct, CrossProduct) need the same axes and raise "Axes
//   mismatch (%1% != %2%)" with the AxesToString of each otherwise. Results
//   are new objects with the axes of the first argument; no argument
//   changes, except the target of Set.
// - Product of no values is 1, IsNull of no values is true.
// - Integer Divide truncates towards zero and raises "Division by zero" for
//   a zero divisor; float and double divisions follow IEEE arithmetic.
// - Integer Multiply by a double rounds each product with the calling
//   thread's approximator, Round: the nearest integer, ties downwards
//   (1.5 gives 1, -1.5 gives -2), within the tolerance.
// - CrossProduct needs three axes: "Cross product needs coordinates of three
//   axes, not %1%".
// - Copy(c, axes) makes a new object of `axes`: the values of the axes that
//   c has are kept, the others are 0.
// - Norm is the Euclidean length; Normalize divides by it and leaves a null
//   vector null.
// - ToCoordinates rounds every value with the calling thread's approximator,
//   Round(value, method); ToCoordinatesD converts exactly.
// - Multiply(matrix, c) maps c as a row vector through the homogeneous
//   matrix: c'[b] = sum over a < n of M(a, b) c[a] + M(n, b), n the axis
//   count, all axes included. The matrix needs at least n + 1 rows and n
//   columns, or "A %1% x %2% matrix cannot map coordinates of %3% axes".
// - AxesToString is Axes::ToString: "XYB".
//
// Boxes
// - A box keeps copies of the corners it is given (New(lower, upper),
//   SetLower, SetUpper): a caller's coordinates never become a box's live
//   corner by accident. Lower() and Upper() return the box's own corners,
//   which are live.
// - The corners have the same axes: New(lower, upper), SetLower and SetUpper
//   raise "Axes mismatch (%1% != %2%)" otherwise; SetAxes changes both.
// - New(axes) has both corners 0.
// - The seventh operation, Size(), is a new object holding Upper - Lower.
// - Normalize() swaps lower and upper on each axis where lower is greater.
// - Boxes are cloneable (deep: the clone has corners of its own) and
//   equatable by the values of their corners.
//
// Collections
// - The extra operation, ToVector(), gives the items in order, the same
//   objects. New(items) holds the given objects; Clone() (through
//   Collections::ICloneable) clones each item.
#pragma once

#include <cstddef>

namespace Quilon_::Basic::Geometry {

// The most values a coordinates object holds: one per bit of the mask.
inline constexpr std::size_t MaximumAxisCount = 8;

} // namespace Quilon_::Basic::Geometry
