// The vectorised row kernels behind the fast filters, each chosen at run
// time for the processor's instruction set (FilterSimd.cpp). They work on
// a few rows of dense samples at a time; the callers lay the border out
// around the rows they pass, so the kernels never test one.
//
//   // A 5-tap symmetric smoothing of two output rows from rows a ... f:
//   const float w[] = {0.4f, 0.2f, 0.1f};                  // centre, then offsets 1 and 2
//   const std::uint8_t* rows[] = {a, b, c, d, e, f};       // 2 r + 2 rows
//   float* columns[] = {first, second};
//   GaussianColumns(rows, w, 2, width, 2, columns);        // centred on c and d
//   GaussianRow(paddedColumn, w, 2, width, output);        // paddedColumn: 2 more on each side
#pragma once

#include <cstdint>

namespace Quilon_::Basic::Images::Operators {

// The most output rows one GaussianColumns call makes, and the most rows
// (2 r + n) it reads when it makes more than one.
inline constexpr std::int64_t gaussianBlockRows = 4;
inline constexpr std::int64_t gaussianBlockSpan = 40;

// out[j][x] = w[0] rows[r + j][x] + the sum over k = 1..r of w[k]
// (rows[r + j - k][x] + rows[r + j + k][x]), in single precision, for the
// `n` output rows j < n; `rows` holds 2 r + n rows. Each sample is
// converted to float once for all the output rows that read it; n is at
// most gaussianBlockRows, and 1 when 2 r + n exceeds gaussianBlockSpan.
void GaussianColumns(const std::uint8_t* const* rows, const float* weights, std::int64_t radius,
                     std::int64_t count, std::int64_t n, float* const* out);
void GaussianColumns(const float* const* rows, const float* weights, std::int64_t radius, std::int64_t count,
                     std::int64_t n, float* const* out);

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

// The sorted columns of two 3-row windows one row apart, rows[0..2] and
// rows[1..3], into sorted[0..2] and sorted[3..5]: the two rows both
// windows hold are ordered once for both. ahead[0] and ahead[1], those not
// null, are brought into the cache on the way.
void SortColumnPairs3(const std::uint8_t* const* rows, std::int64_t count, std::uint8_t* const* sorted,
                      const std::uint8_t* const* ahead);

// out[x] = the median of the side x side window whose columns, sorted as
// SortColumns leaves them, start at sorted[.][x]: `sorted` rows hold
// count + side - 1 samples. `aheadOut`, if not null, is the output row
// written next, brought into the cache for writing on the way (the 3 x 3
// window only).
void MedianOfSortedColumns(const std::uint8_t* const* sorted, std::int64_t side, std::int64_t count,
                           std::uint8_t* out, std::uint8_t* aheadOut);

} // namespace Quilon_::Basic::Images::Operators
