// The reference implementations of the filters: box and Gaussian means,
// convolution with any kernel, and the rank filters (median, rank value,
// mode). Each loads the source into a block of its compute type, filters
// there, and stores into the destination's type, so that a kernel exists
// once per compute type, not once per sample type.
#include "Images/Filtering/FastFilters.h"
#include "Images/Filtering/Neighbourhood.h"

#include "Quilon_/Geometry/Kernel.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Filtering/Functions.h"
#include "Quilon_/PrivateLibrary.h"
#include "System/ProgressReport.h"

#include <algorithm>
#include <cmath>

namespace Quilon_::Basic::Images::Operators {

namespace {

namespace QF = Quilon_::Images::Filtering::Functions;
using Quilon_::Images::Padding;
using KernelRef = System::Ref<Geometry::IKernel>;
using ElementRef = System::Ref<Geometry::IStructuringElement>;

// Loads the source in its compute type, runs `filter(samples)` and stores
// what it returns into the destination.
template <class Kernel>
void Run(const ImageRef& source, const ImageRef& destination, Kernel&& filter)
{
    DispatchComputeType(DataTypeOf(source), [&](auto tag) {
        using C = typename decltype(tag)::type;
        if constexpr (isComplexSample<C>) {
            RaiseUnsupportedType(DataTypeOf(source), L"scalar type");
        } else {
            Samples<C> samples = LoadSamples<C>(source);
            StoreSamples(filter(samples), AnyViewOf(destination));
        }
    });
}

// ---- Separable means --------------------------------------------------------

// The normalised Gaussian of `sigma` over offsets -radius..radius.
template <class C>
std::vector<C> GaussianWeights(double sigma, std::int64_t radius)
{
    std::vector<C> weights(static_cast<std::size_t>(2 * radius + 1));
    C sum = 0;
    for (std::int64_t k = -radius; k <= radius; ++k) {
        const C w = std::exp(-static_cast<C>(k * k) / static_cast<C>(2 * sigma * sigma));
        weights[static_cast<std::size_t>(k + radius)] = w;
        sum += w;
    }
    for (C& w : weights)
        w /= sum;
    return weights;
}

void CheckSigma(double sigma)
{
    if (!(sigma >= 0) || std::isinf(sigma))
        QUILON_RAISE(L"Invalid Gaussian sigma: %1%", sigma);
}

// Radius -1: derived from sigma, ceil(3 sigma).
std::int64_t RadiusOf(double sigma, std::int64_t radius)
{
    return radius >= 0 ? radius : static_cast<std::int64_t>(std::ceil(3 * sigma));
}

void GaussianOf(const ImageRef& source, const ImageRef& destination, const std::vector<double>& sigmas,
                std::int64_t radius, const BorderRule& border)
{
    const std::vector<int> slots = SpatialSlots(source);
    if (sigmas.size() != slots.size())
        QUILON_RAISE(L"Expected %1% Gaussian sigmas, one per spatial axis, not %2%",
                     static_cast<std::int64_t>(slots.size()), static_cast<std::int64_t>(sigmas.size()));
    for (double sigma : sigmas)
        CheckSigma(sigma);
    std::vector<std::vector<double>> weightsBySlot;
    for (double sigma : sigmas)
        weightsBySlot.push_back(sigma > 0 ? GaussianWeights<double>(sigma, RadiusOf(sigma, radius))
                                          : std::vector<double>{});
    if (SymmetricSeparableFast(source, destination, weightsBySlot, border))
        return;
    Run(source, destination, [&]<class C>(Samples<C>& samples) -> Samples<C>& {
        ProgressReport progress(static_cast<std::int64_t>(slots.size()));
        for (std::size_t k = 0; k < slots.size(); ++k) {
            const double sigma = sigmas[k];
            if (sigma > 0) {
                const std::int64_t r = RadiusOf(sigma, radius);
                CorrelateSlot(samples, slots[k], GaussianWeights<C>(sigma, r), r, border);
            }
            progress.Step();
        }
        return samples;
    });
}

void Gaussian0(ImageRef source, ImageRef destination, double sigma)
{
    GaussianOf(source, destination, std::vector<double>(SpatialSlots(source).size(), sigma), -1,
               BorderRule{});
}

void Gaussian1(ImageRef source, ImageRef destination, const std::vector<double>& sigmas)
{
    GaussianOf(source, destination, sigmas, -1, BorderRule{});
}

void Gaussian2(ImageRef source, ImageRef destination, double sigma, std::int64_t side)
{
    if (side < 1 || side % 2 == 0)
        QUILON_RAISE(L"Invalid Gaussian kernel size: %1%", side);
    GaussianOf(source, destination, std::vector<double>(SpatialSlots(source).size(), sigma), side / 2,
               BorderRule{});
}

void Gaussian3(ImageRef source, ImageRef destination, double sigma, const Padding& padding)
{
    GaussianOf(source, destination, std::vector<double>(SpatialSlots(source).size(), sigma), -1,
               BorderOf(&padding));
}

// The mean of the window, axis by axis.
template <class C>
void BoxMean(Samples<C>& samples, const std::vector<int>& slots, std::int64_t side)
{
    if (side < 1)
        QUILON_RAISE(L"Invalid window size: %1%", side);
    const std::vector<C> weights(static_cast<std::size_t>(side), C(1) / static_cast<C>(side));
    for (int slot : slots)
        CorrelateSlot(samples, slot, weights, (side - 1) / 2, BorderRule{});
}

void Box(ImageRef source, ImageRef destination, std::int64_t side)
{
    const std::vector<int> slots = SpatialSlots(source);
    if (BoxFast(source, destination, side, BorderRule{}))
        return;
    if (side >= 1 && side % 2 == 1 &&
        SymmetricSeparableFast(
            source, destination,
            std::vector<std::vector<double>>(
                slots.size(), std::vector<double>(static_cast<std::size_t>(side), 1.0 / double(side))),
            BorderRule{}))
        return;
    Run(source, destination, [&]<class C>(Samples<C>& samples) -> Samples<C>& {
        BoxMean(samples, slots, side);
        return samples;
    });
}

// ---- Kernels ----------------------------------------------------------------

// The points of a kernel, its offsets placed on the slots of its axes.
std::vector<Point> PointsOf(Geometry::IKernel& kernel)
{
    System::Ref<Geometry::IBox> bounds = kernel.Bounds();
    System::Ref<Geometry::ICoordinates> lower = bounds->Lower();
    System::Ref<Geometry::ICoordinates> upper = bounds->Upper();
    const unsigned axes = static_cast<unsigned char>(kernel.Axes());
    std::vector<int> slots;
    std::vector<std::int64_t> first, extent;
    for (int slot = 0; slot < maxViewAxes; ++slot) {
        if (!(axes & (1u << slot)))
            continue;
        const auto axis = static_cast<Geometry::AxisEnum>(1u << slot);
        slots.push_back(slot);
        first.push_back(lower->Value(axis));
        extent.push_back(std::max<std::int64_t>(upper->Value(axis) - lower->Value(axis), 0));
    }
    const std::vector<double> weights = kernel.Weights();
    std::vector<Point> points;
    points.reserve(weights.size());
    for (std::size_t i = 0; i < weights.size(); ++i) {
        Point point;
        point.weight = weights[i];
        std::int64_t rest = static_cast<std::int64_t>(i);
        for (std::size_t k = 0; k < slots.size(); ++k) {
            point.offset[slots[k]] = first[k] + (extent[k] ? rest % extent[k] : 0);
            rest = extent[k] ? rest / extent[k] : rest;
        }
        if (point.weight != 0)
            points.push_back(point);
    }
    return points;
}

template <class C>
Samples<C> ConvolveSamples(const Samples<C>& samples, Geometry::IKernel& kernel, const BorderRule& border)
{
    return Correlate(samples, PointsOf(kernel), kernel.Divisor(), border);
}

void ConvolveWith(const ImageRef& source, const ImageRef& destination, const KernelRef& kernel,
                  const BorderRule& border)
{
    // Factor by factor is the same as the whole kernel, except with a
    // non-zero constant outside: the first factor's response to the
    // constant need not be that constant.
    std::vector<KernelRef> factors;
    if (System::Pointer<Geometry::ISeparable, 0> separable(kernel);
        separable && (border.type != Quilon_::Images::ptConstant || border.value == 0))
        factors = separable->Factors();
    else
        factors.push_back(kernel);
    Run(source, destination, [&]<class C>(Samples<C>& samples) {
        Samples<C> result = std::move(samples);
        for (const KernelRef& factor : factors)
            result = ConvolveSamples(result, *factor, border);
        return result;
    });
}

void Convolve0(ImageRef source, ImageRef destination, KernelRef kernel)
{
    ConvolveWith(source, destination, kernel, BorderRule{});
}

void Convolve1(ImageRef source, ImageRef destination, KernelRef kernel, const Padding& padding)
{
    ConvolveWith(source, destination, kernel, BorderOf(&padding));
}

// LowStop: the sample less the mean around it.
template <class C>
Samples<C> Difference(const Samples<C>& samples, const Samples<C>& mean)
{
    Samples<C> result(samples.size);
    for (std::size_t i = 0; i < result.values.size(); ++i)
        result.values[i] = samples.values[i] - mean.values[i];
    return result;
}

void LowStop0(ImageRef source, ImageRef destination, std::int64_t side)
{
    const std::vector<int> slots = SpatialSlots(source);
    Run(source, destination, [&]<class C>(Samples<C>& samples) {
        Samples<C> mean = samples;
        BoxMean(mean, slots, side);
        return Difference(samples, mean);
    });
}

void LowStop1(ImageRef source, ImageRef destination, KernelRef kernel)
{
    Run(source, destination, [&]<class C>(Samples<C>& samples) {
        return Difference(samples, ConvolveSamples(samples, *kernel, BorderRule{}));
    });
}

// ---- Rank filters -------------------------------------------------------------

// An order in which NaNs come last, all equivalent: plain < is no strict
// weak order once a NaN is among the values, and the sorting algorithms
// may then read past the window.
template <class C>
bool NaNLast(C a, C b) noexcept
{
    return a < b || (!std::isnan(a) && std::isnan(b));
}

// The sample of rank `rank` (0 the least, 1 the greatest) among the
// window's: index round(rank (n - 1)), the lower middle for a median.
void RankOf(const ImageRef& source, const ImageRef& destination, const std::vector<Point>& points,
            double rank, const BorderRule& border)
{
    if (!(rank >= 0 && rank <= 1))
        QUILON_RAISE(L"Invalid rank: %1%", rank);
    const auto index =
        static_cast<std::size_t>(std::floor(rank * static_cast<double>(points.size() - 1) + 0.5));
    Run(source, destination, [&]<class C>(Samples<C>& samples) {
        std::vector<C> window(points.size());
        const auto less = NaNLast<C>;
        return ForEachNeighbourhood(
            samples, points, border, [&](const C* at, const std::vector<std::int64_t>& deltas) {
                for (std::size_t k = 0; k < deltas.size(); ++k)
                    window[k] = at[deltas[k]];
                std::nth_element(window.begin(), window.begin() + index, window.end(), less);
                return window[index];
            });
    });
}

// The lower middle: index (n - 1) / 2, a sample's value also for even n.
double MedianRank(std::size_t count)
{
    return count > 1 ? static_cast<double>((count - 1) / 2) / static_cast<double>(count - 1) : 0.0;
}

void MedianOf(const ImageRef& source, const ImageRef& destination, const std::vector<Point>& points,
              const BorderRule& border)
{
    if (!MedianFast(source, destination, points, border))
        RankOf(source, destination, points, MedianRank(points.size()), border);
}

void Median0(ImageRef source, ImageRef destination, std::int64_t side)
{
    MedianOf(source, destination, WindowPoints(SpatialSlots(source), side), BorderRule{});
}

void Median1(ImageRef source, ImageRef destination, ElementRef element)
{
    MedianOf(source, destination, ElementPoints(*element), BorderRule{});
}

void Median2(ImageRef source, ImageRef destination, ElementRef element, const Padding& padding)
{
    MedianOf(source, destination, ElementPoints(*element), BorderOf(&padding));
}

void RankValue0(ImageRef source, ImageRef destination, std::int64_t side, double rank)
{
    RankOf(source, destination, WindowPoints(SpatialSlots(source), side), rank, BorderRule{});
}

void RankValue1(ImageRef source, ImageRef destination, ElementRef element, double rank)
{
    RankOf(source, destination, ElementPoints(*element), rank, BorderRule{});
}

// The most frequent value of the window; among equally frequent ones the
// least, so that the result does not depend on the order of the points.
void ModeOf(const ImageRef& source, const ImageRef& destination, const std::vector<Point>& points)
{
    Run(source, destination, [&]<class C>(Samples<C>& samples) {
        std::vector<C> window(points.size());
        const auto less = NaNLast<C>;
        return ForEachNeighbourhood(samples, points, BorderRule{},
                                    [&](const C* at, const std::vector<std::int64_t>& deltas) {
                                        for (std::size_t k = 0; k < deltas.size(); ++k)
                                            window[k] = at[deltas[k]];
                                        std::sort(window.begin(), window.end(), less);
                                        C best = window[0];
                                        std::size_t bestCount = 0;
                                        for (std::size_t i = 0; i < window.size();) {
                                            std::size_t j = i;
                                            while (j < window.size() && window[j] == window[i])
                                                ++j;
                                            if (j - i > bestCount)
                                                best = window[i], bestCount = j - i;
                                            i = std::max(j, i + 1);
                                        }
                                        return best;
                                    });
    });
}

void Mode0(ImageRef source, ImageRef destination, std::int64_t side)
{
    ModeOf(source, destination, WindowPoints(SpatialSlots(source), side));
}

void Mode1(ImageRef source, ImageRef destination, ElementRef element)
{
    ModeOf(source, destination, ElementPoints(*element));
}

void RegisterFilters()
{
    const System::LIString name(L"Reference filter");
    QF::Box.Register(name, &Box);
    QF::Convolve.Overload<0>().Register(name, &Convolve0);
    QF::Convolve.Overload<1>().Register(name, &Convolve1);
    QF::Gaussian.Overload<0>().Register(name, &Gaussian0);
    QF::Gaussian.Overload<1>().Register(name, &Gaussian1);
    QF::Gaussian.Overload<2>().Register(name, &Gaussian2);
    QF::Gaussian.Overload<3>().Register(name, &Gaussian3);
    QF::LowStop.Overload<0>().Register(name, &LowStop0);
    QF::LowStop.Overload<1>().Register(name, &LowStop1);
    QF::Median.Overload<0>().Register(name, &Median0);
    QF::Median.Overload<1>().Register(name, &Median1);
    QF::Median.Overload<2>().Register(name, &Median2);
    QF::Mode.Overload<0>().Register(name, &Mode0);
    QF::Mode.Overload<1>().Register(name, &Mode1);
    QF::RankValue.Overload<0>().Register(name, &RankValue0);
    QF::RankValue.Overload<1>().Register(name, &RankValue1);
}

const System::Template::Initializer<::Library> filters(&RegisterFilters, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Operators
