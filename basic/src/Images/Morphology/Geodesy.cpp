// Geodesic operators of the reference library: reconstruction, hole
// filling, border kill, geodesic dilation and distance, per volume of the
// image, all by the reconstruction kernel or a breadth-first walk.
#include "Images/Morphology/MorphologySupport.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Geometry/StructuringElement.h"
#include "Quilon_/Images/Morphology/Geodesy/Functions.h"
#include "Quilon_/PrivateLibrary.h"
#include "Quilon_/System/Raise.h"

#include <optional>

namespace Quilon_::Basic::Images::Morphology {

namespace {

namespace Catalogue = ::Quilon_::Images::Morphology;
using ElementRef = System::Ref<Geometry::IStructuringElement>;
using GraphRef = System::Ref<Geometry::INgbGraph>;
using OptionalShifts = std::optional<std::vector<Shift>>;

// The given graph's neighbours, or the default of the grid: objects
// connected by the most neighbours, background by the fewest.
std::vector<Shift> NeighboursOr(const OptionalShifts& given, const Grid& grid, bool background)
{
    return given ? *given : DefaultNeighbours(grid, background);
}

OptionalShifts ShiftsOfGraph(const GraphRef& graph)
{
    return ShiftsOf(*graph, false);
}

// Calls `kernel(grid, a, b)` for each volume with the samples of `first`
// and `second`, both as the type of `first`, then writes `a` into `out`.
template <class Kernel>
void ForEachVolumePair(const ImageRef& first, const ImageRef& second, const ImageRef& out, Kernel&& kernel)
{
    const VolumeLayout layout = LayoutOf(first);
    CheckSameLayout(layout, LayoutOf(second));
    CheckSameLayout(layout, LayoutOf(out));
    DispatchRealType(first->Format()->DataType(), [&](auto tag) {
        using T = typename decltype(tag)::type;
        std::vector<T> a(static_cast<std::size_t>(layout.grid.Count())), b(a.size());
        for (std::int64_t v = 0; v < layout.volumeCount; ++v) {
            ReadVolume(first, v, a.data());
            ReadVolume(second, v, b.data());
            kernel(layout.grid, a.data(), b.data());
            WriteVolume(out, v, a.data());
        }
    });
}

// The border of `image` over its extreme value inside (the largest with
// `Dual`, for filling; the smallest otherwise), as a marker.
template <bool Dual, class T>
void BorderMarker(const Grid& grid, const T* image, T* marker)
{
    const auto [low, high] = std::minmax_element(image, image + grid.Count());
    const T inside = Dual ? *high : *low;
    for (std::int64_t z = 0, p = 0; z < grid.nz; ++z)
        for (std::int64_t y = 0; y < grid.ny; ++y)
            for (std::int64_t x = 0; x < grid.nx; ++x, ++p)
                marker[p] = grid.OnBorder(x, y, z) ? image[p] : inside;
}

// Fills `target` with the holes of `source` filled.
template <class T>
void FillHoles(const Grid& grid, const T* source, T* target, std::span<const Shift> shifts)
{
    BorderMarker<true>(grid, source, target);
    Reconstruct<true>(grid, target, source, shifts);
}

// Fills `target` with `source` less its reconstruction from the border,
// saturated for signed types.
template <class T>
void KillBorder(const Grid& grid, const T* source, T* target, std::span<const Shift> shifts)
{
    BorderMarker<false>(grid, source, target);
    Reconstruct<false>(grid, target, source, shifts);
    for (std::int64_t p = 0; p < grid.Count(); ++p)
        target[p] = SaturatedDifference(source[p], target[p]);
}

void ReconstructWith(const ImageRef& marker, const ImageRef& mask, const ImageRef& out,
                     const OptionalShifts& graph)
{
    ForEachVolumePair(marker, mask, out, [&](const Grid& grid, auto* a, auto* b) {
        Reconstruct<false>(grid, a, b, NeighboursOr(graph, grid, false));
    });
}
void ReconstructByDefault(ImageRef marker, ImageRef mask, ImageRef out)
{
    ReconstructWith(marker, mask, out, std::nullopt);
}
void ReconstructByGraph(ImageRef marker, ImageRef mask, ImageRef out, GraphRef graph)
{
    ReconstructWith(marker, mask, out, ShiftsOfGraph(graph));
}

void HoleFillWith(const ImageRef& in, const ImageRef& out, const OptionalShifts& graph)
{
    ForEachVolume(in, out, [&](const Grid& grid, auto* source, auto* target) {
        FillHoles(grid, source, target, NeighboursOr(graph, grid, true));
    });
}
void HoleFillByDefault(ImageRef in, ImageRef out)
{
    HoleFillWith(in, out, std::nullopt);
}
void HoleFillByGraph(ImageRef in, ImageRef out, GraphRef graph)
{
    HoleFillWith(in, out, ShiftsOfGraph(graph));
}

void BorderKillWith(const ImageRef& in, const ImageRef& out, const OptionalShifts& graph)
{
    ForEachVolume(in, out, [&](const Grid& grid, auto* source, auto* target) {
        KillBorder(grid, source, target, NeighboursOr(graph, grid, false));
    });
}
void BorderKillByDefault(ImageRef in, ImageRef out)
{
    BorderKillWith(in, out, std::nullopt);
}
void BorderKillByGraph(ImageRef in, ImageRef out, GraphRef graph)
{
    BorderKillWith(in, out, ShiftsOfGraph(graph));
}

void BorderKillAndHoleFillWith(const ImageRef& in, const ImageRef& out, const OptionalShifts& graph)
{
    ForEachVolume(in, out, [&](const Grid& grid, auto* source, auto* target) {
        KillBorder(grid, source, target, NeighboursOr(graph, grid, false));
        std::copy(target, target + grid.Count(), source);
        FillHoles(grid, source, target, NeighboursOr(graph, grid, true));
    });
}
void BorderKillAndHoleFillByDefault(ImageRef in, ImageRef out)
{
    BorderKillAndHoleFillWith(in, out, std::nullopt);
}
void BorderKillAndHoleFillByGraph(ImageRef in, ImageRef out, GraphRef graph)
{
    BorderKillAndHoleFillWith(in, out, ShiftsOfGraph(graph));
}

// `iterations` times: the marker dilated by `shifts`, then clipped to the
// mask; the marker is clipped once first, so 0 iterations clip it.
void GeodesicDilate(const ImageRef& marker, const ImageRef& mask, const ImageRef& out,
                    const std::vector<Shift>& shifts, std::int64_t iterations)
{
    if (iterations < 0)
        QUILON_RAISE(L"The number of iterations must not be negative: %1%", iterations);
    ForEachVolumePair(marker, mask, out, [&](const Grid& grid, auto* a, auto* b) {
        using T = std::remove_pointer_t<decltype(a)>;
        std::vector<T> dilated(static_cast<std::size_t>(grid.Count()));
        const auto clip = [&](const T* from) {
            for (std::int64_t p = 0; p < grid.Count(); ++p)
                a[p] = std::min(from[p], b[p]);
        };
        clip(a);
        for (std::int64_t i = 0; i < iterations; ++i) {
            Dilate(grid, a, dilated.data(), std::span<const Shift>(shifts));
            clip(dilated.data());
        }
    });
}
void GeodesicDilateByGraph(ImageRef marker, ImageRef mask, ImageRef out, GraphRef graph,
                           std::int64_t iterations)
{
    GeodesicDilate(marker, mask, out, ShiftsOf(*graph, true), iterations);
}
void GeodesicDilateByElement(ImageRef marker, ImageRef mask, ImageRef out, ElementRef element,
                             std::int64_t iterations)
{
    GeodesicDilate(marker, mask, out, ShiftsOf(*element), iterations);
}

// Within the mask, the steps from the nearest seed; 0 outside the mask,
// infinite where no seed is reachable.
void GeodesicDistanceWith(const ImageRef& mask, const ImageRef& seeds, const ImageRef& out,
                          const OptionalShifts& graph)
{
    const VolumeLayout masks = LayoutOf(mask);
    CheckSameLayout(masks, LayoutOf(seeds));
    const VolumeLayout layout = SingleBandOutputLayout(masks, LayoutOf(out));
    const auto count = static_cast<std::size_t>(layout.grid.Count());
    std::vector<double> inside(count), seed(count), steps(count);
    const std::vector<Shift> shifts = NeighboursOr(graph, layout.grid, false);
    constexpr double blocked = -1;
    for (std::int64_t v = 0; v < layout.volumeCount; ++v) {
        ReadVolume(mask, v, inside.data());
        ReadVolume(seeds, v, seed.data());
        for (std::size_t p = 0; p < count; ++p)
            steps[p] = inside[p] == 0 ? blocked : seed[p] != 0 ? 0 : std::numeric_limits<double>::infinity();
        GraphDistanceTransform(layout.grid, steps.data(), shifts);
        for (double& value : steps)
            value = value == blocked ? 0 : value;
        WriteVolume(out, v, steps.data());
    }
}
void GeodesicDistanceByDefault(ImageRef mask, ImageRef seeds, ImageRef out)
{
    GeodesicDistanceWith(mask, seeds, out, std::nullopt);
}
void GeodesicDistanceByGraph(ImageRef mask, ImageRef seeds, ImageRef out, GraphRef graph)
{
    GeodesicDistanceWith(mask, seeds, out, ShiftsOfGraph(graph));
}

void RegisterGeodesy()
{
    const wchar_t* name = L"Reference morphology";
    namespace G = Catalogue::Geodesy::Functions;
    G::Reconstruct.Overload<0>().Register(name, &ReconstructByDefault);
    G::Reconstruct.Overload<1>().Register(name, &ReconstructByGraph);
    G::HoleFill.Overload<0>().Register(name, &HoleFillByDefault);
    G::HoleFill.Overload<1>().Register(name, &HoleFillByGraph);
    G::BorderKill.Overload<0>().Register(name, &BorderKillByDefault);
    G::BorderKill.Overload<1>().Register(name, &BorderKillByGraph);
    G::BorderKillAndHoleFill.Overload<0>().Register(name, &BorderKillAndHoleFillByDefault);
    G::BorderKillAndHoleFill.Overload<1>().Register(name, &BorderKillAndHoleFillByGraph);
    G::Dilate.Overload<0>().Register(name, &GeodesicDilateByGraph);
    G::Dilate.Overload<1>().Register(name, &GeodesicDilateByElement);
    G::Distance.Overload<0>().Register(name, &GeodesicDistanceByDefault);
    G::Distance.Overload<1>().Register(name, &GeodesicDistanceByGraph);
}

const System::Template::Initializer<::Library> geodesyInitializer(&RegisterGeodesy, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Morphology
