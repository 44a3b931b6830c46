#include "Quilon_/ObjectSets/SpatialAttribute.h"

#include "Quilon_/Geometry/Box.h"
#include "Quilon_/Geometry/Shape.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(ISpatialAttribute, L"Quilon_::ObjectSets::ISpatialAttribute", IAttribute)

} // namespace Quilon_::ObjectSets
