// A structuring element taken apart for the fast erosion and dilation: the
// element's offsets as horizontal runs ("spans") per row, rows that share a
// span gathered in one group. The erosion by the element is then the
// minimum, over the groups, of the group's rows folded vertically and the
// result folded along the span, plus a few offsets read directly. A 3 x 3
// square is one group (three rows, span -1..1): two folds of three rows per
// output row instead of nine reads per sample; a disk of radius r has at
// most r groups; a horizontal line of any length is one group whose span is
// folded by doubling (log2 of the length folds).
//
//   const Shift square[] = {...9 offsets...};
//   std::shared_ptr<const Decomposition> plan = DecompositionOf(square);
//   plan->groups[0].rows.size();   // 3
//
// The decomposition covers exactly the element's offsets, some of them
// more than once, which a minimum or a maximum does not mind
// (Recomposed(plan) holds each offset of the element and no other).
#pragma once

#include "Images/Morphology/MorphologyKernels.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace Quilon_::Basic::Images::Morphology {

// A row of the element: its offset along Y and Z.
struct RowOffset {
    std::int64_t dy = 0;
    std::int64_t dz = 0;
};

// Rows that hold the same span from..to (inclusive) of X offsets.
struct SpanGroup {
    std::int64_t from = 0;
    std::int64_t to = 0;
    std::vector<RowOffset> rows;

    std::int64_t Length() const { return to - from + 1; }
};

struct Decomposition {
    // Offsets read directly, one shifted row each: single samples, and the
    // short span of a row that no group covers.
    std::vector<Shift> points;
    std::vector<SpanGroup> groups;
    // The samples of neutral value a row buffer needs on either side so
    // that every span of the groups stays inside it.
    std::int64_t padding = 0;
    // The most rows any one fold reads (the points or a group's rows).
    std::size_t widestFold = 0;
};

// Spans up to this length are folded as that many shifted rows; longer
// ones by doubling.
inline constexpr std::int64_t shortSpan = 6;

Decomposition Decompose(std::span<const Shift> shifts);

// Every offset the decomposition reads, as often as it reads it.
std::vector<Shift> Recomposed(const Decomposition& plan);

// Decompose, remembered per thread for the last few elements, so that a
// repeated call with the same element neither decomposes nor allocates.
std::shared_ptr<const Decomposition> DecompositionOf(std::span<const Shift> shifts);

} // namespace Quilon_::Basic::Images::Morphology
