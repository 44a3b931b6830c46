#include "Quilon_/ObjectSets/AttributeDictionary.h"

#include "Quilon_/ObjectSets/Attribute.h"
#include "Quilon_/ObjectSets/ObjectSet.h"

namespace Quilon_::System::Collections::Template {

template <>
const Type& IDictionary<LIString, ObjectSets::IAttribute>::GetType()
{
    static const Type type = System::Detail::MakeInterfaceType<IDictionary<LIString, ObjectSets::IAttribute>,
                                                               Interface>(
        L"Quilon_::System::Collections::Template::IDictionary<Quilon_::System::LIString,Quilon_::ObjectSets::"
        L"IAttribute>");
    return type;
}

} // namespace Quilon_::System::Collections::Template

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IAttributeDictionary, L"Quilon_::ObjectSets::IAttributeDictionary",
                             System::Collections::Template::IDictionary<System::LIString, IAttribute>)

} // namespace Quilon_::ObjectSets
