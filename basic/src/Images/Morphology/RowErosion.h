// The fast erosion and dilation of the reference library: the passes of an
// operator (erosion, dilation, opening, closing, top-hats) run row by row
// on the images' own memory, each output row the fold of a few input rows
// (see Decomposition.h and ErosionSimd.h), rows in bands over the
// processing pool for large images.
//
//   const std::vector<Shift> square = ShiftsOf(*element);
//   const MorphologyPass passes[] = {{false, square, 1}, {true, square, 1}};   // an opening
//   if (!RunRowPasses(input, output, passes, Residue::none))
//       ...   // the general path (sample types differ, samples not adjacent along X)
//
// Results are those of the scalar kernels (MorphologyKernels.h), sample for
// sample: offsets that leave the image contribute nothing.
#pragma once

#include "Images/Morphology/MorphologySupport.h"

#include <span>
#include <vector>

namespace Quilon_::Basic::Images::Morphology {

// `times` erosions, or dilations, by `shifts`.
struct MorphologyPass {
    bool dilate;
    const std::vector<Shift>& shifts;
    std::int64_t times;
};

// What is written: the result of the passes, or its difference with the
// input (input - result for the white top-hat, result - input for the
// black one).
enum class Residue { none, white, black };

// Runs the passes from `in` into `out` and returns true, or returns false
// without touching `out` when the fast path does not apply: the images
// differ in sample type or extent, samples are not adjacent along X, the
// type is complex, or there is no pass at all.
bool RunRowPasses(const ImageRef& in, const ImageRef& out, std::span<const MorphologyPass> passes,
                  Residue residue);

// The offsets of `element` on the image axes, as ShiftsOf, into `shifts`
// (cleared first): read through the reference library's own view when the
// element offers it, so that no collection is built per call.
void ElementShiftsInto(::Quilon_::Geometry::IStructuringElement& element, std::vector<Shift>& shifts);

} // namespace Quilon_::Basic::Images::Morphology
