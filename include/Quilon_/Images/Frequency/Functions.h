// The frequency domain: the discrete Fourier transform and its inverse, and
// filters applied to a spectrum. An implementation library registers the
// implementations at start-up:
//
//   Images::Frequency::Functions::FFT(image, spectrum);   // category "Image.Category.Frequency"
//   Images::Frequency::Functions::ButterworthFilter(spectrum, filtered, cutoff, Images::Frequency::sCentral,
//   2,
//                                                   false);
//   Images::Frequency::Functions::InverseFFT(filtered, smooth);
//
// A spectrum is complex, with the zero frequency at the centre; a filter's
// shape gives its cut-off in frequency units around that centre.
#pragma once

#include "Quilon_/System/Any.h"
#include "Quilon_/System/Functions/Function.h"

#include <cstdint>
#include <string>

namespace Quilon_::Geometry {
class IShapeND;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Frequency {

// How a filter's shape is mirrored before it is applied: as it is, through
// the centre (what a spectrum of a real image needs to stay real after the
// inverse transform), or in every axis.
enum SymmetriesEnumTag : std::int32_t {
    sNone = 0,
    sCentral = 1,
    sAxes = 2,
};
using SymmetriesEnum = SymmetriesEnumTag;

} // namespace Quilon_::Images::Frequency

namespace Quilon_::System {
// The enumerator's name; the number for any other value.
QUILON_API std::wstring ToString(Images::Frequency::SymmetriesEnum value);
} // namespace Quilon_::System

namespace Quilon_::Images::Frequency::Functions {

using Image = System::Ref<IImage>;
using Shape = System::Ref<::Quilon_::Geometry::IShapeND>;
template <class Signature>
using Function = System::Functions::Template::Function<Signature*>;

// Each filter: (spectrum, output, shape, symmetries, ..., highPass); with
// highPass the filter lets through what lies outside the shape instead.
// ..., order: the steepness of the edge.
extern QUILON_API Function<void(Image, Image, Shape, SymmetriesEnum, std::int64_t, bool)> ButterworthFilter;
// ..., order: the power of the distance in the exponent.
extern QUILON_API Function<void(Image, Image, Shape, SymmetriesEnum, std::int64_t, bool)> ExponentialFilter;
// (input, spectrum): the discrete Fourier transform of a real image.
extern QUILON_API Function<void(Image, Image)> FFT;
// The shape's boundary at one standard deviation.
extern QUILON_API Function<void(Image, Image, Shape, SymmetriesEnum, bool)> GaussianFilter;
// (spectrum, output): back to the spatial domain.
extern QUILON_API Function<void(Image, Image)> InverseFFT;
// An ideal filter: 1 inside the shape, 0 outside.
extern QUILON_API Function<void(Image, Image, Shape, SymmetriesEnum, bool)> RectangularFilter;
// ..., width: 1 inside the shape, falling linearly to 0 over `width`.
extern QUILON_API Function<void(Image, Image, Shape, SymmetriesEnum, double, bool)> TrapezoidalFilter;

} // namespace Quilon_::Images::Frequency::Functions
