#include "Images/Operators/Pointwise.h"

#include "System/Threading/Parallel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <initializer_list>
#include <mutex>
#include <optional>

namespace Quilon_::Basic::Images::Operators::Pointwise {

namespace {

// Runs are cut into blocks of this many samples for banding: small enough to
// share any image out evenly, large enough that a block costs no overhead.
constexpr std::int64_t pointwiseBlock = 4096;

// Results of this many bytes or more are written past the caches: they
// would only push the inputs out of them.
constexpr std::int64_t pointwiseStreamedBytes = std::int64_t(8) << 20;

// Whether the results of `count` samples of `bytes` each are written past
// the caches: large ones, whose inputs then share the result's alignment
// (aligning the streamed stores would otherwise split every load of an
// input across two cache lines).
bool Streamed(std::int64_t count, std::int64_t bytes, const void* out,
              std::initializer_list<const void*> inputs)
{
    if (count * bytes < pointwiseStreamedBytes)
        return false;
    constexpr std::uintptr_t line = 64;
    for (const void* in : inputs)
        if ((reinterpret_cast<std::uintptr_t>(in) - reinterpret_cast<std::uintptr_t>(out)) % line != 0)
            return false;
    return true;
}

bool SameExtent(const AnyView& a, const AnyView& b)
{
    return a.bytes.size == b.bytes.size;
}

// Calls body(first, last) over [0, count) samples, in bands on the pool when
// the run is large. Given the output and its sample size, the blocks after
// the first begin on a cache line of the output, so that only the first
// block has results to store one by one before its vectors.
template <class Body>
void ForEachBlock(std::int64_t count, Body&& body, const void* out = nullptr, std::int64_t bytes = 1)
{
    constexpr std::int64_t line = 64;
    const auto address = static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(out) % line);
    const std::int64_t head = address % bytes == 0 ? (line - address) % line / bytes : 0;
    const std::int64_t blocks = count <= head ? 1 : (count - head + pointwiseBlock - 1) / pointwiseBlock;
    const auto edge = [&](std::int64_t block) {
        return block == 0 ? 0 : std::min(count, head + block * pointwiseBlock);
    };
    Basic::Threading::ParallelBands(blocks, pointwiseBlock, [&](std::int64_t first, std::int64_t last) {
        body(edge(first), edge(last));
    });
}

// The samples t of type T with lower <= t <= upper, compared exactly (as
// the plain path does, in a compute type that holds every sample), are
// those with lo <= t <= hi; false when there are none.
template <class T>
bool SelectedSampleRange(double lower, double upper, T& lo, T& hi)
{
    if (std::isnan(lower) || std::isnan(upper))
        return false;
    if constexpr (std::is_integral_v<T>) {
        using L = std::numeric_limits<T>;
        // The first double above the largest T: the largest T itself may
        // not be a double.
        constexpr double beyond = 2.0 * (static_cast<double>(L::max() / 2) + 1.0);
        const double first = std::ceil(lower), last = std::floor(upper);
        if (first > last || first >= beyond || last < double(L::lowest()))
            return false;
        lo = first <= double(L::lowest()) ? L::lowest() : static_cast<T>(first);
        hi = last >= beyond ? L::max() : static_cast<T>(last);
    } else if constexpr (std::is_same_v<T, float>) {
        // The nearest floats inside the bounds; beyond float's range a bound
        // becomes an infinity, which compares as the double bound does.
        lo = static_cast<float>(lower);
        if (double(lo) < lower)
            lo = std::nextafter(lo, std::numeric_limits<float>::infinity());
        hi = static_cast<float>(upper);
        if (double(hi) > upper)
            hi = std::nextafter(hi, -std::numeric_limits<float>::infinity());
        if (!(lo <= hi))
            return false;
    } else {
        lo = static_cast<T>(lower);
        hi = static_cast<T>(upper);
        if (!(lo <= hi))
            return false;
    }
    return true;
}

} // namespace

