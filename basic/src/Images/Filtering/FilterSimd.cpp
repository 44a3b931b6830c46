// The vectorised kernels of the fast filters (declared in FilterKernels.h):
// the two passes of a symmetric separable kernel in single precision, and
// the rank networks of the 3 x 3 and 5 x 5 medians of 8-bit samples. Each
// kernel runs over one row; what lies outside the image is already in the
// rows it is given, so no kernel tests a border.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Images/Filtering/FilterSimd.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "Images/Filtering/FilterKernels.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#ifndef QUILON_FILTER_SIMD_NETWORKS
#define QUILON_FILTER_SIMD_NETWORKS
namespace Quilon_::Basic::Images::Operators::MedianNetworks {

// One compare-exchange of a selection network: slot `low` receives the
// lesser value, slot `high` the greater, and a side that no later step
// reads is not computed.
enum class Keep : std::uint8_t { both, low, high };
struct Exchange {
    std::uint8_t low;
    std::uint8_t high;
    Keep keep;
};

// The window of a median arrives as `side` columns each already sorted
// (shared by the `side` outputs that read the column), slot side * j + i
// holding rank i of column j. Sorting every rank across the columns then
// gives a matrix sorted along both directions, in which an element is
// known to be below the median when at least half the window lies above
// it, and above when at least half lies below; the median is the median of
// the elements left (3 of 9, 13 of 25). The rank sorts and that last median
// are Batcher merge-exchange networks, from which the exchanges whose
// results are never read were removed. The networks were checked on every
// window of zeros and ones with sorted columns, which by the 0-1 principle
// covers every window.
constexpr Exchange median3[] = {{0, 6, Keep::both}, {0, 3, Keep::high}, {3, 6, Keep::high},
                                {1, 7, Keep::both}, {1, 4, Keep::high}, {4, 7, Keep::low},
                                {2, 8, Keep::low},  {2, 5, Keep::low},  {6, 2, Keep::both},
                                {6, 4, Keep::high}, {4, 2, Keep::low}};
constexpr std::size_t median3Result = 4;

constexpr Exchange median5[] = {
    {0, 20, Keep::both},  {0, 10, Keep::both},  {5, 15, Keep::both},  {10, 20, Keep::both},
    {0, 5, Keep::high},   {10, 15, Keep::high}, {5, 20, Keep::high},  {15, 20, Keep::both},
    {1, 21, Keep::both},  {1, 11, Keep::both},  {6, 16, Keep::both},  {11, 21, Keep::both},
    {1, 6, Keep::high},   {11, 16, Keep::both}, {6, 21, Keep::both},  {6, 11, Keep::high},
    {16, 21, Keep::both}, {2, 22, Keep::both},  {2, 12, Keep::both},  {7, 17, Keep::both},
    {12, 22, Keep::both}, {2, 7, Keep::high},   {12, 17, Keep::both}, {7, 22, Keep::both},
    {7, 12, Keep::both},  {17, 22, Keep::low},  {3, 23, Keep::both},  {3, 13, Keep::both},
    {8, 18, Keep::both},  {13, 23, Keep::both}, {3, 8, Keep::both},   {13, 18, Keep::low},
    {8, 23, Keep::low},   {8, 13, Keep::both},  {4, 24, Keep::both},  {4, 14, Keep::both},
    {9, 19, Keep::both},  {14, 24, Keep::both}, {4, 9, Keep::both},   {14, 19, Keep::low},
    {9, 24, Keep::low},   {9, 14, Keep::low},   {15, 3, Keep::both},  {20, 8, Keep::both},
    {11, 13, Keep::both}, {16, 4, Keep::both},  {21, 9, Keep::both},  {15, 21, Keep::both},
    {20, 7, Keep::both},  {11, 12, Keep::both}, {16, 17, Keep::both}, {3, 9, Keep::both},
    {21, 3, Keep::both},  {7, 8, Keep::both},   {12, 13, Keep::both}, {17, 4, Keep::both},
    {15, 11, Keep::both}, {20, 16, Keep::both}, {21, 12, Keep::both}, {7, 17, Keep::both},
    {3, 13, Keep::both},  {8, 4, Keep::both},   {11, 3, Keep::both},  {16, 8, Keep::both},
    {12, 9, Keep::both},  {11, 21, Keep::both}, {16, 7, Keep::both},  {12, 3, Keep::both},
    {17, 8, Keep::both},  {13, 9, Keep::both},  {15, 20, Keep::high}, {11, 16, Keep::high},
    {21, 7, Keep::high},  {12, 17, Keep::low},  {3, 8, Keep::low},    {13, 4, Keep::low},
    {20, 3, Keep::high},  {16, 13, Keep::low},  {7, 9, Keep::low},    {16, 12, Keep::high},
    {7, 3, Keep::low},    {7, 12, Keep::high}};
constexpr std::size_t median5Result = 12;

// Sorting networks of the columns.
constexpr Exchange sort3[] = {{0, 2, Keep::both}, {0, 1, Keep::both}, {1, 2, Keep::both}};
constexpr Exchange sort5[] = {{0, 4, Keep::both}, {0, 2, Keep::both}, {1, 3, Keep::both},
                              {2, 4, Keep::both}, {0, 1, Keep::both}, {2, 3, Keep::both},
                              {1, 4, Keep::both}, {1, 2, Keep::both}, {3, 4, Keep::both}};

} // namespace Quilon_::Basic::Images::Operators::MedianNetworks
#endif

