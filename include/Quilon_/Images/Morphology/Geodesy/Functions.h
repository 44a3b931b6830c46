// Geodesic morphology: operations that spread a marker inside a mask, and
// what they give (reconstruction, hole filling, removal of the objects that
// touch the border, geodesic distances). An implementation library
// registers the implementations at start-up:
//
//   using namespace Quilon_::Images::Morphology::Geodesy;
//   Functions::Reconstruct(marker, mask, output);   // by dilation, 8- or 26-neighbours
//   Functions::HoleFill(binary, filled);
//   Functions::BorderKill(binary, inner, Quilon_::Geometry::NgbGraph::New(Quilon_::Geometry::pngSquare4,
//   Quilon_::Geometry::Axes::aXY));
//
// Connectivity. Without a graph, objects are connected through the 8
// neighbours of a plane (26 of a volume), and a hole is background that
// the 4 neighbours (6 of a volume) do not connect to the border: the usual
// pair that keeps the topology of objects and background consistent. A
// given graph is used as it is.
//
// Borders: the border of an image is its first and last row and column
// (and plane, for a volume); outside the image nothing spreads.
//
// Grey images: Reconstruct is the grey reconstruction by dilation (the
// marker, clipped to the mask, spread under it). HoleFill fills each
// regional minimum that does not reach the border up to the level of its
// lowest exit; BorderKill subtracts from the input its reconstruction
// from the border values, so what the border reaches becomes 0 (an integer
// output saturates). On a binary image both are the usual set operations.
#pragma once

#include "Quilon_/System/Functions/Overloads.h"

#include <cstdint>
#include <vector>

namespace Quilon_::Geometry {
class IStructuringElement;
class INgbGraph;
} // namespace Quilon_::Geometry

namespace Quilon_::Images {
class IImage;
} // namespace Quilon_::Images

namespace Quilon_::Images::Morphology::Geodesy::Functions {

using Image = System::Ref<IImage>;
using Graph = System::Ref<Quilon_::Geometry::INgbGraph>;

// Reconstruct: [0] (marker, mask, output); [1] (marker, mask, output,
// graph).
class QUILON_API Function1 : public System::Functions::Template::Overloads<void(Image, Image, Image),
                                                                           void(Image, Image, Image, Graph)> {
public:
    using Overloads::Overloads;
};

// BorderKill, HoleFill, BorderKillAndHoleFill: [0] (input, output); [1]
// (input, output, graph), the connectivity of the objects for BorderKill,
// of the background for HoleFill; BorderKillAndHoleFill takes the graph for
// both.
class QUILON_API Function2
    : public System::Functions::Template::Overloads<void(Image, Image), void(Image, Image, Graph)> {
public:
    using Overloads::Overloads;
};

// Dilate, geodesic: the marker dilated and clipped to the mask, that many
// times; [0] (marker, mask, output, graph, iterations), the graph with the
// point itself; [1] (marker, mask, output, element, iterations).
class QUILON_API Function3
    : public System::Functions::Template::Overloads<
          void(Image, Image, Image, Graph, std::int64_t),
          void(Image, Image, Image, System::Ref<Quilon_::Geometry::IStructuringElement>, std::int64_t)> {
public:
    using Overloads::Overloads;
};

// Distance, geodesic: within the binary mask, the number of steps from the
// nearest point of the binary seeds; [0] (mask, seeds, output) by the
// default object graph; [1] (mask, seeds, output, graph).
class QUILON_API Function4 : public System::Functions::Template::Overloads<void(Image, Image, Image),
                                                                           void(Image, Image, Image, Graph)> {
public:
    using Overloads::Overloads;
};

// WeightedDistance: as Distance, a step to neighbour k of the graph
// costing weights[k]; (mask, seeds, output, graph, weights).
class QUILON_API Function5 : public System::Functions::Template::Overloads<void(Image, Image, Image, Graph,
                                                                                const std::vector<double>&)> {
public:
    using Overloads::Overloads;
};

extern QUILON_API Function2 BorderKill;
extern QUILON_API Function2 BorderKillAndHoleFill;
extern QUILON_API Function3 Dilate;
extern QUILON_API Function4 Distance;
extern QUILON_API Function2 HoleFill;
extern QUILON_API Function1 Reconstruct;
extern QUILON_API Function5 WeightedDistance;

} // namespace Quilon_::Images::Morphology::Geodesy::Functions
