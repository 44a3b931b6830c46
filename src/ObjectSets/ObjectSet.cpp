#include "Quilon_/ObjectSets/ObjectSet.h"

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/AttributeDictionary.h"
#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectDictionary.h"

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IObjectSet, L"Quilon_::ObjectSets::IObjectSet", System::Interface)

ObjectSet::Factory ObjectSet::New;

} // namespace Quilon_::ObjectSets
