// The vectorised kernels of the fast filters (declared in FilterKernels.h):
// the two passes of a symmetric separable kernel in single precision, and
// the rank networks of the 3 x 3 and 5 x 5 medians of 8- and 16-bit
// samples, and the exact box mean of those. Each kernel runs over one row
// or two; what lies outside the image is already in the rows it is given,
// so no kernel tests a border.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Images/Filtering/FilterSimd.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "Images/Filtering/FilterKernels.h"
#include "Images/Operators/SampleKinds.h"

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
// MedianOfSortedColumns). The rank sorts and that last median are Batcher
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

// The sorting network of the columns.
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
    template <class T>
    static HWY_INLINE T Low(T a, T b)
    {
        return std::min(a, b);
    }
    template <class T>
    static HWY_INLINE T High(T a, T b)
    {
        return std::max(a, b);
    }
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

// Calls body(T{}) for the integer sample types the median and box
// kernels take.
template <class Body>
HWY_INLINE void WithIntegerSample(SampleKind kind, Body&& body)
{
    switch (kind) {
    case SampleKind::u16:
        return body(std::uint16_t{});
    case SampleKind::i16:
        return body(std::int16_t{});
    default:
        return body(std::uint8_t{});
    }
}

// The same and float, for the medians.
template <class Body>
HWY_INLINE void WithMedianSample(SampleKind kind, Body&& body)
{
    if (kind == SampleKind::f32)
        return body(float{});
    WithIntegerSample(kind, body);
}

// Samples as the medians order them: integers as they are, floats as
// their keys (MedianKeyOf), in whole vectors or one at a time.
template <class D>
HWY_INLINE hn::Vec<D> LoadMedianKeys(D d, const hn::TFromD<D>* p)
{
    return hn::LoadU(d, p);
}
template <class D>
HWY_INLINE hn::Vec<D> LoadMedianKeys(D d, const float* p)
{
    const hn::Rebind<float, D> df;
    const auto bits = hn::BitCast(d, hn::LoadU(df, p));
    const auto magnitude = hn::And(bits, hn::Set(d, 0x7fffffff));
    const auto key = hn::Xor(bits, hn::And(hn::ShiftRight<31>(bits), hn::Set(d, 0x7fffffff)));
    return hn::IfThenElse(hn::Gt(magnitude, hn::Set(d, 0x7f800000)), hn::Set(d, 0x7fffffff), key);
}
template <class D>
HWY_INLINE void StoreMedianKeys(D d, hn::Vec<D> v, hn::TFromD<D>* p)
{
    hn::StoreU(v, d, p);
}
template <class D>
HWY_INLINE void StoreMedianKeys(D d, hn::Vec<D> v, float* p)
{
    const hn::Rebind<float, D> df;
    hn::StoreU(hn::BitCast(df, hn::Xor(v, hn::And(hn::ShiftRight<31>(v), hn::Set(d, 0x7fffffff)))), df, p);
}
template <class T>
HWY_INLINE MedianKey<T> KeyAt(const T* p)
{
    return MedianKeyOf(*p);
}
template <class T>
HWY_INLINE void PutKey(MedianKey<T> key, T* p)
{
    *p = MedianSampleOf<T>(key);
}

// Sorts the 5 samples of every column: sorted[i][x] is rank i of
// rows[0][x] ... rows[4][x].
template <class T, class K = MedianKey<T>>
HWY_INLINE void SortColumns5Of(const T* const* rowList, std::int64_t count, K* const* sortedList,
                               const T* ahead)
{
    using MedianNetworks::sort5;
    constexpr std::size_t side = 5;
    // Local copies of the row pointers: the stores below cannot change
    // them, so they stay in registers.
    const T* rows[side];
    K* sorted[side];
    for (std::size_t i = 0; i < side; ++i)
        rows[i] = rowList[i], sorted[i] = sortedList[i];
    const hn::ScalableTag<K> d;
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
            v[i] = LoadMedianKeys(d, rows[i] + x);
        RunNetwork<VectorOrder, sort5, std::size(sort5)>(v);
#pragma GCC unroll 5
        for (std::size_t i = 0; i < side; ++i)
            hn::StoreU(v[i], d, sorted[i] + x);
    }
    for (; x < count; ++x) {
        K v[side];
        for (std::size_t i = 0; i < side; ++i)
            v[i] = KeyAt(rows[i] + x);
        RunNetwork<SampleOrder, sort5, std::size(sort5)>(v);
        for (std::size_t i = 0; i < side; ++i)
            sorted[i][x] = v[i];
    }
}

