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
#include <type_traits>
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
// the elements left (13 of 25; the 3 x 3 window keeps 3 of 9, see
// MedianOfSorted3). The rank sorts and that last median are Batcher
// merge-exchange networks, from which the exchanges whose results are
// never read were removed. The networks were checked on every window of
// zeros and ones with sorted columns, which by the 0-1 principle covers
// every window.
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

// The column sum at x of the window centred on centre[0], one sample at a
// time (the last few samples of a row).
template <class T>
HWY_INLINE float SymmetricColumnAt(const T* const* centre, std::int64_t x, const float* w,
                                   std::int64_t radius)
{
    float sum = w[0] * static_cast<float>(centre[0][x]);
    for (std::int64_t k = 1; k <= radius; ++k)
        sum += w[k] * (static_cast<float>(centre[-k][x]) + static_cast<float>(centre[k][x]));
    return sum;
}

// One output row of the column pass, each tap loaded (and converted) on
// its own: for windows too tall to keep every row of a block in registers.
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
    for (; x < count; ++x)
        out[x] = SymmetricColumnAt(rows + radius, x, w, radius);
}

// Calls body(std::integral_constant<std::int64_t, R>) with R = radius for
// the radii of common windows, so that their taps are unrolled and their
// weights held in registers, and with R = 0 (radius read at run time) for
// the others.
template <class Body>
HWY_INLINE void WithFixedRadius(std::int64_t radius, Body&& body)
{
    switch (radius) {
    case 1:
        return body(std::integral_constant<std::int64_t, 1>{});
    case 2:
        return body(std::integral_constant<std::int64_t, 2>{});
    case 3:
        return body(std::integral_constant<std::int64_t, 3>{});
    case 4:
        return body(std::integral_constant<std::int64_t, 4>{});
    case 5:
        return body(std::integral_constant<std::int64_t, 5>{});
    case 6:
        return body(std::integral_constant<std::int64_t, 6>{});
    case 7:
        return body(std::integral_constant<std::int64_t, 7>{});
    case 8:
        return body(std::integral_constant<std::int64_t, 8>{});
    default:
        return body(std::integral_constant<std::int64_t, 0>{});
    }
}

// out[j][x] for the gaussianBlockRows output rows centred on rows[r + j]:
// the 2 r + n samples of a column are converted once, then summed for
// every output row in the same order as a row on its own (so the results
// are the same), the output rows' sums side by side.
template <std::int64_t fixedRadius, class T>
HWY_INLINE void SymmetricColumnBlock(const T* const* rowList, const float* w, std::int64_t radius,
                                     std::int64_t count, float* const* outList)
{
    constexpr std::int64_t n = gaussianBlockRows;
    const std::int64_t r = fixedRadius > 0 ? fixedRadius : radius;
    const T* rows[gaussianBlockSpan];
    for (std::int64_t i = 0; i < 2 * r + n; ++i)
        rows[i] = rowList[i];
    float* out[n];
    for (std::int64_t j = 0; j < n; ++j)
        out[j] = outList[j];
    const hn::ScalableTag<float> df;
    using V = hn::Vec<decltype(df)>;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(df));
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        V v[gaussianBlockSpan];
#pragma GCC unroll 24
        for (std::int64_t i = 0; i < 2 * r + n; ++i)
            v[i] = LoadAsFloat(df, rows[i] + x);
        V sum[n];
        const V w0 = hn::Set(df, w[0]);
#pragma GCC unroll 4
        for (std::int64_t j = 0; j < n; ++j)
            sum[j] = hn::Mul(w0, v[r + j]);
#pragma GCC unroll 8
        for (std::int64_t k = 1; k <= r; ++k) {
            const V wk = hn::Set(df, w[k]);
#pragma GCC unroll 4
            for (std::int64_t j = 0; j < n; ++j)
                sum[j] = hn::MulAdd(wk, hn::Add(v[r + j - k], v[r + j + k]), sum[j]);
        }
#pragma GCC unroll 4
        for (std::int64_t j = 0; j < n; ++j)
            hn::StoreU(sum[j], df, out[j] + x);
    }
    for (; x < count; ++x)
        for (std::int64_t j = 0; j < n; ++j)
            out[j][x] = SymmetricColumnAt(rows + r + j, x, w, r);
}

