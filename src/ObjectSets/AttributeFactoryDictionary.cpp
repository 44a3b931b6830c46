#include "Quilon_/ObjectSets/AttributeFactoryDictionary.h"

#include "Quilon_/ObjectSets/Attribute.h"

namespace Quilon_::System::Collections::Template {

template <>
const Type& IValueDictionary<Type, ObjectSets::AttributeFactory>::GetType()
{
    static const Type type =
        System::Detail::MakeInterfaceType<IValueDictionary<Type, ObjectSets::AttributeFactory>, Interface>(
            L"Quilon_::System::Collections::Template::IValueDictionary<Quilon_::System::Type,Quilon_::"
            L"ObjectSets::"
            L"AttributeFactory>");
    return type;
}

} // namespace Quilon_::System::Collections::Template

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IAttributeFactoryDictionary, L"Quilon_::ObjectSets::IAttributeFactoryDictionary",
                             System::Collections::Template::IValueDictionary<System::Type, AttributeFactory>)

AttributeFactoryDictionary::Factory AttributeFactoryDictionary::New;

} // namespace Quilon_::ObjectSets
