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

// The offsets that lie lowest in each plane of an element, one per row:
// the rows an output row reads first, each a new page, where the
// processor's own prefetching starts late. Found once per band, not per
// row. None for many offsets: they are many rows, which the folds already
// take a few at a time, and finding the lowest would cost more than it saves.
struct LowestShifts {
    static constexpr std::size_t most = 16;
    Shift shifts[most];
    std::size_t count = 0;

    explicit LowestShifts(std::span<const Shift> all)
    {
        if (all.size() > most)
            return;
        for (const Shift& s : all) {
            bool lowest = true, first = true;
            for (const Shift& other : all) {
                lowest = lowest && !(other.dz == s.dz && other.dy > s.dy);
                first = first && !(&other < &s && other.dz == s.dz && other.dy == s.dy);
            }
            if (lowest && first)
                shifts[count++] = s;
        }
    }
};

// Fetches the lowest rows of output row (y, z) that lie in the image.
template <class T>
void PrefetchLowestRows(const Grid& grid, RowVolume<const T> in, const LowestShifts& lowest, std::int64_t y,
                        std::int64_t z)
{
    for (std::size_t i = 0; i < lowest.count; ++i) {
        const Shift& s = lowest.shifts[i];
        if (!grid.Contains(0, y + s.dy, z + s.dz))
            continue;
        const T* row = in.Row(y + s.dy, z + s.dz);
        for (std::int64_t x = 0; x < grid.nx; x += std::int64_t(64 / sizeof(T)))
            hwy::Prefetch(row + x);
    }
}

// The rows of one level of a line's doubling that are still to be read,
// in a ring: row j of the level at place (j - base) % size.
template <class T>
struct LineLevel {
    T* rows = nullptr;
    std::int64_t size = 0;

    T* Row(std::int64_t j, std::int64_t base, std::int64_t width) const
    {
        return rows + (j - base) % size * width;
    }
};

