// The vectorised kernels of the sample-by-sample fast paths, compiled once
// per instruction set; see Pointwise.h. Each takes the kind of its samples
// and is instantiated once per kind.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Images/Operators/PointwiseSimd.cpp"
#include <hwy/cache_control.h>
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "Images/Operators/Pointwise.h"

HWY_BEFORE_NAMESPACE();
namespace Quilon_::Basic::Images::Operators::Pointwise::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Stores a byte per lane of `mask` (a mask over lanes of any width):
// `value` where it is set, 0 elsewhere.
template <class D, class M>
HWY_INLINE void StoreMaskBytes(D, M mask, std::uint8_t value, std::uint8_t* out)
{
    const hn::RebindToUnsigned<D> du;
    using U = hn::TFromD<decltype(du)>;
    const auto bytes = hn::IfThenElseZero(hn::RebindMask(du, mask), hn::Set(du, static_cast<U>(value)));
    if constexpr (sizeof(U) == 1) {
        hn::StoreU(bytes, du, out);
    } else {
        const hn::Rebind<std::uint8_t, D> d8;
        hn::StoreU(hn::TruncateTo(d8, bytes), d8, out);
    }
}

// Calls step(d, i) for each whole vector of `d` from `i` on, two at a time
// while two fit, and returns where the vectors stopped.
template <class D, class Step>
HWY_INLINE std::size_t ForEachVector(D d, std::size_t i, std::size_t n, Step&& step)
{
    const std::size_t lanes = hn::Lanes(d);
    for (; i + 2 * lanes <= n; i += 2 * lanes) {
        step(d, i);
        step(d, i + lanes);
    }
    for (; i + lanes <= n; i += lanes)
        step(d, i);
    return i;
}

template <class Streamed, class D, class V, class T>
HWY_INLINE void Put(D d, V v, T* to)
{
    if constexpr (Streamed::value)
        hn::Stream(v, d, to);
    else
        hn::StoreU(v, d, to);
}

// A run of n results into `out`, whole vectors by vectors(streamed, i)
// from i on (returning where they stopped), the rest by scalar(first,
// last). The vectors are stored at the output's vector alignment, the
// results before the first aligned one one by one: a vector stored across
// two cache lines costs two stores (images start 16 bytes past a line).
// `streamed` stores the vectors past the caches, for a run too large to be
// read again from them.
template <class D, class T, class Scalar, class Vectors>
HWY_INLINE void StoreRun(D d, T* out, std::size_t n, bool streamed, Scalar&& scalar, Vectors&& vectors)
{
    const std::size_t vectorBytes = hn::Lanes(d) * sizeof(T);
    const std::uintptr_t misaligned = reinterpret_cast<std::uintptr_t>(out) % vectorBytes;
    const std::size_t head =
        misaligned % sizeof(T) == 0 ? std::min(n, (vectorBytes - misaligned) % vectorBytes / sizeof(T)) : 0;
    scalar(0, head);
    if (streamed && head < n && misaligned % sizeof(T) == 0) {
        scalar(vectors(std::true_type{}, head), n);
        // Streamed stores are ordered with no other stores: make them
        // visible before another thread reads them.
        hwy::FlushStream();
    } else {
        scalar(vectors(std::false_type{}, head), n);
    }
}

// ---- Thresholds -------------------------------------------------------------

