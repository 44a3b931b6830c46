#include "Quilon_/Measurements/Position.h"

namespace Quilon_::Measurements {

QUILON_DEFINE_INTERFACE_TYPE(IPosition, L"Quilon_::Measurements::IPosition", Geometry::ICoordinatesD)

Position::Factory Position::New;

} // namespace Quilon_::Measurements
