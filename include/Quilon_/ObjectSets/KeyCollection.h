// An ordered list of keys of one object set: the keys an operator keeps,
// drops or selects.
//
//   Ref<ObjectSets::IKeyCollection> keys = ObjectSets::KeyCollection::New(set);
//   keys->Add(ObjectSets::Key(4));
//   Ref<ObjectSets::IKeyCollection> some = ObjectSets::KeyCollection::New(set, {Key(1), Key(2)});
#pragma once

#include "Quilon_/ObjectSets/Key.h"
#include "Quilon_/System/Collections/ValueCollection.h"
#include "Quilon_/System/Functions/Factory.h"

#include <vector>

namespace Quilon_::System::Collections::Template {
template <>
QUILON_API const Type& IValueCollection<ObjectSets::Key>::GetType();
} // namespace Quilon_::System::Collections::Template

namespace Quilon_::ObjectSets {

class IObjectSet;

class QUILON_API IKeyCollection : public System::Collections::Template::IValueCollection<Key> {
    QUILON_INTERFACE(IKeyCollection)
};

namespace KeyCollection {
using Factory =
    System::Functions::Template::Factory<System::Ref<IKeyCollection>(System::Pointer<IObjectSet, 0>),
                                         System::Ref<IKeyCollection>(System::Pointer<IObjectSet, 0>,
                                                                     const std::vector<Key>&)>;
extern QUILON_API Factory New;
} // namespace KeyCollection

} // namespace Quilon_::ObjectSets