void SortColumns5(SampleKind kind, const void* const* rows, std::int64_t count, void* const* sorted,
                  const void* ahead)
{
    WithMedianSample(kind, [&]<class T>(T) {
        SortColumns5Of(reinterpret_cast<const T* const*>(rows), count,
                       reinterpret_cast<MedianKey<T>* const*>(sorted), static_cast<const T*>(ahead));
    });
}

// out[x]: the median of the 5 x 5 window whose columns are sorted[.][x]
// ... sorted[.][x + 4].
template <class T, class K = MedianKey<T>>
HWY_INLINE void MedianOfSorted5(const K* const* sortedList, std::int64_t count, T* out)
{
    using MedianNetworks::median5;
    constexpr std::size_t side = 5, result = MedianNetworks::median5Result;
    const K* sorted[side];
    for (std::size_t i = 0; i < side; ++i)
        sorted[i] = sortedList[i];
    const hn::ScalableTag<K> d;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        hn::Vec<decltype(d)> v[side * side];
#pragma GCC unroll 5
        for (std::size_t j = 0; j < side; ++j)
#pragma GCC unroll 5
            for (std::size_t i = 0; i < side; ++i)
                v[side * j + i] = hn::LoadU(d, sorted[i] + x + j);
        RunNetwork<VectorOrder, median5, std::size(median5)>(v);
        StoreMedianKeys(d, v[result], out + x);
    }
    for (; x < count; ++x) {
        K v[side * side];
        for (std::size_t j = 0; j < side; ++j)
            for (std::size_t i = 0; i < side; ++i)
                v[side * j + i] = sorted[i][x + j];
        RunNetwork<SampleOrder, median5, std::size(median5)>(v);
        PutKey(v[result], out + x);
    }
}

void MedianOfSortedColumns5(SampleKind kind, const void* const* sorted, std::int64_t count, void* out)
{
    WithMedianSample(kind, [&]<class T>(T) {
        MedianOfSorted5(reinterpret_cast<const MedianKey<T>* const*>(sorted), count, static_cast<T*>(out));
    });
}

// ---- Median 3 x 3 ---------------------------------------------------------------

// The sorted columns of two 3-row windows one row apart, a b c and b c d:
// b and c are ordered once for both.
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

template <class Order, class V>
HWY_INLINE V MedianOfThree(V a, V b, V c)
{
    return Order::High(Order::Low(a, b), Order::Low(Order::High(a, b), c));
}

// The median of a 3 x 3 window from its three sorted columns: the median
// of the greatest of the columns' least values, the median of their
// medians and the least of their greatest values.
template <class Order, class V>
HWY_INLINE V MedianOfSortedColumns(const V* left, const V* centre, const V* right)
{
    const V least = Order::High(Order::High(left[0], centre[0]), right[0]);
    const V greatest = Order::Low(Order::Low(left[2], centre[2]), right[2]);
    const V middle = MedianOfThree<Order>(left[1], centre[1], right[1]);
    return MedianOfThree<Order>(least, middle, greatest);
}

// The medians at x of the windows a b c and b c d: each of the three
// columns is loaded straight from the rows (x - 1, x, x + 1 share their
// cache lines) and sorted in registers, so that nothing is stored but the
// results, and the loads of new input lines and the stores of new output
// lines go on side by side.
template <class Order, class Load, class V>
HWY_INLINE void MedianPairAt(Load load, V& first, V& second)
{
    V sorted[3][6];
#pragma GCC unroll 3
    for (int column = 0; column < 3; ++column)
        SortColumnPair<Order>(load(0, column - 1), load(1, column - 1), load(2, column - 1),
                              load(3, column - 1), sorted[column], sorted[column] + 3);
    first = MedianOfSortedColumns<Order>(sorted[0], sorted[1], sorted[2]);
    second = MedianOfSortedColumns<Order>(sorted[0] + 3, sorted[1] + 3, sorted[2] + 3);
}

