// The named structuring elements of morphology. As for graphs, the high byte
// of the value is the dimension (0x2xx flat, 0x3xx solid):
//
//   using namespace Quilon_::Geometry;
//   System::Ref<IStructuringElement> disk = StructuringElement::New(pseDisk, 3.0);
//   System::ToString(static_cast<Geometry::PredefinedStructuringElementEnum>(771));   // "pseBall"
#pragma once

#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>

namespace Quilon_::Geometry {

enum PredefinedStructuringElementEnumTag : std::int32_t {
    pseSquare = 513,
    pseDiamond = 514,
    pseDisk = 515,
    pseHorizontalLine = 516,
    pseVerticalLine = 517,
    pseLine45 = 518,
    pseLine135 = 519,
    pseCube = 769,
    pseOctahedron = 770,
    pseBall = 771,
};
using PredefinedStructuringElementEnum = PredefinedStructuringElementEnumTag;

} // namespace Quilon_::Geometry

namespace Quilon_::System {
// The enumerator's name; any other value as its decimal number.
QUILON_API std::wstring ToString(Geometry::PredefinedStructuringElementEnum value);
// Boxed as int64, read back as the enumeration.
QUILON_API Any ToAny(Geometry::PredefinedStructuringElementEnum value);
} // namespace Quilon_::System
