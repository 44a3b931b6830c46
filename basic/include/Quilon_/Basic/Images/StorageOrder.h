// The storage orders of the reference library: what StorageOrder::New reads
// and what the five order functions do.
//
// The text of an order is a sequence of axis letters, "X", "Y", "Z", "T" and
// "B", first axis fastest. A letter after the marker '-' is a reversed axis:
// its samples lie from the last to the first, as in a bitmap whose rows are
// stored bottom-up ("X-Y"):
//
//   Pointer<IStorageOrder> order = StorageOrder::New(L"BX-Y");
//   order->Axis(0);                  // aB: the bands of a pixel side by side
//   order->IsReversed(Geometry::aY); // true
//   StorageOrder::Remove(order, Geometry::aB)->ToString();   // "X-Y"
//
// New accepts
//   - each of the letters X, Y, Z, T, B at most once, in any order, upper
//     case only, each optionally preceded by one '-';
//   - the empty text, the order without axes (what Remove leaves of "X").
// New refuses anything else (another character, a letter twice, a '-' not
// followed by a letter) with "Invalid storage order: '%1%'".
//
// The functions never change their argument; each returns a new order:
//   - Add(order, axis) appends the axis in last (slowest) place; an axis
//     already present leaves the order as it is, its place and direction
//     kept. Image code puts the band axis in front with BFirst(Add(...)).
//   - Remove(order, axis) drops the axis; an absent axis leaves the order as
//     it is.
//   - First and Last move the axis to first or last place, keeping its
//     direction; Reverse turns its direction round (twice restores it).
//     These three raise "Axis %1% is not in the storage order '%2%'" for an
//     absent axis.
//   - Any value that is not one of the five axes raises "Invalid axis: %1%".
//
// A bitmap is laid out by the axes of the order that its size has, in the
// order's sequence, followed by the size's axes that the order lacks, in
// ascending bit order; axes of the order that the size lacks are ignored.
#pragma once

namespace Quilon_::Basic::Images {

// The character before a reversed axis in the text of an order.
inline constexpr wchar_t reversedAxisMarker = L'-';

} // namespace Quilon_::Basic::Images
