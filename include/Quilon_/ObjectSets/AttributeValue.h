// One cell taken out of its attribute, for code that reads and writes a
// value without knowing where it lives:
//
//   Ref<ObjectSets::IAttributeValue> cell = attribute->Cell(key);
//   cell->SetValue(System::ToAny(2.0));   // writes through to the attribute
#pragma once

#include "Quilon_/System/Any.h"

namespace Quilon_::ObjectSets {

class QUILON_API IAttributeValue : public virtual System::Interface {
    QUILON_INTERFACE(IAttributeValue)
public:
    virtual System::Any Value() = 0;
    virtual void SetValue(const System::Any& value) = 0;
};

} // namespace Quilon_::ObjectSets
