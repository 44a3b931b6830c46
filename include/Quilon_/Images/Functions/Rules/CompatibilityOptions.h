// The two words of bit flags that relate an image argument to another one:
// what CheckImageCompatible tests, what MakeImageCompatible gives the
// output, and which properties MakeImageCompatible carries over to it.
//
// A chain may pass the same first word to both rules; the check rule simply
// has no test for mcSize and mcCategory:
//
//   const unsigned short word = mcAxesExact | mcSize | mcCategory | mcContainingType;   // 0x2F
//   make->Add(MakeImageCompatible::New(1, 0, word, tpCategory | tpOrigin | tpLinkedData | tpPalette |
//   tpROI)); check->Add(CheckImageCompatible::New(1, 0, word & 0xF));
#pragma once

namespace Quilon_::Images::Functions::Rules {

// The first word. The two low bits together ask for the same axes; the low
// bit alone for the same axes when the band axis is ignored.
inline constexpr unsigned short mcAxesExact = 3;
inline constexpr unsigned short mcAxesIgnoringBand = 1;
// The output takes the size of the first input.
inline constexpr unsigned short mcSize = 4;
// The output takes the category of the first input.
inline constexpr unsigned short mcCategory = 8;
// The data types are equal.
inline constexpr unsigned short mcSameType = 16;
// The data type of the output contains those of the inputs.
inline constexpr unsigned short mcContainingType = 32;
// The colour formats agree.
inline constexpr unsigned short mcColorSpace = 64;

// The second word: what the output takes over from the first input.
inline constexpr unsigned short tpCategory = 1;
// The origin, always.
inline constexpr unsigned short tpOrigin = 2;
inline constexpr unsigned short tpLinkedData = 4;
inline constexpr unsigned short tpPalette = 8;
// The region of interest, always.
inline constexpr unsigned short tpROI = 16;
// The origin, only when the output has none.
inline constexpr unsigned short tpNewOrigin = 32;
// The region of interest, only when the output has a non-empty one.
inline constexpr unsigned short tpNewROI = 64;

} // namespace Quilon_::Images::Functions::Rules
