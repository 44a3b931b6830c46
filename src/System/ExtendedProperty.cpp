#include "Quilon_/System/ExtendedProperty.h"

#include "Quilon_/System/ExtendedPropertyDictionary.h"
#include "Quilon_/System/Type.h"

namespace Quilon_::System {

QUILON_DEFINE_INTERFACE_TYPE(IExtendedProperty, L"Quilon_::System::IExtendedProperty", Interface)
QUILON_DEFINE_INTERFACE_TYPE(IScalarExtendedProperty, L"Quilon_::System::IScalarExtendedProperty",
                             IExtendedProperty)
QUILON_DEFINE_INTERFACE_TYPE(IExtendedPropertyCollection, L"Quilon_::System::IExtendedPropertyCollection",
                             Collections::Template::ICollection<IExtendedProperty>)
QUILON_DEFINE_INTERFACE_TYPE(ICompositeExtendedProperty, L"Quilon_::System::ICompositeExtendedProperty",
                             IExtendedProperty, IExtendedPropertyCollection)
QUILON_DEFINE_INTERFACE_TYPE(IExtendedPropertiesContainer, L"Quilon_::System::IExtendedPropertiesContainer",
                             Interface)

namespace Collections::Template {
template <>
const Type& IDictionary<LIString, IExtendedProperty>::GetType()
{
    static const Type type = [] {
        Type made{Type::ReferenceType<IDictionary<LIString, IExtendedProperty>>(
            L"Quilon_::System::Collections::Template::IDictionary<Quilon_::System::LIString,Quilon_::System::"
            L"IExtendedProperty>")};
        made.AddBase(Interface::GetType());
        return made;
    }();
    return type;
}
} // namespace Collections::Template

QUILON_DEFINE_INTERFACE_TYPE(IExtendedPropertyDictionary, L"Quilon_::System::IExtendedPropertyDictionary",
                             Collections::Template::IDictionary<LIString, IExtendedProperty>)

ExtendedProperty::Factory ExtendedProperty::New;
ScalarExtendedProperty::Factory ScalarExtendedProperty::New;
Functions::Template::Function<
    Pointer<ICompositeExtendedProperty, 1> (*)(LIString, Pointer<IExtendedPropertyCollection, 1>)>
    CompositeExtendedProperty::New(L"New");
Functions::Template::Function<Pointer<IExtendedPropertyCollection, 1> (*)()>
    ExtendedPropertyCollection::New(L"New");
Functions::Template::Function<Pointer<IExtendedPropertyDictionary, 1> (*)()>
    ExtendedPropertyDictionary::New(L"New");

const LIString& ExtendedPropertyKeys::Name()
{
    static const LIString key(L"Property.Object.Name", true);
    return key;
}

const LIString& ExtendedPropertyKeys::DateTime()
{
    static const LIString key(L"Property.Object.DateTime", true);
    return key;
}

} // namespace Quilon_::System
