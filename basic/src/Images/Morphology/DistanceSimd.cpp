// The row kernels of the Euclidean distance transform, vectorised: the
// sweeps of distances along columns, row by row, and integer squared
// distances into their float roots. `unreached` (UINT32_MAX) marks a
// sample with no background found yet; it stays so through a sweep step.
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Images/Morphology/DistanceSimd.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#ifndef QUILON_DISTANCE_SIMD_MARGIN
#define QUILON_DISTANCE_SIMD_MARGIN
namespace Quilon_::Basic::Images::Morphology {
// How far the windowed envelope looks, at most, on each side of a sample.
constexpr std::int64_t windowMargin = 48;
} // namespace Quilon_::Basic::Images::Morphology
#endif

HWY_BEFORE_NAMESPACE();
namespace Quilon_::Basic::Images::Morphology::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Below 2^24 a squared distance is a float exactly, and the float root of
// it is the nearest float to the exact root; above, the root is taken in
// double, as the plain transform does.
HWY_INLINE float RootOfSquared(std::uint32_t squared)
{
    if (squared == std::numeric_limits<std::uint32_t>::max())
        return std::numeric_limits<float>::infinity();
    return static_cast<float>(std::sqrt(static_cast<double>(squared)));
}

using D32 = hn::ScalableTag<std::uint32_t>;

// d + 1, or unreached for unreached.
HWY_INLINE hn::Vec<D32> StepFurther(D32 d, hn::Vec<D32> v)
{
    const auto lastReached = hn::Set(d, std::numeric_limits<std::uint32_t>::max() - 1);
    return hn::Add(hn::Min(v, lastReached), hn::Set(d, 1u));
}

// row[x]: unreached for a non-zero input sample, 0 for a zero one.
void MarkObjectsKernel(const std::uint8_t* in, std::int64_t count, std::uint32_t* row)
{
    const D32 d;
    const hn::Rebind<std::uint8_t, D32> d8;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        const auto zero = hn::Eq(hn::PromoteTo(d, hn::LoadU(d8, in + x)), hn::Zero(d));
        hn::StoreU(hn::IfThenZeroElse(zero, hn::Set(d, std::numeric_limits<std::uint32_t>::max())), d,
                   row + x);
    }
    for (; x < count; ++x)
        row[x] = in[x] == 0 ? 0 : std::numeric_limits<std::uint32_t>::max();
}

// Down the columns: a marked object sample is one further than the sample
// above it.
void SweepDownKernel(const std::uint32_t* above, std::int64_t count, std::uint32_t* row)
{
    const D32 d;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        const auto here = hn::LoadU(d, row + x);
        hn::StoreU(hn::IfThenZeroElse(hn::Eq(here, hn::Zero(d)), StepFurther(d, hn::LoadU(d, above + x))), d,
                   row + x);
    }
    for (; x < count; ++x)
        if (row[x] != 0)
            row[x] = above[x] == std::numeric_limits<std::uint32_t>::max() ? above[x] : above[x] + 1;
}

// Up the columns: no further than one more than the sample below, which is
// then squared (its distance is final).
void SweepUpKernel(std::uint32_t* below, std::int64_t count, std::uint32_t* row)
{
    const D32 d;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    const auto unreached = hn::Set(d, std::numeric_limits<std::uint32_t>::max());
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        const auto under = hn::LoadU(d, below + x);
        hn::StoreU(hn::Min(hn::LoadU(d, row + x), StepFurther(d, under)), d, row + x);
        hn::StoreU(hn::IfThenElse(hn::Eq(under, unreached), unreached, hn::Mul(under, under)), d, below + x);
    }
    for (; x < count; ++x) {
        const std::uint32_t under = below[x];
        if (under != std::numeric_limits<std::uint32_t>::max()) {
            row[x] = std::min(row[x], under + 1);
            below[x] = under * under;
        }
    }
}

void SquareKernel(std::uint32_t* row, std::int64_t count)
{
    const D32 d;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    const auto unreached = hn::Set(d, std::numeric_limits<std::uint32_t>::max());
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        const auto v = hn::LoadU(d, row + x);
        hn::StoreU(hn::IfThenElse(hn::Eq(v, unreached), unreached, hn::Mul(v, v)), d, row + x);
    }
    for (; x < count; ++x)
        if (row[x] != std::numeric_limits<std::uint32_t>::max())
            row[x] *= row[x];
}

