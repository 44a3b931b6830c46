// Convolution kernels: weights on integer offsets around a point, and a
// divisor. A neighbourhood operator computes, at each point p, the sum over
// the kernel's points q of weight(q) * value(p + q), divided by Divisor().
//
//   using namespace Quilon_::Geometry;
//   System::Ref<IKernel> smooth = Kernel::New(pkLowPass3, Axes::aXY);
//   System::Ref<IBox> box = Box::New(-1, 0, 2, 1, Axes::aXY);     // x in -1..1, y = 0
//   System::Ref<IKernel> dx = Kernel::New(box, std::vector<double>{-1, 0, 1});
//   System::Ref<IKernel> sobel = SeparableKernel::New(dx, Kernel::New(Box::New(0, -1, 1, 2, Axes::aXY),
//                                                       std::vector<std::int64_t>{1, 2, 1}, 1.0));
//   System::Ref<ISeparable>(sobel)->Factors();                      // dx and the smoothing column
//
// Kernels are values: an implementation makes them immutable, and the
// collections and vectors they return are copies.
#pragma once

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/PredefinedKernel.h"
#include "Quilon_/Geometry/WeightedCoordinates.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Geometry {

class QUILON_API IKernel : public virtual System::Interface {
    QUILON_INTERFACE(IKernel)
public:
    // The axes of the offsets.
    virtual Geometry::Axes Axes() = 0;
    // Every offset of Bounds() with its weight, zero weights included, in
    // the order of Weights().
    virtual System::Ref<IWeightedCoordinatesCollection> Points() = 0;
    // The integer box of the offsets, upper corner exclusive.
    virtual System::Ref<IBox> Bounds() = 0;
    // The weights over Bounds(), the first axis varying fastest (the order
    // of Helper::CumulatedSize).
    virtual std::vector<double> Weights() = 0;
    // What the weighted sum is divided by; never 0.
    virtual double Divisor() = 0;
    // The sum of the weights: equal to Divisor() for a kernel that keeps
    // the mean, 0 for one that removes it (its results can be negative).
    virtual double WeightSum() = 0;
};

// A kernel that is the successive application of smaller ones (usually one
// per axis), so that an operator can run it in fewer operations.
class QUILON_API ISeparable : public virtual System::Interface {
    QUILON_INTERFACE(ISeparable)
public:
    // The factors in the order they are applied; applying them one after
    // the other gives the same result as the whole kernel.
    virtual std::vector<System::Ref<IKernel>> Factors() = 0;
};

// A kernel that gives its point reflection (q -> -q): correlation with a
// kernel is convolution with its transpose.
class QUILON_API ITransposable : public virtual System::Interface {
    QUILON_INTERFACE(ITransposable)
public:
    virtual System::Ref<IKernel> Transposed() = 0;
};

// 1: every offset of the box with weight 1, divided by their number (the
// mean); 2: the weights over the box in the order of IKernel::Weights,
// divisor 1; 3: integer weights and a divisor; 4: a predefined kernel on
// the given axes; 5: a kernel whose weights are the samples of an image
// (the reference library does not make these yet: the call reports that the
// overload has no implementation).
namespace Kernel {
using Reference = System::Ref<IKernel>;
using Factory = System::Functions::Template::Factory<
    Reference(System::Ref<IBox>), Reference(System::Ref<IBox>, const std::vector<double>&),
    Reference(System::Ref<IBox>, const std::vector<std::int64_t>&, double),
    Reference(PredefinedKernelEnum, Geometry::Axes), Reference(System::Ref<Images::IImage>)>;
extern QUILON_API Factory New;
} // namespace Kernel

// The kernel that applies the factors in order: (first, second); (first,
// second, third); (factors).
namespace SeparableKernel {
using Reference = System::Ref<IKernel>;
using Factory = System::Functions::Template::Factory<Reference(Reference, Reference),
                                                     Reference(Reference, Reference, Reference),
                                                     Reference(const std::vector<Reference>&)>;
extern QUILON_API Factory New;
} // namespace SeparableKernel

} // namespace Quilon_::Geometry
