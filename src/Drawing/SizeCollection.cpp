#include "Quilon_/Drawing/SizeCollection.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System::Collections::Template {

template <>
const Type& IValueCollection<Drawing::Size<int>>::GetType()
{
    static const Type type =
        System::Detail::MakeInterfaceType<IValueCollection<Drawing::Size<int>>, Interface>(
            L"Quilon_::System::Collections::Template::IValueCollection<Quilon_::Drawing::Template::Size<int,"
            L"tagSIZE>>");
    return type;
}

} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Drawing {

QUILON_DEFINE_INTERFACE_TYPE(ISizeCollection, L"Quilon_::Drawing::ISizeCollection",
                             System::Collections::Template::IValueCollection<Size<int>>)

SizeCollection::Factory SizeCollection::New;

} // namespace Quilon_::Drawing