template <class T>
HWY_INLINE void SymmetricColumnRows(const T* const* rows, const float* w, std::int64_t radius,
                                    std::int64_t count, std::int64_t n, float* const* out)
{
    if (n != gaussianBlockRows || 2 * radius + n > gaussianBlockSpan) {
        for (std::int64_t j = 0; j < n; ++j)
            SymmetricColumns(rows + j, w, radius, count, out[j]);
        return;
    }
    WithFixedRadius(radius, [&](auto fixed) {
        SymmetricColumnBlock<decltype(fixed)::value>(rows, w, radius, count, out);
    });
}

void GaussianColumnsU8(const std::uint8_t* const* rows, const float* w, std::int64_t radius,
                       std::int64_t count, std::int64_t n, float* const* out)
{
    SymmetricColumnRows(rows, w, radius, count, n, out);
}

void GaussianColumnsF32(const float* const* rows, const float* w, std::int64_t radius, std::int64_t count,
                        std::int64_t n, float* const* out)
{
    SymmetricColumnRows(rows, w, radius, count, n, out);
}

// The row pass over a line padded by `radius` on each side.
template <std::int64_t fixedRadius, class D>
HWY_INLINE hn::Vec<D> SymmetricRowAt(D df, const float* centre, const float* w, std::int64_t radius)
{
    const std::int64_t r = fixedRadius > 0 ? fixedRadius : radius;
    auto sum = hn::Mul(hn::Set(df, w[0]), hn::LoadU(df, centre));
#pragma GCC unroll 8
    for (std::int64_t k = 1; k <= r; ++k)
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

template <std::int64_t fixedRadius>
HWY_INLINE void SymmetricRow(const float* padded, const float* w, std::int64_t radius, std::int64_t count,
                             float* out)
{
    const hn::ScalableTag<float> df;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(df));
    const float* centre = padded + radius;
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes)
        hn::StoreU(SymmetricRowAt<fixedRadius>(df, centre + x, w, radius), df, out + x);
    for (; x < count; ++x)
        out[x] = SymmetricRowAt(centre + x, w, radius);
}

// Rounded to nearest, ties to even, and saturated, as every conversion of
// a computed value into a sample.
template <std::int64_t fixedRadius>
HWY_INLINE void SymmetricRow(const float* padded, const float* w, std::int64_t radius, std::int64_t count,
                             std::uint8_t* out)
{
    const hn::ScalableTag<float> df;
    const hn::Rebind<std::uint8_t, decltype(df)> d8;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(df));
    const float* centre = padded + radius;
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes)
        hn::StoreU(hn::DemoteTo(d8, hn::NearestInt(SymmetricRowAt<fixedRadius>(df, centre + x, w, radius))),
                   d8, out + x);
    for (; x < count; ++x) {
        const float value = std::nearbyint(SymmetricRowAt(centre + x, w, radius));
        out[x] = static_cast<std::uint8_t>(std::clamp(value, 0.0f, 255.0f));
    }
}

void GaussianRowF32(const float* padded, const float* w, std::int64_t radius, std::int64_t count, float* out)
{
    WithFixedRadius(radius,
                    [&](auto fixed) { SymmetricRow<decltype(fixed)::value>(padded, w, radius, count, out); });
}

void GaussianRowU8(const float* padded, const float* w, std::int64_t radius, std::int64_t count,
                   std::uint8_t* out)
{
    WithFixedRadius(radius,
                    [&](auto fixed) { SymmetricRow<decltype(fixed)::value>(padded, w, radius, count, out); });
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

// Rows b and c are ordered once; a joins them for the first window, d for
// the second.
template <class Order, class V>
HWY_INLINE void SortColumnPair(V a, V b, V c, V d, V* first, V* second)
{
    const V low = Order::Low(b, c), high = Order::High(b, c);
    const V aboveA = Order::High(a, low), belowD = Order::Low(d, high);
    first[0] = Order::Low(a, low);
    first[1] = Order::Low(aboveA, high);
    first[2] = Order::High(aboveA, high);
    second[0] = Order::Low(low, belowD);
    second[1] = Order::High(low, belowD);
    second[2] = Order::High(d, high);
}

void SortColumnPairs3U8(const std::uint8_t* const* rowList, std::int64_t count,
                        std::uint8_t* const* sortedList, const std::uint8_t* const* aheadList)
{
    const std::uint8_t *ahead = aheadList[0], *aheadToo = aheadList[1];
    const std::uint8_t *a = rowList[0], *b = rowList[1], *c = rowList[2], *d = rowList[3];
    std::uint8_t* sorted[6];
    for (std::size_t i = 0; i < 6; ++i)
        sorted[i] = sortedList[i];
    const hn::ScalableTag<std::uint8_t> du;
    using V = hn::Vec<decltype(du)>;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(du));
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        if (ahead)
            __builtin_prefetch(ahead + x);
        if (aheadToo)
            __builtin_prefetch(aheadToo + x);
        V v[6];
        SortColumnPair<VectorOrder>(hn::LoadU(du, a + x), hn::LoadU(du, b + x), hn::LoadU(du, c + x),
                                    hn::LoadU(du, d + x), v, v + 3);
#pragma GCC unroll 6
        for (std::size_t i = 0; i < 6; ++i)
            hn::StoreU(v[i], du, sorted[i] + x);
    }
    for (; x < count; ++x) {
        std::uint8_t v[6];
        SortColumnPair<SampleOrder>(a[x], b[x], c[x], d[x], v, v + 3);
        for (std::size_t i = 0; i < 6; ++i)
            sorted[i][x] = v[i];
    }
}

