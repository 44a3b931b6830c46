// Morphological contrast enhancement: each point moves to the nearer of its
// dilation and its erosion (the toggle mapping), which sharpens edges
// without the overshoot of linear filters.
//
//   using namespace Quilon_::Images::Morphology::Enhancement;
//   Functions::Contrast(input, output,
//   Quilon_::Geometry::StructuringElement::New(Quilon_::Geometry::pseSquare, 1.0));
//
// Arguments and borders as for Morphology::Basic's Erode and Dilate.
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>

namespace Quilon_::Geometry {
class IStructuringElement;
class INgbGraph;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Morphology::Enhancement::Functions {

using Image = System::Ref<IImage>;

// Contrast: [0] (input, output, element); [1] (input, output, graph,
// iterations), the graph with the point itself, applied that many times.
class QUILON_API Function1
    : public System::Functions::Template::Overloads<
          void(Image, Image, System::Ref<Quilon_::Geometry::IStructuringElement>),
          void(Image, Image, System::Ref<Quilon_::Geometry::INgbGraph>, std::int64_t)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function1 Contrast;

} // namespace Quilon_::Images::Morphology::Enhancement::Functions
