// Attributes of object sets: the values that an object set keeps per
// object under a name.
//
// Its operations come with the object-set data model; for now the interface
// is known by its type, so that code that meets an attribute can recognise
// it:
//
//   Pointer<ObjectSets::IAttribute, 0> attribute(value);
//   if (attribute) { /* share it rather than copying it */ }
#pragma once

#include "Quilon_/System/Pointer.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::ObjectSets {

class QUILON_API IAttribute : public virtual System::Interface {
    QUILON_INTERFACE(IAttribute)
};

} // namespace Quilon_::ObjectSets
