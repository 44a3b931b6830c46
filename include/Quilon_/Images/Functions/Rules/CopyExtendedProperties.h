// The rule that copies the copiable extended properties of one argument to
// another, for operators whose output is no image made by
// MakeImageCompatible but should still carry the input's properties:
//
//   post->Add(CopyExtendedProperties::New(1, 0));   // from argument 0 to argument 1
//
// It never refuses.
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/Rules/RuleCollection.h"

#include <cstdint>

namespace Quilon_::Images::Functions::Rules::CopyExtendedProperties {

// (destination, source); the core's own rule is the default implementation.
extern QUILON_API System::Functions::Template::Function<
    System::Pointer<System::Functions::Rules::IRule, 1> (*)(std::int64_t destination, std::int64_t source)>
    New;

} // namespace Quilon_::Images::Functions::Rules::CopyExtendedProperties
