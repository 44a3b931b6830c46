// The rule that an image argument has a number of spatial axes: the axes
// of its size without the time and band axes.
//
//   checks->Add(CheckImageDimension::New(0, 3, idrEqual));          // a volume
//   checks->Add(CheckImageDimension::New(0, 2, idrLessOrEqual));    // at most a plane
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/Rules/RuleCollection.h"

#include <cstdint>
#include <string>

namespace Quilon_::Images::Functions::Rules {

// How the spatial dimension of the image relates to the rule's.
enum ImageDimensionRelationEnumTag : std::int32_t {
    idrEqual = 0,
    idrLessOrEqual = 1,
    idrGreaterOrEqual = 2,
};
using ImageDimensionRelationEnum = ImageDimensionRelationEnumTag;

namespace CheckImageDimension {
// (index, dimension, relation); the core's own rule is the default
// implementation. A relation that is none of the three accepts every image.
extern QUILON_API
    System::Functions::Template::Function<System::Pointer<System::Functions::Rules::IRule, 1> (*)(
        std::int64_t index, std::int64_t dimension, ImageDimensionRelationEnum relation)>
        New;
} // namespace CheckImageDimension

} // namespace Quilon_::Images::Functions::Rules

namespace Quilon_::System {
// The enumerator's name; any other value as its decimal number.
QUILON_API std::wstring ToString(Images::Functions::Rules::ImageDimensionRelationEnum relation);
} // namespace Quilon_::System
