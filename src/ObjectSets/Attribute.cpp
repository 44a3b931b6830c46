#include "Quilon_/ObjectSets/Attribute.h"

#include "Quilon_/ObjectSets/AttributeValue.h"
#include "Quilon_/ObjectSets/ObjectSet.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IAttribute, L"Quilon_::ObjectSets::IAttribute", System::Interface)

} // namespace Quilon_::ObjectSets
