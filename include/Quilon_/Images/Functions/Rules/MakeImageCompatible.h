// The rule that prepares an operator's output image from its inputs, in the
// Make moment of the operator's chain: it reshapes the output to the format
// and size that its first word asks, carries over the properties that its
// second word names (CompatibilityOptions.h), and keeps the output's events
// silent until the call is over.
//
//   // output 1 after input 0: axes, size, category and a containing type;
//   // category, origin, linked data, palette and region of interest.
//   make->Add(MakeImageCompatible::New(1, 0, 0x2F, 0x1F));
//
//   MakeImageOptions grey;
//   grey.Set(System::LIString(L"Image.Category.Grey"));
//   make->Add(MakeImageCompatible::New(1, 0, mcSize, grey, tpOrigin | tpLinkedData | tpROI));
//
// A fresh Image::New() is a fine output: it takes the type, size and axes of
// the first input. An input that is also the output survives a reshaping as
// a copy; an output used in place keeps its origin and region of interest.
// Asking for both tpROI and tpNewROI raises "tpROI and tpNewROI are mutually
// exclusive" when the rule is made, so that a wrong chain fails at start-up.
#pragma once

#include "Quilon_/Images/Functions/Rules/CompatibilityOptions.h"
#include "Quilon_/Images/Functions/Rules/MakeImageOptions.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Functions/Rules/RuleCollection.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Images::Functions::Rules::MakeImageCompatible {

// (output, input or inputs, options, [make options,] transfers); the
// first of several inputs is the one the output is made after. The core's
// own rule is the default implementation of each.
using Factory = System::Functions::Template::Factory<
    System::Pointer<System::Functions::Rules::IRule, 1>(std::int64_t output, std::int64_t input,
                                                        unsigned short options, unsigned short transfers),
    System::Pointer<System::Functions::Rules::IRule, 1>(
        std::int64_t output, std::int64_t input, unsigned short options, const MakeImageOptions& makeOptions,
        unsigned short transfers),
    System::Pointer<System::Functions::Rules::IRule, 1>(std::int64_t output,
                                                        const std::vector<std::int64_t>& inputs,
                                                        unsigned short options, unsigned short transfers),
    System::Pointer<System::Functions::Rules::IRule, 1>(
        std::int64_t output, const std::vector<std::int64_t>& inputs, unsigned short options,
        const MakeImageOptions& makeOptions, unsigned short transfers)>;
extern QUILON_API Factory New;

} // namespace Quilon_::Images::Functions::Rules::MakeImageCompatible