// Output rows [ya, yb) of plane z eroded by a line down the rows, by
// doubling: level m holds, for each row j, the fold of the line's first m
// offsets laid from row j (x shifted by x0), for m = 1, 2, 4 ... up to
// the largest power of two p within the line, and an output row is the
// fold of two rows of level p. Each level keeps only the rows the next one
// still reads, so the rings (about `length` rows in all) stay in the cache,
// and an output row costs log2(p) + 1 folds of two rows whatever the
// length. Rows of every level are padded with `padding` samples either
// side: samples outside the row read as neutral.
template <class T>
void FoldLineRows(const Grid& grid, RowVolume<const T> in, RowVolume<T> out, const RowLine& line,
                  bool maximum, std::int64_t z, std::int64_t ya, std::int64_t yb, bool streamed)
{
    const std::int64_t nx = grid.nx, length = line.length, step = line.step;
    const std::int64_t padding = line.Padding(), width = nx + 2 * padding;
    std::int64_t p = 1;
    while (2 * p <= length)
        p *= 2;
    // Level 1 is the input row itself when nothing is shifted, else a
    // padded copy; level m < p is read up to m rows back, level p up to
    // length - p rows back.
    constexpr std::size_t mostLevels = 64;
    std::array<LineLevel<T>, mostLevels> levels;
    std::size_t levelCount = 0;
    std::int64_t ringRows = 1; // the neutral row
    for (std::int64_t m = 1; m <= p; m *= 2) {
        levels[levelCount++].size = m < p ? m + 1 : length - p + 1;
        ringRows += levels[levelCount - 1].size;
    }
    const FoldScratch<T> scratch = FoldScratchOf<T>(ringRows * width, 2);
    T* neutralRow = scratch.buffer;
    std::fill(neutralRow, neutralRow + width, NeutralOf<T>(maximum));
    T* next = neutralRow + width;
    for (std::size_t k = 0; k < levelCount; ++k) {
        levels[k].rows = next;
        next += levels[k].size * width;
    }
    const bool direct = padding == 0;
    const std::int64_t base = ya + line.y0; // the first row of every level that is read
    // Where row j of level 1 starts (its padding before it).
    const auto firstLevelRow = [&](std::int64_t j) -> const T* {
        if (j < 0 || j >= grid.ny)
            return neutralRow;
        if (direct)
            return in.Row(j, z);
        T* row = levels[0].Row(j, base, width);
        std::fill(row, row + padding, NeutralOf<T>(maximum));
        std::memcpy(row + padding, in.Row(j, z), std::size_t(nx) * sizeof(T));
        std::fill(row + padding + nx, row + width, NeutralOf<T>(maximum));
        return row;
    };
    std::array<const T*, 2> firstRows{}; // level 1 of rows J - 1 and J
    const auto levelRow = [&](std::size_t k, std::int64_t j) -> const T* {
        if (k == 0)
            return firstRows[std::size_t((j - base) % 2)];
        return levels[k].Row(j, base, width);
    };
    const std::int64_t lastInputRow = yb - 1 + line.y0 + length - 1;
    const Shift first{0, 0, 0};
    const LowestShifts lowest(std::span(&first, 1));
    for (std::int64_t J = base; J <= lastInputRow; ++J) {
        PrefetchLowestRows(grid, in, lowest, J + 2, z);
        firstRows[std::size_t((J - base) % 2)] = firstLevelRow(J);
        std::int64_t half = 1;
        for (std::size_t k = 1; k < levelCount; ++k, half *= 2) {
            const std::int64_t j = J - 2 * half + 1;
            if (j < base)
                break;
            // Level 2h at j folds level h at j with level h at j + h,
            // shifted along x; where the shift leaves the padded row, only
            // neutral samples would be read.
            const T* a = levelRow(k - 1, j);
            const T* b = levelRow(k - 1, j + half);
            T* target = levels[k].Row(j, base, width);
            const std::int64_t shift = step * half;
            const std::int64_t from = std::max<std::int64_t>(0, -shift), to = std::min(width, width - shift);
            const T* pair[] = {a + from, b + from + shift};
            FoldRows(maximum, target + from, pair, 2, to - from);
            std::copy(a, a + from, target);
            std::copy(a + to, a + width, target + to);
        }
        const std::int64_t y = J + 1 - line.y0 - length;
        if (y < ya)
            continue;
        const std::size_t top = levelCount - 1;
        const std::int64_t x0 = padding + line.x0;
        const T* pair[] = {levelRow(top, y + line.y0) + x0,
                           levelRow(top, y + line.y0 + length - p) + x0 + step * (length - p)};
        FoldRows(maximum, out.Row(y, z), pair, length == p ? 1 : 2, nx, streamed);
    }
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
    if (plan.line) {
        for (std::int64_t r = firstRow; r < lastRow;) {
            const std::int64_t z = r / grid.ny, end = std::min(lastRow, (z + 1) * grid.ny);
            FoldLineRows(grid, in, out, *plan.line, maximum, z, r - z * grid.ny, end - z * grid.ny, stream);
            r = end;
        }
    } else if (plan.chain) {
        const ChainedElement& chain = *plan.chain;
        T* scratch = ChainScratchOf<T>(std::int64_t(chain.StageCount()) *
                                       ChainBufferSamples(chain.padding, grid.nx, sizeof(T)));
        FoldChainBand(chain, ChainBand<T>{in.data, in.rowStride, in.planeStride, out.data, out.rowStride,
                                          out.planeStride, grid.nx, grid.ny, grid.nz, firstRow, lastRow,
                                          maximum, stream, scratch});
    } else {
        const FoldScratch<T> scratch =
            FoldScratchOf<T>(plan.groups.empty() ? 0 : grid.nx + 2 * plan.padding, plan.widestFold + 2);
        const LowestShifts lowest(plan.points);
        for (std::int64_t r = firstRow; r < lastRow; ++r) {
            const std::int64_t y = r % grid.ny, z = r / grid.ny;
            PrefetchLowestRows(grid, in, lowest, y + 2, z);
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
// it once. An element of up to about 16 reads a sample, chained or read
// directly, costs what such a pass costs (the input and the output move
// through memory once, the reads in between hit the cache), so that an
// image under about 256 x 256 stays on the calling thread.
std::int64_t SampleCostOf(const Decomposition& plan)
{
    // A line down the rows is folded in rings of rows that stay in the
    // cache: it costs what such a pass costs too.
    if (plan.line)
        return 1;
    if (plan.chain)
        return 1 +
               std::int64_t(plan.chain->rows.size() + plan.chain->StageCount() + plan.chain->terms.size()) /
                   16;
    return 1 + std::int64_t(plan.points.size() + 2 * plan.groups.size()) / 16;
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
