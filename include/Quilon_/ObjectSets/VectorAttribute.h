// Attributes of a vector of numbers per object. Reading an unset cell
// gives an empty vector; every family reads as doubles too.
//
//   Pointer<ObjectSets::IFloatVectorAttribute, 1> profile(
//       set->AddAttribute(L"Profile", DataTypeOf<std::vector<float>>()));
//   profile->SetFloatValues(key, {1.0f, 2.0f});
//   profile->VectorValue(key);   // {1.0, 2.0}
#pragma once

#include "Quilon_/ObjectSets/Attribute.h"

#include <cstdint>
#include <vector>

namespace Quilon_::ObjectSets {

class QUILON_API IVectorAttribute : public virtual IAttribute {
    QUILON_INTERFACE(IVectorAttribute)
public:
    virtual std::vector<double> VectorValue(Key key) = 0;
};

class QUILON_API IInt32VectorAttribute : public virtual IVectorAttribute {
    QUILON_INTERFACE(IInt32VectorAttribute)
public:
    virtual std::vector<std::int32_t> Int32Values(Key key) = 0;
    virtual void SetInt32Values(Key key, const std::vector<std::int32_t>& values) = 0;
};

class QUILON_API IFloatVectorAttribute : public virtual IVectorAttribute {
    QUILON_INTERFACE(IFloatVectorAttribute)
public:
    virtual std::vector<float> FloatValues(Key key) = 0;
    virtual void SetFloatValues(Key key, const std::vector<float>& values) = 0;
};

} // namespace Quilon_::ObjectSets
