// The named neighbourhood graphs. The value carries the dimension in its
// high byte (0x2xx two-dimensional, 0x3xx three-dimensional), so that code
// can tell a graph's dimension without making it:
//
//   using namespace Quilon_::Geometry;
//   System::Ref<INgbGraph> graph = NgbGraph::New(pngSquare8, Axes::aXY);
//   PredefinedDimension(pngCubic26);                                      // 3
//   System::ToString(static_cast<Geometry::PredefinedNgbGraphEnum>(770));   // "770"
#pragma once

#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>

namespace Quilon_::Geometry {

enum PredefinedNgbGraphEnumTag : std::int32_t {
    pngSquare4 = 513,
    pngSquare8 = 514,
    pngHexagonal6 = 529,
    pngCubic6 = 769,
    pngCubic26 = 771,
};
using PredefinedNgbGraphEnum = PredefinedNgbGraphEnumTag;

// The dimension in the high byte of a predefined graph or structuring
// element value: 2, 3, or another number for values that are neither.
constexpr std::int64_t PredefinedDimension(std::int64_t value)
{
    return value >> 8;
}

} // namespace Quilon_::Geometry

namespace Quilon_::System {
// The enumerator's name; any other value as its decimal number.
QUILON_API std::wstring ToString(Geometry::PredefinedNgbGraphEnum value);
// Boxed as int64, read back as the enumeration.
QUILON_API Any ToAny(Geometry::PredefinedNgbGraphEnum value);
} // namespace Quilon_::System
