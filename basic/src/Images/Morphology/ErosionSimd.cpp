// The row folds of the fast erosion and dilation, once per instruction set
// (Highway's foreach_target), dispatched at run time by the processor.
#include "Images/Morphology/ErosionSimd.h"
#include "Images/Morphology/MorphologyKernels.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Images/Morphology/ErosionSimd.cpp"
#include <hwy/foreach_target.h>
#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace Quilon_::Basic::Images::Morphology::HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// acc combined with v as the scalar kernels do it: v replaces acc only when
// it ranks strictly beyond it, so that a NaN never enters.
template <bool Maximum, class T>
HWY_INLINE T FoldSample(T acc, T v)
{
    if constexpr (Maximum)
        return acc < v ? v : acc;
    else
        return v < acc ? v : acc;
}

template <bool Maximum, class D, class V>
HWY_INLINE V FoldVector(D, V acc, V v)
{
    if constexpr (hwy::IsFloat<hn::TFromD<D>>())
        return Maximum ? hn::IfThenElse(hn::Lt(acc, v), v, acc) : hn::IfThenElse(hn::Lt(v, acc), v, acc);
    else
        return Maximum ? hn::Max(acc, v) : hn::Min(acc, v);
}

// The samples from `i` on, a vector of `d` at a time while a whole one
// fits; returns where it stopped.
template <bool Maximum, std::size_t Count, bool Streamed = false, class D, class T>
HWY_INLINE std::int64_t FoldVectors(D d, T* target, const T* const* sources, std::size_t count,
                                    std::int64_t i, std::int64_t n)
{
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    const std::size_t k = Count != 0 ? Count : count;
    constexpr T neutral = Maximum ? Lowest<T>() : Highest<T>();
    // Integers start from the first source; floating samples from the
    // neutral value, so that a NaN in the first source is passed over too.
    constexpr bool fromNeutral = hwy::IsFloat<T>();
    for (; i + lanes <= n; i += lanes) {
        auto acc = fromNeutral ? hn::Set(d, neutral) : hn::LoadU(d, sources[0] + i);
        for (std::size_t s = fromNeutral ? 0 : 1; s < k; ++s)
            acc = FoldVector<Maximum>(d, acc, hn::LoadU(d, sources[s] + i));
        if constexpr (Streamed)
            hn::Stream(acc, d, target + i);
        else
            hn::StoreU(acc, d, target + i);
    }
    return i;
}

// `Count` sources when it is not 0, else `count`: the fixed counts let the
// compiler keep every source pointer in a register. Rows shorter than a
// full vector (small images, wide samples) go on with 16- and 8-byte
// vectors before the last samples are folded one by one.
template <bool Maximum, std::size_t Count, class T>
void FoldRowsOf(T* target, const T* const* sources, std::size_t count, std::int64_t n, bool streamed)
{
    std::int64_t i = 0;
    const hn::ScalableTag<T> d;
    const auto vectorBytes = std::uintptr_t(hn::Lanes(d) * sizeof(T));
    const std::uintptr_t misaligned = reinterpret_cast<std::uintptr_t>(target) % vectorBytes;
    if (streamed && misaligned % sizeof(T) == 0) {
        // Streaming stores need whole aligned vectors: the samples up to
        // the first aligned one are stored as usual.
        const auto head = std::min(n, std::int64_t((vectorBytes - misaligned) % vectorBytes / sizeof(T)));
        FoldRowsOf<Maximum, Count>(target, sources, count, head, false);
        i = FoldVectors<Maximum, Count, true>(d, target, sources, count, head, n);
    }
    i = FoldVectors<Maximum, Count>(d, target, sources, count, i, n);
#if HWY_TARGET != HWY_SCALAR
    if (n - i >= std::int64_t(16 / sizeof(T)))
        i = FoldVectors<Maximum, Count>(hn::CappedTag<T, 16 / sizeof(T)>(), target, sources, count, i, n);
    if constexpr (sizeof(T) < 8)
        i = FoldVectors<Maximum, Count>(hn::CappedTag<T, 8 / sizeof(T)>(), target, sources, count, i, n);
#endif
    const std::size_t k = Count != 0 ? Count : count;
    for (; i < n; ++i) {
        T acc = Maximum ? Lowest<T>() : Highest<T>();
        for (std::size_t s = 0; s < k; ++s)
            acc = FoldSample<Maximum>(acc, sources[s][i]);
        target[i] = acc;
    }
}

template <bool Maximum, class T>
void FoldRowsBy(void* target, const void* const* sources, std::size_t count, std::int64_t n, bool streamed)
{
    auto* to = static_cast<T*>(target);
    const auto* from = reinterpret_cast<const T* const*>(sources);
    switch (count) {
    case 2:
        return FoldRowsOf<Maximum, 2>(to, from, count, n, streamed);
    case 3:
        return FoldRowsOf<Maximum, 3>(to, from, count, n, streamed);
    default:
        return FoldRowsOf<Maximum, 0>(to, from, count, n, streamed);
    }
}

