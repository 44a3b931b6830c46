#include "Quilon_/Windows/InputEventCollection.h"

#include "Quilon_/System/Type.h"

namespace Quilon_::System::Collections::Template {

template <>
const Type& IValueCollection<Windows::InputEvent>::GetType()
{
    static const Type type =
        System::Detail::MakeInterfaceType<IValueCollection<Windows::InputEvent>, Interface>(
            L"Quilon_::System::Collections::Template::IValueCollection<Quilon_::Windows::InputEvent>");
    return type;
}

} // namespace Quilon_::System::Collections::Template

namespace Quilon_::Windows {

QUILON_DEFINE_INTERFACE_TYPE(IInputEventCollection, L"Quilon_::Windows::IInputEventCollection",
                             System::Collections::Template::IValueCollection<InputEvent>)

InputEventCollection::Factory InputEventCollection::New;

} // namespace Quilon_::Windows
