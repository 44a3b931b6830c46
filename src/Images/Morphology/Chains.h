// The rule chains that the morphology families share, built by the idiom
// of the catalogue: the chain of erosion first, the others derived from it
// by a clone and the replacement of one moment.
//
//   ScalarToSameChain().AssignTo(Open, Close);
//
// Each call builds new collections; call them from a family's chain
// initialiser only.
#pragma once

#include "Quilon_/System/Functions/RuleChain.h"

namespace Quilon_::Images::Morphology::Detail {

// Make(1, 0, 0x2F, 0x1F) and PreExecute Compat(1, 0, 0xF): an output of the
// input's axes, size, category and a containing type.
System::Functions::RuleChain SameShapeChain();
// The chain of Erode: SameShapeChain with Check Scalar(0, 0, 0, 0).
System::Functions::RuleChain ScalarToSameChain();
// SameShapeChain with Check Binary(0): binary in, binary out.
System::Functions::RuleChain BinaryToSameChain();
// Check Scalar(0, 0, 0, 0) (and Binary(0) when `binaryInput`); Make an
// output of the input's size with `category` ("Image.Category.Binary",
// "Image.Category.Label", ...), carrying origin, linked data and region of
// interest (0x16); PreExecute Compat(1, 0, 4).
System::Functions::RuleChain ToCategoryChain(const wchar_t* category, bool binaryInput);

} // namespace Quilon_::Images::Morphology::Detail
