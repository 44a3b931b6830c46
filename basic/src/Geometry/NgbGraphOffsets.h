// Offsets on axes: what the reference library's kernels, structuring
// elements, graphs and look-up tables share. An offset holds the values on
// the first three spatial axes (aX, aY, aZ among those present, in this
// order); aT and aB hold 0.
#pragma once

#include "Quilon_/Basic/Geometry/Neighbourhoods.h"
#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"

#include <cstdint>
#include <span>
#include <vector>

namespace Quilon_::Basic::Geometry {

namespace QG = ::Quilon_::Geometry;

// The spatial axes of `axes`, in ascending bit order.
std::vector<QG::AxisEnum> SpatialAxes(QG::Axes axes);
// Raises "Axes '%1%' have fewer than %2% spatial axes" unless `axes` has at
// least `dimension` of them.
void CheckSpatialAxes(QG::Axes axes, std::int64_t dimension);

// A box of offsets: lower inclusive, upper exclusive.
struct Extent {
    Offset lower;
    Offset upper{1, 1, 1};

    std::int64_t Width() const { return upper.x - lower.x; }
    std::int64_t Height() const { return upper.y - lower.y; }
    std::int64_t Depth() const { return upper.z - lower.z; }
    std::int64_t Count() const { return Width() * Height() * Depth(); }
    // The position of `o` in x-fastest order.
    std::int64_t Index(const Offset& o) const
    {
        return (o.x - lower.x) + Width() * ((o.y - lower.y) + Height() * (o.z - lower.z));
    }
    Offset At(std::int64_t index) const
    {
        return {lower.x + index % Width(), lower.y + index / Width() % Height(),
                lower.z + index / (Width() * Height())};
    }
};

// The smallest extent of non-empty offsets.
Extent ExtentOf(std::span<const Offset> offsets);
// The point reflection of an extent.
Extent Reflected(const Extent& extent);

// The coordinates of an offset on `axes` (0 on aT and aB).
System::Ref<QG::ICoordinates> ToCoordinates(const Offset& offset, QG::Axes axes);
// The offset of coordinates; raises "Offsets on the axes T and B must be 0"
// when they are not.
Offset ToOffset(QG::ICoordinates& coordinates);
// The integer box of an extent on `axes`: on aT and aB from 0 to 1.
System::Ref<QG::IBox> ToBox(const Extent& extent, QG::Axes axes);
// The extent of an integer box, which must reach from 0 to 0 or 1 on aT and
// aB.
Extent ToExtent(QG::IBox& box);

// The offsets of a collection, in order.
std::vector<Offset> ReadOffsets(QG::ICoordinatesCollection& points);

} // namespace Quilon_::Basic::Geometry

#include "Quilon_/Geometry/NgbGraph.h"

namespace Quilon_::Basic::Geometry {

// The offsets of a predefined graph in their documented order; raises
// "Unknown predefined neighbourhood graph: %1%" for another value.
std::vector<Offset> PredefinedGraphOffsets(QG::PredefinedNgbGraphEnum value);
// A read-only graph of those offsets on `axes`.
System::Ref<QG::INgbGraph> MakeGraph(std::span<const Offset> offsets, QG::Axes axes);

} // namespace Quilon_::Basic::Geometry
