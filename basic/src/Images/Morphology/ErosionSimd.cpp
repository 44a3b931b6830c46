// The row folds of the fast erosion and dilation, once per instruction set
// (Highway's foreach_target), dispatched at run time by the processor.
#include "Images/Morphology/ErosionSimd.h"
#include "Images/Morphology/Decomposition.h"
#include "Images/Morphology/MorphologyKernels.h"
#include "Images/Operators/SampleKinds.h"

#include <algorithm>

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "Images/Morphology/ErosionSimd.cpp"
#include <hwy/cache_control.h>
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
    // The pointers in registers of their own: a store of bytes may alias
    // anything that is not a local.
    const T* local[Count != 0 ? Count : 1];
    if constexpr (Count != 0)
        for (std::size_t s = 0; s < Count; ++s)
            local[s] = sources[s];
    const T* const* from = Count != 0 ? local : sources;
    for (; i + lanes <= n; i += lanes) {
        auto acc = fromNeutral ? hn::Set(d, neutral) : hn::LoadU(d, from[0] + i);
#pragma GCC unroll 8
        for (std::size_t s = fromNeutral ? 0 : 1; s < k; ++s)
            acc = FoldVector<Maximum>(d, acc, hn::LoadU(d, from[s] + i));
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

// FoldRowsOf with the source count fixed where it is one of the common
// ones: the 3 x 3 square folds 3 rows and 3 shifts, the disk of radius 2
// 5 shifts.
template <bool Maximum, class T>
void FoldRowsCounted(T* target, const T* const* sources, std::size_t count, std::int64_t n, bool streamed)
{
    switch (count) {
    case 2:
        return FoldRowsOf<Maximum, 2>(target, sources, count, n, streamed);
    case 3:
        return FoldRowsOf<Maximum, 3>(target, sources, count, n, streamed);
    case 5:
        return FoldRowsOf<Maximum, 5>(target, sources, count, n, streamed);
    default:
        return FoldRowsOf<Maximum, 0>(target, sources, count, n, streamed);
    }
}

template <bool Maximum, class T>
void FoldRowsBy(void* target, const void* const* sources, std::size_t count, std::int64_t n, bool streamed)
{
    FoldRowsCounted<Maximum>(static_cast<T*>(target), reinterpret_cast<const T* const*>(sources), count, n,
                             streamed);
}

// Gathers sources and folds them into one target, at most AtOnce at a
// time (the running result taking the first place of the next batch):
// rows of one image lie a power of two apart as often as not, and many of
// them read at once fall into the same cache sets.
template <bool Maximum, std::size_t AtOnce, class T>
class ChainFolder {
public:
    ChainFolder(T* target, std::int64_t n) : m_target(target), m_n(n) {}

    void Add(const T* source)
    {
        if (m_count == AtOnce)
            Fold(false);
        m_sources[m_count++] = source;
    }
    // Folds what is left; false when no source was ever added.
    bool Finish(bool streamed)
    {
        if (m_count > (m_written ? 1u : 0u))
            Fold(streamed);
        return m_written;
    }

private:
    void Fold(bool streamed)
    {
        FoldRowsCounted<Maximum>(m_target, m_sources, m_count, m_n, streamed);
        m_written = true;
        m_sources[0] = m_target;
        m_count = 1;
    }

    T* m_target;
    std::int64_t m_n;
    const T* m_sources[AtOnce];
    std::size_t m_count = 0;
    bool m_written = false;
};

// Elements of up to this many rows fold all their stages in one sweep
// along the row, each stage's result kept in a register and stored once;
// more rows are folded stage by stage, a few at a time (ChainFolder).
constexpr std::size_t mostSweptRows = 12;

// Every stage of one output row in one sweep: `rows` are the input rows
// inside the volume, stage k ending before rows[ends[k]]; the running fold
// goes from stage to stage and is stored into buffers[k] after stage k.
template <bool Maximum, class D, class T>
HWY_INLINE std::int64_t SweepStages(D d, T* const* buffers, const T* const* rows, const std::size_t* ends,
                                    std::size_t stages, std::int64_t i, std::int64_t n)
{
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    constexpr T neutral = Maximum ? Lowest<T>() : Highest<T>();
    for (; i + lanes <= n; i += lanes) {
        auto acc = hn::Set(d, neutral);
        std::size_t s = 0;
        for (std::size_t k = 0; k < stages; ++k) {
            for (; s < ends[k]; ++s)
                acc = FoldVector<Maximum>(d, acc, hn::LoadU(d, rows[s] + i));
            hn::StoreU(acc, d, buffers[k] + i);
        }
    }
    return i;
}

// SweepStages for one shape of chain, `Counts` rows per stage, fixed at
// compile time: the loops unroll and every pointer stays in a register
// (the general loop reloads them and branches per row and stage, which
// costs more than the folds themselves).
template <bool Maximum, std::size_t... Counts, class D, class T>
HWY_INLINE std::int64_t SweepShape(D d, T* const* buffers, const T* const* rows, std::int64_t i,
                                   std::int64_t n)
{
    constexpr std::size_t stages = sizeof...(Counts), total = (Counts + ...);
    constexpr std::size_t counts[] = {Counts...};
    constexpr T neutral = Maximum ? Lowest<T>() : Highest<T>();
    const T* from[total];
    T* into[stages];
    for (std::size_t s = 0; s < total; ++s)
        from[s] = rows[s];
    for (std::size_t k = 0; k < stages; ++k)
        into[k] = buffers[k];
    const auto lanes = static_cast<std::int64_t>(hn::Lanes(d));
    for (; i + lanes <= n; i += lanes) {
        auto acc = hn::Set(d, neutral);
        std::size_t s = 0;
#pragma GCC unroll 4
        for (std::size_t k = 0; k < stages; ++k) {
#pragma GCC unroll 4
            for (std::size_t c = 0; c < counts[k]; ++c, ++s)
                acc = FoldVector<Maximum>(d, acc, hn::LoadU(d, from[s] + i));
            hn::StoreU(acc, d, into[k] + i);
        }
    }
    return i;
}

// The shapes of the common elements away from the volume's edges: the
// square of side 3 (one stage of 3 rows) and the disk of radius 2 (rows
// 0; -1 and 1; -2 and 2).
template <bool Maximum, class D, class T>
HWY_INLINE std::int64_t SweepKnownShape(D d, T* const* buffers, const T* const* rows, const std::size_t* ends,
                                        std::size_t stages, std::int64_t n)
{
    if (stages == 1 && ends[0] == 3)
        return SweepShape<Maximum, 3>(d, buffers, rows, 0, n);
    if (stages == 3 && ends[0] == 1 && ends[1] == 3 && ends[2] == 5)
        return SweepShape<Maximum, 1, 2, 2>(d, buffers, rows, 0, n);
    return 0;
}

template <bool Maximum, class T>
void SweepStagesOf(T* const* buffers, const T* const* rows, const std::size_t* ends, std::size_t stages,
                   std::int64_t n)
{
    const hn::ScalableTag<T> d;
    std::int64_t i = SweepKnownShape<Maximum>(d, buffers, rows, ends, stages, n);
    i = SweepStages<Maximum>(d, buffers, rows, ends, stages, i, n);
#if HWY_TARGET != HWY_SCALAR
    if (n - i >= std::int64_t(16 / sizeof(T)))
        i = SweepStages<Maximum>(hn::CappedTag<T, 16 / sizeof(T)>(), buffers, rows, ends, stages, i, n);
    if constexpr (sizeof(T) < 8)
        i = SweepStages<Maximum>(hn::CappedTag<T, 8 / sizeof(T)>(), buffers, rows, ends, stages, i, n);
#endif
    for (; i < n; ++i) {
        T acc = Maximum ? Lowest<T>() : Highest<T>();
        std::size_t s = 0;
        for (std::size_t k = 0; k < stages; ++k) {
            for (; s < ends[k]; ++s)
                acc = FoldSample<Maximum>(acc, rows[s][i]);
            buffers[k][i] = acc;
        }
    }
}

// The rows that output row r + ahead reads first, the lowest of the
// element in each of its planes, are fetched ahead a chunk at a time: each
// is a new page, where the processor's own prefetching starts late, and
// waiting for them costs more than the folds.
struct LowestRows {
    static constexpr std::int64_t ahead = 2;
    static constexpr std::size_t most = 8;
    std::size_t index[most];
    std::size_t count = 0;

    explicit LowestRows(const ChainedElement& chain)
    {
        for (std::size_t i = 0; i < chain.rows.size() && count < most; ++i) {
            bool lowest = true;
            for (const RowOffset& other : chain.rows)
                lowest = lowest && !(other.dz == chain.rows[i].dz && other.dy > chain.rows[i].dy);
            if (lowest)
                index[count++] = i;
        }
    }
};

// Output row r (y + ny * z), a chunk of ChainChunkSamples samples at a
// time: each stage is folded into its buffer over the chunk and `padding`
// samples either side, then the terms from the buffers into the output.
// The buffers stay small, so that they and the input rows that the next
// output row reads again stay in the first level cache.
template <bool Maximum, class T>
void FoldChainRow(const ChainedElement& chain, const ChainBand<T>& band, std::int64_t r, bool swept,
                  const LowestRows& lowest)
{
    constexpr T neutral = Maximum ? Lowest<T>() : Highest<T>();
    const std::size_t stages = chain.StageCount();
    const std::int64_t y = r % band.ny, z = r / band.ny, nx = band.nx, padding = chain.padding;
    const std::int64_t chunk = ChainChunkSamples(nx, sizeof(T));
    const std::int64_t bufferSamples = ChainBufferSamples(padding, nx, sizeof(T));
    // buffer(k) holds the chunk's first sample; the padding lies before it.
    const auto buffer = [&](std::size_t k) {
        return band.scratch + std::int64_t(k) * bufferSamples + ChainBufferLead(padding, sizeof(T));
    };
    // The rows inside the volume, stage k ending before rows[ends[k]]; a
    // stage left with no row at all holds what the stages before it hold
    // (neutral for the first).
    const T* rows[mostSweptRows];
    std::size_t ends[mostSweptRows], count = 0;
    for (std::size_t k = 0; k < stages; ++k) {
        for (std::size_t i = chain.StageBegin(k); i < chain.stageEnds[k]; ++i) {
            const RowOffset& row = chain.rows[i];
            const std::int64_t ry = y + row.dy, rz = z + row.dz;
            if (ry >= 0 && ry < band.ny && rz >= 0 && rz < band.nz && swept)
                rows[count++] = band.in + ry * band.inRowStride + rz * band.inPlaneStride;
        }
        ends[std::min(k, mostSweptRows - 1)] = count;
    }
    const T* ahead[LowestRows::most];
    std::size_t aheadCount = 0;
    for (std::size_t i = 0; i < lowest.count; ++i) {
        const RowOffset& row = chain.rows[lowest.index[i]];
        const std::int64_t ry = y + row.dy + LowestRows::ahead, rz = z + row.dz;
        if (ry >= 0 && ry < band.ny && rz >= 0 && rz < band.nz)
            ahead[aheadCount++] = band.in + ry * band.inRowStride + rz * band.inPlaneStride;
    }
    T* target = band.out + y * band.outRowStride + z * band.outPlaneStride;
    // The stages are folded over the whole of their buffers, not just the
    // padding the terms read: the buffers' stores then fall on whole cache
    // lines, and a store split over two lines costs two.
    const std::int64_t lead = ChainBufferLead(padding, sizeof(T));
    const std::int64_t trail = ChainBufferLead(chunk + padding, sizeof(T)) - chunk;
    for (std::int64_t x0 = 0; x0 < nx; x0 += chunk) {
        const std::int64_t x1 = std::min(nx, x0 + chunk);
        const std::int64_t from = std::max<std::int64_t>(0, x0 - lead), to = std::min(nx, x1 + trail);
        // Outside the row reads as neutral.
        for (std::size_t k = 0; k < stages; ++k) {
            if (from - x0 > -padding)
                std::fill(buffer(k) - padding, buffer(k) + (from - x0), neutral);
            if (to - x1 < padding)
                std::fill(buffer(k) + (to - x0), buffer(k) + (x1 - x0) + padding, neutral);
        }
        for (std::size_t a = 0; a < aheadCount; ++a)
            for (std::int64_t x = x0; x < x1; x += std::int64_t(64 / sizeof(T)))
                hwy::Prefetch(ahead[a] + x);
        if (swept) {
            const T* sources[mostSweptRows];
            T* targets[mostSweptRows];
            for (std::size_t s = 0; s < count; ++s)
                sources[s] = rows[s] + from;
            for (std::size_t k = 0; k < stages; ++k)
                targets[k] = buffer(k) + (from - x0);
            SweepStagesOf<Maximum>(targets, sources, ends, stages, to - from);
        } else
            for (std::size_t k = 0; k < stages; ++k) {
                ChainFolder<Maximum, 6, T> column(buffer(k) + (from - x0), to - from);
                if (k > 0)
                    column.Add(buffer(k - 1) + (from - x0));
                for (std::size_t i = chain.StageBegin(k); i < chain.stageEnds[k]; ++i) {
                    const RowOffset& row = chain.rows[i];
                    const std::int64_t ry = y + row.dy, rz = z + row.dz;
                    if (ry >= 0 && ry < band.ny && rz >= 0 && rz < band.nz)
                        column.Add(band.in + ry * band.inRowStride + rz * band.inPlaneStride + from);
                }
                // Only the first stage can find no row in the volume.
                if (!column.Finish(false))
                    std::fill(buffer(k) + (from - x0), buffer(k) + (to - x0), neutral);
            }
        ChainFolder<Maximum, mostChainTerms + 1, T> terms(target + x0, x1 - x0);
        for (const ChainedElement::Term& term : chain.terms)
            terms.Add(buffer(term.stage) + term.dx);
        terms.Finish(band.streamed);
    }
}

template <bool Maximum, class T>
void FoldChainBandOf(const ChainedElement& chain, const ChainBand<T>& band)
{
    const bool swept = chain.rows.size() <= mostSweptRows && chain.StageCount() <= mostSweptRows;
    const LowestRows lowest(chain);
    for (std::int64_t r = band.firstRow; r < band.lastRow; ++r)
        FoldChainRow<Maximum>(chain, band, r, swept, lowest);
}

template <class T>
void FoldChainBandTyped(const ChainedElement& chain, const void* band)
{
    const auto& typed = *static_cast<const ChainBand<T>*>(band);
    if (typed.maximum)
        FoldChainBandOf<true>(chain, typed);
    else
        FoldChainBandOf<false>(chain, typed);
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

void FoldRowsOfKind(Operators::SampleKind kind, bool maximum, void* target, const void* const* sources,
                    std::size_t count, std::int64_t n, bool streamed)
{
    Operators::DispatchSampleKind(kind, [&](auto tag) {
        FoldRowsTyped<typename decltype(tag)::type>(maximum, target, sources, count, n, streamed);
    });
}

void FoldChainBandOfKind(Operators::SampleKind kind, const ChainedElement& chain, const void* band)
{
    Operators::DispatchSampleKind(
        kind, [&](auto tag) { FoldChainBandTyped<typename decltype(tag)::type>(chain, band); });
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

#define QUILON_MORPHOLOGY_FOLD_ROWS(T)                                                                       \
    void FoldRows(bool maximum, T* target, const T* const* sources, std::size_t count, std::int64_t n,       \
                  bool streamed)                                                                             \
    {                                                                                                        \
        HWY_DYNAMIC_DISPATCH(FoldRowsOfKind)                                                                 \
        (Operators::sampleKindOf<T>, maximum, target, reinterpret_cast<const void* const*>(sources), count,  \
         n, streamed);                                                                                       \
    }
QUILON_FOR_EACH_SAMPLE_TYPE(QUILON_MORPHOLOGY_FOLD_ROWS)
#undef QUILON_MORPHOLOGY_FOLD_ROWS

HWY_EXPORT(FoldChainBandOfKind);

#define QUILON_MORPHOLOGY_FOLD_CHAIN_BAND(T)                                                                 \
    void FoldChainBand(const ChainedElement& chain, const ChainBand<T>& band)                                \
    {                                                                                                        \
        HWY_DYNAMIC_DISPATCH(FoldChainBandOfKind)(Operators::sampleKindOf<T>, chain, &band);                 \
    }
QUILON_FOR_EACH_SAMPLE_TYPE(QUILON_MORPHOLOGY_FOLD_CHAIN_BAND)
#undef QUILON_MORPHOLOGY_FOLD_CHAIN_BAND

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
