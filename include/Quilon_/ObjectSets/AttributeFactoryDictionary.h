// The table from data types to the factories that make attributes of them.
// Each thread has its own (Globals::AttributeFactories()), cloned from what
// the main thread set, so the concrete table implements ICloneable.
//
//   Ref<ObjectSets::IAttributeFactoryDictionary> table = ObjectSets::Globals::AttributeFactories();
//   if (table->Supports(DataTypeOf<std::int32_t>())) made = table->Create(DataTypeOf<std::int32_t>(),
//   L"Label");
#pragma once

#include "Quilon_/ObjectSets/AttributeFactory.h"
#include "Quilon_/System/Collections/Dictionary.h"
#include "Quilon_/System/Functions/Factory.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::System::Collections::Template {
template <>
QUILON_API const Type& IValueDictionary<Type, ObjectSets::AttributeFactory>::GetType();
} // namespace Quilon_::System::Collections::Template

namespace Quilon_::ObjectSets {

class QUILON_API IAttributeFactoryDictionary
    : public System::Collections::Template::IValueDictionary<System::Type, AttributeFactory> {
    QUILON_INTERFACE(IAttributeFactoryDictionary)
public:
    virtual bool Supports(const System::Type& dataType) = 0;
    // A new detached attribute of that data type and name; an unsupported
    // type is the dictionary's missing-key error.
    virtual System::Ref<IAttribute> Create(const System::Type& dataType, const System::LIString& name) = 0;
};

namespace AttributeFactoryDictionary {
using Factory = System::Functions::Template::Factory<System::Ref<IAttributeFactoryDictionary>()>;
extern QUILON_API Factory New;
} // namespace AttributeFactoryDictionary

} // namespace Quilon_::ObjectSets
