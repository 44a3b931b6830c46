#include "Quilon_/ObjectSets/AttributeValue.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IAttributeValue, L"Quilon_::ObjectSets::IAttributeValue", System::Interface)

} // namespace Quilon_::ObjectSets
