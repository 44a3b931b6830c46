// The rule that an image argument agrees with a reference image in axes,
// data type and colour format, as the bits of its word ask
// (CompatibilityOptions.h):
//
//   // argument 1 has the axes of argument 0 and a type that contains it
//   checks->Add(CheckImageCompatible::New(1, 0, mcAxesExact | mcContainingType));
//
// The tests run in the order axes, data type, colour; the first that fails
// ends the rule and names the image at the rule's first index.
#pragma once

#include "Quilon_/Images/Functions/Rules/CompatibilityOptions.h"
#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/Rules/RuleCollection.h"

#include <cstdint>

namespace Quilon_::Images::Functions::Rules::CheckImageCompatible {

// (image, reference, options); the core's own rule is the default
// implementation.
extern QUILON_API
    System::Functions::Template::Function<System::Pointer<System::Functions::Rules::IRule, 1> (*)(
        std::int64_t image, std::int64_t reference, unsigned short options)>
        New;

} // namespace Quilon_::Images::Functions::Rules::CheckImageCompatible