// The median of three, of a 3 x 3 window from its sorted columns: the
// greatest of the columns' least values, the median of their medians and
// the least of their greatest values.
template <class Order, class V>
HWY_INLINE V MedianOfThree(V a, V b, V c)
{
    return Order::High(Order::Low(a, b), Order::Low(Order::High(a, b), c));
}

template <class Order, class Load>
HWY_INLINE auto MedianOfSorted3(Load load)
{
    const auto least = Order::High(Order::High(load(0, 0), load(0, 1)), load(0, 2));
    const auto greatest = Order::Low(Order::Low(load(2, 0), load(2, 1)), load(2, 2));
    const auto middle = MedianOfThree<Order>(load(1, 0), load(1, 1), load(1, 2));
    return MedianOfThree<Order>(least, middle, greatest);
}

void MedianOfSortedColumns3(const std::uint8_t* const* sortedList, std::int64_t count, std::uint8_t* out,
                            std::uint8_t* aheadOut)
{
    const std::uint8_t* sorted[3] = {sortedList[0], sortedList[1], sortedList[2]};
    const hn::ScalableTag<std::uint8_t> du;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(du));
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        if (aheadOut)
            __builtin_prefetch(aheadOut + x, 1);
        const auto load = [&](std::size_t rank, std::int64_t column) {
            return hn::LoadU(du, sorted[rank] + x + column);
        };
        hn::StoreU(MedianOfSorted3<VectorOrder>(load), du, out + x);
    }
    for (; x < count; ++x) {
        const auto load = [&](std::size_t rank, std::int64_t column) { return sorted[rank][x + column]; };
        out[x] = MedianOfSorted3<SampleOrder>(load);
    }
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
                             std::uint8_t* out, std::uint8_t* aheadOut)
{
    using namespace MedianNetworks;
    if (side == 3)
        MedianOfSortedColumns3(sorted, count, out, aheadOut);
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
HWY_EXPORT(SortColumnPairs3U8);
HWY_EXPORT(MedianOfSortedColumnsU8);

void GaussianColumns(const std::uint8_t* const* rows, const float* weights, std::int64_t radius,
                     std::int64_t count, std::int64_t n, float* const* out)
{
    HWY_DYNAMIC_DISPATCH(GaussianColumnsU8)(rows, weights, radius, count, n, out);
}

void GaussianColumns(const float* const* rows, const float* weights, std::int64_t radius, std::int64_t count,
                     std::int64_t n, float* const* out)
{
    HWY_DYNAMIC_DISPATCH(GaussianColumnsF32)(rows, weights, radius, count, n, out);
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

void SortColumnPairs3(const std::uint8_t* const* rows, std::int64_t count, std::uint8_t* const* sorted,
                      const std::uint8_t* const* ahead)
{
    HWY_DYNAMIC_DISPATCH(SortColumnPairs3U8)(rows, count, sorted, ahead);
}

void MedianOfSortedColumns(const std::uint8_t* const* sorted, std::int64_t side, std::int64_t count,
                           std::uint8_t* out, std::uint8_t* aheadOut)
{
    HWY_DYNAMIC_DISPATCH(MedianOfSortedColumnsU8)(sorted, side, count, out, aheadOut);
}

} // namespace Quilon_::Basic::Images::Operators
#endif
