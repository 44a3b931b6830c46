// The vectorised row kernels behind the fast filters, each chosen at run
// time for the processor's instruction set (FilterSimd.cpp). They work on
// one row of dense samples at a time; the callers lay the border out
// around the rows they pass, so the kernels never test one.
//
//   // A 5-tap symmetric smoothing of rows up[2], up[1], centre, down[1], down[2]:
//   const float w[] = {0.4f, 0.2f, 0.1f};            // centre, then offsets 1 and 2
//   const std::uint8_t* rows[] = {a, b, c, d, e};
//   GaussianColumns(rows, w, 2, width, column);      // column[x], x < width
//   GaussianRow(paddedColumn, w, 2, width, output);  // paddedColumn: 2 more on each side
#pragma once

#include <cstdint>

namespace Quilon_::Basic::Images::Operators {

// out[x] = w[0] rows[r][x] + the sum over k = 1..r of w[k] (rows[r - k][x] +
// rows[r + k][x]), in single precision; `rows` holds 2 r + 1 rows.
void GaussianColumns(const std::uint8_t* const* rows, const float* weights, std::int64_t radius,
                     std::int64_t count, float* out);
void GaussianColumns(const float* const* rows, const float* weights, std::int64_t radius, std::int64_t count,
                     float* out);

// The same along a row: `padded` holds count + 2 r samples, out[x] being
// centred on padded[x + r]. Into 8-bit samples the sum is rounded to
// nearest, ties to even, and saturated.
void GaussianRow(const float* padded, const float* weights, std::int64_t radius, std::int64_t count,
                 float* out);
void GaussianRow(const float* padded, const float* weights, std::int64_t radius, std::int64_t count,
                 std::uint8_t* out);

// sorted[i][x] = the sample of rank i (0 the least) among rows[0][x] ..
// rows[side - 1][x], for a side of 3 or 5. `ahead`, if not null, is the
// row needed next, brought into the cache on the way.
void SortColumns(const std::uint8_t* const* rows, std::int64_t side, std::int64_t count,
                 std::uint8_t* const* sorted, const std::uint8_t* ahead);

// out[x] = the median of the side x side window whose columns, sorted as
// SortColumns leaves them, start at sorted[.][x]: `sorted` rows hold
// count + side - 1 samples.
void MedianOfSortedColumns(const std::uint8_t* const* sorted, std::int64_t side, std::int64_t count,
                           std::uint8_t* out);

} // namespace Quilon_::Basic::Images::Operators