HWY_BEFORE_NAMESPACE();
namespace Quilon_::Basic::Images::Operators::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;
using MedianNetworks::Exchange;
using MedianNetworks::Keep;

// ---- Separable Gaussian -------------------------------------------------------

// Samples as floats: 8-bit ones widened, floats as they are.
template <class D>
HWY_INLINE hn::Vec<D> LoadAsFloat(D df, const float* p)
{
    return hn::LoadU(df, p);
}
template <class D>
HWY_INLINE hn::Vec<D> LoadAsFloat(D df, const std::uint8_t* p)
{
    const hn::Rebind<std::uint8_t, D> d8;
    const hn::Rebind<std::int32_t, D> di;
    return hn::ConvertTo(df, hn::PromoteTo(di, hn::LoadU(d8, p)));
}

// out[x] = w[0] rows[r][x] + sum over k of w[k] (rows[r - k][x] + rows[r + k][x]).
template <class T>
HWY_INLINE void SymmetricColumns(const T* const* rows, const float* w, std::int64_t radius,
                                 std::int64_t count, float* out)
{
    const hn::ScalableTag<float> df;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(df));
    const T* centre = rows[radius];
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        auto sum = hn::Mul(hn::Set(df, w[0]), LoadAsFloat(df, centre + x));
        for (std::int64_t k = 1; k <= radius; ++k) {
            const auto pair =
                hn::Add(LoadAsFloat(df, rows[radius - k] + x), LoadAsFloat(df, rows[radius + k] + x));
            sum = hn::MulAdd(hn::Set(df, w[k]), pair, sum);
        }
        hn::StoreU(sum, df, out + x);
    }
    for (; x < count; ++x) {
        float sum = w[0] * static_cast<float>(centre[x]);
        for (std::int64_t k = 1; k <= radius; ++k)
            sum += w[k] * (static_cast<float>(rows[radius - k][x]) + static_cast<float>(rows[radius + k][x]));
        out[x] = sum;
    }
}

void GaussianColumnsU8(const std::uint8_t* const* rows, const float* w, std::int64_t radius,
                       std::int64_t count, float* out)
{
    SymmetricColumns(rows, w, radius, count, out);
}

void GaussianColumnsF32(const float* const* rows, const float* w, std::int64_t radius, std::int64_t count,
                        float* out)
{
    SymmetricColumns(rows, w, radius, count, out);
}

// The row pass over a line padded by `radius` on each side.
template <class D>
HWY_INLINE hn::Vec<D> SymmetricRowAt(D df, const float* centre, const float* w, std::int64_t radius)
{
    auto sum = hn::Mul(hn::Set(df, w[0]), hn::LoadU(df, centre));
    for (std::int64_t k = 1; k <= radius; ++k)
        sum =
            hn::MulAdd(hn::Set(df, w[k]), hn::Add(hn::LoadU(df, centre - k), hn::LoadU(df, centre + k)), sum);
    return sum;
}

HWY_INLINE float SymmetricRowAt(const float* centre, const float* w, std::int64_t radius)
{
    float sum = w[0] * centre[0];
    for (std::int64_t k = 1; k <= radius; ++k)
        sum += w[k] * (centre[-k] + centre[k]);
    return sum;
}

