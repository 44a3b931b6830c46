#include "Quilon_/Geometry/NgbGraph.h"

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(INgbGraph, L"Quilon_::Geometry::INgbGraph", ICoordinatesCollection)

NgbGraph::Factory NgbGraph::New;

} // namespace Quilon_::Geometry
