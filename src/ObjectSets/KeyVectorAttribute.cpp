#include "Quilon_/ObjectSets/KeyVectorAttribute.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IKeyVectorAttribute, L"Quilon_::ObjectSets::IKeyVectorAttribute", IAttribute)

} // namespace Quilon_::ObjectSets
