// How attributes of one data type are made: an operator that takes the new
// attribute's name. A library registers one per data type in the factory
// table of Globals::AttributeFactories():
//
//   Globals::AttributeFactories()->Add(DataTypeOf<float>(), AttributeFactory(L"Float attribute", &NewFloat));
//   Ref<IAttribute> made = Globals::AttributeFactories()->Item(DataTypeOf<float>())(L"Area");
#pragma once

#include "Quilon_/System/Functions/Function.h"
#include "Quilon_/System/String.h"

namespace Quilon_::ObjectSets {

class IAttribute;

class QUILON_API AttributeFactory
    : public System::Functions::Template::Function<System::Ref<IAttribute> (*)(const System::LIString&)> {
public:
    using Creator = System::Ref<IAttribute> (*)(const System::LIString&);

    AttributeFactory();
    // With `create` as its one, unnamed implementation.
    explicit AttributeFactory(Creator create);
    AttributeFactory(const System::LIString& implementationName, Creator create);
    AttributeFactory(const AttributeFactory& other) = default;
};

} // namespace Quilon_::ObjectSets

namespace Quilon_::System {
QUILON_API Any ToAny(const ObjectSets::AttributeFactory& value);
} // namespace Quilon_::System