// No restrict: an operator may write its result over its input.
template <class T>
void ThresholdRun(const T* in, std::uint8_t* out, std::size_t n, T lower, T upper, std::uint8_t set,
                  bool streamed)
{
    const hn::ScalableTag<T> d;
    const auto scalar = [&](std::size_t first, std::size_t last) {
        for (std::size_t i = first; i < last; ++i)
            out[i] = lower <= in[i] && in[i] <= upper ? set : 0;
    };
    if constexpr (hwy::IsFloat<T>()) {
        // Ordered comparisons: a NaN sample is outside.
        const auto lo = hn::Set(d, lower), hi = hn::Set(d, upper);
        scalar(ForEachVector(d, 0, n,
                             [&](auto d, std::size_t at) {
                                 const auto v = hn::LoadU(d, in + at);
                                 StoreMaskBytes(d, hn::And(hn::Ge(v, lo), hn::Le(v, hi)), set, out + at);
                             }),
               n);
    } else {
        // lower <= v <= upper as one unsigned comparison: v - lower wraps
        // above upper - lower for every v outside.
        using U = std::make_unsigned_t<T>;
        const hn::RebindToUnsigned<decltype(d)> du;
        const auto origin = hn::Set(du, static_cast<U>(lower));
        const auto width = hn::Set(du, static_cast<U>(static_cast<U>(upper) - static_cast<U>(lower)));
        const auto value = hn::Set(du, static_cast<U>(set));
        const auto* samples = reinterpret_cast<const U*>(in);
        if constexpr (sizeof(T) == 1) {
            // Results as wide as the samples: whole vectors, which may be
            // streamed.
            StoreRun(du, out, n, streamed, scalar, [&](auto stream, std::size_t i) {
                return ForEachVector(du, i, n, [&](auto du, std::size_t at) {
                    const auto offset = hn::Sub(hn::LoadU(du, samples + at), origin);
                    Put<decltype(stream)>(du, hn::IfThenZeroElse(hn::Gt(offset, width), value), out + at);
                });
            });
        } else {
            scalar(ForEachVector(du, 0, n,
                                 [&](auto du, std::size_t at) {
                                     const auto offset = hn::Sub(hn::LoadU(du, samples + at), origin);
                                     StoreMaskBytes(du, hn::Not(hn::Gt(offset, width)), set, out + at);
                                 }),
                   n);
        }
    }
}

void ThresholdSamples(SampleKind kind, const void* in, std::uint8_t* out, std::int64_t count,
                      const void* lower, const void* upper, std::uint8_t set, bool streamed)
{
    DispatchSampleKind(kind, [&](auto tag) {
        using T = typename decltype(tag)::type;
        ThresholdRun(static_cast<const T*>(in), out, static_cast<std::size_t>(count),
                     *static_cast<const T*>(lower), *static_cast<const T*>(upper), set, streamed);
    });
}

void MarkNonZeroKernel(SampleKind kind, const void* in, std::uint8_t* out, std::int64_t count)
{
    DispatchSampleKind(kind, [&](auto tag) {
        using T = typename decltype(tag)::type;
        const auto* samples = static_cast<const T*>(in);
        const auto n = static_cast<std::size_t>(count);
        const hn::ScalableTag<T> d;
        // Not "not equal", which is false for NaN on some targets: NaN is
        // not 0 and marks its place.
        std::size_t i = ForEachVector(d, 0, n, [&](auto d, std::size_t at) {
            StoreMaskBytes(d, hn::Not(hn::Eq(hn::LoadU(d, samples + at), hn::Zero(d))), 1, out + at);
        });
        for (; i < n; ++i)
            out[i] = !(samples[i] == T(0));
    });
}

// ---- Sums and differences ---------------------------------------------------

// a + b or a - b, clamped to T's range.
template <class T>
T SaturatedScalar(T a, T b, bool subtract)
{
    T result;
    const bool overflow =
        subtract ? __builtin_sub_overflow(a, b, &result) : __builtin_add_overflow(a, b, &result);
    if (!overflow)
        return result;
    if constexpr (std::is_unsigned_v<T>)
        return subtract ? T(0) : std::numeric_limits<T>::max();
    else // past the end that a lies towards
        return a < 0 ? std::numeric_limits<T>::lowest() : std::numeric_limits<T>::max();
}