bool Threshold(const ImageRef& source, const ImageRef& destination, double lower, double upper)
{
    const System::NumericTypeEnum type = DataTypeOf(source);
    const std::optional<SampleKind> kind = SampleKindOf(type);
    if (DataTypeOf(destination) != System::ntUInt8 || !kind)
        return false;
    const AnyView in = AnyViewOf(source);
    const AnyView out = AnyViewOf(destination);
    const std::int64_t count = DenseRun(in.bytes, SampleKindBytes(*kind));
    if (count < 0 || !SameExtent(in, out) || DenseRun(out.bytes) != count)
        return false;
    auto* const result = reinterpret_cast<std::uint8_t*>(out.bytes.data);
    const std::uint8_t set = SetSample<std::uint8_t>();
    DispatchSampleKind(*kind, [&](auto tag) {
        using T = typename decltype(tag)::type;
        const T* const samples = reinterpret_cast<const T*>(in.bytes.data);
        T lo{}, hi{};
        const bool any = SelectedSampleRange(lower, upper, lo, hi);
        const bool streamed = Streamed(count, 1, result, {samples});
        ForEachBlock(
            count,
            [&](std::int64_t first, std::int64_t last) {
                if (any)
                    ThresholdSamples(*kind, samples + first, result + first, last - first, &lo, &hi, set,
                                     streamed);
                else
                    std::memset(result + first, 0, static_cast<std::size_t>(last - first));
            },
            result);
    });
    return true;
}

bool Sum(const ImageRef& a, const ImageRef& b, const ImageRef& output, bool subtract)
{
    const System::NumericTypeEnum type = DataTypeOf(output);
    const std::optional<SampleKind> kind = SampleKindOf(type);
    if (DataTypeOf(a) != type || DataTypeOf(b) != type || !kind)
        return false;
    const AnyView x = AnyViewOf(a), y = AnyViewOf(b), z = AnyViewOf(output);
    const std::int64_t bytes = SampleKindBytes(*kind);
    const std::int64_t count = DenseRun(z.bytes, bytes);
    if (count < 0 || !SameExtent(x, z) || !SameExtent(y, z) || DenseRun(x.bytes, bytes) != count ||
        DenseRun(y.bytes, bytes) != count)
        return false;
    const bool streamed = Streamed(count, bytes, z.bytes.data, {x.bytes.data, y.bytes.data});
    ForEachBlock(
        count,
        [&](std::int64_t first, std::int64_t last) {
            const std::int64_t offset = first * bytes;
            SumSamples(*kind, subtract, x.bytes.data + offset, y.bytes.data + offset, z.bytes.data + offset,
                       last - first, streamed);
        },
        z.bytes.data, bytes);
    return true;
}

