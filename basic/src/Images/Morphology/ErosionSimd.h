// The vector kernel under the fast erosion and dilation: the minimum (or
// maximum) of a few rows of samples, element by element, compiled for every
// instruction set the library supports and chosen at run time.
//
//   const std::uint8_t* rows[] = {above, here, below};
//   FoldRows(false, buffer, rows, 3, width);        // buffer[i] = min of the three rows at i
//   const std::uint8_t* shifted[] = {buffer - 1, buffer, buffer + 1};
//   FoldRows(false, output, shifted, 3, width);     // the 3 x 3 erosion of one row
//
// Shifted pointers into one row make a horizontal minimum, pointers into
// several rows a vertical one. The target may be one of the sources, or a
// source shifted forward (target = b, sources {b, b + k}): samples are read
// before the ones at the same place are written, and written in increasing
// order. `streamed` writes the target past the caches, for a row that is
// not read again soon (call hwy::FlushStream() before another thread reads
// it). Floating samples follow the scalar kernels: a NaN never wins, and
// a position where every source is NaN gets the neutral value (+inf for a
// minimum, -inf for a maximum).
#pragma once

#include <cstddef>
#include <cstdint>

namespace Quilon_::Basic::Images::Morphology {

#define QUILON_MORPHOLOGY_FOLD_ROWS(T)                                                                       \
    void FoldRows(bool maximum, T* target, const T* const* sources, std::size_t count, std::int64_t n,       \
                  bool streamed = false);
QUILON_MORPHOLOGY_FOLD_ROWS(std::int8_t)
QUILON_MORPHOLOGY_FOLD_ROWS(std::uint8_t)
QUILON_MORPHOLOGY_FOLD_ROWS(std::int16_t)
QUILON_MORPHOLOGY_FOLD_ROWS(std::uint16_t)
QUILON_MORPHOLOGY_FOLD_ROWS(std::int32_t)
QUILON_MORPHOLOGY_FOLD_ROWS(std::uint32_t)
QUILON_MORPHOLOGY_FOLD_ROWS(std::int64_t)
QUILON_MORPHOLOGY_FOLD_ROWS(std::uint64_t)
QUILON_MORPHOLOGY_FOLD_ROWS(float)
QUILON_MORPHOLOGY_FOLD_ROWS(double)
#undef QUILON_MORPHOLOGY_FOLD_ROWS

} // namespace Quilon_::Basic::Images::Morphology
