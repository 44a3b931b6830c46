// The reference implementations of the image measurements: range,
// histogram, area, bounding box, moments, object count and volume. Each
// reads the image
// in its compute type, once, and walks the block; NaN samples are left
// out everywhere.
#include "Images/Filtering/Neighbourhood.h"
#include "Images/Operators/Pointwise.h"

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Images/Measurements/Functions.h"
#include "Quilon_/Math/Moments.h"
#include "Quilon_/Math/Range.h"
#include "Quilon_/Measurements/Histogram.h"
#include "Quilon_/PrivateLibrary.h"

#include <cmath>
#include <limits>

namespace Quilon_::Basic::Images::Operators {

namespace {

namespace QM = Quilon_::Images::Measurements::Functions;
using MaskRef = System::Pointer<Quilon_::Images::IImage, 0>;
using RangeRef = System::Ref<::Quilon_::Math::IRangeD>;
using HistogramRef = System::Ref<::Quilon_::Measurements::IHistogram>;

// Calls visit(value, weight, band) for every sample that is not NaN and
// whose weight (the mask or weight image at its place, repeated along its
// slots of size 1; 1 without one) is not 0.
template <class C, class Visit>
void ForEachWeighted(const Samples<C>& samples, const Samples<double>* weights, Visit&& visit)
{
    if (weights)
        CheckBroadcast(samples.size, weights->size);
    Extent c{};
    for (c[4] = 0; c[4] < samples.size[4]; ++c[4])
        for (c[3] = 0; c[3] < samples.size[3]; ++c[3])
            for (c[2] = 0; c[2] < samples.size[2]; ++c[2])
                for (c[1] = 0; c[1] < samples.size[1]; ++c[1]) {
                    const C* row = samples.Row(c[1], c[2], c[3], c[4]);
                    const double* weightRow = nullptr;
                    std::int64_t weightStep = 0;
                    if (weights) {
                        Extent at;
                        for (int slot = 0; slot < maxViewAxes; ++slot)
                            at[slot] = weights->size[slot] == 1 ? 0 : c[slot];
                        weightRow = weights->values.data() + weights->Index(at);
                        weightStep = weights->size[slotX] == 1 ? 0 : 1;
                    }
                    for (std::int64_t x = 0; x < samples.size[slotX]; ++x) {
                        const double weight = weightRow ? weightRow[x * weightStep] : 1.0;
                        if (weight != 0 && !std::isnan(row[x]))
                            visit(row[x], weight, c[4]);
                    }
                }
}

// Calls measure(samples, weights or null) with the image in its compute
// type and the optional weights as doubles; returns what it returns.
template <class Measure>
decltype(auto) Measured(const ImageRef& image, const MaskRef& weightImage, Measure&& measure)
{
    return DispatchComputeType(DataTypeOf(image), [&](auto tag) -> decltype(auto) {
        using C = typename decltype(tag)::type;
        if constexpr (isComplexSample<C>) {
            RaiseUnsupportedType(DataTypeOf(image), L"scalar type");
            return measure(Samples<double>(), static_cast<const Samples<double>*>(nullptr));
        } else {
            const Samples<C> samples = LoadSamples<C>(image);
            if (!weightImage)
                return measure(samples, static_cast<const Samples<double>*>(nullptr));
            const Samples<double> weights = LoadSamples<double>(ImageRef(weightImage));
            return measure(samples, &weights);
        }
    });
}

// [least, greatest] of the selected samples; [0, 0] with none.
std::pair<double, double> Extremes(const ImageRef& image, const MaskRef& mask)
{
    if (double low = 0, high = 0; !mask && Pointwise::Extremes(image, low, high))
        return {low, high};
    if (double low = 0, high = 0; mask && Pointwise::Extremes(image, ImageRef(mask), low, high))
        return {low, high};
    return Measured(image, mask, [](const auto& samples, const Samples<double>* weights) {
        double low = std::numeric_limits<double>::infinity(), high = -low;
        ForEachWeighted(samples, weights, [&](auto v, double, std::int64_t) {
            low = std::min(low, static_cast<double>(v));
            high = std::max(high, static_cast<double>(v));
        });
        return low > high ? std::pair(0.0, 0.0) : std::pair(low, high);
    });
}

RangeRef Range0(ImageRef image)
{
    const auto [low, high] = Extremes(image, nullptr);
    return ::Quilon_::Math::RangeD::New(low, high);
}

RangeRef Range1(ImageRef image, MaskRef mask)
{
    const auto [low, high] = Extremes(image, mask);
    return ::Quilon_::Math::RangeD::New(low, high);
}

// Bin i covers [low + i w, low + (i + 1) w), the last one also `high`;
// values outside [low, high] are left out.
HistogramRef HistogramOver(const ImageRef& image, std::int64_t bins, double low, double high)
{
    if (bins < 1)
        QUILON_RAISE(L"Invalid bin count: %1%", bins);
    std::vector<std::int64_t> counts(static_cast<std::size_t>(bins), 0);
    const double width = (high - low) / static_cast<double>(bins);
    auto count = [&](double value, std::int64_t times) {
        if (!(value >= low && value <= high))
            return;
        // A range of one value has bins of width 0: its value is `high`, which
        // the last bin takes.
        const auto bin =
            width > 0 ? std::min<std::int64_t>(static_cast<std::int64_t>((value - low) / width), bins - 1)
                      : bins - 1;
        counts[static_cast<std::size_t>(bin)] += times;
    };
    // Images of 8- and 16-bit integers are counted by value first, then
    // each value is put in its bin once.
    std::vector<std::int64_t> table;
    if (Pointwise::CountValues(image, table)) {
        const System::NumericTypeEnum type = DataTypeOf(image);
        const bool isSigned = type == System::ntInt8 || type == System::ntInt16;
        const auto size = static_cast<std::int64_t>(table.size());
        for (std::int64_t index = 0; index < size; ++index)
            if (table[static_cast<std::size_t>(index)] != 0)
                count(static_cast<double>(isSigned && index >= size / 2 ? index - size : index),
                      table[static_cast<std::size_t>(index)]);
    } else {
        Measured(image, nullptr, [&](const auto& samples, const Samples<double>* weights) {
            ForEachWeighted(samples, weights,
                            [&](auto v, double, std::int64_t) { count(static_cast<double>(v), 1); });
            return 0;
        });
    }
    HistogramRef histogram =
        ::Quilon_::Measurements::Histogram::New(bins, ::Quilon_::Math::RangeD::New(low, high), false);
    histogram->SetCounts(counts);
    return histogram;
}

HistogramRef Histogram0(ImageRef image)
{
    const System::NumericTypeEnum type = DataTypeOf(image);
    if (System::IsInteger(type) && System::BitSize(type) <= 16) {
        // One bin per value of the type: [lowest, greatest + 1).
        const auto [lowest, greatest] = DispatchIntegerSampleType(type, [](auto tag) {
            using T = typename decltype(tag)::type;
            return std::pair(double(std::numeric_limits<T>::lowest()), double(std::numeric_limits<T>::max()));
        });
        return HistogramOver(image, static_cast<std::int64_t>(greatest - lowest) + 1, lowest, greatest + 1);
    }
    const auto [low, high] = Extremes(image, nullptr);
    return HistogramOver(image, 256, low, high > low ? high : low + 1);
}

HistogramRef Histogram1(ImageRef image, std::int64_t bins, RangeRef range)
{
    return HistogramOver(image, bins, range->Minimum(), range->Maximum());
}

void Area(ImageRef image, double& area)
{
    area = Measured(image, nullptr, [](const auto& samples, const Samples<double>*) {
        double count = 0;
        for (auto v : samples.values)
            count += v != 0 && !std::isnan(v);
        return count;
    });
}

void BoundingBox(ImageRef image, System::Pointer<Geometry::IBox, 0>& box)
{
    const std::vector<int> slots = SpatialSlots(image);
    Extent lower, upper;
    lower.fill(std::numeric_limits<std::int64_t>::max());
    upper.fill(std::numeric_limits<std::int64_t>::min());
    Measured(image, nullptr, [&](const auto& samples, const Samples<double>*) {
        Extent c{};
        for (c[4] = 0; c[4] < samples.size[4]; ++c[4])
            for (c[3] = 0; c[3] < samples.size[3]; ++c[3])
                for (c[2] = 0; c[2] < samples.size[2]; ++c[2])
                    for (c[1] = 0; c[1] < samples.size[1]; ++c[1])
                        for (c[0] = 0; c[0] < samples.size[0]; ++c[0]) {
                            const auto v = samples.values[static_cast<std::size_t>(samples.Index(c))];
                            if (v == 0 || std::isnan(v))
                                continue;
                            for (int slot : slots) {
                                lower[slot] = std::min(lower[slot], c[slot]);
                                upper[slot] = std::max(upper[slot], c[slot] + 1);
                            }
                        }
        return 0;
    });
    box = nullptr;
    if (slots.empty() || lower[slots.front()] > upper[slots.front()])
        return;
    Geometry::Axes axes(static_cast<unsigned char>(0));
    for (int slot : slots)
        axes = Geometry::Axes(static_cast<unsigned char>(axes | (1u << slot)));
    System::Ref<Geometry::ICoordinates> low = Geometry::Coordinates::New(axes);
    System::Ref<Geometry::ICoordinates> high = Geometry::Coordinates::New(axes);
    for (int slot : slots) {
        const auto axis = static_cast<Geometry::AxisEnum>(1u << slot);
        low->SetValue(axis, lower[slot]);
        high->SetValue(axis, upper[slot]);
    }
    box = Geometry::Box::New(low, high);
}

// The samples of a mask or weight image as weights; a mask weighs 1 where
// it is set, and `mask` (null: none) zeroes the weights where it is not.
Samples<double> WeightsOf(const ImageRef& image, bool binary, const MaskRef& mask)
{
    Samples<double> w = LoadSamples<double>(image);
    if (binary)
        for (double& value : w.values)
            value = value != 0 ? 1.0 : 0.0;
    if (!mask)
        return w;
    const Samples<double> m = LoadSamples<double>(ImageRef(mask));
    CheckBroadcast(w.size, m.size);
    Extent c{};
    for (c[4] = 0; c[4] < w.size[4]; ++c[4])
        for (c[3] = 0; c[3] < w.size[3]; ++c[3])
            for (c[2] = 0; c[2] < w.size[2]; ++c[2])
                for (c[1] = 0; c[1] < w.size[1]; ++c[1])
                    for (c[0] = 0; c[0] < w.size[0]; ++c[0]) {
                        Extent at;
                        for (int slot = 0; slot < maxViewAxes; ++slot)
                            at[slot] = m.size[slot] == 1 ? 0 : c[slot];
                        if (m.values[static_cast<std::size_t>(m.Index(at))] == 0)
                            w.values[static_cast<std::size_t>(w.Index(c))] = 0;
                    }
    return w;
}

// Per band: the extremes, the weighted mean, and the standard deviation,
// skewness and kurtosis of the population (m2^1/2, m3 / m2^3/2, m4 / m2^2;
// 0 when all values are equal). Two passes: sums of powers of the
// deviations are exact where sums of powers of the values cancel.
std::vector<::Quilon_::Math::Moments> MomentsOf(const ImageRef& image, const Samples<double>* weights)
{
    return Measured(image, nullptr, [weights](const auto& samples, const Samples<double>*) {
        const auto bands = static_cast<std::size_t>(samples.size[slotB]);
        std::vector<long double> total(bands, 0), sum(bands, 0), m2(bands, 0), m3(bands, 0), m4(bands, 0);
        std::vector<::Quilon_::Math::Moments> moments(bands);
        std::vector<bool> seen(bands, false);
        ForEachWeighted(samples, weights, [&](auto v, double weight, std::int64_t b) {
            const auto band = static_cast<std::size_t>(b);
            const double value = static_cast<double>(v);
            auto& m = moments[band];
            m.Minimum() = seen[band] ? std::min(m.Minimum(), value) : value;
            m.Maximum() = seen[band] ? std::max(m.Maximum(), value) : value;
            seen[band] = true;
            total[band] += weight;
            sum[band] += weight * static_cast<long double>(v);
        });
        std::vector<long double> mean(bands, 0);
        for (std::size_t b = 0; b < bands; ++b)
            mean[b] = total[b] != 0 ? sum[b] / total[b] : 0;
        ForEachWeighted(samples, weights, [&](auto v, double weight, std::int64_t b) {
            const auto band = static_cast<std::size_t>(b);
            const long double d = static_cast<long double>(v) - mean[band];
            m2[band] += weight * d * d;
            m3[band] += weight * d * d * d;
            m4[band] += weight * d * d * d * d;
        });
        for (std::size_t b = 0; b < bands; ++b) {
            if (total[b] == 0)
                continue;
            auto& m = moments[b];
            const long double variance = m2[b] / total[b];
            m.Mean() = static_cast<double>(mean[b]);
            m.StandardDeviation() = static_cast<double>(std::sqrt(variance));
            if (variance > 0) {
                m.Skewness() = static_cast<double>(m3[b] / total[b] / std::pow(variance, 1.5L));
                m.Kurtosis() = static_cast<double>(m4[b] / total[b] / (variance * variance));
            }
        }
        return moments;
    });
}

std::vector<::Quilon_::Math::Moments> Moments0(ImageRef image)
{
    return MomentsOf(image, nullptr);
}

std::vector<::Quilon_::Math::Moments> Moments1(ImageRef image, ImageRef mask)
{
    const Samples<double> weights = WeightsOf(mask, true, nullptr);
    return MomentsOf(image, &weights);
}

std::vector<::Quilon_::Math::Moments> Moments2(ImageRef image, ImageRef weightImage, MaskRef mask)
{
    const Samples<double> weights = WeightsOf(weightImage, false, mask);
    return MomentsOf(image, &weights);
}

// Connected groups of set samples, counted by a breadth-first walk from
// each set sample not yet reached; bands and time points apart.
void ObjectCountOf(const ImageRef& image, const Geometry::PredefinedNgbGraphEnum* graph, double& count)
{
    const std::vector<Extent> steps = NeighbourSteps(SpatialSlots(image), graph);
    const Samples<double> samples = LoadSamples<double>(image);
    std::vector<char> reached(samples.values.size(), 0);
    std::vector<Extent> pending;
    count = 0;
    ForEachRow(samples.size, [&](std::int64_t y, std::int64_t z, std::int64_t t, std::int64_t b) {
        for (std::int64_t x = 0; x < samples.size[slotX]; ++x) {
            const Extent start{x, y, z, t, b};
            const auto i = static_cast<std::size_t>(samples.Index(start));
            if (reached[i] || samples.values[i] == 0)
                continue;
            ++count;
            reached[i] = 1;
            pending.assign(1, start);
            while (!pending.empty()) {
                const Extent at = pending.back();
                pending.pop_back();
                for (const Extent& step : steps) {
                    Extent next;
                    bool inside = true;
                    for (int slot = 0; slot < maxViewAxes; ++slot) {
                        next[slot] = at[slot] + step[slot];
                        inside = inside && next[slot] >= 0 && next[slot] < samples.size[slot];
                    }
                    if (!inside)
                        continue;
                    const auto j = static_cast<std::size_t>(samples.Index(next));
                    if (!reached[j] && samples.values[j] != 0) {
                        reached[j] = 1;
                        pending.push_back(next);
                    }
                }
            }
        }
    });
}

void ObjectCount0(ImageRef image, double& count)
{
    ObjectCountOf(image, nullptr, count);
}

void ObjectCount1(ImageRef image, Geometry::PredefinedNgbGraphEnum graph, double& count)
{
    ObjectCountOf(image, &graph, count);
}

void Volume(ImageRef image, std::vector<double>& sums)
{
    sums = Measured(image, nullptr, [](const auto& samples, const Samples<double>* weights) {
        std::vector<double> perBand(static_cast<std::size_t>(samples.size[slotB]), 0.0);
        ForEachWeighted(samples, weights, [&](auto v, double, std::int64_t b) {
            perBand[static_cast<std::size_t>(b)] += double(v);
        });
        return perBand;
    });
}

void RegisterMeasures()
{
    const System::LIString name(L"Reference measurement");
    QM::Range.Overload<0>().Register(name, &Range0);
    QM::Range.Overload<1>().Register(name, &Range1);
    QM::Histogram.Overload<0>().Register(name, &Histogram0);
    QM::Histogram.Overload<1>().Register(name, &Histogram1);
    QM::Area.Register(name, &Area);
    QM::BoundingBox.Register(name, &BoundingBox);
    QM::Moments.Overload<0>().Register(name, &Moments0);
    QM::Moments.Overload<1>().Register(name, &Moments1);
    QM::Moments.Overload<2>().Register(name, &Moments2);
    QM::ObjectCount.Overload<0>().Register(name, &ObjectCount0);
    QM::ObjectCount.Overload<1>().Register(name, &ObjectCount1);
    QM::Volume.Register(name, &Volume);
}

const System::Template::Initializer<::Library> measures(&RegisterMeasures, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Operators