namespace {

// Counts of 8-bit values in two tables taken in turn, so that a run of
// equal samples (a flat background) does not wait on one counter; merged at
// the end. Two tables measured faster than four or eight on random and on
// flat images alike: they stay in the first-level cache with the samples.
void CountBytes(const std::uint8_t* samples, std::int64_t count, std::int64_t* counts)
{
    std::array<std::array<std::uint32_t, 256>, 2> tables{};
    // Blocks small enough that no 32-bit counter overflows.
    constexpr std::int64_t chunk = std::int64_t(1) << 30;
    for (std::int64_t start = 0; start < count; start += chunk) {
        const std::int64_t end = std::min(count, start + chunk);
        std::int64_t i = start;
        for (; i + 8 <= end; i += 8) {
            ++tables[0][samples[i]];
            ++tables[1][samples[i + 1]];
            ++tables[0][samples[i + 2]];
            ++tables[1][samples[i + 3]];
            ++tables[0][samples[i + 4]];
            ++tables[1][samples[i + 5]];
            ++tables[0][samples[i + 6]];
            ++tables[1][samples[i + 7]];
        }
        for (; i < end; ++i)
            ++tables[0][samples[i]];
        for (int value = 0; value < 256; ++value) {
            counts[value] += std::int64_t(tables[0][value]) + tables[1][value];
            tables[0][value] = tables[1][value] = 0;
        }
    }
}

void CountWords(const std::uint16_t* samples, std::int64_t count, std::int64_t* counts)
{
    for (std::int64_t i = 0; i < count; ++i)
        ++counts[samples[i]];
}

// As CountBytes, over the samples whose `selected` is 1 (the others have 0):
// added rather than tested, so that a mask of random shape costs no
// mispredicted branch.
void CountSelectedBytes(const std::uint8_t* samples, const std::uint8_t* selected, std::int64_t count,
                        std::int64_t* counts)
{
    std::array<std::array<std::uint32_t, 256>, 2> tables{};
    std::int64_t i = 0;
    for (; i + 2 <= count; i += 2) {
        tables[0][samples[i]] += selected[i];
        tables[1][samples[i + 1]] += selected[i + 1];
    }
    for (; i < count; ++i)
        tables[0][samples[i]] += selected[i];
    for (int value = 0; value < 256; ++value)
        counts[value] += std::int64_t(tables[0][value]) + tables[1][value];
}

void CountSelectedWords(const std::uint16_t* samples, const std::uint8_t* selected, std::int64_t count,
                        std::int64_t* counts)
{
    for (std::int64_t i = 0; i < count; ++i)
        counts[samples[i]] += selected[i];
}

// The kind a mask is read as, for "not 0" only: its 1-, 2- and 4-bit types
// read as the bytes they are stored in.
std::optional<SampleKind> MaskKindOf(System::NumericTypeEnum type)
{
    if (type == System::ntUInt1 || type == System::ntUInt2 || type == System::ntUInt4)
        return SampleKind::u8;
    return SampleKindOf(type);
}

// The table of an image's 8- or 16-bit samples: 256 or 65536 entries, or
// 0 for other types.
std::size_t ValueTableSize(System::NumericTypeEnum type)
{
    switch (type) {
    case System::ntUInt8:
    case System::ntInt8:
        return 256;
    case System::ntUInt16:
    case System::ntInt16:
        return 65536;
    default:
        return 0;
    }
}

// Calls count(first, last, part) over the blocks of [0, count), each band
// with its own table `part` of `values` entries, added into `counts`.
template <class CountBlock>
void CountInBands(std::int64_t count, std::size_t values, std::vector<std::int64_t>& counts,
                  CountBlock&& countBlock)
{
    counts.assign(values, 0);
    std::mutex merging;
    ForEachBlock(count, [&](std::int64_t first, std::int64_t last) {
        std::vector<std::int64_t> part(values, 0);
        countBlock(first, last, part.data());
        std::lock_guard lock(merging);
        for (std::size_t value = 0; value < values; ++value)
            counts[value] += part[value];
    });
}

} // namespace

bool CountValues(const ImageRef& image, std::vector<std::int64_t>& counts)
{
    const std::size_t values = ValueTableSize(DataTypeOf(image));
    const std::int64_t size = values == 256 ? 1 : 2;
    const AnyView view = AnyViewOf(image);
    const std::int64_t count = values == 0 ? -1 : DenseRun(view.bytes, size);
    if (count < 0)
        return false;
    const char* const data = view.bytes.data;
    CountInBands(count, values, counts, [&](std::int64_t first, std::int64_t last, std::int64_t* part) {
        if (size == 1)
            CountBytes(reinterpret_cast<const std::uint8_t*>(data) + first, last - first, part);
        else
            CountWords(reinterpret_cast<const std::uint16_t*>(data) + first, last - first, part);
    });
    return true;
}

bool CountValues(const ImageRef& image, const ImageRef& mask, std::vector<std::int64_t>& counts)
{
    const std::size_t values = ValueTableSize(DataTypeOf(image));
    const std::optional<SampleKind> maskKind = MaskKindOf(DataTypeOf(mask));
    if (values == 0 || !maskKind)
        return false;
    const std::int64_t size = values == 256 ? 1 : 2, maskSize = SampleKindBytes(*maskKind);
    const AnyView view = AnyViewOf(image), maskView = AnyViewOf(mask);
    const std::int64_t count = DenseRun(view.bytes, size);
    if (count < 0 || !SameExtent(view, maskView) || DenseRun(maskView.bytes, maskSize) != count)
        return false;
    CountInBands(count, values, counts, [&](std::int64_t first, std::int64_t last, std::int64_t* part) {
        std::array<std::uint8_t, pointwiseBlock> selected;
        for (std::int64_t start = first; start < last; start += pointwiseBlock) {
            const std::int64_t n = std::min(last - start, pointwiseBlock);
            MarkNonZero(*maskKind, maskView.bytes.data + start * maskSize, selected.data(), n);
            if (size == 1)
                CountSelectedBytes(reinterpret_cast<const std::uint8_t*>(view.bytes.data) + start,
                                   selected.data(), n, part);
            else
                CountSelectedWords(reinterpret_cast<const std::uint16_t*>(view.bytes.data) + start,
                                   selected.data(), n, part);
        }
    });
    return true;
}

