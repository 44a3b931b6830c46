#include "Quilon_/Geometry/WeightedCoordinates.h"

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(IWeightedCoordinates, L"Quilon_::Geometry::IWeightedCoordinates", ICoordinates)
QUILON_DEFINE_INTERFACE_TYPE(IWeightedCoordinatesCollection,
                             L"Quilon_::Geometry::IWeightedCoordinatesCollection",
                             System::Collections::Template::ICollection<IWeightedCoordinates>)

WeightedCoordinates::Factory WeightedCoordinates::New;
WeightedCoordinatesCollection::Factory WeightedCoordinatesCollection::New;

} // namespace Quilon_::Geometry
