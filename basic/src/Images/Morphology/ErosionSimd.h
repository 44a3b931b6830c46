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
//
// FoldChainBand erodes (or dilates) a whole band of rows by a chained
// element (Decomposition.h) in one call: per row, a chunk at a time, each
// stage's vertical fold into its own small buffer, then the terms folded
// from the buffers into the output row. The buffers stay in the first
// level cache, the input is read once from memory and the output written
// once, and a band pays the dispatch once, not once per row.
//
//   ChainBand<std::uint8_t> band{in, width, width * height, out, width, width * height,
//                                width, height, 1, 0, height, false, false, scratch};
//   FoldChainBand(*plan.chain, band);
//   // scratch: plan.chain->StageCount() * ChainBufferSamples(plan.chain->padding, width, 1) samples
#pragma once

#include "Images/Operators/SampleKinds.h"

#include <cstddef>
#include <cstdint>

namespace Quilon_::Basic::Images::Morphology {

struct ChainedElement;

// Rows [firstRow, lastRow) of one volume, a row numbered y + ny * z;
// strides in samples. The scratch (one ChainBufferSamples per stage, from
// an address aligned to 64 bytes) belongs to the call. The output must not
// overlap the input.
template <class T>
struct ChainBand {
    const T* in;
    std::int64_t inRowStride;
    std::int64_t inPlaneStride;
    T* out;
    std::int64_t outRowStride;
    std::int64_t outPlaneStride;
    std::int64_t nx, ny, nz;
    std::int64_t firstRow, lastRow;
    bool maximum;
    bool streamed;
    T* scratch;
};

// A band is folded a chunk of a row at a time (see ErosionSimd.cpp): the
// samples of a chunk.
inline std::int64_t ChainChunkSamples(std::int64_t nx, std::size_t sampleSize)
{
    const auto chunk = std::int64_t(1024 / sampleSize);
    return nx < chunk ? nx : chunk;
}

// One stage's buffer: the padding before the chunk, rounded up to 64 bytes
// (so that the chunk starts on a 64-byte boundary), then the chunk and the
// padding after it, rounded up likewise. The scratch of a band holds one
// buffer per stage.
inline std::int64_t ChainBufferLead(std::int64_t padding, std::size_t sampleSize)
{
    const auto perLine = std::int64_t(64 / sampleSize);
    return (padding + perLine - 1) / perLine * perLine;
}
inline std::int64_t ChainBufferSamples(std::int64_t padding, std::int64_t nx, std::size_t sampleSize)
{
    return ChainBufferLead(padding, sampleSize) +
           ChainBufferLead(ChainChunkSamples(nx, sampleSize) + padding, sampleSize);
}

#define QUILON_MORPHOLOGY_FOLD_ROWS(T)                                                                       \
    void FoldRows(bool maximum, T* target, const T* const* sources, std::size_t count, std::int64_t n,       \
                  bool streamed = false);
QUILON_FOR_EACH_SAMPLE_TYPE(QUILON_MORPHOLOGY_FOLD_ROWS)
#undef QUILON_MORPHOLOGY_FOLD_ROWS

#define QUILON_MORPHOLOGY_FOLD_CHAIN_BAND(T)                                                                 \
    void FoldChainBand(const ChainedElement& chain, const ChainBand<T>& band);
QUILON_FOR_EACH_SAMPLE_TYPE(QUILON_MORPHOLOGY_FOLD_CHAIN_BAND)
#undef QUILON_MORPHOLOGY_FOLD_CHAIN_BAND

} // namespace Quilon_::Basic::Images::Morphology
