// The arithmetic of single samples, applied to every sample of an image. An
// implementation library registers the implementations at start-up:
//
//   Images::Math::Functions::Magnitude(complexImage, magnitudes);
//   Images::Math::Functions::Sqrt(image, roots);
//   Images::Math::Functions::MatrixMultiply(rgb, yuv, conversion);   // bands x matrix
//
// A fresh output is made after the input. The functions that are not
// closed over the integers (the trigonometric ones, exponentials,
// logarithms, roots, inverses) give a floating output, float or wider, or a
// complex one for a complex input; those of a complex value that are real
// (RealPart, ImaginaryPart, Magnitude, Phase, ComplexFacet) give double.
// Abs-like ones (Sqr, Conjugate) keep the input's type, saturating in an
// integer one. A value outside a function's domain gives NaN in a floating
// output and 0 in an integer one.
//
// Inside namespace Quilon_::Images this namespace hides Quilon_::Math:
// spell the other one ::Quilon_::Math there.
#pragma once

#include "Quilon_/Math/ComplexFacet.h"
#include "Quilon_/System/Functions/Function.h"

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Math {
class IMatrixD;
} // namespace Quilon_::Math

namespace Quilon_::Images::Math::Functions {

using Image = System::Ref<IImage>;
template <class Signature>
using Function = System::Functions::Template::Function<Signature*>;

// (source, destination) unless said otherwise; angles in radians.
extern QUILON_API Function<void(Image, Image)> ACos;
extern QUILON_API Function<void(Image, Image)> ASin;
extern QUILON_API Function<void(Image, Image)> ATan;
// (source, destination, facet): the real or imaginary part, the magnitude
// or the phase of each sample.
extern QUILON_API Function<void(Image, Image, ::Quilon_::Math::ComplexFacetEnum)> ComplexFacet;
// The complex conjugate; a real sample stays as it is.
extern QUILON_API Function<void(Image, Image)> Conjugate;
extern QUILON_API Function<void(Image, Image)> Cos;
// 10^x.
extern QUILON_API Function<void(Image, Image)> Exp10;
// e^x.
extern QUILON_API Function<void(Image, Image)> Exp;
// The imaginary part; 0 for a real sample.
extern QUILON_API Function<void(Image, Image)> ImaginaryPart;
// 1 / x.
extern QUILON_API Function<void(Image, Image)> Inverse;
extern QUILON_API Function<void(Image, Image)> Log10;
// The natural logarithm.
extern QUILON_API Function<void(Image, Image)> Log;
// The modulus of each complex sample, the absolute value of each real one.
extern QUILON_API Function<void(Image, Image)> Magnitude;
// (source, destination, matrix): each pixel's bands as a row vector times
// the matrix, one input band per row and one output band per column.
extern QUILON_API Function<void(Image, Image, System::Ref<::Quilon_::Math::IMatrixD>)> MatrixMultiply;
// The argument of each complex sample in (-pi, pi]; 0 or pi for a real one.
extern QUILON_API Function<void(Image, Image)> Phase;
// The real part; a real sample as it is.
extern QUILON_API Function<void(Image, Image)> RealPart;
extern QUILON_API Function<void(Image, Image)> Sin;
// x * x.
extern QUILON_API Function<void(Image, Image)> Sqr;
extern QUILON_API Function<void(Image, Image)> Sqrt;
extern QUILON_API Function<void(Image, Image)> Tan;

} // namespace Quilon_::Images::Math::Functions
