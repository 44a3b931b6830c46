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

#include <bit>
#include <cstdint>
#include <type_traits>

namespace Quilon_::Basic::Images::Operators {

enum class SampleKind : std::uint8_t; // SampleKinds.h

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

// The median kernels take the sample kinds u8, u16, i16 and f32, the box
// kernels the first three; rows and outputs point to samples of that kind.
//
// The medians order integers as they are and floats by a key in 32-bit
// integers in which every NaN is greater than any number (as the plain
// filter orders them) and -0 lies just below 0; rows of sorted columns
// hold keys.
template <class T>
using MedianKey = std::conditional_t<std::is_same_v<T, float>, std::int32_t, T>;

template <class T>
constexpr MedianKey<T> MedianKeyOf(T sample) noexcept
{
    if constexpr (std::is_same_v<T, float>) {
        const auto bits = std::bit_cast<std::int32_t>(sample);
        if ((bits & 0x7fffffff) > 0x7f800000)
            return 0x7fffffff; // NaN
        return bits < 0 ? bits ^ 0x7fffffff : bits;
    } else {
        return sample;
    }
}

template <class T>
constexpr T MedianSampleOf(MedianKey<T> key) noexcept
{
    if constexpr (std::is_same_v<T, float>)
        return std::bit_cast<float>(key < 0 ? key ^ 0x7fffffff : key);
    else
        return key;
}

// sorted[i][x] = the sample of rank i (0 the least) among rows[0][x] ..
// rows[4][x]. `ahead`, if not null, is the row needed next, brought into
// the cache on the way.
void SortColumns5(SampleKind kind, const void* const* rows, std::int64_t count, void* const* sorted,
                  const void* ahead);

// out[x] = the median of the 5 x 5 window whose columns, sorted as
// SortColumns5 leaves them, start at sorted[.][x]: `sorted` rows hold
// count + 4 samples.
void MedianOfSortedColumns5(SampleKind kind, const void* const* sorted, std::int64_t count, void* out);

// The 3 x 3 medians at x in [first, last) of two output rows one row
// apart: out[0] of the window rows[0..2], out[1] (if not null) of
// rows[1..3]. Rows are read at x - 1 ... x + 1. ahead[0] and ahead[1],
// those not null, are brought into the cache on the way.
void Median3x3Rows(SampleKind kind, const void* const* rows, std::int64_t first, std::int64_t last,
                   void* const* out, const void* const* ahead);

// sums[x] = rows[0][x] + ... + rows[side - 1][x].
void BoxColumnSums(SampleKind kind, const void* const* rows, std::int64_t side, std::int64_t count,
                   std::int32_t* sums);

// sums[x] += added[x] - removed[x].
void BoxColumnSlide(SampleKind kind, const void* added, const void* removed, std::int64_t count,
                    std::int32_t* sums);

// out[x] = the nearest integer to (padded[x] + ... + padded[x + side - 1])
// / divisor, exactly, for an odd divisor up to 32767 (sums and divisor
// times the quotients within 32 bits).
void BoxRow(SampleKind kind, const std::int32_t* padded, std::int64_t side, std::int64_t count,
            std::int32_t divisor, void* out);

} // namespace Quilon_::Basic::Images::Operators
