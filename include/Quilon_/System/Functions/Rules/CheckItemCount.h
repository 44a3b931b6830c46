// The rule that an argument holds a number of elements within limits.
//
// The argument may be a vector of wide strings, of 64-bit integers, of
// doubles or of floats, or a collection; a negative limit is no limit:
//
//   checks->Add(CheckItemCount::New(1, 1, -1));   // parameter 1 is not empty
#pragma once

#include "Quilon_/System/Functions/Rules/RuleCollection.h"

#include <cstdint>

namespace Quilon_::System::Functions::Rules::CheckItemCount {

// (index, minimum, maximum); the core's own rule is the default
// implementation (include Functions/Function.h to call it).
extern QUILON_API Functions::Template::Function<Pointer<IRule, 1> (*)(std::int64_t, std::int64_t, std::int64_t)> New;

} // namespace Quilon_::System::Functions::Rules::CheckItemCount
