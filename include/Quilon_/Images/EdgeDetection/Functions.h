// The edge detectors on images: gradients, ridges, zero crossings. An
// implementation library registers their implementations at start-up:
//
//   Images::EdgeDetection::Functions::SobelEdges(grey, edges, 1.0);
//   // edges: one band per spatial axis, category "Image.Category.Edge"
//
// Arguments are (source, destination, ...). The gradient detectors write
// an edge image: band k holds the magnitude of the derivative along the
// k-th spatial axis of the source (X, Y, Z, those it has), times the
// call's scale, rounded and saturated in the destination's unsigned type.
// Derivatives are normalised so that a ramp rising by 1 per sample gives 1:
//   SobelEdges    [-1 0 1] / 2 along the axis, [1 2 1] / 4 across it;
//   PrewittEdges  [-1 0 1] / 2 along the axis, [1 1 1] / 3 across it;
//   RobertsEdges  the differences across the diagonals of the 2 x 2 (x 2)
//                 cell at each sample: band 0 pairs the cell's first corner
//                 with its opposite one, band k > 0 the corner one step
//                 along axis k - 1 with its opposite one.
// Borders: the nearest sample is taken for what lies outside the image.
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>
#include <string>

namespace Quilon_::Geometry {
class IKernel;
class IStructuringElement;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Color {
class IColorDistance;
} // namespace Quilon_::Images::Color

namespace Quilon_::Images::EdgeDetection {

// Which lines RidgeValleyEdges finds: bright ridges, dark valleys, or both.
enum EdgeTypeEnumTag : std::int32_t {
    etRidge = 0,
    etValley = 1,
    etRidgeAndValley = 2,
};
using EdgeTypeEnum = EdgeTypeEnumTag;

} // namespace Quilon_::Images::EdgeDetection

namespace Quilon_::System {
// The enumerator's name; the decimal number for any other value.
QUILON_API std::wstring ToString(Images::EdgeDetection::EdgeTypeEnum value);
} // namespace Quilon_::System

namespace Quilon_::Images::EdgeDetection::Functions {

using Image = System::Ref<IImage>;
template <class Signature>
using Operator = System::Functions::Template::Function<Signature*>;

// MorphoGradient: the dilation less the erosion, the grey-level range
// under the element at each sample. [0] (source, destination, element);
// [1] (source, destination, radius) with a disk (ball) of that radius.
class QUILON_API Function1
    : public System::Functions::Template::Overloads<void(Image, Image,
                                                         System::Ref<Quilon_::Geometry::IStructuringElement>),
                                                    void(Image, Image, double)> {
public:
    using Overloads::Overloads;
};

// (source, destination, colour distance, kernel): the mean distance
// between the colour at each sample and those of the kernel's points,
// weighted; a null distance is the Euclidean one.
extern QUILON_API Operator<void(Image, Image, System::Pointer<Color::IColorDistance, 0>,
                                System::Ref<Quilon_::Geometry::IKernel>)>
    AverageColorDistanceGradient;
// (source, destination, alpha, threshold): Deriche's recursive gradient,
// thinned to the local maxima of its magnitude above the threshold.
extern QUILON_API Operator<void(Image, Image, double, double)> CannyDericheEdges;
// (edges, destination): the edge image thinned to lines one sample wide.
extern QUILON_API Operator<void(Image, Image)> EdgesThin;
extern QUILON_API Function1 MorphoGradient;
// (source, destination, scale): see above.
extern QUILON_API Operator<void(Image, Image, double)> PrewittEdges;
// (source, destination, kind, scale): ridges or valleys by the
// eigenvalues of the Hessian, smoothed over the scale.
extern QUILON_API Operator<void(Image, Image, EdgeTypeEnum, double)> RidgeValleyEdges;
extern QUILON_API Operator<void(Image, Image, double)> RobertsEdges;
extern QUILON_API Operator<void(Image, Image, double)> SobelEdges;
// (source, destination): where the sign of the source changes between
// neighbours, as after a Laplacian.
extern QUILON_API Operator<void(Image, Image)> ZeroCrossing;

} // namespace Quilon_::Images::EdgeDetection::Functions
