#include "Quilon_/ObjectSets/Object.h"

#include "Quilon_/ObjectSets/ObjectSet.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IObject, L"Quilon_::ObjectSets::IObject", System::Interface)
QUILON_DEFINE_INTERFACE_TYPE(IObjectInternal, L"Quilon_::ObjectSets::IObjectInternal", System::Interface)

Object::Factory Object::New;

} // namespace Quilon_::ObjectSets
