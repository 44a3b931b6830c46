// The rule that an image argument holds real numbers, and optionally
// integers, unsigned ones, or a single band:
//
//   checks->Add(CheckImageScalar::New(0, false, false, false));   // anything but complex
//   checks->Add(CheckImageScalar::New(0, true, true, true));      // one band of unsigned integers
//
// A complex image is refused whatever the flags; an image whose size has
// the band axis is not single-band even when that axis has one value.
#pragma once

#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Functions/Rules/RuleCollection.h"

#include <cstdint>

namespace Quilon_::Images::Functions::Rules::CheckImageScalar {

// (index, integral, singleBand, unsignedOnly); the core's own rule is the
// default implementation.
using Factory = System::Functions::Template::Factory<System::Pointer<System::Functions::Rules::IRule, 1>(
    std::int64_t index, bool integral, bool singleBand, bool unsignedOnly)>;
extern QUILON_API Factory New;

} // namespace Quilon_::Images::Functions::Rules::CheckImageScalar
