#include "Quilon_/ObjectSets/ObjectDictionary.h"

#include "Quilon_/ObjectSets/Object.h"
#include "Quilon_/ObjectSets/ObjectSet.h"

namespace Quilon_::System::Collections::Template {

template <>
const Type& IDictionary<ObjectSets::Key, ObjectSets::IObject>::GetType()
{
    static const Type type =
        System::Detail::MakeInterfaceType<IDictionary<ObjectSets::Key, ObjectSets::IObject>, Interface>(
            L"Quilon_::System::Collections::Template::IDictionary<Quilon_::ObjectSets::Key,Quilon_::"
            L"ObjectSets::IObject>");
    return type;
}

} // namespace Quilon_::System::Collections::Template

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IObjectDictionary, L"Quilon_::ObjectSets::IObjectDictionary",
                             System::Collections::Template::IDictionary<Key, IObject>)

} // namespace Quilon_::ObjectSets
