// The vectorised kernels of the sample-by-sample fast paths, compiled once
// per instruction set; see Pointwise.h.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Images/Operators/PointwiseSimd.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include "Images/Operators/Pointwise.h"

HWY_BEFORE_NAMESPACE();
namespace Quilon_::Basic::Images::Operators::Pointwise::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// No restrict: an operator may write its result over its input.
void ThresholdBytes(const std::uint8_t* in, std::uint8_t* out, std::int64_t count, std::uint8_t lower,
                    std::uint8_t upper, std::uint8_t set)
{
    const hn::ScalableTag<std::uint8_t> d;
    const std::size_t lanes = hn::Lanes(d);
    const std::size_t n = static_cast<std::size_t>(count);
    // lower <= v <= upper as one unsigned comparison: v - lower wraps above
    // upper - lower for every v outside.
    const auto origin = hn::Set(d, lower);
    const auto width = hn::Set(d, static_cast<std::uint8_t>(upper - lower));
    const auto value = hn::Set(d, set);
    auto inside = [&](auto v) {
        const auto offset = hn::Sub(v, origin);
        return hn::Eq(hn::Min(offset, width), offset);
    };
    std::size_t i = 0;
    for (; i + 2 * lanes <= n; i += 2 * lanes) {
        const auto v0 = hn::LoadU(d, in + i);
        const auto v1 = hn::LoadU(d, in + i + lanes);
        hn::StoreU(hn::IfThenElseZero(inside(v0), value), d, out + i);
        hn::StoreU(hn::IfThenElseZero(inside(v1), value), d, out + i + lanes);
    }
    for (; i < n; ++i)
        out[i] =
            static_cast<std::uint8_t>(in[i] - lower) <= static_cast<std::uint8_t>(upper - lower) ? set : 0;
}

template <class T, class VectorOp, class ScalarOp>
void SumRun(const T* a, const T* b, T* out, std::size_t n, VectorOp vectorOp, ScalarOp scalarOp)
{
    const hn::ScalableTag<T> d;
    const std::size_t lanes = hn::Lanes(d);
    std::size_t i = 0;
    for (; i + 2 * lanes <= n; i += 2 * lanes) {
        const auto r0 = vectorOp(hn::LoadU(d, a + i), hn::LoadU(d, b + i));
        const auto r1 = vectorOp(hn::LoadU(d, a + i + lanes), hn::LoadU(d, b + i + lanes));
        hn::StoreU(r0, d, out + i);
        hn::StoreU(r1, d, out + i + lanes);
    }
    for (; i < n; ++i)
        out[i] = scalarOp(a[i], b[i]);
}

// a + b or a - b in a type twice as wide, clamped back: what the vector
// instructions do, for the last samples of a run.
template <class T>
T SaturatedScalar(T a, T b, bool subtract)
{
    const std::int32_t wide =
        subtract ? std::int32_t(a) - std::int32_t(b) : std::int32_t(a) + std::int32_t(b);
    return static_cast<T>(
        std::clamp<std::int32_t>(wide, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max()));
}

template <class T>
void SaturatedSum(const void* a, const void* b, void* out, std::size_t n, bool subtract)
{
    const auto* x = static_cast<const T*>(a);
    const auto* y = static_cast<const T*>(b);
    auto* z = static_cast<T*>(out);
    auto scalar = [subtract](T p, T q) { return SaturatedScalar(p, q, subtract); };
    if (subtract)
        SumRun(
            x, y, z, n, [](auto p, auto q) { return hn::SaturatedSub(p, q); }, scalar);
    else
        SumRun(
            x, y, z, n, [](auto p, auto q) { return hn::SaturatedAdd(p, q); }, scalar);
}

template <class T>
void FloatingSum(const void* a, const void* b, void* out, std::size_t n, bool subtract)
{
    const auto* x = static_cast<const T*>(a);
    const auto* y = static_cast<const T*>(b);
    auto* z = static_cast<T*>(out);
    if (subtract)
        SumRun(
            x, y, z, n, [](auto p, auto q) { return hn::Sub(p, q); }, [](T p, T q) { return p - q; });
    else
        SumRun(
            x, y, z, n, [](auto p, auto q) { return hn::Add(p, q); }, [](T p, T q) { return p + q; });
}

void SumSamples(SumType type, bool subtract, const void* a, const void* b, void* out, std::int64_t count)
{
    const auto n = static_cast<std::size_t>(count);
    switch (type) {
    case SumType::uint8:
        return SaturatedSum<std::uint8_t>(a, b, out, n, subtract);
    case SumType::int8:
        return SaturatedSum<std::int8_t>(a, b, out, n, subtract);
    case SumType::uint16:
        return SaturatedSum<std::uint16_t>(a, b, out, n, subtract);
    case SumType::int16:
        return SaturatedSum<std::int16_t>(a, b, out, n, subtract);
    case SumType::float32:
        return FloatingSum<float>(a, b, out, n, subtract);
    case SumType::float64:
        return FloatingSum<double>(a, b, out, n, subtract);
    }
}

} // namespace Quilon_::Basic::Images::Operators::Pointwise::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace Quilon_::Basic::Images::Operators::Pointwise {

HWY_EXPORT(ThresholdBytes);
HWY_EXPORT(SumSamples);

void ThresholdBytes(const std::uint8_t* in, std::uint8_t* out, std::int64_t count, std::uint8_t lower,
                    std::uint8_t upper, std::uint8_t set)
{
    HWY_DYNAMIC_DISPATCH(ThresholdBytes)(in, out, count, lower, upper, set);
}

void SumSamples(SumType type, bool subtract, const void* a, const void* b, void* out, std::int64_t count)
{
    HWY_DYNAMIC_DISPATCH(SumSamples)(type, subtract, a, b, out, count);
}

} // namespace Quilon_::Basic::Images::Operators::Pointwise
#endif
