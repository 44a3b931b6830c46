// Which part of a complex value an operator reads: image operators that
// turn complex pixels into real ones take it as an argument.
//
//   Any facet = ToAny(Math::cfMagnitude);   // boxed as every enumeration is, as int64
//   facet.CastTo<Math::ComplexFacetEnum>();  // cfMagnitude
#pragma once

#include "Quilon_/System/Any.h"

#include <cstdint>
#include <string>

namespace Quilon_::Math {

enum ComplexFacetEnumTag : std::int32_t {
    cfReal = 0,
    cfImaginary = 1,
    cfMagnitude = 2,
    cfPhase = 3,
};
using ComplexFacetEnum = ComplexFacetEnumTag;

} // namespace Quilon_::Math

namespace Quilon_::System {
// The enumerator's name; empty for any other value.
QUILON_API std::wstring ToString(Math::ComplexFacetEnum facet);
} // namespace Quilon_::System
