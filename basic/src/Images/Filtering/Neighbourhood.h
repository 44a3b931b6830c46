// What the neighbourhood operators of the reference library (filters, edge
// detectors, thresholds that look around a sample) share: the samples of an
// image as a dense block of a compute type, the border rule that decides
// what lies outside it, and the two passes every kernel is made of.
//
//   using C = double;
//   Samples<C> values = LoadSamples<C>(input);
//   const BorderRule border = BorderOf(padding);               // replicate unless told
//   CorrelateSlot(values, slotX, {0.25, 0.5, 0.25}, 1, border);   // 1: the weight at offset 0
//   Samples<C> sharp = Correlate(values, points, border);         // any set of offsets
//   StoreSamples(sharp, AnyViewOf(output));                       // rounded, saturated
//
// A block has the fixed slots of OperatorSupport.h (X, Y, Z, T, B), X
// fastest in memory. The compute type C is double, or long double for
// 64-bit integer samples (ComputeType), so that every sample loads exactly:
// kernels are written once per compute type, not once per sample type.
#pragma once

#include "Images/Operators/OperatorSupport.h"
#include "System/ProgressReport.h"

#include "Quilon_/Geometry/PredefinedNgbGraph.h"
#include "Quilon_/Images/Padding.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Geometry {
class IStructuringElement;
} // namespace Quilon_::Geometry

namespace Quilon_::Basic::Images::Operators {

// Samples of an image in a compute type, dense, X fastest.
template <class C>
struct Samples {
    Extent size{1, 1, 1, 1, 1};
    Extent stride{0, 0, 0, 0, 0};
    std::vector<C> values;

