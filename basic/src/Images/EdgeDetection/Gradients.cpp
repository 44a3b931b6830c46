// The reference implementations of the gradient edge detectors: Sobel,
// Prewitt and Roberts, and the morphological gradient. Each band of the edge image is one correlation of
// the source with a small kernel, made here as a list of points, its
// absolute value times the call's scale stored in the band.
#include "Images/Filtering/Neighbourhood.h"

#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/EdgeDetection/Functions.h"
#include "Quilon_/PrivateLibrary.h"
#include "System/ProgressReport.h"

#include <algorithm>
#include <cmath>

namespace Quilon_::Basic::Images::Operators {

namespace {

namespace QE = Quilon_::Images::EdgeDetection::Functions;

// The kernel of the derivative along spatial slot `along`: the central
// difference [-1 0 1] / 2 along it, times `smooth` (three weights, offsets
// -1, 0, 1) along each other spatial slot.
std::vector<Point> DerivativePoints(const std::vector<int>& slots, int along, const double (&smooth)[3])
{
    std::vector<Point> points(1);
    for (int slot : slots) {
        std::vector<Point> grown;
        for (const Point& point : points)
            for (int o = -1; o <= 1; ++o) {
                const double w = slot == along ? 0.5 * o : smooth[o + 1];
                if (w == 0)
                    continue;
                Point next = point;
                next.offset[slot] = o;
                next.weight *= w;
                grown.push_back(next);
            }
        points.swap(grown);
    }
    return points;
}

// The Roberts pair of band `band`: +1 at a corner of the cell, -1 at the
// opposite one. Band 0 pairs the origin with the far corner, band k the
// corner one step along the (k-1)-th spatial slot with its opposite.
std::vector<Point> RobertsPoints(const std::vector<int>& slots, std::size_t band)
{
    Point near, far;
    near.weight = -1;
    for (std::size_t k = 0; k < slots.size(); ++k) {
        const bool flipped = band > 0 && k == band - 1;
        near.offset[slots[k]] = flipped ? 1 : 0;
        far.offset[slots[k]] = flipped ? 0 : 1;
    }
    return {far, near};
}

// Writes |correlation with kernelOf(band)| * scale into each band of the
// edge image, one band per spatial axis of the source.
template <class KernelOf>
void Edges(const ImageRef& source, const ImageRef& destination, double scale, KernelOf&& kernelOf)
{
    const std::vector<int> slots = SpatialSlots(source);
    const AnyView out = AnyViewOf(destination);
    if (out.bytes.size[slotB] != static_cast<std::int64_t>(slots.size()))
        QUILON_RAISE(L"An edge image of %1% bands expected, not %2%", static_cast<std::int64_t>(slots.size()),
                     out.bytes.size[slotB]);
    DispatchComputeType(DataTypeOf(source), [&](auto tag) {
        using C = typename decltype(tag)::type;
        if constexpr (isComplexSample<C>) {
            RaiseUnsupportedType(DataTypeOf(source), L"scalar type");
        } else {
            const Samples<C> samples = LoadSamples<C>(source);
            ProgressReport progress(static_cast<std::int64_t>(slots.size()));
            for (std::size_t band = 0; band < slots.size(); ++band) {
                Samples<C> result = Correlate(samples, kernelOf(slots, band), 1.0, BorderRule{});
                for (C& value : result.values)
                    value = std::abs(value) * static_cast<C>(scale);
                AnyView target = out;
                target.bytes = Band(out.bytes, static_cast<std::int64_t>(band));
                StoreSamples(result, target);
                progress.Step();
            }
        }
    });
}

void SobelEdges(ImageRef source, ImageRef destination, double scale)
{
    Edges(source, destination, scale, [](const std::vector<int>& slots, std::size_t band) {
        static const double smooth[3] = {0.25, 0.5, 0.25};
        return DerivativePoints(slots, slots[band], smooth);
    });
}

void PrewittEdges(ImageRef source, ImageRef destination, double scale)
{
    Edges(source, destination, scale, [](const std::vector<int>& slots, std::size_t band) {
        static const double smooth[3] = {1.0 / 3, 1.0 / 3, 1.0 / 3};
        return DerivativePoints(slots, slots[band], smooth);
    });
}

void RobertsEdges(ImageRef source, ImageRef destination, double scale)
{
    Edges(source, destination, scale, &RobertsPoints);
}

// The greatest less the least sample under the element (a dilation less
// an erosion), with the nearest sample taken outside the image.
void MorphoGradientOf(const ImageRef& source, const ImageRef& destination, const std::vector<Point>& points)
{
    DispatchComputeType(DataTypeOf(source), [&](auto tag) {
        using C = typename decltype(tag)::type;
        if constexpr (isComplexSample<C>) {
            RaiseUnsupportedType(DataTypeOf(source), L"scalar type");
        } else {
            const Samples<C> samples = LoadSamples<C>(source);
            const Samples<C> range = ForEachNeighbourhood(
                samples, points, BorderRule{}, [](const C* at, const std::vector<std::int64_t>& deltas) {
                    C low = at[deltas[0]], high = low;
                    for (std::int64_t delta : deltas) {
                        low = std::min(low, at[delta]);
                        high = std::max(high, at[delta]);
                    }
                    return high - low;
                });
            StoreSamples(range, AnyViewOf(destination));
        }
    });
}

void MorphoGradient0(ImageRef source, ImageRef destination,
                     System::Ref<Geometry::IStructuringElement> element)
{
    MorphoGradientOf(source, destination, ElementPoints(*element));
}

// A disk of the radius on a plane, a ball in a volume.
void MorphoGradient1(ImageRef source, ImageRef destination, double radius)
{
    const bool volume = SpatialSlots(source).size() > 2;
    System::Ref<Geometry::IStructuringElement> element =
        Geometry::StructuringElement::New(volume ? Geometry::pseBall : Geometry::pseDisk, radius);
    MorphoGradientOf(source, destination, ElementPoints(*element));
}

void RegisterGradients()
{
    const System::LIString name(L"Reference gradient");
    QE::SobelEdges.Register(name, &SobelEdges);
    QE::PrewittEdges.Register(name, &PrewittEdges);
    QE::RobertsEdges.Register(name, &RobertsEdges);
    QE::MorphoGradient.Overload<0>().Register(name, &MorphoGradient0);
    QE::MorphoGradient.Overload<1>().Register(name, &MorphoGradient1);
}

const System::Template::Initializer<::Library> gradients(&RegisterGradients, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Operators
