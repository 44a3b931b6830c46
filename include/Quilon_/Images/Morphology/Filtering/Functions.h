// Morphological filters of grey images: alternate sequential filters and
// the automedian filter. An implementation library registers the
// implementations at start-up:
//
//   using namespace Quilon_::Images::Morphology::Filtering;
//   auto square = Quilon_::Geometry::StructuringElement::New(Quilon_::Geometry::pseSquare, 1.0);
//   Functions::AlternateSequential(noisy, clean, square, 3);   // open-close by 1, 2 and 3 times the element
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

namespace Quilon_::Images::Morphology::Filtering::Functions {

using Image = System::Ref<IImage>;
using Element = System::Ref<Quilon_::Geometry::IStructuringElement>;
using Graph = System::Ref<Quilon_::Geometry::INgbGraph>;

// AlternateSequential: an opening then a closing by the element taken 1, 2,
// ... `steps` times in turn; [0] (input, output, element, steps); [1]
// (input, output, graph, steps), the graph with the point itself.
class QUILON_API Function1
    : public System::Functions::Template::Overloads<void(Image, Image, Element, std::int64_t),
                                                    void(Image, Image, Graph, std::int64_t)> {
public:
    using Overloads::Overloads;
};

// Automedian: the median of the open-close and close-open filters and the
// input, idempotent; [0] (input, output, element); [1] (input, output,
// graph, iterations).
class QUILON_API Function2
    : public System::Functions::Template::Overloads<void(Image, Image, Element),
                                                    void(Image, Image, Graph, std::int64_t)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function1 AlternateSequential;
extern QUILON_API Function2 Automedian;

} // namespace Quilon_::Images::Morphology::Filtering::Functions
