// How CheckAttributeDimension compares an attribute's spatial dimension
// with the expected one:
//
//   CheckAttributeDimension::New(0, 3, adrAtMost);   // 2-D or 3-D shapes
//
// Any other value lets every attribute pass.
#pragma once

#include "Quilon_/Config.h"

#include <cstdint>
#include <string>

namespace Quilon_::ObjectSets::Functions::Rules {

enum AttributeDimensionRelationEnumTag : std::int32_t {
    adrEqual = 0,
    adrAtMost = 1,
    adrAtLeast = 2,
};
using AttributeDimensionRelationEnum = AttributeDimensionRelationEnumTag;

} // namespace Quilon_::ObjectSets::Functions::Rules

namespace Quilon_::System {
QUILON_API std::wstring ToString(ObjectSets::Functions::Rules::AttributeDimensionRelationEnum value);
} // namespace Quilon_::System
