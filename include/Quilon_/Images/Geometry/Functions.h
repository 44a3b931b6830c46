// Geometric transforms of images: affine maps, rotation, scaling, shear,
// translation, lens undistortion and warping by a displacement field. An
// implementation library registers the implementations at start-up:
//
//   Images::Geometry::Functions::Rotate(image, rotated, 30.0);   // degrees, counter-clockwise
//   Images::Geometry::Functions::Scale(image, half, 0.5, Images::Geometry::iLinear);
//   Images::Geometry::Functions::Translate(image, moved, {2.5, -1.0});
//
// The output's pixel (x, y, ...) takes the input's value at the inverse map
// of its position, interpolated; positions outside the input give 0. Rotate
// and Scale size the output to hold the whole result; the others keep the
// input's size.
//
// Inside namespace Quilon_::Images this namespace hides Quilon_::Geometry:
// spell the other one ::Quilon_::Geometry there. Headers of Images that
// still write Geometry:: for it must be included before this one.
#pragma once

#include "Quilon_/Geometry/Axes.h"
#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>
#include <string>
#include <vector>

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Math {
class IMatrixD;
} // namespace Quilon_::Math

namespace Quilon_::Images::Geometry {

// How a value between pixels is found.
enum InterpolationEnumTag : std::int32_t {
    iNearest = 0,
    iLinear = 1,
    iCubic = 2,
};
using InterpolationEnum = InterpolationEnumTag;

} // namespace Quilon_::Images::Geometry

namespace Quilon_::System {
// The enumerator's name; the number for any other value.
QUILON_API std::wstring ToString(Images::Geometry::InterpolationEnum value);
} // namespace Quilon_::System

namespace Quilon_::Images::Geometry::Functions {

using Image = System::Ref<IImage>;
using Matrix = System::Ref<::Quilon_::Math::IMatrixD>;
template <class... Signatures>
using Overloads = System::Functions::Template::Overloads<Signatures...>;

// Without an interpolation argument, every operator interpolates linearly.

// AffineMap (input, output, matrix, ...): the homogeneous matrix, of size
// (n + 1) x (n + 1) for n spatial axes, maps input positions to output ones.
class QUILON_API Function1
    : public Overloads<void(Image, Image, Matrix), void(Image, Image, Matrix, InterpolationEnum)> {
public:
    using Overloads::Overloads;
};

// Rotate (input, output, degrees, ...): about the image's centre; [2] about
// an axis of a volume.
class QUILON_API Function2
    : public Overloads<void(Image, Image, double), void(Image, Image, double, InterpolationEnum),
                       void(Image, Image, double, ::Quilon_::Geometry::AxisEnum, InterpolationEnum)> {
public:
    using Overloads::Overloads;
};

// Scale (input, output, ...): [0] one factor for every axis; [1] one factor
// per spatial axis.
class QUILON_API Function3
    : public Overloads<void(Image, Image, double, InterpolationEnum),
                       void(Image, Image, const std::vector<double>&, InterpolationEnum)> {
public:
    using Overloads::Overloads;
};

// Shear and Translate (input, output, amounts, ...), one amount per spatial
// axis: Translate moves by it in pixels; Shear moves each axis by its
// amount times the position on the next axis.
class QUILON_API Function4
    : public Overloads<void(Image, Image, const std::vector<double>&),
                       void(Image, Image, const std::vector<double>&, InterpolationEnum)> {
public:
    using Overloads::Overloads;
};

// Warp (input, output, field, ...): the field has one band per spatial axis
// and gives, at each output pixel, the displacement to its input position.
class QUILON_API Function5
    : public Overloads<void(Image, Image, Image), void(Image, Image, Image, InterpolationEnum)> {
public:
    using Overloads::Overloads;
};

// Undistort (input, output, coefficients, ...): the radial and tangential
// lens model (k1, k2, p1, p2, k3), about the image's centre, in units of
// half its diagonal.
class QUILON_API Function6
    : public Overloads<void(Image, Image, const std::vector<double>&),
                       void(Image, Image, const std::vector<double>&, InterpolationEnum)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function1 AffineMap;
extern QUILON_API Function2 Rotate;
extern QUILON_API Function3 Scale;
extern QUILON_API Function4 Shear;
extern QUILON_API Function4 Translate;
extern QUILON_API Function6 Undistort;
extern QUILON_API Function5 Warp;

} // namespace Quilon_::Images::Geometry::Functions