template <class T>
HWY_INLINE void Median3x3RowsOf(const T* const* rowList, std::int64_t first, std::int64_t last,
                                T* const* outList, const T* const* aheadList)
{
    const T *a = rowList[0], *b = rowList[1], *c = rowList[2], *e = rowList[3];
    T *out = outList[0], *outToo = outList[1];
    const T *ahead = aheadList[0], *aheadToo = aheadList[1];
    const T *aheadOut = aheadList[2], *aheadOutToo = aheadList[3];
    const hn::ScalableTag<MedianKey<T>> d;
    using V = hn::Vec<decltype(d)>;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    const auto vectorAt = [&](std::int64_t x) {
        const auto load = [&](int row, int column) {
            const T* rows[] = {a, b, c, e};
            return LoadMedianKeys(d, rows[row] + x + column);
        };
        V v, w;
        MedianPairAt<VectorOrder>(load, v, w);
        StoreMedianKeys(d, v, out + x);
        if (outToo)
            StoreMedianKeys(d, w, outToo + x);
    };
    if (last - first >= lanes) {
        std::int64_t x = first;
        for (; x + lanes <= last; x += lanes) {
            // One line of each row the next pair adds, per vector: spread
            // out, the requests never queue up behind each other.
            if (ahead)
                __builtin_prefetch(ahead + x);
            if (aheadToo)
                __builtin_prefetch(aheadToo + x);
            if (aheadOut)
                __builtin_prefetch(aheadOut + x, 1);
            if (aheadOutToo)
                __builtin_prefetch(aheadOutToo + x, 1);
            vectorAt(x);
        }
        // The last vector ends at `last`, overlapping the one before.
        if (x < last)
            vectorAt(last - lanes);
        return;
    }
    for (std::int64_t x = first; x < last; ++x) {
        const auto load = [&](int row, int column) {
            const T* rows[] = {a, b, c, e};
            return KeyAt(rows[row] + x + column);
        };
        MedianKey<T> v, w;
        MedianPairAt<SampleOrder>(load, v, w);
        PutKey(v, out + x);
        if (outToo)
            PutKey(w, outToo + x);
    }
}

void Median3x3Rows(SampleKind kind, const void* const* rows, std::int64_t first, std::int64_t last,
                   void* const* out, const void* const* ahead)
{
    WithMedianSample(kind, [&]<class T>(T) {
        Median3x3RowsOf(reinterpret_cast<const T* const*>(rows), first, last,
                        reinterpret_cast<T* const*>(out), reinterpret_cast<const T* const*>(ahead));
    });
}

// ---- Box mean of integer samples ---------------------------------------------------

// sums[x] = rows[0][x] + ... + rows[side - 1][x], exactly in 32 bits.
template <class T>
HWY_INLINE void BoxColumnSumsOf(const T* const* rows, std::int64_t side, std::int64_t count,
                                std::int32_t* sums)
{
    const hn::ScalableTag<std::int32_t> di;
    const hn::Rebind<T, decltype(di)> dt;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(di));
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        auto sum = hn::PromoteTo(di, hn::LoadU(dt, rows[0] + x));
        for (std::int64_t k = 1; k < side; ++k)
            sum = hn::Add(sum, hn::PromoteTo(di, hn::LoadU(dt, rows[k] + x)));
        hn::StoreU(sum, di, sums + x);
    }
    for (; x < count; ++x) {
        std::int32_t sum = 0;
        for (std::int64_t k = 0; k < side; ++k)
            sum += rows[k][x];
        sums[x] = sum;
    }
}

void BoxColumnSums(SampleKind kind, const void* const* rows, std::int64_t side, std::int64_t count,
                   std::int32_t* sums)
{
    WithIntegerSample(kind, [&]<class T>(T) {
        BoxColumnSumsOf(reinterpret_cast<const T* const*>(rows), side, count, sums);
    });
}

// sums[x] += added[x] - removed[x]: the window moved on by one row.
template <class T>
HWY_INLINE void BoxColumnSlideOf(const T* added, const T* removed, std::int64_t count, std::int32_t* sums)
{
    const hn::ScalableTag<std::int32_t> di;
    const hn::Rebind<T, decltype(di)> dt;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(di));
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        const auto change = hn::Sub(hn::PromoteTo(di, hn::LoadU(dt, added + x)),
                                    hn::PromoteTo(di, hn::LoadU(dt, removed + x)));
        hn::StoreU(hn::Add(hn::LoadU(di, sums + x), change), di, sums + x);
    }
    for (; x < count; ++x)
        sums[x] += std::int32_t(added[x]) - std::int32_t(removed[x]);
}

void BoxColumnSlide(SampleKind kind, const void* added, const void* removed, std::int64_t count,
                    std::int32_t* sums)
{
    WithIntegerSample(kind, [&]<class T>(T) {
        BoxColumnSlideOf(static_cast<const T*>(added), static_cast<const T*>(removed), count, sums);
    });
}

