// The distance transform of a binary image: for every point of the objects,
// how far the nearest point of the background lies. An implementation
// library registers the implementations at start-up:
//
//   using namespace Quilon_::Images::Morphology::Distance;
//   Functions::Distance(binary, distances);              // Euclidean, exact
//   Functions::Distance(binary, steps, Quilon_::Geometry::NgbGraph::New(Quilon_::Geometry::pngSquare4,
//   Quilon_::Geometry::Axes::aXY));
//
// The output is a grey image of the input's size; its data type is the one
// it has (a fresh Image::New() gets that of the input), so pass a float or
// double output for fractional distances. Integer outputs receive the
// distance rounded to nearest (ties to even) and saturated.
//
// Borders: the outside of the image is not background; distances are to
// background points inside the image. An image without background has
// infinite distances (the largest value of an integer output).
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

namespace Quilon_::Geometry {
class INgbGraph;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Morphology::Distance::Functions {

using Image = System::Ref<IImage>;

// Distance: [0] (binary, output): the exact Euclidean distance, in samples
// of the spatial axes (X, Y and Z alike); [1] (binary, output, graph): the
// number of steps along the graph's neighbours (4-neighbours give the
// city-block distance, 8-neighbours the chessboard distance). Background
// points get 0.
class QUILON_API Function1
    : public System::Functions::Template::Overloads<
          void(Image, Image), void(Image, Image, System::Ref<Quilon_::Geometry::INgbGraph>)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function1 Distance;

} // namespace Quilon_::Images::Morphology::Distance::Functions
