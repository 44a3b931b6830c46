// Attributes of one string per object. Reading an unset cell gives an
// empty string.
//
//   Pointer<ObjectSets::IStringAttribute, 1> names(set->AddAttribute(L"Name", DataTypeOf<std::wstring>()));
//   names->SetStringValue(key, L"nucleus");
#pragma once

#include "Quilon_/ObjectSets/Attribute.h"

#include <string>

namespace Quilon_::ObjectSets {

class QUILON_API IStringAttribute : public virtual IAttribute {
    QUILON_INTERFACE(IStringAttribute)
public:
    virtual std::wstring StringValue(Key key) = 0;
    virtual void SetStringValue(Key key, const std::wstring& value) = 0;
};

} // namespace Quilon_::ObjectSets
