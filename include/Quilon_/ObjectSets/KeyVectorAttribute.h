// Attributes of a vector of keys per object: references to objects of the
// same set or of another. Reading an unset cell gives an empty vector.
//
//   Pointer<ObjectSets::IKeyVectorAttribute, 1> neighbours(
//       set->AddAttribute(L"Neighbours", DataTypeOf<std::vector<ObjectSets::Key>>()));
//   neighbours->SetKeyValues(Key(1), {Key(2), Key(5)});
#pragma once

#include "Quilon_/ObjectSets/Attribute.h"

#include <vector>

namespace Quilon_::ObjectSets {

class QUILON_API IKeyVectorAttribute : public virtual IAttribute {
    QUILON_INTERFACE(IKeyVectorAttribute)
public:
    virtual std::vector<Key> KeyValues(Key key) = 0;
    virtual void SetKeyValues(Key key, const std::vector<Key>& values) = 0;
};

} // namespace Quilon_::ObjectSets
