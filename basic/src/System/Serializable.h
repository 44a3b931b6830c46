// Registration of the reference library's classes for reading from
// archives: the factory of a class makes an empty instance, under the name
// by which archives know the class.
//
//   RegisterSerializable<CMatrixD>(&NewEmptyMatrix);
#pragma once

#include "Quilon_/System/Helper.h"
#include "Quilon_/System/Serialization/Binary/Serializable.h"
#include "Quilon_/System/Serialization/FactoryDictionary.h"

#include <typeinfo>

namespace Quilon_::Basic {

// SetItem, so that a second start-up finds the entry in place.
template <class C>
void RegisterSerializable(System::Pointer<System::Interface, 1> (*newEmpty)())
{
    System::Serialization::Factories()->SetItem(
        System::Helper::TypeName(typeid(C)),
        System::Serialization::Factory(newEmpty, System::Serialization::OldestVersion));
}

} // namespace Quilon_::Basic
