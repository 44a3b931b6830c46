// Morphological segmentation: top-hat residues, watersheds and catchment
// basins, and the splitting of binary objects into convex parts. An
// implementation library registers the implementations at start-up:
//
//   using namespace Quilon_::Images::Morphology::Segmentation;
//   Functions::WhiteTophat(input, peaks,
//   Quilon_::Geometry::StructuringElement::New(Quilon_::Geometry::pseDisk, 5.0));
//   Functions::SeededWatershed(gradient, seeds, lines);
//
// Top-hats take their arguments and borders from Open and Close; an integer
// output saturates (a signed type can hold less than the difference).
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

namespace Quilon_::Images::Morphology::Segmentation::Functions {

using Image = System::Ref<IImage>;
using Element = System::Ref<Quilon_::Geometry::IStructuringElement>;
using Graph = System::Ref<Quilon_::Geometry::INgbGraph>;

// WhiteTophat: input minus its opening; BlackTophat: the closing minus the
// input. [0] (input, output, element); [1] (input, output, graph, size) as
// Open's [1].
class QUILON_API Function1
    : public System::Functions::Template::Overloads<void(Image, Image, Element),
                                                    void(Image, Image, Graph, std::int64_t)> {
public:
    using Overloads::Overloads;
};

// CatchmentBasins (a label per regional minimum), Watershed (the binary
// lines between them): [0] (input, output); [1] (input, output, graph).
class QUILON_API Function2
    : public System::Functions::Template::Overloads<void(Image, Image), void(Image, Image, Graph)> {
public:
    using Overloads::Overloads;
};

// SeededCatchmentBasins, SeededWatershed: flooding from the objects of a
// binary seed image instead of the minima; [0] (input, seeds, output); [1]
// (input, seeds, output, graph).
class QUILON_API Function3 : public System::Functions::Template::Overloads<void(Image, Image, Image),
                                                                           void(Image, Image, Image, Graph)> {
public:
    using Overloads::Overloads;
};

// SplitConvex: cuts binary objects at their necks; [0] (binary, output);
// [1] (binary, output, graph, depth), necks shallower than `depth` kept.
class QUILON_API Function4
    : public System::Functions::Template::Overloads<void(Image, Image), void(Image, Image, Graph, double)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function1 BlackTophat;
extern QUILON_API Function2 CatchmentBasins;
extern QUILON_API Function3 SeededCatchmentBasins;
extern QUILON_API Function3 SeededWatershed;
extern QUILON_API Function4 SplitConvex;
extern QUILON_API Function2 Watershed;
extern QUILON_API Function1 WhiteTophat;

} // namespace Quilon_::Images::Morphology::Segmentation::Functions
