#include "Quilon_/Geometry/TwoD/HandleCollection.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System::Collections::Template {

template <>
const Type& IValueCollection<Geometry::TwoD::Handle>::GetType()
{
    static const Type type =
        System::Detail::MakeInterfaceType<IValueCollection<Geometry::TwoD::Handle>, Interface>(
            L"Quilon_::System::Collections::Template::IValueCollection<Quilon_::Geometry::TwoD::Handle>");
    return type;
}

} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Geometry::TwoD {

QUILON_DEFINE_INTERFACE_TYPE(IHandleCollection, L"Quilon_::Geometry::TwoD::IHandleCollection",
                             System::Collections::Template::IValueCollection<Handle>, Windows::IViewable)

HandleCollection::Factory HandleCollection::New;

} // namespace Quilon_::Geometry::TwoD