// The saturating sum of integer vectors; the processors have it for 8 and
// 16 bits only, wider lanes compute it from the wrapped sum.
template <bool Subtract, class D, class V>
HWY_INLINE V SaturatedVector(D d, V a, V b)
{
    using T = hn::TFromD<D>;
    if constexpr (sizeof(T) <= 2) {
        return Subtract ? hn::SaturatedSub(a, b) : hn::SaturatedAdd(a, b);
    } else if constexpr (std::is_unsigned_v<T>) {
        if constexpr (Subtract)
            return hn::Sub(hn::Max(a, b), b);
        const auto sum = hn::Add(a, b);
        return hn::Or(sum, hn::VecFromMask(d, hn::Lt(sum, a)));
    } else {
        // Wrapped in unsigned lanes (signed overflow is undefined in the
        // emulated target). The result overflowed when its sign differs from
        // a's while b's sign could carry it there: equal to a's for a sum,
        // different for a difference.
        const hn::RebindToUnsigned<D> du;
        const auto ua = hn::BitCast(du, a), ub = hn::BitCast(du, b);
        const V wrapped = hn::BitCast(d, Subtract ? hn::Sub(ua, ub) : hn::Add(ua, ub));
        const V signsCarry = Subtract ? hn::Xor(a, b) : hn::Not(hn::Xor(a, b));
        const V overflow = hn::And(signsCarry, hn::Xor(wrapped, a));
        const V limit = hn::Xor(hn::BroadcastSignBit(a), hn::Set(d, std::numeric_limits<T>::max()));
        return hn::IfNegativeThenElse(overflow, limit, wrapped);
    }
}

template <bool Subtract, class T>
void SumRun(const T* a, const T* b, T* out, std::size_t n, bool streamed)
{
    const hn::ScalableTag<T> d;
    StoreRun(
        d, out, n, streamed,
        [&](std::size_t first, std::size_t last) {
            for (std::size_t i = first; i < last; ++i)
                if constexpr (hwy::IsFloat<T>())
                    out[i] = Subtract ? a[i] - b[i] : a[i] + b[i];
                else
                    out[i] = SaturatedScalar(a[i], b[i], Subtract);
        },
        [&](auto stream, std::size_t i) {
            return ForEachVector(d, i, n, [&](auto d, std::size_t at) {
                const auto x = hn::LoadU(d, a + at), y = hn::LoadU(d, b + at);
                if constexpr (hwy::IsFloat<T>())
                    Put<decltype(stream)>(d, Subtract ? hn::Sub(x, y) : hn::Add(x, y), out + at);
                else
                    Put<decltype(stream)>(d, SaturatedVector<Subtract>(d, x, y), out + at);
            });
        });
}

void SumSamples(SampleKind kind, bool subtract, const void* a, const void* b, void* out, std::int64_t count,
                bool streamed)
{
    DispatchSampleKind(kind, [&](auto tag) {
        using T = typename decltype(tag)::type;
        const auto n = static_cast<std::size_t>(count);
        const auto* x = static_cast<const T*>(a);
        const auto* y = static_cast<const T*>(b);
        if (subtract)
            SumRun<true>(x, y, static_cast<T*>(out), n, streamed);
        else
            SumRun<false>(x, y, static_cast<T*>(out), n, streamed);
    });
}

} // namespace Quilon_::Basic::Images::Operators::Pointwise::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace Quilon_::Basic::Images::Operators::Pointwise {

HWY_EXPORT(ThresholdSamples);
HWY_EXPORT(MarkNonZeroKernel);
HWY_EXPORT(SumSamples);

void ThresholdSamples(SampleKind kind, const void* in, std::uint8_t* out, std::int64_t count,
                      const void* lower, const void* upper, std::uint8_t set, bool streamed)
{
    HWY_DYNAMIC_DISPATCH(ThresholdSamples)(kind, in, out, count, lower, upper, set, streamed);
}

void MarkNonZero(SampleKind kind, const void* in, std::uint8_t* out, std::int64_t count)
{
    HWY_DYNAMIC_DISPATCH(MarkNonZeroKernel)(kind, in, out, count);
}

void SumSamples(SampleKind kind, bool subtract, const void* a, const void* b, void* out, std::int64_t count,
                bool streamed)
{
    HWY_DYNAMIC_DISPATCH(SumSamples)(kind, subtract, a, b, out, count, streamed);
}

} // namespace Quilon_::Basic::Images::Operators::Pointwise
#endif
