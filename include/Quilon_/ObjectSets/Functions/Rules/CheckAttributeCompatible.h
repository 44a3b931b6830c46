// The rule that attribute arguments agree with the first of them in their
// objects, as the bits of its flags ask:
//
//   1  the same number of objects;
//   3  (1 and 2) the same keys, in the same order;
//   7  (1, 2 and 4) the same object set;
//   8  added to any of these: no test when the first attribute's set is empty.
//
//   // the result (argument 2) has the keys of the input (argument 0), unless the input is empty
//   checks->Add(CheckAttributeCompatible::New(2, 0, 11));
//
// Bit 2 or bit 4 alone tests nothing. The first disagreeing argument ends
// the rule, which is refused under that argument's index with the check's
// message ("Attribute 'Area' is not attached to any ObjectSet", ...).
#pragma once

#include "Quilon_/System/Functions/Factory.h"

#include <cstdint>
#include <vector>

namespace Quilon_::ObjectSets::Functions::Rules::CheckAttributeCompatible {

// (first, second, flags) and (indexes, flags); fewer than two indexes raise
// "At least two argument indexes expected (%1% provided)". The core's own
// rule is the default implementation.
using Factory =
    System::Functions::Template::Factory<System::Ref<System::Functions::Rules::IRule>(
                                             std::int64_t first, std::int64_t second, unsigned short flags),
                                         System::Ref<System::Functions::Rules::IRule>(
                                             const std::vector<std::int64_t>& indexes, unsigned short flags)>;
extern QUILON_API Factory New;

} // namespace Quilon_::ObjectSets::Functions::Rules::CheckAttributeCompatible
