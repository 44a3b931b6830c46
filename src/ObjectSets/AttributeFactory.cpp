#include "Quilon_/ObjectSets/AttributeFactory.h"

#include "Quilon_/ObjectSets/Attribute.h"

namespace Quilon_::ObjectSets {

AttributeFactory::AttributeFactory() : Function(L"AttributeFactory") {}

AttributeFactory::AttributeFactory(Creator create) : Function(L"AttributeFactory")
{
    Register(create);
}

AttributeFactory::AttributeFactory(const System::LIString& implementationName, Creator create)
    : Function(L"AttributeFactory")
{
    Register(implementationName, create);
}

} // namespace Quilon_::ObjectSets

namespace Quilon_::System {

Any ToAny(const ObjectSets::AttributeFactory& value)
{
    return Detail::Box(value);
}

} // namespace Quilon_::System