void GaussianRowF32(const float* padded, const float* w, std::int64_t radius, std::int64_t count, float* out)
{
    const hn::ScalableTag<float> df;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(df));
    const float* centre = padded + radius;
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes)
        hn::StoreU(SymmetricRowAt(df, centre + x, w, radius), df, out + x);
    for (; x < count; ++x)
        out[x] = SymmetricRowAt(centre + x, w, radius);
}

// Rounded to nearest, ties to even, and saturated, as every conversion of
// a computed value into a sample.
void GaussianRowU8(const float* padded, const float* w, std::int64_t radius, std::int64_t count,
                   std::uint8_t* out)
{
    const hn::ScalableTag<float> df;
    const hn::Rebind<std::uint8_t, decltype(df)> d8;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(df));
    const float* centre = padded + radius;
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes)
        hn::StoreU(hn::DemoteTo(d8, hn::NearestInt(SymmetricRowAt(df, centre + x, w, radius))), d8, out + x);
    for (; x < count; ++x) {
        const float value = std::nearbyint(SymmetricRowAt(centre + x, w, radius));
        out[x] = static_cast<std::uint8_t>(std::clamp(value, 0.0f, 255.0f));
    }
}

// ---- Median networks ------------------------------------------------------------

// Min and max on whole vectors, or on single samples for the last few.
struct VectorOrder {
    template <class V>
    static HWY_INLINE V Low(V a, V b)
    {
        return hn::Min(a, b);
    }
    template <class V>
    static HWY_INLINE V High(V a, V b)
    {
        return hn::Max(a, b);
    }
};
struct SampleOrder {
    static HWY_INLINE std::uint8_t Low(std::uint8_t a, std::uint8_t b) { return std::min(a, b); }
    static HWY_INLINE std::uint8_t High(std::uint8_t a, std::uint8_t b) { return std::max(a, b); }
};

template <class Order, const Exchange* network, std::size_t... step, class V>
HWY_INLINE void RunNetwork(V* v, std::index_sequence<step...>)
{
    (
        [&] {
            constexpr Exchange e = network[step];
            const V low = Order::Low(v[e.low], v[e.high]);
            if constexpr (e.keep != Keep::low)
                v[e.high] = Order::High(v[e.low], v[e.high]);
            if constexpr (e.keep != Keep::high)
                v[e.low] = low;
        }(),
        ...);
}

template <class Order, const Exchange* network, std::size_t size, class V>
HWY_INLINE void RunNetwork(V* v)
{
    RunNetwork<Order, network>(v, std::make_index_sequence<size>{});
}

// Sorts the `side` samples of every column: sorted[i][x] is rank i of
// rows[0][x] ... rows[side - 1][x].
template <std::size_t side, const Exchange* network, std::size_t size>
HWY_INLINE void SortColumnsOf(const std::uint8_t* const* rowList, std::int64_t count,
                              std::uint8_t* const* sortedList, const std::uint8_t* ahead)
{
    // Local copies of the row pointers: the stores below cannot change
    // them, so they stay in registers.
    const std::uint8_t* rows[side];
    std::uint8_t* sorted[side];
    for (std::size_t i = 0; i < side; ++i)
        rows[i] = rowList[i], sorted[i] = sortedList[i];
    const hn::ScalableTag<std::uint8_t> d;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        // One line of the next row per vector: spread out, the requests
        // never queue up behind each other.
        if (ahead)
            __builtin_prefetch(ahead + x);
        hn::Vec<decltype(d)> v[side];
#pragma GCC unroll 5
        for (std::size_t i = 0; i < side; ++i)
            v[i] = hn::LoadU(d, rows[i] + x);
        RunNetwork<VectorOrder, network, size>(v);
#pragma GCC unroll 5
        for (std::size_t i = 0; i < side; ++i)
            hn::StoreU(v[i], d, sorted[i] + x);
    }
    for (; x < count; ++x) {
        std::uint8_t v[side];
        for (std::size_t i = 0; i < side; ++i)
            v[i] = rows[i][x];
        RunNetwork<SampleOrder, network, size>(v);
        for (std::size_t i = 0; i < side; ++i)
            sorted[i][x] = v[i];
    }
}

