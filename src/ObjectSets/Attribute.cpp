#include "Quilon_/ObjectSets/Attribute.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IAttribute, L"Quilon_::ObjectSets::IAttribute", System::Interface)

} // namespace Quilon_::ObjectSets
