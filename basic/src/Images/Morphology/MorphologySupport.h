// What the reference library's morphology operators share: an image seen as
// a series of dense volumes (one per band and per T value), the offsets of
// structuring elements and neighbourhood graphs as shifts, and the loop
// that runs a kernel volume by volume.
//
//   void ErodeImage(ImageRef in, ImageRef out, const std::vector<Shift>& shifts)
//   {
//       ForEachVolume(in, out, [&](const Grid& grid, auto* source, auto* target) {
//           Erode(grid, source, target, shifts);
//       });
//   }
//
// Samples are copied into a dense buffer of the input's own type and the
// result is written back, converted to the output's type (integers rounded
// to nearest, ties to even, and saturated: the library's sample conversion). The copies make an output that
// is also the input safe, and keep the kernels free of strides.
#pragma once

#include "Images/Morphology/MorphologyKernels.h"

#include "Quilon_/Basic/Images/BitmapView.h"
#include "Quilon_/Images/Image.h"

#include <complex>
#include <cstdint>
#include <type_traits>
#include <vector>

namespace Quilon_::Geometry {
class IStructuringElement;
class INgbGraph;
} // namespace Quilon_::Geometry

namespace Quilon_::Basic::Images::Morphology {

using ImageRef = System::Ref<Quilon_::Images::IImage>;

// The spatial extent of an image (X, Y, Z; 1 for an axis it lacks) and the
// number of volumes it holds along its other axes.
struct VolumeLayout {
    Grid grid;
    std::int64_t volumeCount = 1;
    // The volumes along T; the others are further bands.
    std::int64_t timeCount = 1;
};
VolumeLayout LayoutOf(const ImageRef& image);

// Copies volume `index` of `image` into `dense`, converting each sample to
// T, or writes `dense` into it, converting to the image's type.
template <class T>
void ReadVolume(const ImageRef& image, std::int64_t index, T* dense);
template <class T>
void WriteVolume(const ImageRef& image, std::int64_t index, const T* dense);

// The offsets of an element or a graph on the image axes X, Y and Z; a
// graph with `withOrigin` also holds (0, 0, 0) once.
std::vector<Shift> ShiftsOf(::Quilon_::Geometry::IStructuringElement& element);
std::vector<Shift> ShiftsOf(::Quilon_::Geometry::INgbGraph& graph, bool withOrigin);
// The graph of the pngSquare8 or pngCubic26 neighbours (pngSquare4 or
// pngCubic6 with `fewest`), by the dimension of the grid.
std::vector<Shift> DefaultNeighbours(const Grid& grid, bool fewest);

// Raises unless the two images have the same spatial extent and number of
// volumes.
void CheckSameLayout(const VolumeLayout& a, const VolumeLayout& b);

// The volumes to compute for an output in the grey category made after a
// binary input: the input's, or, for a multi-band input whose output the
// rules made without bands, one per time step. Volume v of such an output
// is then read from volume v of the input, its first band: the band that
// the library takes whenever it makes a single-band image of a multi-band
// one. Raises when the two agree in neither way.
VolumeLayout SingleBandOutputLayout(const VolumeLayout& in, const VolumeLayout& out);

// Calls `kernel(grid, source, target)` for every volume of `in`, with
// `source` its samples as T (the input's type) and `target` a buffer of
// the same size that is written into `out` afterwards. Complex inputs are
// refused.
template <class Kernel>
void ForEachVolume(const ImageRef& in, const ImageRef& out, Kernel&& kernel);

[[noreturn]] void RaiseComplexInput(System::NumericTypeEnum type);

// Calls `function(std::type_identity<T>{})` for the real sample types and
// raises for the complex ones.
template <class Function>
void DispatchRealType(System::NumericTypeEnum type, Function&& function)
{
    DispatchSampleType(type, [&](auto tag) {
        if constexpr (std::is_arithmetic_v<typename decltype(tag)::type>)
            function(tag);
        else
            RaiseComplexInput(type);
    });
}

template <class Kernel>
void ForEachVolume(const ImageRef& in, const ImageRef& out, Kernel&& kernel)
{
    const VolumeLayout layout = LayoutOf(in);
    CheckSameLayout(layout, LayoutOf(out));
    DispatchRealType(in->Format()->DataType(), [&](auto tag) {
        using T = typename decltype(tag)::type;
        std::vector<T> source(static_cast<std::size_t>(layout.grid.Count()));
        std::vector<T> target(source.size());
        for (std::int64_t v = 0; v < layout.volumeCount; ++v) {
            ReadVolume(in, v, source.data());
            kernel(layout.grid, source.data(), target.data());
            WriteVolume(out, v, target.data());
        }
    });
}

} // namespace Quilon_::Basic::Images::Morphology
