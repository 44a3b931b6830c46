#include "Quilon_/ObjectSets/StringAttribute.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IStringAttribute, L"Quilon_::ObjectSets::IStringAttribute", IAttribute)

} // namespace Quilon_::ObjectSets
