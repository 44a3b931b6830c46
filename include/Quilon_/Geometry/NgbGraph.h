// Neighbourhood graphs: the offsets that count as neighbours of a point,
// for labelling, watershed and look-up table operators. A graph is a
// collection of coordinates, one per neighbour, in an order that the
// implementation library documents (rules of look-up tables depend on it):
//
//   using namespace Quilon_::Geometry;
//   System::Ref<INgbGraph> eight = NgbGraph::New(pngSquare8, Axes::aXY);
//   eight->Count();          // 8
//   eight->Item(0)->X();     // the first neighbour's offset on aX
//   System::Ref<INgbGraph> own = NgbGraph::New(offsets);   // from an ICoordinatesCollection
#pragma once

#include "Quilon_/Geometry/Coordinates.h"
#include "Quilon_/Geometry/PredefinedNgbGraph.h"

namespace Quilon_::Geometry {

// The thirteen operations of a coordinates collection; nothing of its own.
class QUILON_API INgbGraph : public ICoordinatesCollection {
    QUILON_INTERFACE(INgbGraph)
};

// 1: a predefined graph on the given axes; 2: the given offsets.
namespace NgbGraph {
using Reference = System::Ref<INgbGraph>;
using Factory = System::Functions::Template::Factory<Reference(PredefinedNgbGraphEnum, Geometry::Axes),
                                                     Reference(System::Ref<ICoordinatesCollection>)>;
extern QUILON_API Factory New;
} // namespace NgbGraph

} // namespace Quilon_::Geometry
