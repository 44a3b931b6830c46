#include "Quilon_/ObjectSets/KeyCollection.h"

#include "Quilon_/ObjectSets/ObjectSet.h"

namespace Quilon_::System::Collections::Template {

template <>
const Type& IValueCollection<ObjectSets::Key>::GetType()
{
    static const Type type = System::Detail::MakeInterfaceType<IValueCollection<ObjectSets::Key>, Interface>(
        L"Quilon_::System::Collections::Template::IValueCollection<Quilon_::ObjectSets::Key>");
    return type;
}

} // namespace Quilon_::System::Collections::Template

namespace Quilon_::ObjectSets {

QUILON_DEFINE_INTERFACE_TYPE(IKeyCollection, L"Quilon_::ObjectSets::IKeyCollection",
                             System::Collections::Template::IValueCollection<Key>)

KeyCollection::Factory KeyCollection::New;

} // namespace Quilon_::ObjectSets
