// Erosion and dilation row by row on the images' memory: the passes of the
// morphology operators for images whose samples lie side by side along X.
#include "Images/Morphology/RowErosion.h"

#include "Images/Morphology/Decomposition.h"
#include "Images/Morphology/ErosionSimd.h"
#include "Images/Operators/OperatorSupport.h"
#include "Images/Operators/SampleKinds.h"
#include "System/Threading/Parallel.h"

#include <hwy/cache_control.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

namespace Quilon_::Basic::Images::Morphology {

namespace {

using Operators::slotB;
using Operators::slotT;
using Operators::slotX;
using Operators::slotY;
using Operators::slotZ;
using Operators::ViewsOverlap;

// One volume of samples: X adjacent, rows and planes at any stride.
template <class T>
struct RowVolume {
    T* data = nullptr;
    std::int64_t rowStride = 0;
    std::int64_t planeStride = 0;

    T* Row(std::int64_t y, std::int64_t z) const { return data + y * rowStride + z * planeStride; }
};

// The row buffer and the source list of one thread's folds, kept from call
// to call so that a small image costs no allocation.
template <class T>
struct FoldScratch {
    T* buffer;
    const T** sources;
};

template <class T>
FoldScratch<T> FoldScratchOf(std::int64_t bufferLength, std::size_t sourceCount)
{
    thread_local std::vector<std::uint64_t> buffer;
    thread_local std::vector<const void*> sources;
    const auto words = static_cast<std::size_t>((bufferLength * std::int64_t(sizeof(T)) + 7) / 8);
    if (buffer.size() < words)
        buffer.resize(words);
    if (sources.size() < sourceCount)
        sources.resize(sourceCount);
    return {reinterpret_cast<T*>(buffer.data()), reinterpret_cast<const T**>(sources.data())};
}

template <class T>
T FoldSample(bool maximum, T acc, T v)
{
    return maximum ? (acc < v ? v : acc) : (v < acc ? v : acc);
}

template <class T>
T NeutralOf(bool maximum)
{
    return maximum ? Lowest<T>() : Highest<T>();
}

// FoldRows over any number of sources, a few at a time: rows of one image
// lie a power of two apart as often as not, and dozens of them read at
// once fall into the same cache sets. `sources` is overwritten.
template <class T>
void FoldManyRows(bool maximum, T* target, const T** sources, std::size_t count, std::int64_t n,
                  bool streamed)
{
    constexpr std::size_t atOnce = 6;
    std::size_t done = std::min(count, atOnce);
    FoldRows(maximum, target, sources, done, n, streamed && done == count);
    while (done < count) {
        const std::size_t take = std::min(atOnce - 1, count - done);
        sources[done - 1] = target; // folded already: its place holds the running result
        FoldRows(maximum, target, sources + done - 1, take + 1, n);
        done += take;
    }
}

// Writes the fold of the plan's single offsets into the output row (y, z);
// false when none of them lands in the volume. Samples for which every
// offset stays inside the row are folded by the vector kernel, the few at
// either end one by one.
template <class T>
bool FoldPoints(const Grid& grid, RowVolume<const T> in, const std::vector<Shift>& points, std::int64_t y,
                std::int64_t z, bool maximum, bool streamed, T* target, const T** sources)
{
    std::size_t count = 0;
    std::int64_t left = 0, right = 0;
    for (const Shift& s : points)
        if (grid.Contains(0, y + s.dy, z + s.dz)) {
            left = std::max(left, -s.dx);
            right = std::max(right, s.dx);
            ++count;
        }
    if (count == 0)
        return false;
    const std::int64_t nx = grid.nx;
    const std::int64_t first = std::min(left, nx), last = std::max(first, nx - right);
    if (last > first) {
        count = 0;
        for (const Shift& s : points)
            if (grid.Contains(0, y + s.dy, z + s.dz))
                sources[count++] = in.Row(y + s.dy, z + s.dz) + (s.dx + first);
        FoldManyRows(maximum, target + first, sources, count, last - first, streamed);
    }
    const auto alongBorder = [&](std::int64_t x) {
        T acc = NeutralOf<T>(maximum);
        for (const Shift& s : points)
            if (grid.Contains(x + s.dx, y + s.dy, z + s.dz))
                acc = FoldSample(maximum, acc, in.Row(y + s.dy, z + s.dz)[x + s.dx]);
        target[x] = acc;
    };
    for (std::int64_t x = 0; x < first; ++x)
        alongBorder(x);
    for (std::int64_t x = last; x < nx; ++x)
        alongBorder(x);
    return true;
}

// Folds one group into the output row (y, z), with what is already there
// when `written`: the group's rows into the middle of the padded buffer,
// the buffer along the span (by doubling for a long span), then into the
// row. False when none of the group's rows lies in the volume.
template <class T>
bool FoldGroup(const Grid& grid, RowVolume<const T> in, const SpanGroup& group, std::int64_t padding,
               std::int64_t y, std::int64_t z, bool maximum, bool written, bool streamed, T* target,
               FoldScratch<T> scratch)
{
    std::size_t count = 0;
    for (const RowOffset& row : group.rows)
        if (grid.Contains(0, y + row.dy, z + row.dz))
            scratch.sources[count++] = in.Row(y + row.dy, z + row.dz);
    if (count == 0)
        return false;
    const std::int64_t nx = grid.nx, length = nx + 2 * padding;
    T* buffer = scratch.buffer;
    // The padding reads as "outside": the neutral value. Doubling folds
    // into it, so it is laid again for every row.
    std::fill(buffer, buffer + padding, NeutralOf<T>(maximum));
    std::fill(buffer + padding + nx, buffer + length, NeutralOf<T>(maximum));
    FoldManyRows(maximum, buffer + padding, scratch.sources, count, nx, false);

    const std::int64_t span = group.Length();
    std::int64_t reach = 1; // the samples each buffer position holds the fold of
    if (span > shortSpan)
        for (; 2 * reach <= span; reach *= 2) {
            const T* pair[] = {buffer, buffer + reach};
            FoldRows(maximum, buffer, pair, 2, length - 2 * reach + 1);
        }
    const T* start = buffer + padding + group.from;
    count = 0;
    if (reach == 1)
        for (std::int64_t k = 0; k < span; ++k)
            scratch.sources[count++] = start + k;
    else {
        scratch.sources[count++] = start;
        scratch.sources[count++] = start + (span - reach);
    }
    if (written)
        scratch.sources[count++] = target;
    FoldRows(maximum, target, scratch.sources, count, nx, streamed);
    return true;
}

// Volumes of at least this many bytes are written with streaming stores:
// about the size of the last level cache.
constexpr std::int64_t streamedBytes = std::int64_t(8) << 20;

// The scratch of one thread's chained bands, aligned to 64 bytes, kept
// from call to call.
template <class T>
T* ChainScratchOf(std::int64_t samples)
{
    thread_local std::vector<std::uint64_t> words;
    const auto needed = static_cast<std::size_t>((samples * std::int64_t(sizeof(T)) + 7) / 8 + 8);
    if (words.size() < needed)
        words.resize(needed);
    const auto address = reinterpret_cast<std::uintptr_t>(words.data());
    return reinterpret_cast<T*>((address + 63) / 64 * 64);
}

// Rows [firstRow, lastRow) of the pass, a row numbered y + ny * z.
template <class T>
void FoldRowRange(const Grid& grid, RowVolume<const T> in, RowVolume<T> out, const Decomposition& plan,
                  bool maximum, std::int64_t firstRow, std::int64_t lastRow)
{
    // A large output goes past the caches: its rows are not read again
    // soon, and a line that is only written need not be read first. Only
    // the last write of a row is streamed.
    const bool stream = grid.Count() * std::int64_t(sizeof(T)) >= streamedBytes;
    if (plan.chain) {
        const ChainedElement& chain = *plan.chain;
        T* scratch = ChainScratchOf<T>(std::int64_t(chain.StageCount()) *
                                       ChainBufferSamples(chain.padding, grid.nx, sizeof(T)));
        FoldChainBand(chain, ChainBand<T>{in.data, in.rowStride, in.planeStride, out.data, out.rowStride,
                                          out.planeStride, grid.nx, grid.ny, grid.nz, firstRow, lastRow,
                                          maximum, stream, scratch});
    } else {
        const FoldScratch<T> scratch =
            FoldScratchOf<T>(plan.groups.empty() ? 0 : grid.nx + 2 * plan.padding, plan.widestFold + 2);
        for (std::int64_t r = firstRow; r < lastRow; ++r) {
            const std::int64_t y = r % grid.ny, z = r / grid.ny;
            T* target = out.Row(y, z);
            bool written = FoldPoints(grid, in, plan.points, y, z, maximum, stream && plan.groups.empty(),
                                      target, scratch.sources);
            for (const SpanGroup& group : plan.groups)
                written |= FoldGroup(grid, in, group, plan.padding, y, z, maximum, written,
                                     stream && &group == &plan.groups.back(), target, scratch);
            if (!written)
                std::fill(target, target + grid.nx, NeutralOf<T>(maximum));
        }
    }
    if (stream)
        hwy::FlushStream();
}

// The work of one output sample, in units of a pass that reads and writes
// it once. A chained element of up to about 16 reads a sample costs what
// such a pass costs (the input and the output move through memory once,
// the folds in between stay in the cache), so that an image under about
// 256 x 256 stays on the calling thread.
std::int64_t SampleCostOf(const Decomposition& plan)
{
    if (plan.chain)
        return 1 +
               std::int64_t(plan.chain->rows.size() + plan.chain->StageCount() + plan.chain->terms.size()) /
                   16;
    return std::int64_t(plan.points.size() + 2 * plan.groups.size());
}

template <class T>
void RunErosionPass(const Grid& grid, RowVolume<const T> in, RowVolume<T> out, const Decomposition& plan,
                    bool maximum)
{
    Threading::ParallelBands(grid.ny * grid.nz, grid.nx * SampleCostOf(plan),
                             [&](std::int64_t firstRow, std::int64_t lastRow) {
                                 FoldRowRange(grid, in, out, plan, maximum, firstRow, lastRow);
                             });
}

template <class T>
RowVolume<T> ErosionVolumeOf(const BitmapView<T>& view, std::int64_t index)
{
    const std::int64_t t = index % view.size[slotT], b = index / view.size[slotT];
    return {view.data + t * view.stride[slotT] + b * view.stride[slotB], view.stride[slotY],
            view.stride[slotZ]};
}

// Writes the last pass's result, or its residue against the input, into
// the output, row by row (the output may be the input itself).
template <class T>
void WriteErosionResult(const Grid& grid, RowVolume<const T> original, RowVolume<const T> result,
                        RowVolume<T> out, Residue residue)
{
    for (std::int64_t z = 0; z < grid.nz; ++z)
        for (std::int64_t y = 0; y < grid.ny; ++y) {
            const T* a = original.Row(y, z);
            const T* b = result.Row(y, z);
            T* to = out.Row(y, z);
            if (residue == Residue::none)
                std::memmove(to, b, std::size_t(grid.nx) * sizeof(T));
            else
                for (std::int64_t x = 0; x < grid.nx; ++x)
                    to[x] = residue == Residue::white ? SaturatedDifference(a[x], b[x])
                                                      : SaturatedDifference(b[x], a[x]);
        }
}

// The plan of one pass: a dilation reads through the reflected element.
std::shared_ptr<const Decomposition> PlanOfPass(const MorphologyPass& pass)
{
    if (!pass.dilate)
        return DecompositionOf(pass.shifts);
    thread_local std::vector<Shift> reflected;
    reflected.clear();
    for (const Shift& s : pass.shifts)
        reflected.push_back(s.Reflected());
    return DecompositionOf(reflected);
}

// The bitmap's samples with one slot per axis, as Operators::ViewOf makes
// them, in fewer calls through the interfaces: on a small image those
// calls cost more than the erosion. A bitmap's size has its image's axes.
template <class T>
BitmapView<T> SlotViewOf(Quilon_::Images::IBitmap& bitmap)
{
    return Operators::SlotViewOf<T>(bitmap);
}

template <class T>
bool RunRowPassesOf(Quilon_::Images::IBitmap& in, Quilon_::Images::IBitmap& out,
                    std::span<const MorphologyPass> passes, Residue residue)
{
    constexpr std::size_t mostPasses = 4;
    std::int64_t passCount = 0;
    for (const MorphologyPass& pass : passes)
        passCount += pass.times;
    if (passCount == 0 || passes.size() > mostPasses)
        return false;
    const BitmapView<T> source = SlotViewOf<T>(in);
    const BitmapView<T> target = SlotViewOf<T>(out);
    const Grid grid{source.size[slotX], source.size[slotY], source.size[slotZ]};
    if (source.size != target.size || grid.Count() == 0 || !Operators::DenseRows(source) ||
        !Operators::DenseRows(target))
        return false;
    // An output that shares memory with the input is written only after
    // the last pass, from a scratch volume; one laid out differently from
    // the input is left to the general path.
    const bool shared = ViewsOverlap(source, target);
    if (shared && (source.data != target.data || source.stride != target.stride))
        return false;

    std::array<std::shared_ptr<const Decomposition>, mostPasses> plans;
    for (std::size_t i = 0; i < passes.size(); ++i)
        plans[i] = PlanOfPass(passes[i]);
    std::array<std::vector<T>, 2> scratch;
    const auto scratchVolume = [&](std::int64_t index) {
        std::vector<T>& samples = scratch[std::size_t(index % 2)];
        samples.resize(std::size_t(grid.Count()));
        return RowVolume<T>{samples.data(), grid.nx, grid.nx * grid.ny};
    };

    const std::int64_t volumes = source.size[slotT] * source.size[slotB];
    for (std::int64_t v = 0; v < volumes; ++v) {
        const RowVolume<T> original = ErosionVolumeOf(source, v);
        const RowVolume<T> result = ErosionVolumeOf(target, v);
        RowVolume<const T> current{original.data, original.rowStride, original.planeStride};
        std::int64_t done = 0;
        for (std::size_t p = 0; p < passes.size(); ++p)
            for (std::int64_t i = 0; i < passes[p].times; ++i) {
                ++done;
                const bool direct = done == passCount && residue == Residue::none && !shared;
                const RowVolume<T> into = direct ? result : scratchVolume(done);
                RunErosionPass(grid, current, into, *plans[p], passes[p].dilate);
                current = {into.data, into.rowStride, into.planeStride};
            }
        if (current.data != result.data)
            WriteErosionResult<T>(grid, {original.data, original.rowStride, original.planeStride}, current,
                                  result, residue);
    }
    return true;
}

} // namespace

bool RunRowPasses(const ImageRef& in, const ImageRef& out, std::span<const MorphologyPass> passes,
                  Residue residue)
{
    System::Ref<Quilon_::Images::IBitmap> source = in->Bitmap();
    System::Ref<Quilon_::Images::IBitmap> target = out->Bitmap();
    const System::NumericTypeEnum type = source->Format()->DataType();
    if (type != target->Format()->DataType() || type == System::ntComplexF || type == System::ntComplexD)
        return false;
    return DispatchSampleType(type, [&](auto tag) {
        using T = typename decltype(tag)::type;
        if constexpr (std::is_arithmetic_v<T>)
            return RunRowPassesOf<T>(*source, *target, passes, residue);
        else
            return false;
    });
}

} // namespace Quilon_::Basic::Images::Morphology
