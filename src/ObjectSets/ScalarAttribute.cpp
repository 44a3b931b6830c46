#include "Quilon_/ObjectSets/ScalarAttribute.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IScalarAttribute, L"Quilon_::ObjectSets::IScalarAttribute", IAttribute)
QUILON_DEFINE_INTERFACE_TYPE(IInt32Attribute, L"Quilon_::ObjectSets::IInt32Attribute", IScalarAttribute)
QUILON_DEFINE_INTERFACE_TYPE(IFloatAttribute, L"Quilon_::ObjectSets::IFloatAttribute", IScalarAttribute)

} // namespace Quilon_::ObjectSets