// The envelope of one row by windowed minima: out[x] = the least of
// f[x + o] + o² over |o| <= r, where r grows, a vector of samples at a
// time, until r² is at least the least value found: no parabola further
// away can then be lower. False, for the exact envelope to take over, when
// some sample lies further than `windowMargin` from every reached one.
bool WindowedEnvelopeKernel(const std::uint32_t* f, std::int64_t n, std::uint32_t* scratch,
                            std::uint32_t* out)
{
    const D32 d;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    // Far enough never to be lowest, small enough that adding o² cannot
    // overflow.
    constexpr std::uint32_t far = 1u << 30;
    const std::int64_t m = windowMargin;
    std::fill(scratch, scratch + m, far);
    std::fill(scratch + m + n, scratch + 2 * m + n, far);
    std::int64_t x = 0;
    for (; x + lanes <= n; x += lanes)
        hn::StoreU(hn::Min(hn::LoadU(d, f + x), hn::Set(d, far)), d, scratch + m + x);
    for (; x < n; ++x)
        scratch[m + x] = std::min(f[x], far);
    const std::uint32_t* centre = scratch + m;
    const auto widen = [&](auto least, std::int64_t at, std::int64_t first, std::int64_t last) {
        for (std::int64_t o = first; o <= last; ++o) {
            const auto side = hn::Min(hn::LoadU(d, centre + at - o), hn::LoadU(d, centre + at + o));
            least = hn::Min(least, hn::Add(side, hn::Set(d, static_cast<std::uint32_t>(o * o))));
        }
        return least;
    };
    constexpr std::int64_t first = 4;
    // The last vector may overlap the one before: every lane's value is
    // the same whichever vector computes it.
    for (x = 0; x < n; x += lanes) {
        const std::int64_t at = std::min(x, n - lanes);
        if (at < 0)
            break;
        auto least = widen(hn::LoadU(d, centre + at), at, 1, first);
        std::uint32_t reach = hn::GetLane(hn::MaxOfLanes(d, least));
        if (reach >= far)
            return false;
        std::int64_t r = first;
        while (r * r < std::int64_t(reach)) {
            const std::int64_t next = std::min<std::int64_t>(m, r + 4);
            if (next == r)
                return false;
            least = widen(least, at, r + 1, next);
            r = next;
            reach = hn::GetLane(hn::MaxOfLanes(d, least));
        }
        hn::StoreU(least, d, out + at);
    }
    if (n < lanes) {
        for (x = 0; x < n; ++x) {
            std::uint32_t least = centre[x];
            for (std::int64_t o = 1; o <= m; ++o)
                least = std::min(least,
                                 std::min(centre[x - o], centre[x + o]) + static_cast<std::uint32_t>(o * o));
            if (least >= far)
                return false;
            out[x] = least;
        }
    }
    return true;
}

void SquareRootsToFloatKernel(const std::uint32_t* squared, std::int64_t count, float* out)
{
    const hn::ScalableTag<float> df;
    const hn::RebindToSigned<decltype(df)> di;
    const hn::RebindToUnsigned<decltype(df)> du;
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(df));
    const auto exactLast = hn::Set(di, (std::int32_t(1) << 24) - 1);
    std::int64_t x = 0;
    for (; x + lanes <= count; x += lanes) {
        const auto value = hn::LoadU(du, squared + x);
        // As signed, values of 2^31 and above are negative: both they and
        // those from 2^24 up are out of the exact range.
        const auto asSigned = hn::BitCast(di, value);
        const auto inexact = hn::Or(hn::Lt(asSigned, hn::Zero(di)), hn::Gt(asSigned, exactLast));
        if (!hn::AllFalse(di, inexact)) {
            for (std::int64_t i = 0; i < lanes; ++i)
                out[x + i] = RootOfSquared(squared[x + i]);
            continue;
        }
        hn::StoreU(hn::Sqrt(hn::ConvertTo(df, asSigned)), df, out + x);
    }
    for (; x < count; ++x)
        out[x] = RootOfSquared(squared[x]);
}

} // namespace Quilon_::Basic::Images::Morphology::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
namespace Quilon_::Basic::Images::Morphology {

HWY_EXPORT(SquareRootsToFloatKernel);
HWY_EXPORT(MarkObjectsKernel);
HWY_EXPORT(SweepDownKernel);
HWY_EXPORT(SweepUpKernel);
HWY_EXPORT(SquareKernel);
HWY_EXPORT(WindowedEnvelopeKernel);

bool WindowedEnvelope(const std::uint32_t* f, std::int64_t n, std::uint32_t* scratch, std::uint32_t* out)
{
    return HWY_DYNAMIC_DISPATCH(WindowedEnvelopeKernel)(f, n, scratch, out);
}

void MarkObjects(const std::uint8_t* in, std::int64_t count, std::uint32_t* row)
{
    HWY_DYNAMIC_DISPATCH(MarkObjectsKernel)(in, count, row);
}

void SweepDown(const std::uint32_t* above, std::int64_t count, std::uint32_t* row)
{
    HWY_DYNAMIC_DISPATCH(SweepDownKernel)(above, count, row);
}

void SweepUp(std::uint32_t* below, std::int64_t count, std::uint32_t* row)
{
    HWY_DYNAMIC_DISPATCH(SweepUpKernel)(below, count, row);
}

void Square(std::uint32_t* row, std::int64_t count)
{
    HWY_DYNAMIC_DISPATCH(SquareKernel)(row, count);
}

void SquareRootsToFloat(const std::uint32_t* squared, std::int64_t count, float* out)
{
    HWY_DYNAMIC_DISPATCH(SquareRootsToFloatKernel)(squared, count, out);
}

} // namespace Quilon_::Basic::Images::Morphology
#endif
