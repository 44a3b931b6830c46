// Attributes of one number per object. Reading an unset cell gives 0.
//
//   Pointer<ObjectSets::IFloatAttribute, 1> area(set->AddAttribute(L"Area", DataTypeOf<float>()));
//   area->SetFloatValue(key, 12.0f);
//   double same = area->ScalarValue(key);   // every scalar family reads as double
#pragma once

#include "Quilon_/ObjectSets/Attribute.h"

#include <cstdint>

namespace Quilon_::ObjectSets {

class QUILON_API IScalarAttribute : public virtual IAttribute {
    QUILON_INTERFACE(IScalarAttribute)
public:
    virtual double ScalarValue(Key key) = 0;
    virtual void SetScalarValue(Key key, double value) = 0;
};

class QUILON_API IInt32Attribute : public virtual IScalarAttribute {
    QUILON_INTERFACE(IInt32Attribute)
public:
    virtual std::int32_t Int32Value(Key key) = 0;
    virtual void SetInt32Value(Key key, std::int32_t value) = 0;
};

class QUILON_API IFloatAttribute : public virtual IScalarAttribute {
    QUILON_INTERFACE(IFloatAttribute)
public:
    virtual float FloatValue(Key key) = 0;
    virtual void SetFloatValue(Key key, float value) = 0;
};

} // namespace Quilon_::ObjectSets