void SortColumnsU8(const std::uint8_t* const* rows, std::int64_t side, std::int64_t count,
                   std::uint8_t* const* sorted, const std::uint8_t* ahead)
{
    if (side == 3)
        SortColumnsOf<3, MedianNetworks::sort3, std::size(MedianNetworks::sort3)>(rows, count, sorted, ahead);
    else
        SortColumnsOf<5, MedianNetworks::sort5, std::size(MedianNetworks::sort5)>(rows, count, sorted, ahead);
}

// out[x]: the median of the side x side window whose columns are
// sorted[.][x] ... sorted[.][x + side - 1].
template <std::size_t side, const Exchange* network, std::size_t size, std::size_t result>
HWY_INLINE void MedianOf(const std::uint8_t* const* sortedList, std::int64_t count, std::uint8_t* out)
{
    const std::uint8_t* sorted[side];
    for (std::size_t i = 0; i < side; ++i)
        sorted[i] = sortedList[i];
    const hn::ScalableTag<std::uint8_t> d;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        hn::Vec<decltype(d)> v[side * side];
#pragma GCC unroll 5
        for (std::size_t j = 0; j < side; ++j)
#pragma GCC unroll 5
            for (std::size_t i = 0; i < side; ++i)
                v[side * j + i] = hn::LoadU(d, sorted[i] + x + j);
        RunNetwork<VectorOrder, network, size>(v);
        hn::StoreU(v[result], d, out + x);
    }
    for (; x < count; ++x) {
        std::uint8_t v[side * side];
        for (std::size_t j = 0; j < side; ++j)
            for (std::size_t i = 0; i < side; ++i)
                v[side * j + i] = sorted[i][x + j];
        RunNetwork<SampleOrder, network, size>(v);
        out[x] = v[result];
    }
}

void MedianOfSortedColumnsU8(const std::uint8_t* const* sorted, std::int64_t side, std::int64_t count,
                             std::uint8_t* out)
{
    using namespace MedianNetworks;
    if (side == 3)
        MedianOf<3, median3, std::size(median3), median3Result>(sorted, count, out);
    else
        MedianOf<5, median5, std::size(median5), median5Result>(sorted, count, out);
}

} // namespace Quilon_::Basic::Images::Operators::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace Quilon_::Basic::Images::Operators {

HWY_EXPORT(GaussianColumnsU8);
HWY_EXPORT(GaussianColumnsF32);
HWY_EXPORT(GaussianRowF32);
HWY_EXPORT(GaussianRowU8);
HWY_EXPORT(SortColumnsU8);
HWY_EXPORT(MedianOfSortedColumnsU8);

void GaussianColumns(const std::uint8_t* const* rows, const float* weights, std::int64_t radius,
                     std::int64_t count, float* out)
{
    HWY_DYNAMIC_DISPATCH(GaussianColumnsU8)(rows, weights, radius, count, out);
}

void GaussianColumns(const float* const* rows, const float* weights, std::int64_t radius, std::int64_t count,
                     float* out)
{
    HWY_DYNAMIC_DISPATCH(GaussianColumnsF32)(rows, weights, radius, count, out);
}

void GaussianRow(const float* padded, const float* weights, std::int64_t radius, std::int64_t count,
                 float* out)
{
    HWY_DYNAMIC_DISPATCH(GaussianRowF32)(padded, weights, radius, count, out);
}

void GaussianRow(const float* padded, const float* weights, std::int64_t radius, std::int64_t count,
                 std::uint8_t* out)
{
    HWY_DYNAMIC_DISPATCH(GaussianRowU8)(padded, weights, radius, count, out);
}

void SortColumns(const std::uint8_t* const* rows, std::int64_t side, std::int64_t count,
                 std::uint8_t* const* sorted, const std::uint8_t* ahead)
{
    HWY_DYNAMIC_DISPATCH(SortColumnsU8)(rows, side, count, sorted, ahead);
}

void MedianOfSortedColumns(const std::uint8_t* const* sorted, std::int64_t side, std::int64_t count,
                           std::uint8_t* out)
{
    HWY_DYNAMIC_DISPATCH(MedianOfSortedColumnsU8)(sorted, side, count, out);
}

} // namespace Quilon_::Basic::Images::Operators
#endif
