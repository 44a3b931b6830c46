// The rule that an attribute argument holds the bitmap shapes of the
// dimension that another argument has: a spatial attribute, an object set
// (its first spatial attribute) or an image (its axes less time and band):
//
//   // argument 1 receives TwoD::IBitmapShape cells when argument 0 is 2-D,
//   // ThreeD::IBitmapShape cells otherwise
//   checks->Add(CheckBitmapAttribute::New(1, 0));
//
// An object set in the attribute's place has nothing to test and passes.
#pragma once

#include "Quilon_/System/Functions/Function.h"

#include <cstdint>

namespace Quilon_::ObjectSets::Functions::Rules::CheckBitmapAttribute {

extern QUILON_API System::Functions::Template::Function<System::Ref<System::Functions::Rules::IRule> (*)(
    std::int64_t attributeIndex, std::int64_t dimensionIndex)>
    New;

} // namespace Quilon_::ObjectSets::Functions::Rules::CheckBitmapAttribute
