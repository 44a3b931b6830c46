#include "Quilon_/Geometry/Rotation.h"

namespace Quilon_::Geometry {

QUILON_DEFINE_INTERFACE_TYPE(IRotation, L"Quilon_::Geometry::IRotation", System::Interface)

Rotation::Factory Rotation::New;

} // namespace Quilon_::Geometry
