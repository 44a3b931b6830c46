#include "Quilon_/ObjectSets/VectorAttribute.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IVectorAttribute, L"Quilon_::ObjectSets::IVectorAttribute", IAttribute)
QUILON_DEFINE_INTERFACE_TYPE(IInt32VectorAttribute, L"Quilon_::ObjectSets::IInt32VectorAttribute",
                             IVectorAttribute)
QUILON_DEFINE_INTERFACE_TYPE(IFloatVectorAttribute, L"Quilon_::ObjectSets::IFloatVectorAttribute",
                             IVectorAttribute)

} // namespace Quilon_::ObjectSets
