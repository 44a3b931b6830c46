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
//
// Small elements whose columns nest (squares, disks, cubes, balls, short
// lines) are also given as a chain (ChainedElement): each output row then
// costs one vertical fold per distinct column and one horizontal fold,
// done band by band in one kernel call (ErosionSimd.h).
#pragma once

#include "Images/Morphology/MorphologyKernels.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
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

// The element as nested columns. The rows (dy, dz) that the element holds
// at a given dx form that column; when the columns of every dx are nested
// (each holds the next smaller one), stage k folds the rows that its
// column adds to the fold of stage k - 1, and every output row is the fold
// of the terms: stage `stage` read at dx. The disk of radius 2 is three
// stages (row 0; rows -1 and 1; rows -2 and 2) and five terms (stage 0 at
// -2 and 2, stage 1 at -1 and 1, stage 2 at 0).
struct ChainedElement {
    struct Term {
        std::size_t stage = 0;
        std::int64_t dx = 0;
    };
    // Stage k adds rows[stageEnds[k - 1] .. stageEnds[k]) (from 0 for k = 0).
    std::vector<RowOffset> rows;
    std::vector<std::size_t> stageEnds;
    std::vector<Term> terms;
    // The samples of neutral value each stage's buffer has on either side.
    std::int64_t padding = 0;

    std::size_t StageCount() const { return stageEnds.size(); }
    std::size_t StageBegin(std::size_t k) const { return k == 0 ? 0 : stageEnds[k - 1]; }
};

// A line going down the rows of a plane, vertical or diagonal: offset t
// (0 <= t < length) is (x0 + step * t, y0 + t, 0), step -1, 0 or 1. A
// long one is folded by doubling over rows (see RowErosion.cpp), so that
// it costs about log2(length) folds per output row, as a long horizontal
// line does.
struct RowLine {
    std::int64_t x0 = 0;
    std::int64_t y0 = 0;
    std::int64_t step = 0;
    std::int64_t length = 0;

    // The samples the rows of its folds need on either side.
    std::int64_t Padding() const
    {
        const std::int64_t last = x0 + step * (length - 1);
        return std::max(x0 < 0 ? -x0 : x0, last < 0 ? -last : last);
    }
};

// Lines down the rows shorter than this are read directly, one shifted row
// per offset.
inline constexpr std::int64_t shortestRowLine = 8;

// The element as a line down the rows, or nothing when it is not one.
std::optional<RowLine> RowLineOf(std::span<const Shift> shifts);

// Every offset of the line.
std::vector<Shift> Recomposed(const RowLine& line);

// Elements read by more terms than this take the span groups, whose long
// spans fold by doubling.
inline constexpr std::size_t mostChainTerms = 11;

struct Decomposition {
    // The chained form, when the element's columns nest and it has at most
    // mostChainTerms columns; the fields below serve every element.
    std::optional<ChainedElement> chain;
    // The line down the rows, when the element is one of at least
    // shortestRowLine offsets; it then takes precedence over the rest.
    std::optional<RowLine> line;
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

// The element as nested columns, or nothing when its columns do not nest.
std::optional<ChainedElement> Chained(std::span<const Shift> shifts);

// Every offset the chain reads, once each.
std::vector<Shift> Recomposed(const ChainedElement& chain);

// Decompose, remembered per thread for the last few elements, so that a
// repeated call with the same element neither decomposes nor allocates.
std::shared_ptr<const Decomposition> DecompositionOf(std::span<const Shift> shifts);

} // namespace Quilon_::Basic::Images::Morphology
