// The reference implementations of the thresholds: by an interval or a
// value, Otsu's and the entropy threshold, hysteresis, and labels from
// several intervals. The source is read in its compute type; the result is
// a block of 0 and the destination's set value (255 in an 8-bit binary
// image), or of labels, stored into the destination.
#include "Images/Filtering/Neighbourhood.h"
#include "Images/Operators/Pointwise.h"

#include "Quilon_/Images/Segmentation/Functions.h"
#include "Quilon_/Math/Interval.h"
#include "Quilon_/PrivateLibrary.h"

#include <algorithm>
#include <cmath>
#include <deque>

namespace Quilon_::Basic::Images::Operators {

namespace {

namespace QS = Quilon_::Images::Segmentation::Functions;
using MaskRef = System::Pointer<Quilon_::Images::IImage, 0>;
using IntervalRef = System::Ref<::Quilon_::Math::IIntervalD>;

// The value a set sample takes in the destination's type.
long double SetValueOf(const ImageRef& destination)
{
    return DispatchRealSampleType(DataTypeOf(destination), [](auto tag) {
        return static_cast<long double>(SetSample<typename decltype(tag)::type>());
    });
}

// Calls classify(samples) with the source in its compute type; stores the
// block of labels it returns (0, 1, 2, ...; 1 meaning set for binary
// results) into the destination.
template <class Classify>
void Segment(const ImageRef& source, const ImageRef& destination, bool binary, Classify&& classify)
{
    const long double set = binary ? SetValueOf(destination) : 1.0L;
    DispatchComputeType(DataTypeOf(source), [&](auto tag) {
        using C = typename decltype(tag)::type;
        if constexpr (isComplexSample<C>) {
            RaiseUnsupportedType(DataTypeOf(source), L"scalar type");
        } else {
            Samples<C> labels = classify(LoadSamples<C>(source));
            if (binary)
                for (C& value : labels.values)
                    value = value != 0 ? static_cast<C>(set) : C(0);
            StoreSamples(labels, AnyViewOf(destination));
        }
    });
}

// Labels 1 where `selected(value)`.
template <class C, class Select>
Samples<C> Where(const Samples<C>& samples, Select&& selected)
{
    Samples<C> result(samples.size);
    for (std::size_t i = 0; i < samples.values.size(); ++i)
        result.values[i] = selected(samples.values[i]) ? C(1) : C(0);
    return result;
}

void Threshold0(ImageRef source, ImageRef destination, IntervalRef interval)
{
    const double lower = interval->Minimum(), upper = interval->Maximum();
    if (Pointwise::Threshold(source, destination, lower, upper))
        return;
    Segment(source, destination, true, [&]<class C>(const Samples<C>& samples) {
        return Where(samples, [&](C v) { return lower <= v && v <= upper; });
    });
}

void Threshold1(ImageRef source, ImageRef destination, double level)
{
    if (Pointwise::Threshold(source, destination, level, std::numeric_limits<double>::infinity()))
        return;
    Segment(source, destination, true, [&]<class C>(const Samples<C>& samples) {
        return Where(samples, [&](C v) { return v >= level; });
    });
}

// ---- Thresholds from the histogram of values ----------------------------------

// The distinct values of the selected samples, ascending, with their counts.
template <class C>
struct ValueCounts {
    std::vector<C> values;
    std::vector<long double> counts;
};

// Where the mask, repeated along its slots of size 1, is not 0; NaNs are
// never selected.
template <class C>
ValueCounts<C> CountValues(const Samples<C>& samples, const MaskRef& mask)
{
    std::vector<C> selected;
    selected.reserve(samples.values.size());
    if (!mask) {
        for (C v : samples.values)
            if (!std::isnan(v))
                selected.push_back(v);
    } else {
        const Samples<double> m = LoadSamples<double>(ImageRef(mask));
        CheckBroadcast(samples.size, m.size);
        Extent c{};
        for (c[4] = 0; c[4] < samples.size[4]; ++c[4])
            for (c[3] = 0; c[3] < samples.size[3]; ++c[3])
                for (c[2] = 0; c[2] < samples.size[2]; ++c[2])
                    for (c[1] = 0; c[1] < samples.size[1]; ++c[1])
                        for (c[0] = 0; c[0] < samples.size[0]; ++c[0]) {
                            Extent at;
                            for (int slot = 0; slot < maxViewAxes; ++slot)
                                at[slot] = m.size[slot] == 1 ? 0 : c[slot];
                            const C v = samples.values[static_cast<std::size_t>(samples.Index(c))];
                            if (m.values[static_cast<std::size_t>(m.Index(at))] != 0 && !std::isnan(v))
                                selected.push_back(v);
                        }
    }
    std::sort(selected.begin(), selected.end());
    ValueCounts<C> counts;
    for (std::size_t i = 0; i < selected.size();) {
        std::size_t j = i;
        while (j < selected.size() && selected[j] == selected[i])
            ++j;
        counts.values.push_back(selected[i]);
        counts.counts.push_back(static_cast<long double>(j - i));
        i = j;
    }
    return counts;
}

// Otsu: the split that maximises the variance between the two classes,
// w0 w1 (m0 - m1)^2; the first of equal maxima. The threshold is the
// greatest value of the lower class: with one value, that value.
template <class C>
long double OtsuLevel(const ValueCounts<C>& h)
{
    if (h.values.empty())
        return 0;
    long double total = 0, sum = 0;
    for (std::size_t i = 0; i < h.values.size(); ++i)
        total += h.counts[i], sum += h.counts[i] * h.values[i];
    long double n0 = 0, s0 = 0, best = -1;
    std::size_t split = 0;
    for (std::size_t i = 0; i + 1 < h.values.size(); ++i) {
        n0 += h.counts[i];
        s0 += h.counts[i] * h.values[i];
        const long double n1 = total - n0;
        const long double difference = s0 / n0 - (sum - s0) / n1;
        const long double between = n0 * n1 * difference * difference;
        if (between > best)
            best = between, split = i;
    }
    return h.values[split];
}

// Kapur's entropy threshold: the split that maximises the sum of the
// entropies of the two classes' distributions.
template <class C>
long double EntropyLevel(const ValueCounts<C>& h)
{
    if (h.values.empty())
        return 0;
    long double total = 0;
    for (long double count : h.counts)
        total += count;
    // Entropy of a class from its count N and sum of c log c: log N - S / N.
    long double n0 = 0, s0 = 0, sAll = 0;
    for (long double count : h.counts)
        sAll += count * std::log(count);
    long double best = -1;
    std::size_t split = 0;
    for (std::size_t i = 0; i + 1 < h.values.size(); ++i) {
        n0 += h.counts[i];
        s0 += h.counts[i] * std::log(h.counts[i]);
        const long double n1 = total - n0;
        const long double entropy = std::log(n0) - s0 / n0 + std::log(n1) - (sAll - s0) / n1;
        if (entropy > best)
            best = entropy, split = i;
    }
    return h.values[split];
}

// The counts of an image of 8- or 16-bit integers where the mask, if any,
// is set, from a table by value rather than by sorting; the same counts as
// CountValues.
bool CountValuesByTable(const ImageRef& source, const MaskRef& mask, ValueCounts<double>& h)
{
    std::vector<std::int64_t> table;
    const bool counted =
        mask ? Pointwise::CountValues(source, ImageRef(mask), table) : Pointwise::CountValues(source, table);
    if (!counted)
        return false;
    const bool isSigned = DataTypeOf(source) == System::ntInt8 || DataTypeOf(source) == System::ntInt16;
    const auto size = static_cast<std::int64_t>(table.size());
    // Ascending values: for a signed type the upper half of the table (the
    // negative values) comes first.
    const std::int64_t first = isSigned ? -size / 2 : 0;
    for (std::int64_t value = first; value < first + size; ++value) {
        const std::int64_t count = table[static_cast<std::size_t>(value & (size - 1))];
        if (count == 0)
            continue;
        h.values.push_back(static_cast<double>(value));
        h.counts.push_back(static_cast<long double>(count));
    }
    return true;
}

template <class Level>
void LevelThreshold(const ImageRef& source, const ImageRef& destination, const MaskRef& mask, double* found,
                    Level&& levelOf)
{
    ValueCounts<double> table;
    if (CountValuesByTable(source, mask, table)) {
        const long double level = levelOf(table);
        // The level is one of the (integer) values: above it means from the
        // next integer on.
        if (Pointwise::Threshold(source, destination, static_cast<double>(level) + 1.0,
                                 std::numeric_limits<double>::infinity())) {
            if (found)
                *found = static_cast<double>(level);
            return;
        }
    }
    Segment(source, destination, true, [&]<class C>(const Samples<C>& samples) {
        const long double level = levelOf(CountValues(samples, mask));
        if (found)
            *found = static_cast<double>(level);
        return Where(samples, [&](C v) { return v > level; });
    });
}

auto otsu = [](const auto& h) { return OtsuLevel(h); };
auto entropy = [](const auto& h) { return EntropyLevel(h); };

void Otsu0(ImageRef source, ImageRef destination, MaskRef mask)
{
    LevelThreshold(source, destination, mask, nullptr, otsu);
}

void Otsu1(ImageRef source, ImageRef destination, MaskRef mask, double& level)
{
    LevelThreshold(source, destination, mask, &level, otsu);
}

void Entropy0(ImageRef source, ImageRef destination, MaskRef mask)
{
    LevelThreshold(source, destination, mask, nullptr, entropy);
}

void Entropy1(ImageRef source, ImageRef destination, MaskRef mask, double& level)
{
    LevelThreshold(source, destination, mask, &level, entropy);
}

// ---- Hysteresis -------------------------------------------------------------------

// Seeds at or above `high`, grown through samples at or above `low` to
// their neighbours of the graph (breadth first).
void Hysteresis(const ImageRef& source, const ImageRef& destination, double low, double high,
                const Geometry::PredefinedNgbGraphEnum* graph)
{
    const std::vector<Extent> steps = NeighbourSteps(SpatialSlots(source), graph);
    Segment(source, destination, true, [&]<class C>(const Samples<C>& samples) {
        Samples<C> result(samples.size);
        std::deque<Extent> queue;
        auto visit = [&](const Extent& c) {
            const auto i = static_cast<std::size_t>(samples.Index(c));
            if (result.values[i] == 0 && samples.values[i] >= low) {
                result.values[i] = 1;
                queue.push_back(c);
            }
        };
        Extent c{};
        for (c[4] = 0; c[4] < samples.size[4]; ++c[4])
            for (c[3] = 0; c[3] < samples.size[3]; ++c[3])
                for (c[2] = 0; c[2] < samples.size[2]; ++c[2])
                    for (c[1] = 0; c[1] < samples.size[1]; ++c[1])
                        for (c[0] = 0; c[0] < samples.size[0]; ++c[0]) {
                            const auto i = static_cast<std::size_t>(samples.Index(c));
                            if (result.values[i] != 0 || !(samples.values[i] >= high))
                                continue;
                            result.values[i] = 1;
                            queue.push_back(c);
                            while (!queue.empty()) {
                                const Extent at = queue.front();
                                queue.pop_front();
                                for (const Extent& step : steps) {
                                    Extent next;
                                    bool inside = true;
                                    for (int slot = 0; slot < maxViewAxes; ++slot) {
                                        next[slot] = at[slot] + step[slot];
                                        inside = inside && next[slot] >= 0 && next[slot] < samples.size[slot];
                                    }
                                    if (inside)
                                        visit(next);
                                }
                            }
                        }
        return result;
    });
}

void Hysteresis0(ImageRef source, ImageRef destination, double low, double high)
{
    Hysteresis(source, destination, low, high, nullptr);
}

void Hysteresis1(ImageRef source, ImageRef destination, double low, double high,
                 Geometry::PredefinedNgbGraphEnum graph)
{
    Hysteresis(source, destination, low, high, &graph);
}

// ---- Labels from intervals ------------------------------------------------------

void MultiThreshold(ImageRef source, ImageRef destination, std::vector<IntervalRef> intervals)
{
    if (intervals.size() > 255)
        QUILON_RAISE(L"MultiThreshold takes at most 255 intervals, not %1%",
                     static_cast<std::int64_t>(intervals.size()));
    std::vector<std::pair<double, double>> bounds;
    for (const IntervalRef& interval : intervals)
        bounds.emplace_back(interval->Minimum(), interval->Maximum());
    Segment(source, destination, false, [&]<class C>(const Samples<C>& samples) {
        Samples<C> labels(samples.size);
        for (std::size_t i = 0; i < samples.values.size(); ++i) {
            const C v = samples.values[i];
            for (std::size_t k = 0; k < bounds.size(); ++k)
                if (bounds[k].first <= v && v <= bounds[k].second) {
                    labels.values[i] = static_cast<C>(k + 1);
                    break;
                }
        }
        return labels;
    });
}

void RegisterThresholds()
{
    const System::LIString name(L"Reference threshold");
    QS::Threshold.Overload<0>().Register(name, &Threshold0);
    QS::Threshold.Overload<1>().Register(name, &Threshold1);
    QS::OtsuThreshold.Overload<0>().Register(name, &Otsu0);
    QS::OtsuThreshold.Overload<1>().Register(name, &Otsu1);
    QS::EntropyThreshold.Overload<0>().Register(name, &Entropy0);
    QS::EntropyThreshold.Overload<1>().Register(name, &Entropy1);
    QS::HysteresisThreshold.Overload<0>().Register(name, &Hysteresis0);
    QS::HysteresisThreshold.Overload<1>().Register(name, &Hysteresis1);
    QS::MultiThreshold.Register(name, &MultiThreshold);
}

const System::Template::Initializer<::Library> thresholds(&RegisterThresholds, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Operators
