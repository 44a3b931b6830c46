// The linear and rank filters on images: smoothing, convolution, medians.
// An implementation library registers their implementations at start-up:
//
//   Images::Filtering::Functions::Gaussian(noisy, smooth, 1.5);
//   Images::Filtering::Functions::Box(noisy, mean, 5);                       // 5 x 5 (x 5) window
//   Images::Filtering::Functions::Median(noisy, cleaned, 3);
//   Images::Filtering::Functions::Convolve(image, sharp,
//   Quilon_::Geometry::Kernel::New(Quilon_::Geometry::pkHighPass3,
//                                                                              Quilon_::Geometry::Axes::aXY));
//
// Arguments are (source, destination, ...). Every filter works on the
// spatial axes (X, Y and Z, those the image has) and treats each band and
// each time point as an image of its own. The destination takes the
// source's size and a data type that contains the source's; integer
// results are rounded to nearest, ties to even (as every sample conversion
// of the toolkit), and saturate at the limits of the destination's type.
// Sums are formed in double (long double for 64-bit integer samples).
//
// Borders: what lies outside the image is taken from the nearest sample
// (ptReplicate), unless the call passes a Padding: ptConstant reads its
// value there, ptMirror mirrors the image at its border without repeating
// the border sample, and ptNone counts as ptReplicate, since a filter must
// read something there.
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Geometry {
class IKernel;
class IStructuringElement;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
class Padding;
} // namespace Quilon_::Images

namespace Quilon_::Images::Filtering::Functions {

using Image = System::Ref<IImage>;
using Kernel = System::Ref<Quilon_::Geometry::IKernel>;
using Element = System::Ref<Quilon_::Geometry::IStructuringElement>;

// Convolve: the weighted sum of the kernel's points around each sample,
// divided by the kernel's divisor: at p, the sum over q of weight(q) *
// value(p + q) / Divisor(). A separable kernel runs factor by factor.
// [0] (source, destination, kernel); [1] with the padding of the borders.
class QUILON_API Function1
    : public System::Functions::Template::Overloads<void(Image, Image, Kernel),
                                                    void(Image, Image, Kernel, const Padding&)> {
public:
    using Overloads::Overloads;
};

// RankValue: the sample of the given rank among those of a window, rank 0
// the least and 1 the greatest. [0] a square (cubic) window of the given
// side; [1] the offsets of a structuring element.
class QUILON_API Function3
    : public System::Functions::Template::Overloads<void(Image, Image, std::int64_t, double),
                                                    void(Image, Image, Element, double)> {
public:
    using Overloads::Overloads;
};

// Median: the middle sample of a window (for an even count, the lower of
// the two middle ones, so that the result is always a sample's value).
// [0] a square (cubic) window of the given side; [1] the offsets of a
// structuring element; [2] with the padding of the borders.
class QUILON_API Function4
    : public System::Functions::Template::Overloads<void(Image, Image, std::int64_t),
                                                    void(Image, Image, Element),
                                                    void(Image, Image, Element, const Padding&)> {
public:
    using Overloads::Overloads;
};

// Mode: the most frequent sample of a window, for label images. [0] a
// square (cubic) window of the given side; [1] a structuring element.
class QUILON_API Function5 : public System::Functions::Template::Overloads<void(Image, Image, std::int64_t),
                                                                           void(Image, Image, Element)> {
public:
    using Overloads::Overloads;
};

// LowStop: the sample less the mean around it, which keeps the detail and
// drops the slow background. [0] the mean of a square (cubic) window of the
// given side; [1] the response of a low-pass kernel.
class QUILON_API Function6 : public System::Functions::Template::Overloads<void(Image, Image, std::int64_t),
                                                                           void(Image, Image, Kernel)> {
public:
    using Overloads::Overloads;
};

// Gaussian: smoothing by the Gaussian of standard deviation sigma, in
// samples, run axis by axis. Unless the call gives a kernel size, the
// kernel reaches 3 sigma to either side (radius ceil(3 sigma), side 2
// radius + 1) and is normalised to sum 1; sigma 0 leaves an axis as it is.
// [0] (source, destination, sigma) on every spatial axis; [1] one sigma per
// spatial axis, X first; [2] (sigma, kernel side), an odd side of at least
// 1; [3] (sigma, padding).
class QUILON_API Function9
    : public System::Functions::Template::Overloads<
          void(Image, Image, double), void(Image, Image, const std::vector<double>&),
          void(Image, Image, double, std::int64_t), void(Image, Image, double, const Padding&)> {
public:
    using Overloads::Overloads;
};

// Kriging: fills the samples that the mask leaves unset by ordinary
// kriging of the set ones around them. (source, mask of known samples,
// destination, range): [0] a spherical variogram of that range; [1] with a
// nugget.
class QUILON_API Function10
    : public System::Functions::Template::Overloads<void(Image, Image, Image, double),
                                                    void(Image, Image, Image, double, double)> {
public:
    using Overloads::Overloads;
};

// (source, destination, side): the mean of a square (cubic) window of the
// given side, centred; an even side reaches one sample further forward.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image, std::int64_t)> Box;
extern QUILON_API Function1 Convolve;
extern QUILON_API Function9 Gaussian;
extern QUILON_API Function10 Kriging;
extern QUILON_API Function6 LowStop;
extern QUILON_API Function4 Median;
extern QUILON_API Function5 Mode;
extern QUILON_API Function3 RankValue;
// (source, destination, side, low, high): Weymouth's edge-preserving
// smoothing, the mean of those window samples whose difference to the
// centre lies within [low, high].
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image, std::int64_t, float, float)>
    Weymouth;

} // namespace Quilon_::Images::Filtering::Functions
