// Openings and closings of grey images: by a structuring element, by
// reconstruction, by area, and their infimum and supremum over line
// directions. An implementation library registers the implementations at
// start-up:
//
//   using namespace Quilon_::Images::Morphology::OpeningClosing;
//   auto disk = Quilon_::Geometry::StructuringElement::New(Quilon_::Geometry::pseDisk, 3.0);
//   Functions::Open(input, output, disk);        // Dilate(Erode(input, disk), disk)
//   Functions::AreaOpen(input, output, 50);      // removes bright structures under 50 samples
//
// Arguments and borders as for Morphology::Basic's Erode and Dilate: the
// outside is neutral for both steps, so an opening never darkens, and a
// closing never brightens, what touches the image's edge on that account.
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

namespace Quilon_::Images::Morphology::OpeningClosing::Functions {

using Image = System::Ref<IImage>;
using Element = System::Ref<Quilon_::Geometry::IStructuringElement>;
using Graph = System::Ref<Quilon_::Geometry::INgbGraph>;

// Open, Close: [0] (input, output, element): the erosion then the dilation
// by the element (Close: the dilation, then the erosion); [1] (input,
// output, graph, size): `size` erosions then `size` dilations by the graph
// with the point itself.
class QUILON_API Function1
    : public System::Functions::Template::Overloads<void(Image, Image, Element),
                                                    void(Image, Image, Graph, std::int64_t)> {
public:
    using Overloads::Overloads;
};

// ErodeReconsOpen, DilateReconsClose: the erosion (dilation) by the
// element, reconstructed under (over) the input; [0] (input, output,
// element); [1] (input, output, element, graph), the graph of the
// reconstruction.
class QUILON_API Function3
    : public System::Functions::Template::Overloads<void(Image, Image, Element),
                                                    void(Image, Image, Element, Graph)> {
public:
    using Overloads::Overloads;
};

// SubtractReconsOpen, AddReconsClose: the residue of ErodeReconsOpen
// subtracted from (of DilateReconsClose added to) the input; arguments as
// Function3.
class QUILON_API Function4
    : public System::Functions::Template::Overloads<void(Image, Image, Element),
                                                    void(Image, Image, Element, Graph)> {
public:
    using Overloads::Overloads;
};

// AreaOpen, AreaClose: removes the bright (dark) connected structures of
// fewer than `area` samples; [0] (input, output, area); [1] (input, output,
// area, graph).
class QUILON_API Function5
    : public System::Functions::Template::Overloads<void(Image, Image, std::int64_t),
                                                    void(Image, Image, std::int64_t, Graph)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function4 AddReconsClose;
extern QUILON_API Function5 AreaClose;
extern QUILON_API Function5 AreaOpen;
extern QUILON_API Function1 Close;
extern QUILON_API Function3 DilateReconsClose;
extern QUILON_API Function3 ErodeReconsOpen;
// (input, output, length, directions): the infimum of the closings by line
// segments of `length` in `directions` evenly spaced directions.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image, double, std::int64_t)>
    InfimumClose;
extern QUILON_API Function1 Open;
extern QUILON_API Function4 SubtractReconsOpen;
// (input, output, length, directions): the supremum of the openings by line
// segments.
extern QUILON_API System::Functions::Template::Function<void (*)(Image, Image, double, std::int64_t)>
    SupremumOpen;

} // namespace Quilon_::Images::Morphology::OpeningClosing::Functions
