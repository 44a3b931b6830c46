// The basic operators of mathematical morphology on images: erosion,
// dilation, hit-or-miss, thinning and thickening. An implementation library
// registers their implementations at start-up:
//
//   using namespace Quilon_::Images::Morphology::Basic;
//   Functions::Erode(input, output,
//   Quilon_::Geometry::StructuringElement::New(Quilon_::Geometry::pseDisk, 2.0)); Functions::Dilate(input,
//   output, Quilon_::Geometry::NgbGraph::New(Quilon_::Geometry::pngSquare8, Quilon_::Geometry::Axes::aXY),
//   3);
//
// Arguments are (input, output, ...): the output is made after the input
// by the operator's rules, so a fresh Image::New() will do. Grey values are
// eroded and dilated as such (the minimum and maximum over the element); a
// binary image is the special case of 0 and one other value.
//
// Borders: what lies outside the image is neutral. An erosion ignores the
// offsets that leave the image (as if the outside held the largest value),
// a dilation likewise (as if it held the lowest), so neither shrinks nor
// grows an object at the image's edge.
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>

namespace Quilon_::Geometry {
class IStructuringElement;
class INgbGraph;
class INgbLUT;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Morphology::Basic::Functions {

using Image = System::Ref<IImage>;
using Element = System::Ref<Quilon_::Geometry::IStructuringElement>;
using Graph = System::Ref<Quilon_::Geometry::INgbGraph>;
using LookUpTable = System::Ref<Quilon_::Geometry::INgbLUT>;

// Erode, Dilate. [0] (input, output, element): Erode takes the minimum of
// input(p + b) over the offsets b of the element, Dilate the maximum of
// input(p - b); [1] (input, output, graph, iterations): that many times,
// over the neighbours of the graph and the point itself (0 copies).
class QUILON_API Function1
    : public System::Functions::Template::Overloads<void(Image, Image, Element),
                                                    void(Image, Image, Graph, std::int64_t)> {
public:
    using Overloads::Overloads;
};

// HitOrMiss, on a binary input. [0] (input, output, hit, miss): set where
// every offset of `hit` lands on the object and every offset of `miss` on
// the background; [1] (input, output, table): the table's value of each
// point's configuration.
class QUILON_API Function2
    : public System::Functions::Template::Overloads<void(Image, Image, Element, Element),
                                                    void(Image, Image, LookUpTable)> {
public:
    using Overloads::Overloads;
};

// ConstrainedThin: (input, constraint, output, table, iterations): thinning
// by the table that never removes a point set in the constraint; a negative
// count repeats until nothing changes.
class QUILON_API Function4
    : public System::Functions::Template::Overloads<void(Image, Image, Image, LookUpTable, std::int64_t)> {
public:
    using Overloads::Overloads;
};

// ConstrainedThicken: (input, constraint, output, table, iterations):
// thickening by the table that only adds points set in the constraint.
class QUILON_API Function5
    : public System::Functions::Template::Overloads<void(Image, Image, Image, LookUpTable, std::int64_t)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function5 ConstrainedThicken;
extern QUILON_API Function4 ConstrainedThin;
extern QUILON_API Function1 Dilate;
extern QUILON_API Function1 Erode;
extern QUILON_API Function2 HitOrMiss;
// (input, output, table, iterations): sets the points where the table
// gives 1, that many times (negative: until nothing changes).
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image, LookUpTable, std::int64_t)>
    Thicken;
// (input, output, table, iterations): clears the points where the table
// gives 0, that many times (negative: until nothing changes).
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image, LookUpTable, std::int64_t)>
    Thin;

} // namespace Quilon_::Images::Morphology::Basic::Functions