template <class T>
void FoldRowsTyped(bool maximum, void* target, const void* const* sources, std::size_t count, std::int64_t n,
                   bool streamed)
{
    if (maximum)
        FoldRowsBy<true, T>(target, sources, count, n, streamed);
    else
        FoldRowsBy<false, T>(target, sources, count, n, streamed);
}

// `kind` is the position of the sample type in the list of FoldRows
// overloads.
void FoldRowsOfKind(int kind, bool maximum, void* target, const void* const* sources, std::size_t count,
                    std::int64_t n, bool streamed)
{
    switch (kind) {
    case 0:
        return FoldRowsTyped<std::int8_t>(maximum, target, sources, count, n, streamed);
    case 1:
        return FoldRowsTyped<std::uint8_t>(maximum, target, sources, count, n, streamed);
    case 2:
        return FoldRowsTyped<std::int16_t>(maximum, target, sources, count, n, streamed);
    case 3:
        return FoldRowsTyped<std::uint16_t>(maximum, target, sources, count, n, streamed);
    case 4:
        return FoldRowsTyped<std::int32_t>(maximum, target, sources, count, n, streamed);
    case 5:
        return FoldRowsTyped<std::uint32_t>(maximum, target, sources, count, n, streamed);
    case 6:
        return FoldRowsTyped<std::int64_t>(maximum, target, sources, count, n, streamed);
    case 7:
        return FoldRowsTyped<std::uint64_t>(maximum, target, sources, count, n, streamed);
    case 8:
        return FoldRowsTyped<float>(maximum, target, sources, count, n, streamed);
    default:
        return FoldRowsTyped<double>(maximum, target, sources, count, n, streamed);
    }
}

} // namespace Quilon_::Basic::Images::Morphology::HWY_NAMESPACE
HWY_AFTER_NAMESPACE();

#if HWY_ONCE
#include "Images/Morphology/RowErosion.h"

#include "Quilon_/Basic/Geometry/Neighbourhoods.h"
#include "Quilon_/Geometry/StructuringElement.h"

#include <array>
#include <utility>

namespace Quilon_::Basic::Images::Morphology {

HWY_EXPORT(FoldRowsOfKind);

#define QUILON_MORPHOLOGY_FOLD_ROWS(T, kind)                                                                 \
    void FoldRows(bool maximum, T* target, const T* const* sources, std::size_t count, std::int64_t n,       \
                  bool streamed)                                                                             \
    {                                                                                                        \
        HWY_DYNAMIC_DISPATCH(FoldRowsOfKind)                                                                 \
        (kind, maximum, target, reinterpret_cast<const void* const*>(sources), count, n, streamed);          \
    }
QUILON_MORPHOLOGY_FOLD_ROWS(std::int8_t, 0)
QUILON_MORPHOLOGY_FOLD_ROWS(std::uint8_t, 1)
QUILON_MORPHOLOGY_FOLD_ROWS(std::int16_t, 2)
QUILON_MORPHOLOGY_FOLD_ROWS(std::uint16_t, 3)
QUILON_MORPHOLOGY_FOLD_ROWS(std::int32_t, 4)
QUILON_MORPHOLOGY_FOLD_ROWS(std::uint32_t, 5)
QUILON_MORPHOLOGY_FOLD_ROWS(std::int64_t, 6)
QUILON_MORPHOLOGY_FOLD_ROWS(std::uint64_t, 7)
QUILON_MORPHOLOGY_FOLD_ROWS(float, 8)
QUILON_MORPHOLOGY_FOLD_ROWS(double, 9)
#undef QUILON_MORPHOLOGY_FOLD_ROWS

// Here rather than beside the passes: this source is compiled on its own,
// never in a batch with others, and the reference library's own geometry
// namespace, which the element's view brings in, would hide the core's
// from the sources after it in a batch.
void ElementShiftsInto(::Quilon_::Geometry::IStructuringElement& element, std::vector<Shift>& shifts)
{
    namespace QG = ::Quilon_::Geometry;
    shifts.clear();
    const auto* view = dynamic_cast<const Basic::Geometry::OffsetsView*>(&element);
    if (view == nullptr) {
        shifts = ShiftsOf(element);
        return;
    }
    // The view's x, y and z are the element's first spatial axes in
    // ascending order; put each on the image axis it stands for. The
    // offsets are distinct, and so are their shifts.
    const auto axes = static_cast<unsigned char>(element.Axes());
    std::array<std::int64_t Shift::*, 3> onAxis{};
    std::size_t spatial = 0;
    for (auto [bit, member] :
         {std::pair{QG::aX, &Shift::dx}, std::pair{QG::aY, &Shift::dy}, std::pair{QG::aZ, &Shift::dz}})
        if (axes & bit)
            onAxis[spatial++] = member;
    for (const Basic::Geometry::Offset& o : view->Offsets()) {
        Shift s;
        const std::int64_t values[] = {o.x, o.y, o.z};
        for (std::size_t k = 0; k < spatial; ++k)
            s.*onAxis[k] = values[k];
        shifts.push_back(s);
    }
}

} // namespace Quilon_::Basic::Images::Morphology
#endif
