// The named neighbourhood look-up tables: binary rules on a point and its
// neighbours, used by thinning, pruning and point-detection operators:
//
//   Pointer<Geometry::INgbLUT, 1> ends = Geometry::NgbLUT::New(Geometry::pnlEndPoints, Geometry::pngSquare8);
//   System::ToString(Geometry::pnlSKIZ);   // "pnlSKIZ"
#pragma once

#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>

namespace Quilon_::Geometry {

enum PredefinedNgbLUTEnumTag : std::int32_t {
    pnlSinglePoints = 1,
    pnlMultiplePoints = 2,
    pnlEndPoints = 3,
    pnlBoundaryPoints = 4,
    pnlPruning = 5,
    pnlHomotopicPruning = 6,
    pnlCentroid = 7,
    pnlSKIZ = 8,
    pnlSkeleton1 = 9,
};
using PredefinedNgbLUTEnum = PredefinedNgbLUTEnumTag;

} // namespace Quilon_::Geometry

namespace Quilon_::System {
// The enumerator's name; any other value as its decimal number.
QUILON_API std::wstring ToString(Geometry::PredefinedNgbLUTEnum value);
// Boxed as int64, read back as the enumeration.
QUILON_API Any ToAny(Geometry::PredefinedNgbLUTEnum value);
} // namespace Quilon_::System