namespace {

// The extremes of samples [first, last) whose `selected` byte (indexed
// from `first`; null: all) is 1, NaN passed over; false when none is left.
// As std::min and std::max: a later equal value does not replace an
// earlier one. Branch-free, so a mask of random shape costs no misprediction.
template <class T>
bool ExtremesOfBlock(const T* samples, const std::uint8_t* selected, std::int64_t count, T& low, T& high)
{
    using L = std::numeric_limits<T>;
    T lo = L::has_infinity ? L::infinity() : L::max();
    T hi = L::has_infinity ? -L::infinity() : L::lowest();
    bool any = false;
    for (std::int64_t i = 0; i < count; ++i) {
        const T v = samples[i];
        const bool take = (!selected || selected[i] != 0) && v == v;
        any = any || take;
        lo = take && v < lo ? v : lo;
        hi = take && hi < v ? v : hi;
    }
    low = lo;
    high = hi;
    return any;
}

// Extremes of a dense image, over the samples where a dense mask of the
// same extent (with its kind) is not 0, or over all without one.
bool ExtremesOf(const ImageRef& image, const ImageRef* mask, double& low, double& high)
{
    const std::optional<SampleKind> kind = SampleKindOf(DataTypeOf(image));
    const std::optional<SampleKind> maskKind =
        mask ? MaskKindOf(DataTypeOf(*mask)) : std::optional<SampleKind>(SampleKind::u8);
    if (!kind || !maskKind)
        return false;
    const AnyView view = AnyViewOf(image);
    const std::int64_t count = DenseRun(view.bytes, SampleKindBytes(*kind));
    if (count < 0)
        return false;
    const std::int64_t maskBytes = SampleKindBytes(*maskKind);
    const AnyView maskView = mask ? AnyViewOf(*mask) : view;
    if (mask && (!SameExtent(view, maskView) || DenseRun(maskView.bytes, maskBytes) != count))
        return false;
    // Each band's extremes, folded in the order of the bands, so that of
    // equal extremes (0 and -0) the first in memory wins, as in one walk.
    struct BandExtremes {
        std::int64_t first;
        double low, high;
    };
    std::vector<BandExtremes> bands;
    std::mutex merging;
    DispatchSampleKind(*kind, [&](auto tag) {
        using T = typename decltype(tag)::type;
        const T* const samples = reinterpret_cast<const T*>(view.bytes.data);
        ForEachBlock(count, [&](std::int64_t first, std::int64_t last) {
            T lo{}, hi{}, blockLow{}, blockHigh{};
            bool any = false;
            std::array<std::uint8_t, pointwiseBlock> selected;
            for (std::int64_t start = first; start < last; start += pointwiseBlock) {
                const std::int64_t n = std::min(last - start, pointwiseBlock);
                if (mask)
                    MarkNonZero(*maskKind, maskView.bytes.data + start * maskBytes, selected.data(), n);
                if (!ExtremesOfBlock(samples + start, mask ? selected.data() : nullptr, n, blockLow,
                                     blockHigh))
                    continue;
                lo = !any || blockLow < lo ? blockLow : lo;
                hi = !any || hi < blockHigh ? blockHigh : hi;
                any = true;
            }
            if (!any)
                return;
            std::lock_guard lock(merging);
            bands.push_back({first, static_cast<double>(lo), static_cast<double>(hi)});
        });
    });
    std::sort(bands.begin(), bands.end(),
              [](const BandExtremes& a, const BandExtremes& b) { return a.first < b.first; });
    double least = std::numeric_limits<double>::infinity(), greatest = -least;
    for (const BandExtremes& band : bands) {
        least = std::min(least, band.low);
        greatest = std::max(greatest, band.high);
    }
    if (least > greatest)
        least = greatest = 0;
    low = least;
    high = greatest;
    return true;
}

} // namespace

bool Extremes(const ImageRef& image, double& low, double& high)
{
    return ExtremesOf(image, nullptr, low, high);
}

bool Extremes(const ImageRef& image, const ImageRef& mask, double& low, double& high)
{
    return ExtremesOf(image, &mask, low, high);
}

} // namespace Quilon_::Basic::Images::Operators::Pointwise
