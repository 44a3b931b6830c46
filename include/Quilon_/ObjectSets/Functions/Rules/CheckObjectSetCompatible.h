// The rule that object-set arguments agree with the first of them, as the
// bits of its flags ask: 1 the same number of objects, 3 the same keys in
// the same order, and 8 added to either waives the test when the first set
// is empty:
//
//   // inputs 0 and 1 have the same keys; the result 2 too, unless input 0 is empty
//   checks->Add(CheckObjectSetCompatible::New(1, 0, 3));
//   checks->Add(CheckObjectSetCompatible::New(2, 0, 11));
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::ObjectSets::Functions::Rules::CheckObjectSetCompatible {

// The same two overloads as CheckAttributeCompatible::New.
using Factory =
    System::Functions::Template::Factory<System::Ref<System::Functions::Rules::IRule>(
                                             std::int64_t first, std::int64_t second, unsigned short flags),
                                         System::Ref<System::Functions::Rules::IRule>(
                                             const std::vector<std::int64_t>& indexes, unsigned short flags)>;
extern QUILON_API Factory New;

} // namespace Quilon_::ObjectSets::Functions::Rules::CheckObjectSetCompatible
