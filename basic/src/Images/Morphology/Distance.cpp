// The distance transform of the reference library: exact Euclidean
// distances by separable passes, or steps along a neighbourhood graph.
#include "Images/Morphology/MorphologySupport.h"

#include "Quilon_/Geometry/NgbGraph.h"
#include "Quilon_/Images/Morphology/Distance/Functions.h"
#include "Quilon_/PrivateLibrary.h"

#include <cmath>

namespace Quilon_::Basic::Images::Morphology {

namespace {

namespace Catalogue = ::Quilon_::Images::Morphology;

// Calls `transform(grid, values)` on each volume of `in` read as 0 for the
// background and infinity for the objects, and writes the values into
// `out`.
template <class Transform>
void DistanceOf(const ImageRef& in, const ImageRef& out, Transform&& transform)
{
    const VolumeLayout layout = LayoutOf(in);
    CheckSameLayout(layout, LayoutOf(out));
    std::vector<double> values(static_cast<std::size_t>(layout.grid.Count()));
    for (std::int64_t v = 0; v < layout.volumeCount; ++v) {
        ReadVolume(in, v, values.data());
        for (double& value : values)
            value = value == 0 ? 0 : std::numeric_limits<double>::infinity();
        transform(layout.grid, values.data());
        WriteVolume(out, v, values.data());
    }
}

void EuclideanDistance(ImageRef in, ImageRef out)
{
    DistanceOf(in, out, [](const Grid& grid, double* values) {
        SquaredDistanceTransform(grid, values);
        for (std::int64_t p = 0; p < grid.Count(); ++p)
            values[p] = std::sqrt(values[p]);
    });
}

void GraphDistance(ImageRef in, ImageRef out, System::Ref<Geometry::INgbGraph> graph)
{
    const std::vector<Shift> shifts = ShiftsOf(*graph, false);
    DistanceOf(in, out,
               [&](const Grid& grid, double* values) { GraphDistanceTransform(grid, values, shifts); });
}

void RegisterDistance()
{
    const wchar_t* name = L"Reference morphology";
    Catalogue::Distance::Functions::Distance.Overload<0>().Register(name, &EuclideanDistance);
    Catalogue::Distance::Functions::Distance.Overload<1>().Register(name, &GraphDistance);
}

const System::Template::Initializer<::Library> distanceInitializer(&RegisterDistance, nullptr, 0.2f);

} // namespace

} // namespace Quilon_::Basic::Images::Morphology
