// The convolution kernels of the reference library: what its predefined
// kernels weigh, how kernels are made from boxes and factors, and the typed
// view through which its own operators read them.
//
//   Pointer<Geometry::IKernel, 1> mean = Geometry::Kernel::New(Geometry::pkLowPass3, Geometry::Axes::aXY);
//   // in an operator of this library, once per call:
//   if (auto* view = dynamic_cast<const Basic::Geometry::KernelView*>(mean.Get())) {
//       view->Weights();   // 9 ones, x fastest
//       view->Divisor();   // 9
//   }
//
// Dimension. A predefined kernel is three-dimensional when its axes include
// aZ, and then needs aX and aY too; otherwise it is two-dimensional and
// needs two spatial axes ("Axes '%1%' have fewer than %2% spatial axes").
// It is centred: offsets from -h to h on each axis, h = (n - 1) / 2,
// N = n^d points in all.
//
//   | value                 | n | weights                                           | divisor |
//   |-----------------------|---|---------------------------------------------------|---------|
//   | pkLowPass3, 5, 7      | 3, 5, 7 | all 1: the mean                             | N       |
//   | pkHighPass3, 5, 7     | 3, 5, 7 | -1, the centre N - 1: the point less the    | 1       |
//   |                       |   | sum of its neighbours, 0 on flat regions          |         |
//   | pkLaplacian           | 3 | the centre -2d, its 2d face neighbours 1, the     | 1       |
//   |                       |   | others 0 (the 4- or 6-neighbour Laplacian)        |         |
//   | pkLaplacian3, 5, 7    | 3, 5, 7 | 1, the centre 1 - N                         | 1       |
//
// So pkLaplacian3 is -pkHighPass3, and every kernel but the low-pass ones
// has a weight sum of 0.
//
// From a box (Kernel::New(box, ...)): the box's offsets on aX, aY, aZ (on
// aT and aB it must reach from 0 to 0 or 1, "Offsets on the axes T and B
// must be 0"); New(box) weighs each 1 and divides by their number; weights
// come x fastest, then y, then z. Refused: an empty box ("A kernel needs at
// least one point"), a weight count that differs from the box's ("A kernel
// over %1% points needs %1% weights, not %2%"), a divisor of 0 ("The
// divisor of a kernel must not be 0"). Kernels from images are not made by
// this library yet.
//
// Separable kernels (SeparableKernel::New(factors)): the factors must share
// their axes ("The factors of a separable kernel have different axes: '%1%'
// and '%2%'"); the kernel is their full convolution (bounds add up, the
// divisors multiply), and Factors() gives them back in order. Transposed()
// of either kind reflects the offsets (the weights in reverse order).
//
// Rotations (Rotation::New), which resampling operators take beside their
// kernels: the center has two axes for an angle, three for three angles
// ("A rotation in %1% dimensions needs a center of %1% axes, not '%2%'");
// a matrix must be 2 x 2 or 3 x 3 ("A rotation matrix is 2 x 2 or 3 x 3, not
// %1% x %2%") and orthonormal with determinant 1 within 1e-9 ("The matrix is
// not a rotation"); without a center it turns about the origin of aXY or
// aXYZ. Three angles (a, b, c) give Rz(c) Ry(b) Rx(a).
#pragma once

#include "Quilon_/Basic/Geometry/Neighbourhoods.h"

#include <span>

namespace Quilon_::Basic::Geometry {

// Offered by this library's kernels: the dense weights over the box from
// Lower() to Upper() (upper exclusive), x fastest.
class KernelView {
public:
    virtual Offset Lower() const = 0;
    virtual Offset Upper() const = 0;
    virtual std::span<const double> Weights() const = 0;
    virtual double Divisor() const = 0;

protected:
    ~KernelView() = default;
};

} // namespace Quilon_::Basic::Geometry
