// Morphological features of grey images: local and regional extrema, and
// the ultimate eroded set of a binary image. Each gives a binary image of
// the input's size. An implementation library registers the
// implementations at start-up:
//
//   using namespace Quilon_::Images::Morphology::Features;
//   auto eight = Quilon_::Geometry::NgbGraph::New(Quilon_::Geometry::pngSquare8,
//   Quilon_::Geometry::Axes::aXY); Functions::RegionalMaxima(grey, peaks, eight);
//   Functions::RegionalMaxima(grey, peaks, eight, 10.0);   // only peaks at least 10 high
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

namespace Quilon_::Geometry {
class INgbGraph;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Morphology::Features::Functions {

using Image = System::Ref<IImage>;
using Graph = System::Ref<Quilon_::Geometry::INgbGraph>;

// LocalMaxima, LocalMinima: (input, output, graph): set where no neighbour
// is greater (smaller).
class QUILON_API Function1 : public System::Functions::Template::Overloads<void(Image, Image, Graph)> {
public:
    using Overloads::Overloads;
};

// RegionalMaxima, RegionalMinima: [0] (input, output, graph): set on the
// connected plateaus that no neighbour outside exceeds (undercuts); [1]
// (input, output, graph, height): only those that rise (sink) at least
// `height` above (below) every path out of them.
class QUILON_API Function2
    : public System::Functions::Template::Overloads<void(Image, Image, Graph),
                                                    void(Image, Image, Graph, double)> {
public:
    using Overloads::Overloads;
};

// UltimateErodedSet: (binary, output, graph): the last points that
// successive erosions by the graph leave of each object.
class QUILON_API Function3 : public System::Functions::Template::Overloads<void(Image, Image, Graph)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function1 LocalMaxima;
extern QUILON_API Function1 LocalMinima;
extern QUILON_API Function2 RegionalMaxima;
extern QUILON_API Function2 RegionalMinima;
extern QUILON_API Function3 UltimateErodedSet;

} // namespace Quilon_::Images::Morphology::Features::Functions