// The nearest integer to sum / divisor, for an odd divisor (no ties): an
// estimate in single precision, then set right by the exact remainder.
template <class D>
HWY_INLINE hn::Vec<D> RoundedQuotient(D di, hn::Vec<D> sum, std::int32_t divisor)
{
    const hn::Rebind<float, D> df;
    auto quotient =
        hn::NearestInt(hn::Mul(hn::ConvertTo(df, sum), hn::Set(df, 1.0f / static_cast<float>(divisor))));
    const auto twiceRest = hn::ShiftLeft<1>(hn::Sub(sum, hn::Mul(quotient, hn::Set(di, divisor))));
    const auto one = hn::Set(di, 1);
    quotient = hn::Add(quotient, hn::IfThenElseZero(hn::Gt(twiceRest, hn::Set(di, divisor)), one));
    return hn::Sub(quotient, hn::IfThenElseZero(hn::Lt(twiceRest, hn::Set(di, -divisor)), one));
}

HWY_INLINE std::int32_t RoundedQuotient(std::int32_t sum, std::int32_t divisor)
{
    const std::int64_t twice = 2 * std::int64_t(sum) + divisor, by = 2 * std::int64_t(divisor);
    return static_cast<std::int32_t>(twice >= 0 ? twice / by : -((-twice + by - 1) / by));
}

// out[x] = the nearest integer to (padded[x] + ... + padded[x + side - 1])
// / divisor.
template <class T>
HWY_INLINE void BoxRowOf(const std::int32_t* padded, std::int64_t side, std::int64_t count,
                         std::int32_t divisor, T* out)
{
    const hn::ScalableTag<std::int32_t> di;
    const hn::Rebind<T, decltype(di)> dt;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(di));
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        auto sum = hn::LoadU(di, padded + x);
        for (std::int64_t k = 1; k < side; ++k)
            sum = hn::Add(sum, hn::LoadU(di, padded + x + k));
        hn::StoreU(hn::DemoteTo(dt, RoundedQuotient(di, sum, divisor)), dt, out + x);
    }
    for (; x < count; ++x) {
        std::int32_t sum = 0;
        for (std::int64_t k = 0; k < side; ++k)
            sum += padded[x + k];
        out[x] = static_cast<T>(RoundedQuotient(sum, divisor));
    }
}

void BoxRow(SampleKind kind, const std::int32_t* padded, std::int64_t side, std::int64_t count,
            std::int32_t divisor, void* out)
{
    WithIntegerSample(kind,
                      [&]<class T>(T) { BoxRowOf(padded, side, count, divisor, static_cast<T*>(out)); });
}

} // namespace Quilon_::Basic::Images::Operators::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace Quilon_::Basic::Images::Operators {

HWY_EXPORT(GaussianColumnsU8);
HWY_EXPORT(GaussianColumnsF32);
HWY_EXPORT(GaussianRowF32);
HWY_EXPORT(GaussianRowU8);
HWY_EXPORT(SortColumns5);
HWY_EXPORT(MedianOfSortedColumns5);
HWY_EXPORT(Median3x3Rows);
HWY_EXPORT(BoxColumnSums);
HWY_EXPORT(BoxColumnSlide);
HWY_EXPORT(BoxRow);

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

void SortColumns5(SampleKind kind, const void* const* rows, std::int64_t count, void* const* sorted,
                  const void* ahead)
{
    HWY_DYNAMIC_DISPATCH(SortColumns5)(kind, rows, count, sorted, ahead);
}

void MedianOfSortedColumns5(SampleKind kind, const void* const* sorted, std::int64_t count, void* out)
{
    HWY_DYNAMIC_DISPATCH(MedianOfSortedColumns5)(kind, sorted, count, out);
}

void Median3x3Rows(SampleKind kind, const void* const* rows, std::int64_t first, std::int64_t last,
                   void* const* out, const void* const* ahead)
{
    HWY_DYNAMIC_DISPATCH(Median3x3Rows)(kind, rows, first, last, out, ahead);
}

void BoxColumnSums(SampleKind kind, const void* const* rows, std::int64_t side, std::int64_t count,
                   std::int32_t* sums)
{
    HWY_DYNAMIC_DISPATCH(BoxColumnSums)(kind, rows, side, count, sums);
}

void BoxColumnSlide(SampleKind kind, const void* added, const void* removed, std::int64_t count,
                    std::int32_t* sums)
{
    HWY_DYNAMIC_DISPATCH(BoxColumnSlide)(kind, added, removed, count, sums);
}

void BoxRow(SampleKind kind, const std::int32_t* padded, std::int64_t side, std::int64_t count,
            std::int32_t divisor, void* out)
{
    HWY_DYNAMIC_DISPATCH(BoxRow)(kind, padded, side, count, divisor, out);
}

} // namespace Quilon_::Basic::Images::Operators
#endif