    explicit Samples(const Extent& extent = Extent{1, 1, 1, 1, 1}) : size(extent)
    {
        std::int64_t step = 1;
        for (int slot = 0; slot < maxViewAxes; ++slot) {
            stride[slot] = step;
            step *= size[slot];
        }
        values.assign(static_cast<std::size_t>(step), C(0));
    }
    std::int64_t Count() const noexcept { return static_cast<std::int64_t>(values.size()); }
    std::int64_t Index(const Extent& c) const noexcept
    {
        return c[0] + c[1] * stride[1] + c[2] * stride[2] + c[3] * stride[3] + c[4] * stride[4];
    }
    C* Row(std::int64_t y, std::int64_t z, std::int64_t t, std::int64_t b) noexcept
    {
        return values.data() + y * stride[1] + z * stride[2] + t * stride[3] + b * stride[4];
    }
    const C* Row(std::int64_t y, std::int64_t z, std::int64_t t, std::int64_t b) const noexcept
    {
        return values.data() + y * stride[1] + z * stride[2] + t * stride[3] + b * stride[4];
    }
};

// Calls row(y, z, t, b) for every row (line along X) of an extent.
template <class Function>
void ForEachRow(const Extent& size, Function&& row)
{
    for (std::int64_t b = 0; b < size[slotB]; ++b)
        for (std::int64_t t = 0; t < size[slotT]; ++t)
            for (std::int64_t z = 0; z < size[slotZ]; ++z)
                for (std::int64_t y = 0; y < size[slotY]; ++y)
                    row(y, z, t, b);
}

// The samples of a view of any type, as C.
template <class C>
Samples<C> LoadSamples(const AnyView& view)
{
    Samples<C> samples(view.bytes.size);
    const LineReader<C> reader = LineReader<C>::For(view.type);
    ForEachRow(samples.size, [&](std::int64_t y, std::int64_t z, std::int64_t t, std::int64_t b) {
        reader.load(view.bytes.At(0, y, z, t, b), view.bytes.stride[slotX], samples.size[slotX],
                    samples.Row(y, z, t, b));
    });
    return samples;
}

template <class C>
Samples<C> LoadSamples(const ImageRef& image)
{
    return LoadSamples<C>(AnyViewOf(image));
}

// Writes the samples into a view of the same extent, rounded and saturated
// in its type; raises "Image sizes do not match" otherwise.
template <class C>
void StoreSamples(const Samples<C>& samples, const AnyView& view)
{
    // Each way round, so that neither extent may broadcast into the other.
    CheckBroadcast(samples.size, view.bytes.size);
    CheckBroadcast(view.bytes.size, samples.size);
    const LineWriter<C> writer = LineWriter<C>::For(view.type);
    ForEachRow(samples.size, [&](std::int64_t y, std::int64_t z, std::int64_t t, std::int64_t b) {
        writer.store(samples.Row(y, z, t, b), samples.size[slotX], view.bytes.At(0, y, z, t, b),
                     view.bytes.stride[slotX]);
    });
}

// What lies outside the image: ptReplicate, ptMirror or ptConstant (with
// its value); ptNone reads as ptReplicate.
struct BorderRule {
    Quilon_::Images::PaddingTypeEnum type = Quilon_::Images::ptReplicate;
    double value = 0;
};

// The filters' default is ptReplicate.
BorderRule BorderOf(const Quilon_::Images::Padding* padding);

// The index in [0, n) whose sample stands at `i`, or -1 for the constant.
std::int64_t SourceIndex(std::int64_t i, std::int64_t n, const BorderRule& border) noexcept;

// One point of a neighbourhood: an offset per slot and a weight.
struct Point {
    Extent offset{0, 0, 0, 0, 0};
    double weight = 1;
};

// The slots of the spatial axes the image has (X, Y, Z, in this order).
std::vector<int> SpatialSlots(const ImageRef& image);

// The points of a square (cubic) window of side `side` over the spatial
// slots, offsets from -(side - 1) / 2 to side / 2, weight 1; raises
// "Invalid window size: %1%" for a side below 1.
std::vector<Point> WindowPoints(const std::vector<int>& slots, std::int64_t side);

// The steps to the neighbours of a sample in a graph over the spatial
// slots: with no graph every neighbour (8 in 2-D, 26 in 3-D); pngSquare4,
// pngSquare8, pngCubic6 and pngCubic26 as named. Raises "Unsupported
// neighbourhood graph: %1%" for any other.
std::vector<Extent> NeighbourSteps(const std::vector<int>& slots,
                                   const Geometry::PredefinedNgbGraphEnum* graph);

// The samples with a margin of `lower` before and `upper` after along each
// slot, filled by the border rule.
template <class C>
Samples<C> Padded(const Samples<C>& samples, const Extent& lower, const Extent& upper,
                  const BorderRule& border)
{
    Extent size;
    for (int slot = 0; slot < maxViewAxes; ++slot)
        size[slot] = samples.size[slot] + lower[slot] + upper[slot];
    Samples<C> padded(size);
    const C constant = static_cast<C>(border.value);
    std::vector<std::int64_t> sourceX(static_cast<std::size_t>(size[slotX]));
    for (std::int64_t x = 0; x < size[slotX]; ++x)
        sourceX[static_cast<std::size_t>(x)] = SourceIndex(x - lower[slotX], samples.size[slotX], border);
    ForEachRow(size, [&](std::int64_t y, std::int64_t z, std::int64_t t, std::int64_t b) {
        const std::int64_t c[4] = {SourceIndex(y - lower[slotY], samples.size[slotY], border),
                                   SourceIndex(z - lower[slotZ], samples.size[slotZ], border),
                                   SourceIndex(t - lower[slotT], samples.size[slotT], border),
                                   SourceIndex(b - lower[slotB], samples.size[slotB], border)};
        C* to = padded.Row(y, z, t, b);
        if (c[0] < 0 || c[1] < 0 || c[2] < 0 || c[3] < 0) {
            std::fill(to, to + size[slotX], constant);
            return;
        }
        const C* from = samples.Row(c[0], c[1], c[2], c[3]);
        for (std::int64_t x = 0; x < size[slotX]; ++x) {
            const std::int64_t source = sourceX[static_cast<std::size_t>(x)];
            to[x] = source < 0 ? constant : from[source];
        }
    });
    return padded;
}

// The offsets of a structuring element, on the slots of its axes, weight
// 1; raises "The structuring element has no points" for an empty one.
std::vector<Point> ElementPoints(Geometry::IStructuringElement& element);

// The margins that the points reach beyond a sample.
void MarginsOf(const std::vector<Point>& points, Extent& lower, Extent& upper);

// Calls visit(result, window) for every sample: `window` points at the
// sample in a padded copy, `deltas` (one per point, in the points' order)
// being the index steps to the point. The scalar reference of every
// non-separable neighbourhood kernel.
template <class C, class Visit>
Samples<C> ForEachNeighbourhood(const Samples<C>& samples, const std::vector<Point>& points,
                                const BorderRule& border, Visit&& visit)
{
    Extent lower, upper;
    MarginsOf(points, lower, upper);
    const Samples<C> padded = Padded(samples, lower, upper, border);
    std::vector<std::int64_t> deltas;
    deltas.reserve(points.size());
    for (const Point& point : points) {
        std::int64_t delta = 0;
        for (int slot = 0; slot < maxViewAxes; ++slot)
            delta += point.offset[slot] * padded.stride[slot];
        deltas.push_back(delta);
    }
    Samples<C> result(samples.size);
    // A rank filter over a large window is the slow one: report by rows.
    ProgressReport progress(samples.size[slotY] * samples.size[slotZ] * samples.size[slotT] *
                            samples.size[slotB]);
    ForEachRow(samples.size, [&](std::int64_t y, std::int64_t z, std::int64_t t, std::int64_t b) {
        const C* window =
            padded.Row(y + lower[slotY], z + lower[slotZ], t + lower[slotT], b + lower[slotB]) + lower[slotX];
        C* out = result.Row(y, z, t, b);
        for (std::int64_t x = 0; x < samples.size[slotX]; ++x)
            out[x] = visit(window + x, deltas);
        progress.Step();
    });
    return result;
}

// The weighted sum over the points at every sample, divided by `divisor`.
template <class C>
Samples<C> Correlate(const Samples<C>& samples, const std::vector<Point>& points, double divisor,
                     const BorderRule& border)
{
    std::vector<C> weights;
    for (const Point& point : points)
        weights.push_back(static_cast<C>(point.weight));
    const C scale = C(1) / static_cast<C>(divisor);
    return ForEachNeighbourhood(samples, points, border,
                                [&](const C* at, const std::vector<std::int64_t>& deltas) {
                                    C sum = 0;
                                    for (std::size_t k = 0; k < deltas.size(); ++k)
                                        sum += weights[k] * at[deltas[k]];
                                    return sum * scale;
                                });
}

// One separable pass in place: along `slot`, the sum of weights[k] times
// the sample at offset k - origin.
template <class C>
void CorrelateSlot(Samples<C>& samples, int slot, const std::vector<C>& weights, std::int64_t origin,
                   const BorderRule& border)
{
    const std::int64_t n = samples.size[slot];
    if (n == 0 || weights.empty())
        return;
    const std::int64_t before = origin;
    const std::int64_t after = static_cast<std::int64_t>(weights.size()) - 1 - origin;
    std::vector<C> line(static_cast<std::size_t>(n + before + after));
    std::vector<std::int64_t> source(line.size());
    for (std::int64_t i = 0; i < static_cast<std::int64_t>(line.size()); ++i)
        source[static_cast<std::size_t>(i)] = SourceIndex(i - before, n, border);
    const C constant = static_cast<C>(border.value);
    const std::int64_t step = samples.stride[slot];
    Extent lineExtent = samples.size;
    lineExtent[slot] = 1;
    Extent c{};
    for (c[4] = 0; c[4] < lineExtent[4]; ++c[4])
        for (c[3] = 0; c[3] < lineExtent[3]; ++c[3])
            for (c[2] = 0; c[2] < lineExtent[2]; ++c[2])
                for (c[1] = 0; c[1] < lineExtent[1]; ++c[1])
                    for (c[0] = 0; c[0] < lineExtent[0]; ++c[0]) {
                        C* first = samples.values.data() + samples.Index(c);
                        for (std::size_t i = 0; i < line.size(); ++i)
                            line[i] = source[i] < 0 ? constant : first[source[i] * step];
                        for (std::int64_t i = 0; i < n; ++i) {
                            C sum = 0;
                            for (std::size_t k = 0; k < weights.size(); ++k)
                                sum += weights[k] * line[static_cast<std::size_t>(i) + k];
                            first[i * step] = sum;
                        }
                    }
}

} // namespace Quilon_::Basic::Images::Operators
