// The rule that prepares the output of an edge detector: one band per
// spatial axis of the input, the band axis first in memory, an unsigned
// type of at least eight bits, and the category "Image.Category.Edge".
//
//   make->Add(MakeImageEdge::New(1, 0));   // output 1 from input 0
//
// An output that fits already keeps its pixels and only gets the category.
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/Functions/Rules/RuleCollection.h"

#include <cstdint>

namespace Quilon_::Images::Functions::Rules::MakeImageEdge {

// (output, input); the core's own rule is the default implementation.
extern QUILON_API System::Functions::Template::Function<
    System::Pointer<System::Functions::Rules::IRule, 1> (*)(std::int64_t output, std::int64_t input)>
    New;

} // namespace Quilon_::Images::Functions::Rules::MakeImageEdge
